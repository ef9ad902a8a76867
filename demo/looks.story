# Every page as it comes and with what can go wrong on it, and every dialog: demo/looks takes the
# pictures on several desktops. Buttons are reached by keys, since their texts depend on the language.
queue Office_C3 px4500.ppd Option17=Finisher2 Option18=HardDisk Option19=True Option22=True
queue Warehouse_M1 mx210.ppd
queue Ratex_200 ratex200.ppd
queue Dual_Path px-dual.ppd
env LANG=en_US.UTF-8

== pages
start
grab 01-start.png BixDialog
select Office_C3
grab 02-printer.png BixDialog
tab #1
grab 03-basic.png BixDialog
tab #2
grab 04-layout.png BixDialog
tab #3
grab 05-finishing.png BixDialog
tab #4
grab 06-imaging.png BixDialog
tab #5
grab 07-publishing.png BixDialog
tab #6
grab 08-job.png BixDialog
tab #7
grab 09-watermark.png BixDialog
tab #8
grab 10-fleet-keeper.png BixDialog
run cp *.png $PRESSDESK_SANDBOX

== with everything switched on
select Office_C3
tab #1
pick butGroupDuplex #1
tab #3
check chkButStpl
check chkButPnch
grab 20-finishing-on.png BixDialog
tab #5
check chkButCvr
check chkButPins
grab 21-publishing-on.png BixDialog
tab #6
check chkButBqManagment
grab 22-job-marked.png BixDialog
tab #7
check chkButWatermark
grab 23-watermark-on.png BixDialog
run cp *.png $PRESSDESK_SANDBOX

== what a small paper switches off, and the offer to restore it
select Office_C3
tab #1
pick butGroupDuplex #1
tab #3
check chkButStpl
check chkButPnch
tab #1
choose cmbBxPageSize A6
grab 30-switched-off.png BixDialog
choose cmbBxPageSize A4
grab 31-restore.png BixDialog
click cmbBxMediaType
grab 32-list.png
run cp *.png $PRESSDESK_SANDBOX

== profiles
select Office_C3
tab #1
choose cmbBxPageSize A5
press F6 Return
grab 40-save-as.png ProfileSaveDialog
press H a n d o u t s Return
press F6 F6 F6 Tab Return
grab 41-profiles.png ProfileDialog
press Down
grab 42-profile.png ProfileDialog
press Tab Tab Tab Return
grab 43-edit-profile.png ProfileEditDialog
run cp *.png $PRESSDESK_SANDBOX

== account IDs
select Office_C3
tab #6
check chkButBqManagment
click butAccountID
click butNewCustomAccountID
grab 50-account.png AccountEditDialog
click Ok
grab 51-message.png QMessageBox
click Ok
type lnEditCustomAccountID 00123456
type lnEditCustomAccountDescription "Workshop, second floor"
click Ok
grab 52-accounts.png AccountListDialog
run cp *.png $PRESSDESK_SANDBOX

== adjustment of colours, and of black
select Office_C3
tab #4
click butAdjustment
grab 60-adjustment.png adjustmentDialog
press Escape
tab #1
pick butGroupColorModelGeneral #1
tab #4
click butAdjustment
grab 61-adjustment-of-black.png monoDialog
run cp *.png $PRESSDESK_SANDBOX

== the password for installed options
command sudo
  [ "$1" = -k ] || read -r password
  exit 1
select Office_C3
choose cmbBxOption17 #0
grab 70-installed-options.png BixDialog
click Apply
grab 71-password.png PasswordPrompt
click butOk
grab 72-refused.png QMessageBox
run cp *.png $PRESSDESK_SANDBOX

== about
start
press F6 F6 Tab Return
grab 80-about.png AboutDialog
press Tab Return
grab 81-data-collection.png TelemetryDialog
press Escape Tab Return
grab 82-legal-notices.png LicenseDialog
run cp *.png $PRESSDESK_SANDBOX
