#include "model/syntheticoptions.h"

#include "model/boption.h"
#include "model/constraintrules.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>

namespace {

struct SwitchRow
{
    const char *key, *text;
};

constexpr SwitchRow publishingSwitches[] = {
    {"cCovBut", "Cover mode"},
    {"cCovTRad", "Cover mode front"},
    {"cCovBRad", "Cover mode front and back"},
    {"cCovPOFO", "Cover mode front outside"},
    {"cCovPOFI", "Cover mode front inside"},
    {"cCovPOBO", "Cover mode back outside"},
    {"cCovPOBI", "Cover mode back inside"},
    {"cInsBut", "Page insert mode"},
    {"cInsPrnF", "Page insert print onto front"},
    {"cInsPrnB", "Page insert print onto back"},
    {"cIntBut", "Transparency interleaving mode"},
    {"cIntPrn", "Transparency print onto backing"},
};

/// What in a PPD announces an ability.
enum class Announced
{
    ByOption,
    ByAttribute,     ///< by its presence, whatever it says
    ByAttributeTrue, ///< by the value "True" and no other
};

struct JobRow
{
    const char *keyword;
    Announced how;
    SwitchRow option;
};

constexpr JobRow jobSwitches[] = {
    {"BXCollate1", Announced::ByOption, {"cJobStore", "Job storage"}},
    {"BqManagment", Announced::ByOption, {"cJobAccount", "Job accounting"}},
    {"SupportsUserLogin", Announced::ByAttribute, {"cUserLogin", "User login"}},
    {"JobFinishNotice", Announced::ByAttribute, {"cEmail", "Email notification"}},
    {"SupportsCustomJobName", Announced::ByAttribute, {"cJobName", "Custom job name"}},
    {"SupportsPrivatePrint", Announced::ByAttributeTrue, {"cPrivatePrint", "Private print"}},
    {"SupportsCustomBox", Announced::ByAttribute, {"cCustomBox", "Custom box"}},
};

constexpr SwitchRow policySwitches[] = {
    {"FKPToggle", "Fleet keeper"},
    {"FKPDuplex", "Fleet Duplex"},
    {"FKPLeanprint", "Fleet Leanprint"},
    {"FKPColorMode", "Fleet Color Mode"},
};

void addSwitch(OptionStore *store, const SwitchRow &row)
{
    auto option = std::make_unique<bOption>(QLatin1String(row.key), QLatin1String(row.text));
    for (const QLatin1String value : {Keys::no, Keys::yes})
        option->addChoice(value, value);
    store->insert(option.release());
}

/// Gives `key` "True" each of the conflicts.
void inherit(OptionStore *store, const char *key, const QList<OptionRef> &conflicts)
{
    for (const OptionRef &other : conflicts)
        store->addConstraint(QLatin1String(key), Keys::yes, other.option->key(),
                             other.choice->key());
}

void inheritFromFold(OptionStore *store, const char *key, const char *fold)
{
    const bOption *folding = store->find(QStringLiteral("FldA"));
    if (const OptionChoice *choice = folding ? folding->findChoice(QLatin1String(fold)) : nullptr)
        inherit(store, key, choice->pairConstraintList());
}

/// What every style but "None" conflicts with. Once nothing is common any more, the next style
/// starts afresh: a printer whose styles share no conflict ends up with those of a later one.
QList<OptionRef> commonConflicts(const bOption *styles)
{
    QList<OptionRef> common;
    const QList<OptionChoice *> choices = styles->choiceList();
    for (const OptionChoice *choice : choices) {
        if (choice->key() == Keys::none)
            continue;
        const QList<OptionRef> own = choice->pairConstraintList();
        if (common.isEmpty()) {
            common = own;
            continue;
        }
        common.erase(
            std::remove_if(common.begin(), common.end(),
                           [&](const OptionRef &conflict) { return !own.contains(conflict); }),
            common.end());
    }
    return common;
}

void addStyleMode(OptionStore *store, const SwitchRow &mode, const char *styleKeyword)
{
    addSwitch(store, mode);
    if (const bOption *styles = store->find(QLatin1String(styleKeyword)))
        inherit(store, mode.key, commonConflicts(styles));
}

bool isAnnounced(ppd_file_t *ppd, const JobRow &row)
{
    if (row.how == Announced::ByOption)
        return ppdFindOption(ppd, row.keyword) != nullptr;
    const ppd_attr_t *attribute = ppdFindAttr(ppd, row.keyword, nullptr);
    if (!attribute || row.how == Announced::ByAttribute)
        return attribute != nullptr;
    return attribute->value && std::strcmp(attribute->value, Keys::yes.data()) == 0;
}

} // namespace

void addFinishingModes(ppd_file_t *ppd, OptionStore *store)
{
    const bool folds = ppdFindOption(ppd, "FldA") != nullptr;
    const bool punches = ppdFindOption(ppd, "Pnch") != nullptr;
    const bool staples = ppdFindOption(ppd, "Stpl") != nullptr;

    if (folds) {
        addSwitch(store, {"cBiFld", "Bi-fold Mode"});
        addSwitch(store, {"cTriFld", "Tri-fold Mode"});
        inheritFromFold(store, "cBiFld", "Bifold");
        inheritFromFold(store, "cTriFld", "Trifold");
        store->addConstraint(QStringLiteral("cTriFld"), Keys::yes, QStringLiteral("cBiFld"),
                             Keys::yes);
    }
    if (punches)
        addStyleMode(store, {"cHole", "Punch Mode"}, "Pnch");
    if (staples)
        addStyleMode(store, {"cStpl", "Staple Mode"}, "Stpl");
}

void addPublishingModes(ppd_file_t *ppd, OptionStore *store)
{
    if (!ppdFindOption(ppd, "CvrM"))
        return;
    for (const SwitchRow &row : publishingSwitches)
        addSwitch(store, row);
    addPublishingRules(store);
}

void addJobOptions(ppd_file_t *ppd, OptionStore *store)
{
    for (const JobRow &row : jobSwitches) {
        if (isAnnounced(ppd, row))
            addSwitch(store, row.option);
    }
    store->addConstraint(QStringLiteral("cJobAccount"), Keys::yes, QStringLiteral("cUserLogin"),
                         Keys::yes);
}

void addSuperWatermark(ppd_file_t *ppd, OptionStore *store)
{
    if (ppdFindOption(ppd, "BXSuperWatermark"))
        addSwitch(store, {"cSuper", "Super Watermark"});
}

void addPolicyOptions(OptionStore *store)
{
    const QString off = QCoreApplication::translate("OptionStore", "Off");
    const QString on = QCoreApplication::translate("OptionStore", "On");
    for (const SwitchRow &row : policySwitches) {
        auto option = std::make_unique<bOption>(QLatin1String(row.key), QLatin1String(row.text));
        option->addChoice(Keys::off, off);
        option->addChoice(Keys::on, on);
        store->insert(option.release());
    }
}
