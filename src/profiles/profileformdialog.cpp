#include "profiles/profileformdialog.h"

#include "pages/base/onelinevalidator.h"
#include "pages/base/reasontip.h"
#include "profiles/profilerules.h"
#include "profiles/profilestore.h"
#include "widgets/mnemonics.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>

namespace {

constexpr QSize leastSize(350, 200);
constexpr QSize largestDescription(400, 50);

} // namespace

ProfileFormDialog::ProfileFormDialog(const QString &descriptionLabel, QWidget *parent)
    : QDialog(parent)
    , nameEdit(new QLineEdit(this))
    , descriptionEdit(new QTextEdit(this))
    , buttonBox(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // Characters here; how many bytes they take is part of the check.
    nameEdit->setValidator(new OneLineValidator(QStringLiteral(".{,251}"), nameEdit));
    descriptionEdit->setAcceptRichText(false);
    descriptionEdit->setMaximumSize(largestDescription);
    descriptionEdit->setTabChangesFocus(true);
    buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
    Mnemonics::give(
        {buttonBox->button(QDialogButtonBox::Ok), buttonBox->button(QDialogButtonBox::Cancel)});
    createLayout(descriptionLabel);

    connect(buttonBox, &QDialogButtonBox::rejected, this, &ProfileFormDialog::close);
}

void ProfileFormDialog::createLayout(const QString &descriptionLabel)
{
    auto *nameLabel = new QLabel(tr("Name:"), this);
    nameLabel->setBuddy(nameEdit); // names it for screen readers
    auto *label = new QLabel(descriptionLabel, this);
    label->setBuddy(descriptionEdit);

    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(nameLabel, 1, 1);
    grid->addWidget(nameEdit, 2, 1);
    grid->addWidget(label, 7, 1);
    grid->addWidget(descriptionEdit, 8, 1);
    grid->addWidget(buttonBox, 10, 1);
    // A window of fixed size goes by its layout alone.
    grid->setColumnMinimumWidth(1, leastSize.width());
    grid->setRowMinimumHeight(9, qMax(0, leastSize.height() - grid->sizeHint().height()));
}

void ProfileFormDialog::setFields(const QString &name, const QString &description)
{
    nameEdit->setText(name);
    descriptionEdit->setPlainText(description);
    nameEdit->setFocus();
}

QString ProfileFormDialog::name() const
{
    return nameEdit->text();
}

QString ProfileFormDialog::description() const
{
    return storedDescription(descriptionEdit->toPlainText());
}

void ProfileFormDialog::refreshQueueNames()
{
    queueNames = queuesWithPpd();
}

void ProfileFormDialog::checkFields()
{
    const ProfileFault fault = profileFault(name(), descriptionEdit->toPlainText(), queueNames);
    QPushButton *ok = buttonBox->button(QDialogButtonBox::Ok);
    ok->setEnabled(fault == ProfileFault::None);
    ReasonTip::setIfGrey(ok, faultText(fault));
}

void ProfileFormDialog::tellUnsaved()
{
    QMessageBox box(this);
    box.setWindowTitle(windowTitle());
    box.setText(tr("The profile could not be saved."));
    box.exec();
}

QString ProfileFormDialog::faultText(ProfileFault fault)
{
    switch (fault) {
    case ProfileFault::NoName:
        return tr("Enter a name first.");
    case ProfileFault::Reserved:
        return tr("This name is reserved.");
    case ProfileFault::Characters:
        return tr("A name can't begin with a dot, nor contain / \" ` or ;");
    case ProfileFault::TooLong:
        return tr("The name or the description is too long.");
    case ProfileFault::None:
        break;
    }
    return QString();
}
