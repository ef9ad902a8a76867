// Why what is greyed on the page "Fleet Keeper" is greyed: it is not the options' rules.

#include "pages/base/pagewidgets.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "policy/fkptab.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

void FKPTab::explain(const OptionLabels &labels)
{
    Tab::explain(labels);
    explainFields();
}

void FKPTab::explainFields()
{
    const QString off = isOn() ? QString() : Reasons::switchOnFirst(tabName());
    const auto explainGrey = [&](QWidget *widget, const QString &otherwise) {
        ReasonTip::setIfGrey(widget, isOn() ? otherwise : off);
    };
    for (QWidget *widget : std::initializer_list<QWidget *>{serverEdit, portEdit, userEdit,
                                                            passwordEdit, notificationBox})
        explainGrey(widget, QString());
    for (QRadioButton *radio : {continueRadio, cancelRadio})
        explainGrey(radio,
                    Reasons::switchOnFirst(PageWidgets::withoutColon(notificationBox->text())));
    explainGrey(verifyButton, incompleteText());
}
