# The main job on a real display: a printer, a change, Apply, and what comes back.
queue Office mx210.ppd
queue Other mx210.ppd

== a change to its end
activate
# The focus must not select a printer by itself.
press Tab Return Space Down
show tblPrinters page Ok Apply Cancel
> tblPrinters: no row; page: Printer; Ok: OK grey; Apply: Apply grey; Cancel: Cancel
click Profiles...
> error: the widget is disabled
click "Save As..."
> error: the widget is disabled
select Office
> Office.cfg: new; published Office: new
tab Basic
choose cmbBxPageSize A5
> chkButStpl: off grey; cmbBxPageSize: A5
pick butGroupDuplex "Long edge"
> butGroupDuplex: Long edge; butGroupDuplex.label: "Duplex: Long edge"
click Apply
> message: Settings applied.; title: Success; saved and published: Duplex=DuplexNoTumble PageRegion=A5 PageSize=A5
> Office.cfg: ImageableArea=A5 MediaSize=A5 PaperDimension=A5
click Ok
> title: Brixola Press Desk - Office
click Ok
> message: Settings applied.; title: Success
click Ok
> ended with status 0
restart
select Office
show cmbBxPageSize butGroupDuplex
> cmbBxPageSize: A5; butGroupDuplex: Long edge
tab Basic
run $PRINTSERVER remove $CUPS Office
choose cmbBxPageSize A4
> chkButStpl: off; chkBxOption20: off hidden; cmbBxPageSize: A4
> message: It looks like your installed printers have changed. Reloading list now.; page: Printer; tabs: Printer
> tblPrinters: no row; tblPrinters loses Office file:///dev/null Idle; title: Error
click Ok
> title: Brixola Press Desk
# The window is used again, and still nothing is selected, until a row is clicked.
activate
press Space
show tblPrinters
> tblPrinters: no row
select Other
> Other.cfg: new; published Other: new; published Office: gone
close
> ended with status 0
