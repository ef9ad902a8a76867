#include "pages/job/jobstorage.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/sentinels.h"
#include "pages/base/buttoncaption.h"
#include "pages/base/errorlabel.h"
#include "pages/base/onelinevalidator.h"
#include "pages/base/pagewidgets.h"
#include "storage/secretsetting.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"
#include "widgets/icons.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

const QLatin1String keyword("BXCollate1");

// Keys of the settings file.
const QLatin1String jobStorageKey("JobStorage");
const QLatin1String privatePrintKey("PrivatePrint");
const QLatin1String customBoxKey("CustomBox");
const QLatin1String accessCodeKey("AccessCode");
const QLatin1String boxPasswordKey("CustomBoxPassword");

constexpr int longestCode = 4;
constexpr int longestNumber = 4;
constexpr int longestPassword = 16;

const bOption *storageOption()
{
    return currentOption(keyword);
}

} // namespace

JobStorage::JobStorage(QWidget *page)
    : JobGroup(named(new QLabel(page), "lblBXCollate1"))
    , button(named(
          new BixCheckBoxButton(page, QString(), Icons::icon(QStringLiteral(":/icons/storage"))),
          "chkButBXCollate1"))
    , box(named(new ComboBoxEx(page), "cmbBxBXCollate1"))
    , codeLabel(named(new QLabel(page), "lblAccesCodeLabel"))
    , codeEdit(named(new QLineEdit(page), "lnEditJobStorage"))
    , numberLabel(named(new QLabel(page), "lblBoxNumber"))
    , numberEdit(named(new QLineEdit(page), "lnEditBoxNumber"))
    , passwordLabel(named(new QLabel(page), "lblBoxPassword"))
    , passwordEdit(named(new QLineEdit(page), "lnEditBoxPassword"))
    , error(named(makeErrorLabel(page), "lblStorageErrorMessage"))
{
    box->setUsualWidth(180);
    box->setMinimumWidth(0); // its column is as wide where there is room
    // No validator here: what is no digit goes with the next constraint pass.
    codeEdit->setEchoMode(QLineEdit::Password);
    codeEdit->setMaxLength(longestCode);
    numberEdit->setMaxLength(longestNumber);
    numberEdit->setValidator(new OneLineValidator(QStringLiteral("[0-9]*"), numberEdit));
    passwordEdit->setEchoMode(QLineEdit::Password);
    passwordEdit->setMaxLength(longestPassword);
    passwordEdit->setValidator(new OneLineValidator(QStringLiteral(".*"), passwordEdit));

    // Only the unchecked button stands for "None"; the list doesn't offer it.
    button->addDependent(box, tr("None"));
    for (QWidget *dependent : std::initializer_list<QWidget *>{
             codeLabel, codeEdit, numberLabel, numberEdit, error, passwordLabel, passwordEdit})
        button->addDependent(dependent, Sentinel::noDefault);
    JobStorage::setTexts();
}

void JobStorage::setTexts()
{
    ConstraintMark::setPlainText(label, withColon(tr("Job settings")));
    //: Short, since it stands below a small picture.
    ButtonCaption::set(button, tr("Job storage:"));
    codeLabel->setText(withColon(tr("Access code")));
    numberLabel->setText(withColon(tr("Box number")));
    passwordLabel->setText(withColon(tr("Password")));
}

// What the items stand for

QString JobStorage::jobStorageText()
{
    const bOption *option = storageOption();
    const OptionChoice *choice = option ? option->findChoice(jobStorageKey) : nullptr;
    return choice ? choice->text() : QString();
}

StorageKind JobStorage::kind(Qt::CaseSensitivity sensitivity) const
{
    return kindOf(box->currentText(), sensitivity);
}

StorageKind JobStorage::kindOf(const QString &text, Qt::CaseSensitivity sensitivity) const
{
    const auto is = [&](const QString &item) {
        return !item.isEmpty() && text.compare(item, sensitivity) == 0;
    };
    if (is(jobStorageText()))
        return StorageKind::JobStorage;
    if (is(privatePrintText()))
        return StorageKind::PrivatePrint;
    if (is(customBoxText()))
        return StorageKind::CustomBox;
    return StorageKind::Other;
}

bool JobStorage::isNamedPlace(Qt::CaseSensitivity sensitivity) const
{
    const QString text = box->currentText();
    return text.compare(tr("Job storage"), sensitivity) == 0 ||
           text.compare(privatePrintText(), sensitivity) == 0 ||
           text.compare(customBoxText(), sensitivity) == 0;
}

bool JobStorage::isWrittenApart() const
{
    return isNamedPlace(Qt::CaseInsensitive);
}

// The list

int JobStorage::indexOf(const QString &text) const
{
    return box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

bool JobStorage::select(const QString &text)
{
    const int index = indexOf(text);
    if (index >= 0)
        box->setCurrentIndex(index);
    return index >= 0;
}

void JobStorage::updateStorageChoices()
{
    if (!currentStore)
        return;
    const StorageOffers offers = storageOffers(*currentStore);
    change(privatePrintText(), offers.privatePrint);
    change(customBoxText(), offers.customBox);
}

void JobStorage::change(const QString &item, StorageOffer offer)
{
    if (offer == StorageOffer::Remove)
        remove(item);
    else if (offer == StorageOffer::Add && indexOf(item) < 0)
        box->addItem(item);
}

void JobStorage::remove(const QString &item)
{
    if (box->currentText() == item)
        box->setCurrentIndex(0);
    // Looked for only now: the constraint pass that this started may have removed it.
    const int index = indexOf(item);
    if (index < 0)
        return;
    // An item that goes before the current one is announced as if the current one were new.
    const QSignalBlocker silent(index == box->currentIndex() ? nullptr : box);
    box->removeItem(index);
}

void JobStorage::selectOffState()
{
    if (!select(tr("Proof and hold")))
        box->setCurrentIndex(0);
}

// The inputs

void JobStorage::showInputs(StorageKind kind)
{
    const bool code = kind == StorageKind::JobStorage || kind == StorageKind::PrivatePrint;
    const bool customBox = kind == StorageKind::CustomBox;
    for (QWidget *widget : std::initializer_list<QWidget *>{codeLabel, codeEdit})
        widget->setVisible(code);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{numberLabel, numberEdit, passwordLabel, passwordEdit})
        widget->setVisible(customBox);
}

void JobStorage::showEmptyInputs(StorageKind kind)
{
    showInputs(kind);
    for (QLineEdit *edit : {codeEdit, numberEdit, passwordEdit}) {
        if (!edit->isHidden())
            edit->clear();
    }
}

void JobStorage::stripAccessCode()
{
    const QString text = codeEdit->text();
    const QString digits = digitsOf(text);
    if (digits == text)
        return;
    const int cursor = digitsOf(text.left(codeEdit->cursorPosition())).size();
    codeEdit->setText(digits);
    codeEdit->setCursorPosition(cursor);
}

QString JobStorage::fault() const
{
    if (!button->isChecked())
        return QString();
    switch (checkStorage(kind(), codeEdit->text(), numberEdit->text())) {
    case StorageFault::AccessCode:
        return tr("Access code must be 4 numbers in length.");
    case StorageFault::BoxNumber:
        return tr("Enter a custom box number between 1 and 1000.");
    case StorageFault::None:
        break;
    }
    return QString();
}

bool JobStorage::holdsBack() const
{
    if (!button->isChecked())
        return false;
    return !label->toolTip().isEmpty() ||
           (kind() == StorageKind::CustomBox && numberEdit->text().isEmpty()) ||
           (kind() == StorageKind::PrivatePrint && codeEdit->text().size() > longestCode);
}

// The settings file

void JobStorage::load()
{
    // Another printer's secrets must not stay.
    for (QLineEdit *edit : {codeEdit, numberEdit, passwordEdit})
        edit->clear();

    const bOption *option = storageOption();
    if (option && readSetting(keyword).isEmpty() && select(option->currentKey()))
        button->setChecked(true);

    if (!readSetting(jobStorageKey).isEmpty())
        select(jobStorageText());
    if (!readSetting(privatePrintKey).isEmpty())
        select(privatePrintText());
    codeEdit->setText(SecretSetting::decrypted(readSetting(accessCodeKey)));
    const QString number = readSetting(customBoxKey);
    if (!number.isEmpty() && select(customBoxText()))
        numberEdit->setText(number);
    passwordEdit->setText(SecretSetting::withSingleBackslashes(
        SecretSetting::decrypted(readSetting(boxPasswordKey))));
    syncStorageState();
}

void JobStorage::syncStorageState()
{
    const bOption *option = storageOption();
    button->setEnabled(option);
    if (!option) {
        button->setChecked(false);
        showInputs(StorageKind::Other);
        return;
    }
    QString value = readSetting(keyword);
    if (value.isEmpty() && option->defaultChoice())
        value = option->defaultChoice()->key();
    const bool off = value == Keys::none;
    if (off) {
        button->setChecked(false);
        select(tr("Proof and hold"));
    } else if (!isNamedPlace(Qt::CaseSensitive)) {
        button->setChecked(true);
    }
    showInputs(kind());
    // Off stays off on a printer that has nothing but places to list.
    if (!off && kind() != StorageKind::Other)
        button->setChecked(true);
}

void JobStorage::save(Settings *settings) const
{
    if (!button->isChecked())
        return;
    const QString code = codeEdit->text();
    const QString secret = SecretSetting::encrypted(code);
    switch (kind(Qt::CaseInsensitive)) {
    case StorageKind::JobStorage:
        settings->insert(jobStorageKey, Keys::yes);
        settings->insert(keyword, jobStorageKey);
        if (code.size() == longestCode)
            settings->insert(accessCodeKey, secret);
        break;
    case StorageKind::PrivatePrint:
        settings->insert(privatePrintKey, Keys::yes);
        settings->insert(keyword, QStringLiteral("Custom1"));
        if (!secret.isEmpty())
            settings->insert(accessCodeKey, secret);
        break;
    case StorageKind::CustomBox:
        numberEdit->setText(paddedBoxNumber(numberEdit->text()));
        settings->insert(customBoxKey, numberEdit->text());
        settings->insert(keyword, QStringLiteral("Custom2"));
        settings->insert(boxPasswordKey, SecretSetting::encrypted(passwordEdit->text()));
        break;
    case StorageKind::Other:
        break;
    }
}
