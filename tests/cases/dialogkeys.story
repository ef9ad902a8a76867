# Each dialog without a mouse: how it is opened, where Tab goes, Return and Escape.
queue Office px4500.ppd Option17=Finisher2 Option18=HDD Option19=True
saved Mine [Profile]

== profiles
select Office
press Alt+P
await
> title: Profiles
= @focus.accessibleName: Profiles
press Tab
= @focus.accessibleName: Detail
press Tab
= @focus.text: Save...
press Shift+Tab Shift+Tab Down
> Detail loses Basic|Print size: A4|Media type: Plain paper|Source: Automatic|Destination: Automatic|Collate: On|Duplex: Off|Layout|Booklet: Off|Finishing|Separation: Off|Folding mode: Off|Folding side: Off|Folding direction: Off|Folding method: Off|Staple: Off|Staple method: Off|Punch: Off|Rotate: Off|Imaging|Trapping: Off|Gloss mode: Off|CIE optimization: Off|Halftone screen: Automatic|Resolution: 600 dpi|LeanPrint: Off|HSL/Color Balance: Off|Color adjustment: Off|Monochrome adjustment: Off|Color mode: Full color|Color reproduction: Automatic|Color conversion: Printer colors|VRS: Off|Print grays with black toner: Off|Job|Job settings: None|Job accounting: Off|User login: Off|Watermark|Watermark: Off|Text: CONFIDENTIAL
> Profiles: "Mine"
press Tab Tab Tab
= @focus.text: Edit...
press Return
> title: Edit Profile
await
= @focus.text: Mine
press Escape
press Escape

== a new profile
select Office
press Alt+S
await
> title: Save Profile
press M y
> Ok of Save Profile: OK
press Tab T e x t Tab
= @focus.text: OK
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
await
= @focus.text: Custom
press Tab
= @focus.text: OK
press Escape

== about
start
press F6 F6 Tab
= @focus.accessibleName: About
press Return
> title: About
await
= @focus.text: Close
press Tab
= @focus.text: Data collection...
press Escape
