# Each dialog without a mouse: how it is opened, where Tab goes, Return and Escape.
queue Office px4500.ppd Option17=Finisher2 Option18=HDD Option19=True
saved Mine [Profile]

== profiles
select Office
press Alt+P
> title: Profiles
= @focus.accessibleName: Profiles
press Tab
= @focus.accessibleName: Detail
press Tab
= @focus.text: &Save...
press Shift+Tab Shift+Tab Down
> Detail loses Basic|Print size: A4|Media type: Plain paper|Source: Automatic|Destination: Automatic|Collate: On|Duplex: Off|Layout|Booklet: Off|Finishing|Separation: Off|Folding mode: Off|Folding side: Off|Folding direction: Off|Folding method: Off|Staple: Off|Staple method: Off|Punch: Off|Rotate: Off|Imaging|Trapping: Off|Gloss mode: Off|CIE optimization: Off|Halftone screen: Automatic|Resolution: 600 dpi|LeanPrint: Off|HSL/Color Balance: Off|Color adjustment: Off|Monochrome adjustment: Off|Color mode: Full color|Color reproduction: Automatic|Color conversion: Printer colors|VRS: Off|Print grays with black toner: Off|Job|Job settings: None|Job accounting: Off|User login: Off|Watermark|Watermark: Off|Text: CONFIDENTIAL
> Profiles: "Mine"
press Tab Tab Tab
= @focus.text: &Edit...
press Return
> title: Edit Profile
= @focus.text: Mine
press Escape
press Escape

== a new profile
select Office
press Alt+S
> title: Save Profile
press M y
> Ok of Save Profile: OK
press Tab T e x t Tab
= @focus.text: &OK
press Return
> my.cfg: new

== adjustment of colors
select Office
# The click on the tab has taken the focus along.
tab Imaging
= @focus.accessibleName: cmbBxTrap
press Shift+Tab Shift+Tab Shift+Tab Shift+Tab Shift+Tab
= @focus.text: Settings...
press Return
> title: Adjustment Settings
= @focus.text: C&ustom
press Tab
= @focus.text: &OK
press Alt+U
> Contrast: "0"; Contrast': 0; Lightness: "0"; Lightness': 0; Master: "0"; Master': 0; Saturation: "0"
> Saturation': 0
press Alt+U Tab Return
= title: Brixola Press Desk - Office

== about
start
press F6 F6 Tab
= @focus.accessibleName: About
press Return
> title: About
= @focus.text: &Close
press Tab
= @focus.text: &Data collection...
press Alt+L
> title: Legal Notices
press Escape
press Alt+D
> title: Data Collection
press Alt+N
press Alt+O
= title: About
press Escape

== another name for a profile
select Office
press Alt+P
> title: Profiles
press Down Alt+E
> Detail loses Basic|Print size: A4|Media type: Plain paper|Source: Automatic|Destination: Automatic|Collate: On|Duplex: Off|Layout|Booklet: Off|Finishing|Separation: Off|Folding mode: Off|Folding side: Off|Folding direction: Off|Folding method: Off|Staple: Off|Staple method: Off|Punch: Off|Rotate: Off|Imaging|Trapping: Off|Gloss mode: Off|CIE optimization: Off|Halftone screen: Automatic|Resolution: 600 dpi|LeanPrint: Off|HSL/Color Balance: Off|Color adjustment: Off|Monochrome adjustment: Off|Color mode: Full color|Color reproduction: Automatic|Color conversion: Printer colors|VRS: Off|Print grays with black toner: Off|Job|Job settings: None|Job accounting: Off|User login: Off|Watermark|Watermark: Off|Text: CONFIDENTIAL
> Profiles: "Mine"; title: Edit Profile
press Tab Tab Tab
= @focus.text: &Cancel
press Return
press Alt+E
press End 2 Tab N e w Return t e x t
= @focus.plainText: new text
press Tab
= @focus.text: &OK
press Return
> Profiles: "Mine2"; Profiles gains Mine2; Profiles loses Mine; Mine2.cfg: new; Mine.cfg: gone
# In the list it is OK.
press Return
= title: Brixola Press Desk - Office

== account IDs, and one of them
select Office
check chkButBqManagment
> cmbBxAccountID: ; cmbBxBqManagment: Select account ID
> lblBqManagment: "Job accounting:" marked "You must add an account ID to the list."; marked: Job
> grey: chkButUserLogin; not grey: butAccountID
press Tab Tab Tab
= @focus.accessibleName: butAccountID
press Return
> title: Account ID
press Tab Return
> title: New Account ID
press 4 2 Tab A
> lnEditCustomAccountDescription: "a"; lnEditCustomAccountID: "42"
= @focus.accessibleName: lnEditCustomAccountDescription
press Tab
= @focus.text: &OK
press Return
> tblCustomAccountID gains 42 a
= @focus.text: &New
press Return 7 Return
> tblCustomAccountID gains 7 
# What is refused stays. The first key highlights a row of the list, not the focus.
press Return 7 Return
> message: This Account ID already exists.; title: Account ID Error
press Return
= @focus.accessibleName: lnEditCustomAccountID
press Escape
press Shift+Tab
= @focus.accessibleName: tblCustomAccountID
press Down
> tblCustomAccountID: "42 a"; not grey: butDeleteCustomAccountID, butEditCustomAccountID
press Tab Tab
= @focus.text: &Edit
press Return
> tblCustomAccountID: no row; title: Edit Account ID; grey: butDeleteCustomAccountID, butEditCustomAccountID
press Tab B Tab Tab
> lnEditCustomAccountDescription: "b"
= @focus.text: &Cancel
press Return
press Shift+Tab Shift+Tab Down
> tblCustomAccountID: "42 a"; not grey: butDeleteCustomAccountID, butEditCustomAccountID
press Alt+D
> tblCustomAccountID: no row; tblCustomAccountID loses 42 a
> grey: butDeleteCustomAccountID, butEditCustomAccountID
press Escape
= title: Brixola Press Desk - Office; @focus.text: Account ID List
press Return
press Tab Return 5 Return
> tblCustomAccountID gains 5 
press Tab
= @focus.text: &OK
press Return
> cmbBxAccountID: 5; cmbBxAccountID gains 5; lblBqManagment: "Job accounting:"; marked: 

== the password for installed options
command sudo
  [ "$1" = -k ] || read -r password
  exit 1
select Office
choose cmbBxOption17 #0
> butGroupSep blocks Offset jobs; chkBxOption19: off grey; cmbBxOption17: Not installed
> cmbBxOutputBin blocks Finisher tray; grey: chkButBiFld, chkButPnch, chkButStpl, chkButTriFld, chkBxOption22
> not hidden: lblRootWarning
press Alt+A
> title: Password Prompt
press Tab
= @focus.text: &OK
press Tab
= @focus.accessibleName: cmbBxMethod
press Down Tab x
> cmbBxMethod: su; lblWhosePassword: "su wants the administrator's password (root)."; lnEditRootPassword: "x"
press Escape
= title: Brixola Press Desk - Office
click Apply
press x Return
> message: The program bixPPDWrite_F is missing. An administrator has to install it in a folder of root's search path, such as /usr/sbin.
> title: Error
press Return
= title: Brixola Press Desk - Office
click Apply
press Alt+O
> message: The program bixPPDWrite_F is missing. An administrator has to install it in a folder of root's search path, such as /usr/sbin.
press Return
