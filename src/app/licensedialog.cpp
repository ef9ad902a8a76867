#include "app/licensedialog.h"

#include "widgets/mnemonics.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QTextEdit>
#include <QVBoxLayout>

LicenseDialog::LicenseDialog(QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Legal Notices"));
    setFixedSize(650, 500);

    auto *notices = new QTextEdit(this);
    notices->setReadOnly(true);
    notices->setAccessibleName(windowTitle());
    QFile text(QStringLiteral(":/strings/license"));
    if (text.open(QIODevice::ReadOnly))
        notices->setPlainText(QString::fromUtf8(text.readAll()));

    auto *buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttonBox, &QDialogButtonBox::accepted, this, &LicenseDialog::accept);
    Mnemonics::give(buttonBox->buttons());

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(notices);
    layout->addWidget(buttonBox);
}
