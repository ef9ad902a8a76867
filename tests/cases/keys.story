# The whole main job without a mouse.
queue Office px4500.ppd Option17=Finisher2 Option19=True

== printer, paper, long edge, staple, profile, Apply
activate
press F6 Down
> Office.cfg: new; published Office: new
= title: Brixola Press Desk - Office
press Tab
= @focus.accessibleName: cmbBxOption17
# From the table to the list of pages, a page down, and into it.
press Shift+F6 Down F6
> page: Basic
= page: Basic; @focus.accessibleName: cmbBxPageSize
press Up
> butGroupSep blocks Rotate copies; cmbBxMediaType blocks Transparency; cmbBxPageSize: A3; grey: chkButTriFld
# Tab and Shift+Tab stay within the page, down its columns; a group is one stop, in which arrows move
# and Space picks.
press Tab Tab Tab Tab Tab Right Right Left
= @focus.accessibleName: Long edge
press Space
> butGroupDuplex: Long edge
press Tab Tab
= @focus.accessibleName: cmbBxPageSize
press Shift+Tab
= @focus.accessibleName: Full color
# Back to the list, two pages down: the staple and its place.
press Shift+F6 Down Down F6
> page: Finishing
= page: Finishing; @focus.accessibleName: Off
press Tab Tab
= @focus.text: Staple
press Space Tab Down
> chkButStpl: on; cmbBxOutputBin blocks Top tray; cmbBxScnt: Each copy; cmbBxStpl: Rear corner
> cmbBxStpl blocks Saddle stitch; grey: chkButBiFld; not grey: lblScnt, lblStpl
# The rows below: a profile, Apply.
press F6
= @focus.text: &Save As...
press Return
> title: Save Profile
press A Return
> a.cfg: new
press Alt+A
> message: Settings applied.; title: Success
> saved and published: Duplex=DuplexNoTumble PageRegion=A3 PageSize=A3 Scnt=Each Stpl=Rear
> Office.cfg: ImageableArea=A3 MediaSize=A3 PaperDimension=A3 cStpl=True
press Return
# What is told and can be taken back is a stop in the rows.
= @focus.text: &Save As...
press F6 Up Up F6 Tab
> page: Basic
= page: Basic; @focus.accessibleName: cmbBxPageSize
# From a list box too, in which Qt would look for an item.
press Ctrl+Tab
> page: Layout
press Ctrl+Shift+Tab
> page: Basic
= @focus.accessibleName: cmbBxPageSize
press End
> butGroupDuplex: Off grey; butGroupDuplex blocks Long edge|Short edge; chkButStpl: off grey
> cmbBxMediaType blocks Coated paper|Labels; cmbBxOutputBin blocks Finisher tray; cmbBxOutputBin frees Top tray
> cmbBxPageSize: Envelope C5; cmbBxStpl: Front corner grey
> cmbBxStpl blocks Front corner|Rear corner|Center, two staples; grey: chkButPnch, cmbBxScnt, lblScnt, lblStpl
= NoticeLine.text: Envelope C5 switched off: Duplex, Staple.
press Home
> butGroupDuplex frees Long edge|Short edge; chkButBiFld: off; chkButPnch: off
> cmbBxMediaType frees Coated paper|Labels; cmbBxOutputBin frees Finisher tray; cmbBxPageSize: A3
> not grey: butGroupDuplex, chkButStpl
= NoticeLine.text: Duplex, Staple were switched off by Envelope C5. <a href="#">Switch on again</a>
press F6
= @focus.text: Duplex, Staple were switched off by Envelope C5. <a href="#">Switch on again</a>
= @focus.toolTip: Duplex, Staple were switched off by Envelope C5. Switch on again (Ctrl+Z)
press Return
> butGroupDuplex: Long edge; chkButStpl: on; cmbBxOutputBin blocks Top tray; cmbBxStpl: Rear corner
> cmbBxStpl frees Front corner|Rear corner|Center, two staples; grey: chkButBiFld
> not grey: cmbBxScnt, lblScnt, lblStpl
= NoticeLine.text: 
press Escape
> ended with status 0
