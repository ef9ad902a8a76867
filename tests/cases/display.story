# The main job on a real display: a printer, a change, Apply, and what comes back.
queue Office mx210.ppd

== a change to its end
activate
# The focus must not select a printer by itself, nor when it comes back to the table.
press Tab Return Space Down
click tblPrinters
click About
> title: About
press Escape
= tblPrinters: no row; page: Printer; Ok: OK grey; Apply: Apply grey; Cancel: Cancel
click Profiles...
> error: the widget is disabled
click "Save As..."
> error: the widget is disabled
select Office
tab Basic
choose cmbBxPageSize A5
> grey: chkButStpl
pick butGroupDuplex "Long edge"
click Apply
> message: Settings applied.; title: Success; saved and published: Duplex=DuplexNoTumble PageRegion=A5 PageSize=A5
> Office.cfg: ImageableArea=A5 MediaSize=A5 PaperDimension=A5
click Ok
click Ok
> message: Settings applied.
click Ok
> ended with status 0
restart Office
= cmbBxPageSize: A5; butGroupDuplex: Long edge
close
> ended with status 0

== GNOME asks for other texts of the buttons, and puts them in another order
env LANG=es_ES.UTF-8
env XDG_CURRENT_DESKTOP=GNOME
start
= Apply: Aplicar grey; Cancel: Cancelar; Ok: Aceptar grey
click "Acerca de"
> title: Acerca de
# Return closes it, and must not open one of the others.
press Return
