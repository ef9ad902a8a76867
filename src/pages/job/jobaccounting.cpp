#include "pages/job/jobaccounting.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/sentinels.h"
#include "pages/base/buttoncaption.h"
#include "pages/base/errorlabel.h"
#include "pages/base/onelinevalidator.h"
#include "pages/base/pagewidgets.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"
#include "widgets/icons.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

const QLatin1String keyword("BqManagment");
const QLatin1String offKey("Default");

// Keys of the settings file.
const QLatin1String idKey("CustomAccountID");
const QLatin1String listKey("CustomAccountIDStore");

constexpr int longestId = 8;

} // namespace

JobAccounting::JobAccounting(QWidget *page)
    : JobGroup(named(new QLabel(page), "lblBqManagment"))
    , picture(new QLabel(page))
    , button(named(
          new BixCheckBoxButton(page, QString(), Icons::icon(QStringLiteral(":/icons/accounting"))),
          "chkButBqManagment"))
    , modeBox(named(new ComboBoxEx(page), "cmbBxBqManagment"))
    , idEdit(named(new QLineEdit(page), "lnEditAccountID"))
    , error(named(makeErrorLabel(page), "lblAccountIDError"))
    , selectLabel(new QLabel(page))
    , idBox(named(new ComboBoxEx(page), "cmbBxAccountID"))
    , listButton(named(new QPushButton(page), "butAccountID"))
{
    idEdit->setMaxLength(longestId);
    idEdit->setValidator(new OneLineValidator(QStringLiteral("[0-9]*"), idEdit));
    listButton->setAutoDefault(false); // Return elsewhere in the window is no click here
    for (QWidget *widget :
         std::initializer_list<QWidget *>{picture, selectLabel, idEdit, idBox, listButton})
        widget->hide();
    for (QWidget *dependent :
         std::initializer_list<QWidget *>{modeBox, idEdit, error, selectLabel, idBox, listButton})
        button->addDependent(dependent, Sentinel::noDefault);
    JobAccounting::setTexts();
}

void JobAccounting::setTexts()
{
    ConstraintMark::setPlainText(label, withColon(tr("Job accounting")));
    //: Short, since it stands below a small picture.
    ButtonCaption::set(button, tr("Job accounting", "caption"));
    error->setText(noIdText());
    selectLabel->setText(tr("Select account ID"));
    listButton->setText(tr("Account ID List"));
    const QSignalBlocker silent(modeBox);
    modeBox->clear();
    modeBox->addItems({tr("Use specific account ID"), tr("Select account ID")});
}

// Typed or picked

JobAccounting::Mode JobAccounting::mode() const
{
    return modeBox->currentIndex() == ListedId ? ListedId : SpecificId;
}

void JobAccounting::showMode()
{
    const bool listed = mode() == ListedId;
    idEdit->setHidden(listed);
    idBox->setVisible(listed);
    listButton->setVisible(listed);
    if (listed)
        idEdit->clear();
}

void JobAccounting::refreshAccountCombo(const QString &selected)
{
    const QSignalBlocker silent(idBox);
    const bool wasEmpty = idBox->count() == 0;
    idBox->clear();
    idBox->addItems(sortedAccountIds(accounts));
    // Nobody is charged who wasn't chosen.
    if (!wasEmpty)
        idBox->setCurrentIndex(
            idBox->findText(selected, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

QString JobAccounting::currentId() const
{
    return mode() == ListedId ? idBox->currentText() : idEdit->text();
}

QString JobAccounting::fault() const
{
    if (!button->isChecked() || !currentId().isEmpty())
        return QString();
    if (mode() == SpecificId)
        return noIdText();
    return accounts.isEmpty() ? tr("You must add an account ID to the list.")
                              : tr("Select account ID");
}

bool JobAccounting::holdsBack() const
{
    return button->isChecked() && currentId().isEmpty();
}

// The settings file

void JobAccounting::loadAccountSettings()
{
    const bOption *option = currentOption(keyword);
    // The list belongs to the printer; nothing of another one's stays.
    accounts.clear();
    idBox->clear();
    if (!option) {
        showMode(); // the mode fell back with the texts
        return;
    }
    const QString saved = readSetting(keyword);
    QString defaultId = offKey;
    if (saved.isEmpty() && option->defaultChoice())
        defaultId = option->defaultChoice()->key();
    if (saved != offKey)
        button->setChecked(true);
    idEdit->clear();
    accounts = accountsFromLines(readSettingValues(listKey));
    refreshAccountCombo(QString());
    loadId(defaultId);
    showMode();
}

void JobAccounting::loadId(const QString &defaultId)
{
    const QString id = readSetting(idKey);
    if (accounts.contains(id)) {
        modeBox->setCurrentIndex(ListedId);
        idBox->setCurrentIndex(idBox->findText(id, Qt::MatchExactly | Qt::MatchCaseSensitive));
    } else if (!id.isEmpty()) {
        idEdit->setText(id);
        modeBox->setCurrentIndex(SpecificId);
    } else if (defaultId == offKey) {
        button->setChecked(false);
        modeBox->setCurrentIndex(ListedId);
    } else {
        idEdit->setText(
            QString(defaultId).remove(QLatin1String("MG")).remove(QLatin1String("Custom.")));
        modeBox->setCurrentIndex(SpecificId);
    }
}

void JobAccounting::save(Settings *settings) const
{
    if (currentOption(keyword)) {
        const QString id = currentId();
        if (!button->isEnabled() || !button->isChecked()) {
            settings->insert(keyword, offKey);
        } else if (!id.isEmpty()) {
            settings->insert(idKey, id);
            settings->insert(keyword, id);
        }
    }
    for (auto account = accounts.cbegin(); account != accounts.cend(); ++account)
        settings->insert(listKey, accountLine(account.key(), account.value()));
}
