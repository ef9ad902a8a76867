# The drawing of the printed sheets below the list of pages: when it is there, what it says in words,
# and where a click on its middle leads.
queue Office px4500.ppd Option17=Finisher2 Option18=HardDisk Option19=True Option22=True
queue Small mx210.ppd

== only while a printer is selected
start
= SheetView.visible: false; SheetView.focusPolicy: 0
select Office
= SheetView.visible: true; SheetView.height: 200; SheetView.width: 173
= SheetView.accessibleDescription: A4, Plain paper, Full color, Collate
= SheetView.toolTip: A4, Plain paper, Full color, Collate
run lpadmin -x Office
tab Basic
choose cmbBxPageSize A5
> message: It looks like your installed printers have changed. Reloading list now.; page: Printer; tabs: Printer
> tblPrinters: no row; tblPrinters loses Office file:///dev/null Idle; title: Error
> grey: Apply, Ok, chkButBiFld, chkButStpl, chkButTriFld
> hidden: chkBxOption19, chkBxOption20, chkBxOption22, cmbBxOption17, cmbBxOption18, cmbBxOption21, lblOption17
> hidden: lblOption18, lblOption21; not hidden: lblSelectPrinter
click OK
> title: Brixola Press Desk
= SheetView.visible: false

== what a click changes is said at once
start
select Office
tab Basic
choose cmbBxMediaType "Recycled paper"
pick butGroupDuplex "Long edge"
pick butGroupColorModelGeneral "Black & white"
> cmbBxCIE blocks Text|Graphics|Photos; cmbBxCrep blocks Photographic|Vivid|Solid color
> cmbBxRCM blocks sRGB|Wide gamut; cmbBxTrap blocks Narrow|Medium|Wide; grey: chkBxGBTn
pick butGroupCol Off
= SheetView.accessibleDescription: A4, Recycled paper, Black & white, Long edge
tab Finishing
check chkButStpl
> butGroupSep blocks Rotate copies; cmbBxOutputBin blocks Top tray; cmbBxScnt: Each copy; cmbBxStpl: Front corner
> grey: chkButBiFld, chkButTriFld; not grey: lblScnt, lblStpl
choose cmbBxStpl "Rear corner"
check chkButPnch
> cmbBxPnch: 2 holes; not grey: lblPnch
choose cmbBxPnch "3 holes"
pick butGroupRot On
= SheetView.accessibleDescription: A4, Recycled paper, Black & white, Long edge, Staple: Rear corner, 3 holes, Rotate 180°
uncheck chkButStpl
> butGroupSep frees Rotate copies; chkButBiFld: off; cmbBxStpl: Front corner grey
> grey: cmbBxScnt, lblScnt, lblStpl
uncheck chkButPnch
> chkButTriFld: off; cmbBxOutputBin frees Top tray; cmbBxPnch: 2 holes grey; grey: lblPnch
pick butGroupSep "Offset jobs"
> cmbBxOutputBin blocks Top tray
tab Imaging
pick butGroupLnpr On
> cmbBxLnpr: Level 3
= SheetView.accessibleDescription: A4, Recycled paper, Black & white, LeanPrint: Level 3, Long edge, Rotate 180°, Separation: Offset jobs

== other sheets
start
select Office
tab Publishing
check chkButCvr
> butGroupCol blocks Off; chkBxCvrFrontOut: off; cmbBxCvrM: Plain paper; rdButCvrFront: on; rdButCvrFrontBack: off
> grey: butGroupCol; not grey: lblCvrFront, lblCvrM, lblCvrPrintOnto
choose cmbBxCvrM "Coated paper"
check chkButPins
> chkBxPinsPrintOntoFront: off; cmbBxPMed: Plain paper; lblPins: "Page insert:" marked "Please type a page range."
> marked: Publishing; not grey: lblPMed, lblPinsPage, lnEditPinsPage
= SheetView.accessibleDescription: A4, Plain paper, Full color, Cover mode: Coated paper, Page insert: Plain paper, Collate
uncheck chkButCvr
> cmbBxCvrM: Plain paper grey
> grey: chkBxCvrFrontOut, lblCvrFront, lblCvrM, lblCvrPrintOnto, rdButCvrFront, rdButCvrFrontBack
uncheck chkButPins
> butGroupCol: On; butGroupCol frees Off; lblPins: "Page insert:"; marked: 
> grey: chkBxPinsPrintOntoFront, cmbBxPMed, lblPMed, lblPinsPage, lnEditPinsPage
tab Basic
pick butGroupCol Off
choose cmbBxMediaType Transparency
> butGroupBXBooklet blocks Left edge binding|Right edge binding; butGroupDuplex blocks Long edge|Short edge
> chkButTint: off; cmbBxOutputBin blocks Finisher tray
> cmbBxPageSize blocks A3|A6|JIS B4|Tabloid|Postcard|Envelope #10|Envelope Monarch|Envelope DL|Envelope C5
> grey: butGroupBXBooklet, butGroupDuplex, chkButBiFld, chkButPnch, chkButStpl, chkButTriFld
tab Publishing
check chkButTint
> butGroupCol: On grey; butGroupCol blocks Off; chkBxTintPrintOnto: off; cmbBxTMed: Plain paper
> grey: chkButCvr, chkButPins; not grey: lblTMed
= SheetView.accessibleDescription: A4, Transparency, Full color, Transparency interleaving: Plain paper, Collate

== folds and booklets
start
select Office
tab Finishing
check chkButTriFld
> cmbBxFldB: Inside; cmbBxFldC: C-fold; cmbBxFldD: Single sheet; cmbBxOutputBin blocks Top tray
> grey: chkButBiFld, chkButPnch, chkButStpl; not grey: lblFldB, lblFldC, lblFldD
choose cmbBxFldC Z-fold
= SheetView.accessibleDescription: A4, Plain paper, Full color, Tri-Fold, Z-fold, Collate
uncheck chkButTriFld
> chkButBiFld: off; chkButPnch: off; chkButStpl: off; cmbBxFldC: C-fold grey; cmbBxOutputBin frees Top tray
> grey: cmbBxFldB, cmbBxFldD, lblFldB, lblFldC, lblFldD
check chkButBiFld
> cmbBxFldA: 1; cmbBxOutputBin blocks Top tray; grey: chkButTriFld; not grey: lblFldB'
= SheetView.accessibleDescription: A4, Plain paper, Full color, Bi-Fold, Collate
uncheck chkButBiFld
> chkButTriFld: off; cmbBxOutputBin frees Top tray; grey: cmbBxFldA, lblFldB'
tab Layout
pick butGroupBXBooklet "Right edge binding"
> butGroupCol blocks Off; butGroupRot blocks On; butGroupSep blocks Rotate copies; chkBxFold: off
> grey: butGroupCol, butGroupRot, chkButBiFld, chkButCvr, chkButPins, chkButPnch, chkButTriFld
check chkBxFold
= SheetView.accessibleDescription: A4, Plain paper, Full color, Booklet: Right edge binding, Booklet fold, Collate

== a click leads to where a part is set
start
select Office
click SheetView
> page: Basic
= @focus.accessibleName: cmbBxPageSize; BixTabWidget.currentIndex: 1
tab Watermark
check chkButWatermark
> chkBxWFlg: off; cmbBxClr: Black; cmbBxWFnt: Helvetica; cmbBxWang: 50; cmbBxWsze: 72; cmbBxWtrans: Transparent
> cmbBxWtxt: CONFIDENTIAL; cmbBxWtyp: Solid
> not grey: butSaveCustomWatermark, lblCustomWatermark, lblWClr, lblWFnt, lblWSze, lblWang, lblWtrans, lblWtxt, lblWtyp
> not grey: lnEditCustomWatermark
choose cmbBxWang 90
tab Basic
= SheetView.accessibleDescription: A4, Plain paper, Full color, Watermark: CONFIDENTIAL, Collate
click SheetView
> page: Watermark
= @focus.accessibleName: cmbBxWtxt; BixTabWidget.currentIndex: 7

== to the switch that is on, and to a picture that is picked
queue Own
  PageSize: A4*
  FldA: None* Bifold Trifold
  ColorModel: CMYK* Gray
start
select Own
tab Finishing
check chkButBiFld
> cmbBxFldA: ; grey: chkButTriFld; not grey: lblFldB'
tab Basic
click SheetView
> page: Finishing
= @focus.text: BiFold; BixTabWidget.currentIndex: 3; SheetView.accessibleDescription: A4, CMYK, Bi-Fold

== another printer, another language
env LANG=de_DE.UTF-8
start
select Small
= SheetView.accessibleDescription: A4, Normalpapier, Sortieren
