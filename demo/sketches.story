# The drawing of the printed sheets below the list of pages, with a setting each: demo/contact-sheet
# puts the pictures side by side.
queue Office_C3 px4500.ppd Option17=Finisher2 Option18=HardDisk Option19=True Option22=True
env LANG=en_US.UTF-8
start
select Office_C3

== as it comes
tab #1
grab 01.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== colour, long edge, recycled paper
tab #1
pick butGroupDuplex #1
choose cmbBxMediaType #1
grab 02.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== A5, short edge, pages in order of copies
tab #1
choose cmbBxPageSize A5
pick butGroupDuplex #2
pick butGroupCol #0
grab 03.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== A3, front corner, two holes
tab #1
pick butGroupColorModelGeneral #1
choose cmbBxPageSize A3
tab #3
check chkButStpl
choose cmbBxStpl #0
check chkButPnch
grab 04.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== rear corner, three holes, upside down
tab #1
tab #3
check chkButStpl
choose cmbBxStpl #1
check chkButPnch
choose cmbBxPnch #1
pick butGroupRot #1
grab 05.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== two staples in the middle, four holes, both sides
tab #1
pick butGroupDuplex #1
tab #3
check chkButStpl
choose cmbBxStpl #2
check chkButPnch
choose cmbBxPnch #2
grab 06.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== folded in a Z
tab #1
pick butGroupColorModelGeneral #1
tab #3
check chkButTriFld
choose cmbBxFldC #1
grab 07.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== folded in a C, colour
tab #1
tab #3
check chkButTriFld
choose cmbBxFldC #0
grab 08.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== folded in two
tab #3
check chkButBiFld
grab 09.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== booklet, left, folded and stitched
tab #1
tab #2
pick butGroupBXBooklet #1
check chkBxFold
tab #3
check chkButStpl
choose cmbBxStpl #3
grab 10.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== booklet, right, folded
tab #2
pick butGroupBXBooklet #2
check chkBxFold
grab 11.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== booklet, left, flat
tab #1
tab #2
pick butGroupBXBooklet #1
grab 12.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== offset jobs
tab #3
pick butGroupSep #1
grab 13.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== crosswise copies
tab #3
pick butGroupSep #2
grab 14.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== watermark, colour, in red
tab #1
tab #7
check chkButWatermark
choose cmbBxClr #0
grab 15.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== big outlined watermark, level
tab #7
check chkButWatermark
choose cmbBxWtxt #4
choose cmbBxWsze #11
choose cmbBxWang #18
choose cmbBxWtyp #1
grab 16.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== cover, printed inside, and back cover
tab #1
pick butGroupDuplex #1
tab #5
check chkButCvr
click rdButCvrFrontBack
check chkBxCvrFrontIn
grab 17.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== inserts, both sides
tab #1
pick butGroupDuplex #1
tab #5
check chkButPins
type lnEditPinsPage 3
grab 18.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== transparencies with backing
tab #1
choose cmbBxMediaType #6
tab #5
check chkButTint
grab 19.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== pale colours on an envelope
tab #1
choose cmbBxPageSize #14
tab #4
pick butGroupLnpr #1
grab 20.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== what a small paper switches off
tab #3
check chkButStpl
choose cmbBxStpl #2
check chkButPnch
pick butGroupSep #1
tab #1
pick butGroupDuplex #1
choose cmbBxPageSize A6
grab 21.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX

== what transparencies move
tab #1
pick butGroupDuplex #1
tab #3
check chkButStpl
tab #1
choose cmbBxMediaType #6
grab 22.png BixTabWidget
run cp *.png $PRESSDESK_SANDBOX
