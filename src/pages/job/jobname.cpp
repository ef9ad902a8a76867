#include "pages/job/jobname.h"

#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/base/errorlabel.h"
#include "pages/base/onelinevalidator.h"
#include "pages/base/pagewidgets.h"
#include "pages/job/jobtexts.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

// Keys of the settings file.
const QLatin1String nameKey("CustomJobName");
const QLatin1String replaceKey("ReplaceJob");
const QLatin1String dateKey("JobDate");

constexpr int inputWidth = 200; // in pixels

// Entries of the overwrite box.
enum Overwrite
{
    AddDate,
    ReplaceFile,
};

const bOption *findOption(const QString &keyword)
{
    return currentOption(keyword);
}

} // namespace

JobName::JobName(QWidget *page)
    : JobGroup(named(new QLabel(page), "lblJobName"))
    , picture(named(new QLabel(page), "iconJobName"))
    , modeBox(named(new ComboBoxEx(page), "cmbBxJobName"))
    , edit(named(new QLineEdit(page), "lnEditJobName"))
    , overwriteLabel(named(new QLabel(page), "lblOverwrite"))
    , overwriteBox(named(new ComboBoxEx(page), "cmbBxOverwrite"))
    , error(makeErrorLabel(page))
{
    edit->setValidator(new OneLineValidator(QLatin1String(JobTexts::nameOfAtMost64), edit));
    overwriteBox->setMinimumWidth(inputWidth);
    JobName::setTexts();
}

void JobName::setTexts()
{
    ConstraintMark::setPlainText(label, withColon(tr("Job name")));
    JobTexts::setRichText(overwriteLabel, tr("Overwrite job name:"));
    const QSignalBlocker silentMode(modeBox);
    modeBox->clear();
    modeBox->addItems({tr("Application defined"), tr("Custom")});
    const QSignalBlocker silentOverwrite(overwriteBox);
    overwriteBox->clear();
    overwriteBox->addItems({tr("Use job name + date and time"), tr("Replace existing file")});
}

void JobName::setMode(int mode)
{
    edit->setEnabled(mode == Custom);
    if (mode != Custom)
        edit->clear();
}

bool JobName::isCustom() const
{
    return modeBox->currentIndex() == Custom;
}

bool JobName::replacesFile() const
{
    return overwriteBox->currentIndex() == ReplaceFile;
}

QString JobName::fault() const
{
    if (modeBox->currentIndex() == ByApplication || !edit->text().isEmpty())
        return QString();
    return tr("The custom job name field requires a name within a 64 character limit.");
}

bool JobName::holdsBack() const
{
    return isCustom() && edit->text().trimmed().isEmpty();
}

// The settings file

void JobName::updateAvailability()
{
    const bool available = findOption(QStringLiteral("cJobName"));
    for (QWidget *widget :
         std::initializer_list<QWidget *>{modeBox, label, picture, overwriteBox, overwriteLabel})
        widget->setEnabled(available);
}

void JobName::load()
{
    loadName();
    loadOverwrite();
}

void JobName::loadName()
{
    QString name = readSetting(nameKey);
    bool custom = !name.isEmpty();
    if (!custom && readSetting(dateKey).isEmpty()) {
        // Nothing was ever saved: what the print system has.
        const bOption *option = findOption(QStringLiteral("JobName"));
        custom = option && option->current() && option->currentKey() != QLatin1String("off");
        if (custom)
            name = option->currentKey().mid(int(qstrlen("Custom.")));
    }
    modeBox->setCurrentIndex(custom ? Custom : ByApplication);
    edit->setEnabled(custom);
    edit->setText(name);
}

void JobName::loadOverwrite()
{
    QString date = readSetting(dateKey);
    const bOption *option = findOption(dateKey);
    if (date.isEmpty() && option)
        date = option->currentKey();
    overwriteBox->setCurrentIndex(date == QLatin1String("false") ? ReplaceFile : AddDate);
}

void JobName::save(Settings *settings) const
{
    if (isCustom())
        settings->insert(nameKey, edit->text());
    if (replacesFile()) {
        settings->insert(replaceKey, QStringLiteral("true"));
        settings->insert(dateKey, QStringLiteral("false"));
    }
}
