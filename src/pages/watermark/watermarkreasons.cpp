// Why what is greyed on the page "Watermark" is greyed, as far as the page greys it by itself.

#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "pages/watermark/watermarktab.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QFrame>
#include <QLineEdit>
#include <QPushButton>

void WatermarkTab::explain(const OptionLabels &labels)
{
    Tab::explain(labels);
    explainTextInput();
}

QString WatermarkTab::greyReason(const QWidget *widget) const
{
    const bool followsSwitch = section->isAncestorOf(widget) && widget != watermarkButton;
    if (followsSwitch && !watermarkButton->isChecked())
        return switchReason(watermarkButton);
    // Without a choice of colors there is black alone.
    return widget == features[Watermark::Color].box ? Reasons::offersNothingElse()
                                                    : Tab::greyReason(widget);
}

void WatermarkTab::explainTextInput()
{
    const bool on = watermarkButton->isChecked();
    const QString off = on ? QString() : switchReason(watermarkButton);
    ReasonTip::setIfGrey(customEdit, off);
    ReasonTip::setIfGrey(saveButton, off);
    const QString noName = tr("Enter a text first.");
    const QString name = customEdit->text();
    ReasonTip::setIfGrey(newButton, !on              ? off
                                    : name.isEmpty() ? noName
                                                     : tr("This text is in the list already."));
    ReasonTip::setIfGrey(deleteButton, !on              ? off
                                       : name.isEmpty() ? tr("Choose a text of your own first.")
                                                        : tr("There is no such text of your own."));
}
