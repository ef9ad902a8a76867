#include "pages/job/accounteditdialog.h"

#include "pages/base/onelinevalidator.h"
#include "pages/base/pagewidgets.h"
#include "widgets/mnemonics.h"
#include "widgets/panellook.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using PageWidgets::named;

namespace {

constexpr int longestId = 8;

} // namespace

AccountEditDialog::AccountEditDialog(QWidget *list)
    : QDialog(list)
    , idEdit(named(new QLineEdit(this), "lnEditCustomAccountID"))
    , descriptionEdit(named(new QLineEdit(this), "lnEditCustomAccountDescription"))
    , buttonBox(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    PageWidgets::simplifyTitleBar(this);
    setWindowModality(Qt::WindowModal);
    idEdit->setMaxLength(longestId);
    idEdit->setValidator(new OneLineValidator(QStringLiteral("[0-9]*"), idEdit));
    descriptionEdit->setValidator(new OneLineValidator(QStringLiteral(".{,31}"), descriptionEdit));

    auto *idLabel = new QLabel(tr("Account ID:"), this);
    idLabel->setBuddy(idEdit); // names it for screen readers
    auto *descriptionLabel = new QLabel(tr("Description:"), this);
    descriptionLabel->setBuddy(descriptionEdit);

    auto *layout = new QVBoxLayout(this);
    for (QWidget *widget : std::initializer_list<QWidget *>{idLabel, idEdit, descriptionLabel,
                                                            descriptionEdit, buttonBox})
        layout->addWidget(widget);
    Mnemonics::give(
        {buttonBox->button(QDialogButtonBox::Ok), buttonBox->button(QDialogButtonBox::Cancel)});
    setFixedSize(QSize(300, 165) * PanelLook::typeFactor(font()));
}

void AccountEditDialog::showNew()
{
    showWith(tr("New Account ID"), QString(), QString());
}

void AccountEditDialog::showKnown(const QString &id, const QString &description)
{
    showWith(tr("Edit Account ID"), id, description);
}

void AccountEditDialog::showWith(const QString &title, const QString &id,
                                 const QString &description)
{
    setWindowTitle(title);
    idEdit->setText(id);
    descriptionEdit->setText(description);
    idEdit->setFocus();
    show();
}
