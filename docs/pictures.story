# The pictures of the README: see docs/make-pictures.
queue Office_C3 px4500.ppd Option17=Finisher2 Option18=HardDisk Option19=True Option22=True

== pictures
env LANG=en_US.UTF-8
select Office_C3
pick butGroupDuplex "Long edge"
check chkButStpl
tab Basic
choose cmbBxPageSize A5
grab basic.png BixDialog
run cp *.png $PRESSDESK_SANDBOX
