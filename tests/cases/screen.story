# A screen that is too low for the window: the pages scroll, the buttons below them stay in sight.
queue Office px4500.ppd Option17=Finisher2 Option19=True
command low-screen
  mkfifo number; Xvfb -displayfd 5 -screen 0 1366x440x24 -nolisten tcp 5>number 2>/dev/null &
  read -r number <number; DISPLAY=:$number "$@"; status=$?; kill $!; exit $status
env LAUNCHER=/tmp/play/bin/low-screen

== what is far down comes into sight with the focus
start
= Ok.inSight: true
select Office
tab Watermark
check chkButWatermark
> chkBxWFlg: off; cmbBxClr: Black; cmbBxWFnt: Helvetica; cmbBxWang: 50; cmbBxWsze: 72; cmbBxWtrans: Transparent
> cmbBxWtxt: CONFIDENTIAL; cmbBxWtyp: Solid
> not grey: butSaveCustomWatermark, lblCustomWatermark, lblWClr, lblWFnt, lblWSze, lblWang, lblWtrans, lblWtxt, lblWtyp
> not grey: lnEditCustomWatermark
= chkBxWFlg.inSight: false; cmbBxClr.inSight: true; Ok.inSight: true
press F6 F6 F6 Shift+Tab Shift+Tab
= @focus.accessibleName: chkBxWFlg; @focus.inSight: true; lnEditCustomWatermark.inSight: false
press Shift+Tab Shift+Tab
= @focus.accessibleName: lnEditCustomWatermark; @focus.inSight: true; chkBxWFlg.inSight: false

== a click on the list leaves the focus on the page
select Office
tab Basic
= @focus.accessibleName: cmbBxPageSize
press F6
= @focus.text: &Save As...
