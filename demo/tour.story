# A walk through the panel with a picture of each stage; see ./run. Pages are named by their place in
# the tab bar, since their titles depend on the language.
queue Office_C3 px4500.ppd Option17=Finisher2 Option18=HardDisk Option19=True Option22=True
queue Warehouse_M1 mx210.ppd
queue Ratex_200 ratex200.ppd
queue Dual_Path px-dual.ppd
queue Lobby_Generic generic.ppd
env LANG=en_US.UTF-8

== tour
start
grab 01-start.png BixDialog
select Office_C3
grab 02-printer.png BixDialog
tab #1
grab 03-basic.png BixDialog
choose cmbBxPageSize A5
pick butGroupDuplex #1
grab 04-basic-changed.png BixDialog
tab #2
grab 05-layout.png BixDialog
tab #3
grab 06-finishing.png BixDialog
tab #4
grab 07-imaging.png BixDialog
tab #5
grab 08-publishing.png BixDialog
tab #6
grab 09-job.png BixDialog
tab #7
grab 10-watermark.png BixDialog
tab #8
grab 11-fleet-keeper.png BixDialog
click Apply
grab 12-applied.png
click Ok
click Ok
click Ok
run cp *.png $PRESSDESK_SANDBOX
run cat $USERDIR/Office_C3.cfg
run lpoptions -p Office_C3
