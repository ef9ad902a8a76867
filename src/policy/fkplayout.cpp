#include "pages/base/pagewidgets.h"
#include "policy/fkptab.h"
#include "widgets/bixbuttongroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegExpValidator>

// How the page "Fleet Keeper" looks.

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

// In the order of the options "Off" and "On".
constexpr PageWidgets::ButtonRow switchButtons[] = {
    {QT_TRANSLATE_NOOP("FKPTab", "Off"), ":/icons/fkp-off"},
    {QT_TRANSLATE_NOOP("FKPTab", "On"), ":/icons/fkp-on"},
};

} // namespace

// Widgets

void FKPTab::createWidgets()
{
    fkpButtons = named(new BixButtonGroup(this, withColon(tabName())), "butGroupFKP");
    PageWidgets::addButtons(fkpButtons, switchButtons, &FKPTab::tr);
    fkpButtons->setButton(0);

    serverLabel =
        addField("lblFKPServer", tr("Server"), &serverEdit, "lnEditFKPServer", R"(\S{,260})");
    portLabel = addField("lblFKPPort", tr("Port"), &portEdit, "lnEditFKPPort", "[0-9]{,16}");
    userLabel = addField("lblFKPUser", tr("Login user name"), &userEdit, "lnEditFKPUser",
                         R"(^[\w][\w ]{63}$)");
    passwordLabel =
        addField("lblFKPPassword", tr("Password"), &passwordEdit, "lnEditFKPPassword", ".{,64}");
    passwordEdit->setEchoMode(QLineEdit::Password);

    notificationBox =
        named(new QCheckBox(withColon(tr("No notifications for policy conflicts")), this),
              "chkBxFKPConflict");
    continueRadio = named(new QRadioButton(tr("Continue printing"), this), "rdButFKPContinue");
    cancelRadio = named(new QRadioButton(tr("Cancel printing"), this), "rdButFKPCancel");
    verifyButton = named(new QPushButton(tr("Verify"), this), "butFKPVerify");
    verifyButton->setAutoDefault(false); // Return in a field is no click here

    boundWidgets.insert(QStringLiteral("FKPToggle"), fkpButtons);
}

QLabel *FKPTab::addField(const char *labelName, const QString &labelText, QLineEdit **edit,
                         const char *editName, const char *pattern)
{
    auto *label = named(new QLabel(withColon(labelText), this), labelName);
    *edit = named(new QLineEdit(this), editName);
    (*edit)->setValidator(new QRegExpValidator(QRegExp(QLatin1String(pattern)), *edit));
    label->setBuddy(*edit);
    return label;
}

void FKPTab::createLayout()
{
    auto *grid = new QGridLayout(this);
    grid->addWidget(fkpButtons, 0, 0, 1, 4);
    grid->addWidget(serverLabel, 1, 0, 1, 6);
    grid->addWidget(serverEdit, 2, 0, 1, 6);
    grid->addWidget(portLabel, 1, 7, 1, 3);
    grid->addWidget(portEdit, 2, 7, 1, 3);
    grid->addWidget(userLabel, 3, 0, 1, 10);
    grid->addWidget(userEdit, 4, 0, 1, 10);
    grid->addWidget(passwordLabel, 5, 0, 1, 10);
    grid->addWidget(passwordEdit, 6, 0, 1, 10);
    grid->addWidget(notificationBox, 7, 0, 1, 5);
    grid->addWidget(continueRadio, 8, 1, 1, 3);
    grid->addWidget(cancelRadio, 9, 1, 1, 3);
    grid->addWidget(verifyButton, 10, 0, 1, 2);
    grid->setColumnStretch(10, 1);
    grid->setRowStretch(15, 1);
}
