#include "model/ppdimport.h"

#include "model/boption.h"
#include "model/constraintrules.h"
#include "model/cupsuiconstraint.h"
#include "model/maker.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/syntheticoptions.h"
#include "model/valueindex.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <unistd.h>

namespace {

/// Gives the texts in the user's language. It looks up each of them, in vain if no keyword of the
/// PPD has a language: those begin with it and a full stop (CUPS PPD extensions, "de.Translation"),
/// and ppdOpenFile() has dropped those of other languages.
void localize(ppd_file_t *ppd)
{
    const bool translated =
        std::any_of(ppd->attrs, ppd->attrs + ppd->num_attrs,
                    [](const ppd_attr_t *attribute) { return std::strchr(attribute->name, '.'); });
    if (translated)
        ppdLocalize(ppd);
}

void detectFilters(const ppd_file_t *ppd, OptionStore *store)
{
    for (int i = 0; i < ppd->num_filters; ++i) {
        for (const char *mark : Maker::rasterOrPdfMarks) {
            if (std::strstr(ppd->filters[i], mark))
                store->setRasterOrPdfFilter(true);
        }
    }
    store->setModelName(QString::fromUtf8(ppd->modelname));
}

bOption *importOption(const ppd_option_t &source)
{
    auto option = std::make_unique<bOption>(QString::fromLatin1(source.keyword),
                                            QString::fromUtf8(source.text));
    for (int i = 0; i < source.num_choices; ++i)
        option->addChoice(QString::fromLatin1(source.choices[i].choice),
                          QString::fromUtf8(source.choices[i].text));
    option->setDefaultChoice(option->findChoice(QString::fromLatin1(source.defchoice)));
    option->setPpdOption(true);
    return option.release();
}

void importOptions(const ppd_file_t *ppd, OptionStore *store, ValueIndex *values)
{
    for (int i = 0; i < ppd->num_groups; ++i) {
        const ppd_group_t &group = ppd->groups[i];
        for (int j = 0; j < group.num_options; ++j) {
            bOption *option = importOption(group.options[j]);
            store->insert(option);
            values->add(option, group.options[j]);
        }
    }
}

/// Collation and job storage have rules of their own here.
bool isCollationAgainstStorage(const ppd_const_t &rule)
{
    const auto names = [&rule](const char *first, const char *second) {
        return std::strcmp(rule.option1, first) == 0 && std::strcmp(rule.option2, second) == 0;
    };
    return names("Coll", "BXCollate1") || names("BXCollate1", "Coll");
}

void importPairConstraints(const ppd_file_t *ppd, const ValueIndex &values)
{
    for (int i = 0; i < ppd->num_consts; ++i) {
        const ppd_const_t &rule = ppd->consts[i];
        if (!isCollationAgainstStorage(rule))
            OptionStore::addConstraint(values.find(rule.option1, rule.choice1),
                                       values.find(rule.option2, rule.choice2));
    }
}

void selectDefaults(OptionStore *store)
{
    const QList<bOption *> options = store->optionList();
    for (bOption *option : options)
        option->setCurrent(option->defaultChoice());
}

/// The rules of the PPD may name the panel's own options too.
void addOwnOptions(const OptionStore &store, ValueIndex *values)
{
    const QList<bOption *> options = store.optionList();
    for (bOption *option : options) {
        if (!option->isPpdOption())
            values->add(option);
    }
}

void importGroupConstraints(ppd_file_t *ppd, const ValueIndex &values)
{
    constexpr char keyword[] = "cupsUIConstraints";
    for (const ppd_attr_t *attribute = ppdFindAttr(ppd, keyword, nullptr); attribute;
         attribute = ppdFindNextAttr(ppd, keyword, nullptr))
        addCupsUiConstraint(values, attribute->value ? attribute->value : "");
}

std::unique_ptr<OptionStore> importAndClose(ppd_file_t *ppd)
{
    if (!ppd)
        return nullptr;
    auto store = std::make_unique<OptionStore>();
    importPpd(ppd, store.get());
    ppdClose(ppd);
    return store;
}

} // namespace

void importPpd(ppd_file_t *ppd, OptionStore *store)
{
    localize(ppd);
    detectFilters(ppd, store);
    ValueIndex values;
    importOptions(ppd, store, &values);
    importPairConstraints(ppd, values);
    selectDefaults(store);
    // No second run of the pair constraints after the defaults: equal pairs are stored once, so it
    // would add nothing.
    addFinishingModes(ppd, store);
    addPublishingModes(ppd, store);
    addJobOptions(ppd, store);
    addSuperWatermark(ppd, store);
    addPolicyOptions(store);
    addFixedPairRules(store);
    setPriorities(store);
    addOwnOptions(*store, &values);
    importGroupConstraints(ppd, values);
    addFixedGroupRules(store);
    addDerivedRules(store);
}

std::unique_ptr<OptionStore> importPpdFile(const QString &path)
{
    return importAndClose(ppdOpenFile(QFile::encodeName(path).constData()));
}

std::unique_ptr<OptionStore> importPpdFile(int descriptor)
{
    return importAndClose(ppdOpenFd(dup(descriptor))); // which it closes
}
