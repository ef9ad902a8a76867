#include "privileged/passwordprompt.h"

#include "model/optionstore.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "privileged/ppdwriter.h"
#include "widgets/comboboxex.h"
#include "widgets/mnemonics.h"
#include "widgets/spoken.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace {

const QLatin1String sudoMethod("sudo");
const QLatin1String suMethod("su");

// Forgets that sudo has been given a password lately.
constexpr char forgetCommand[] = "sudo -k";

QString prefixOf(const QString &method)
{
    return method == sudoMethod ? QStringLiteral("sudo -S -p \"\"") : QStringLiteral("su -c");
}

/// The selected printer; empty if it has vanished while the prompt was open.
QString printerName()
{
    return currentStore ? currentStore->printerName() : QString();
}

} // namespace

PasswordPrompt::PasswordPrompt(PanelDialog *owner, const QString &ppdArguments)
    : passwordEdit(new QLineEdit(this))
    , methodCombo(new ComboBoxEx(this))
    , whosePassword(new QLabel(this))
    , owner(owner)
    , ppdArguments(ppdArguments)
{
    owner->closeAfterApply = false;
    setWindowTitle(tr("Password Prompt"));
    PageWidgets::simplifyTitleBar(this);
    methodCombo->setAccessibleName(QStringLiteral("cmbBxMethod"));
    Spoken::setName(methodCombo, tr("Method"));
    methodCombo->addItems({sudoMethod, suMethod});
    passwordEdit->setAccessibleName(QStringLiteral("lnEditRootPassword"));
    passwordEdit->setEchoMode(QLineEdit::Password);
    passwordEdit->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData |
                                      Qt::ImhNoPredictiveText);
    createLayout();
    explainMethods();
    passwordEdit->setFocus();
}

void PasswordPrompt::createLayout()
{
    auto *label = new QLabel(tr("Please enter the root password."), this);
    label->setBuddy(passwordEdit);
    auto *okButton = new QPushButton(tr("OK"), this);
    okButton->setAccessibleName(QStringLiteral("butOk"));
    connect(okButton, &QPushButton::clicked, this, &PasswordPrompt::okButtonSlot);
    Mnemonics::give({okButton});
    setTabOrder(methodCombo, passwordEdit);
    setTabOrder(passwordEdit, okButton);

    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(label, 1, 1, 1, 3, Qt::AlignCenter);
    grid->addWidget(methodCombo, 2, 1, Qt::AlignRight);
    grid->addWidget(passwordEdit, 2, 2, Qt::AlignLeft);
    grid->addWidget(okButton, 3, 2, Qt::AlignRight);
    grid->addWidget(whosePassword, 4, 1, 1, 3, Qt::AlignCenter);
}

void PasswordPrompt::explainMethods()
{
    const QString explanations[] = {
        tr("sudo wants your own password."),
        tr("su wants the administrator's password (root)."),
    };
    whosePassword->setAccessibleName(QStringLiteral("lblWhosePassword"));
    whosePassword->setAlignment(Qt::AlignCenter);
    int width = 0; // the prompt doesn't change its size with the way
    for (int method = 0; method < methodCombo->count(); ++method) {
        methodCombo->setItemData(method, explanations[method], Qt::ToolTipRole);
        width = qMax(width, whosePassword->fontMetrics().horizontalAdvance(explanations[method]));
    }
    whosePassword->setMinimumWidth(width);
    connect(methodCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &PasswordPrompt::showWhosePassword);
    showWhosePassword();
}

void PasswordPrompt::showWhosePassword()
{
    const QString text = methodCombo->currentData(Qt::ToolTipRole).toString();
    whosePassword->setText(text);
    methodCombo->setToolTip(text);
    passwordEdit->setAccessibleDescription(text);
}

void PasswordPrompt::reject()
{
    QDialog::reject();
}

void PasswordPrompt::okButtonSlot()
{
    QString culprit;
    if (!PpdWriter::areHarmless(printerName(), ppdArguments, &culprit)) {
        // The shell would make something else of these, as root. No password justifies that.
        showFailure(tr("Could not authorize.") + QLatin1Char('\n') +
                    tr("\"%1\" can't be handed to the program that changes the printer: only "
                       "letters, digits and %2 can.")
                        .arg(culprit, QStringLiteral("_-.+@:,/%=")));
        close();
        return;
    }
    QString password = takePassword();
    PpdWriter::run(forgetCommand);
    const int status = runPpdWriter(password, prefixOf(methodCombo->currentText()), ppdArguments);
    cleanse(&password);
    if (status != 0 && !PpdWriter::isToolInstalled())
        showFailure(tr("The program %1 is missing. An administrator has to install it in a folder "
                       "of root's search path, such as /usr/sbin.")
                        .arg(QLatin1String(PpdWriter::tool)));
    else if (status != 0)
        showFailure(tr("Could not authorize."));
    else
        finishApply();
    PpdWriter::run(forgetCommand);
    close();
}

/// The text of the field, which forgets it.
QString PasswordPrompt::takePassword()
{
    QString password = passwordEdit->text();
    passwordEdit->setText(QString()); // unlike clear() keeps nothing to undo
    return password;
}

int PasswordPrompt::runPpdWriter(const QString &password, const QString &prefix,
                                 const QString &arguments)
{
    QByteArray line = PpdWriter::commandLine(password, prefix, printerName(), arguments);
    const int status = PpdWriter::run(line.constData());
    cleanse(&line);
    return status;
}

void PasswordPrompt::showFailure(const QString &text)
{
    QMessageBox box(this);
    box.setWindowTitle(tr("Error"));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.exec();
}

void PasswordPrompt::finishApply()
{
    owner->closeAfterApply = true;
    owner->recordInstalledValues();
    owner->writeTolpoptions();
    owner->showApplied();
}

bool PasswordPrompt::authenticationPassed(const QString &message, const QString &root)
{
    if (root == suMethod)
        return !message.isEmpty();
    if (root != sudoMethod)
        return false;
    return message.isEmpty() || (message.contains(QLatin1String("password for")) &&
                                 !message.contains(QLatin1String("attempt")));
}
