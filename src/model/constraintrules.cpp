#include "model/constraintrules.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/maker.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"

#include <QStringList>

namespace {

struct PairRule
{
    const char *option1, *choice1;
    const char *option2, *choice2;
};

constexpr PairRule publishingRules[] = {
    // A mode that is off takes its sub-options with it.
    {"cCovBut", "False", "cCovPOFI", "True"},
    {"cCovBut", "False", "cCovPOFO", "True"},
    {"cCovBut", "False", "cCovPOBI", "True"},
    {"cCovBut", "False", "cCovPOBO", "True"},
    {"cCovBRad", "False", "cCovPOBI", "True"},
    {"cCovBRad", "False", "cCovPOBO", "True"},
    {"cInsBut", "False", "cInsPrnF", "True"},
    {"cInsBut", "False", "cInsPrnB", "True"},
    {"cIntBut", "False", "cIntPrn", "True"},
    // Interleaving goes with neither cover nor insert.
    {"cCovBut", "True", "cIntBut", "True"},
    {"cInsBut", "True", "cIntBut", "True"},
};

constexpr PairRule pageRules[] = {
    // A booklet has no separate sheets.
    {"cCovBut", "True", "BXBooklet", "Left"},
    {"cInsBut", "True", "BXBooklet", "Left"},
    {"cIntBut", "True", "BXBooklet", "Left"},
    {"cCovBut", "True", "BXBooklet", "Right"},
    {"cInsBut", "True", "BXBooklet", "Right"},
    {"cIntBut", "True", "BXBooklet", "Right"},
    // The back of a sheet takes duplex.
    {"cCovPOFI", "True", "Duplex", "None"},
    {"cCovPOBO", "True", "Duplex", "None"},
    {"cInsPrnB", "True", "Duplex", "None"},
};

constexpr PairRule jobRules[] = {
    // Sets must come out whole.
    {"cCovBut", "True", "Coll", "False"},
    {"cInsBut", "True", "Coll", "False"},
    {"cIntBut", "True", "Coll", "False"},
    {"cJobStore", "True", "Coll", "False"},
    {"cSuper", "True", "Coll", "False"},
    // Without a policy server nothing is forced.
    {"FKPToggle", "Off", "FKPDuplex", "On"},
    {"FKPToggle", "Off", "FKPLeanprint", "On"},
    {"FKPToggle", "Off", "FKPColorMode", "On"},
    // What the policy forces.
    {"FKPDuplex", "On", "Duplex", "None"},
    {"FKPLeanprint", "On", "Lnpr", "Off"},
    {"FKPColorMode", "On", "ColorModel", "CMYK"},
    {"FKPColorMode", "On", "ColorModel", "RGB"},
    // The server does the accounting, and sees each job as it is printed.
    {"FKPToggle", "On", "cJobAccount", "True"},
    {"FKPToggle", "On", "cUserLogin", "True"},
    {"FKPToggle", "On", "cJobStore", "True"},
    {"FKPToggle", "On", "cCovBut", "True"},
    {"FKPToggle", "On", "cInsBut", "True"},
    {"FKPToggle", "On", "cIntBut", "True"},
    // Watermarks.
    {"Wren", "False", "Wflg", "True"},
    {"ColorModel", "Gray", "Wclr", "Red"},
    {"ColorModel", "Gray", "Wclr", "Green"},
    {"ColorModel", "Gray", "Wclr", "Blue"},
};

struct PriorityRow
{
    int priority;
    const char *keywords; ///< separated by blanks
};

constexpr PriorityRow priorities[] = {
    // Fitted hardware and the policy switch.
    {0, "Option17 FKPToggle"},
    {1, "FKPLeanprint FKPColorMode Option8 Option18 Option19 Option20 Option21 Option22 Option25 "
        "Option26 Option27 Option01"},
    // Media.
    {2, "InputSlot ColorModel Wren"},
    {3, "PageSize MediaType Crep Wclr Wang"},
    {4, "FKPDuplex"},
    // Layout.
    {5, "Wflg Wtrans Cadj Duplex Lnpr Resolution RCM BXBooklet"},
    // Finishing and imaging. WTyp and cPnch match no option so far.
    {6, "WTyp cBiFld cTriFld cHole VRS GBTn BXGlossmode CaHueMaster CaHr CaHy CaHg CaHc CaHb CaHm "
        "Cast Cabt Cact CaCR CaMG CaYB Fold FldA Sep Stpl cStpl Pnch cPnch Rotate"},
    // Modes of a job.
    {7, "cCovBut cIntBut cInsBut BXCollate1 cJobAccount cUserLogin cJobStore"},
    {8, "cCovTRad cCovBRad cCovPOFO cCovPOFI cCovPOBO cCovPOBI cInsPrnF cInsPrnB cIntPrn CvrM Pmed "
        "Tmed cSuper"},
    {9, "OutputBin BXSuperWatermark"},
    // Collation gives way to everybody.
    {10, "Coll"},
};

struct GroupRule
{
    PairRule conditions;
    const char *option, *choice;
};

constexpr GroupRule groupRules[] = {
    // Booklets are stapled by the unit behind Option22 only.
    {{"BXBooklet", "Left", "Option22", "False"}, "cStpl", "True"},
    {{"BXBooklet", "Right", "Option22", "False"}, "cStpl", "True"},
    // Flat sets of short paper do not reach the stapler.
    {{"BXBooklet", "None", "PageSize", "Statement"}, "cStpl", "True"},
    {{"BXBooklet", "None", "PageSize", "A5"}, "cStpl", "True"},
};

template <size_t count>
void addPairRules(OptionStore *store, const PairRule (&rules)[count])
{
    for (const PairRule &rule : rules)
        store->addConstraint(QLatin1String(rule.option1), QLatin1String(rule.choice1),
                             QLatin1String(rule.option2), QLatin1String(rule.choice2));
}

/// Interleaving sheets are transparencies and nothing else.
void addInterleavingMediaRules(OptionStore *store)
{
    const bOption *media = store->find(QStringLiteral("MediaType"));
    if (!media)
        return;
    const QList<OptionChoice *> choices = media->choiceList();
    for (const OptionChoice *choice : choices) {
        if (choice->key() != QLatin1String("Transparency"))
            store->addConstraint(QStringLiteral("cIntBut"), Keys::yes, media->key(), choice->key());
    }
}

/// Gives (option, choice) those conflicts of `source` whose other side ranks below `limit`.
void copyWeakerConflicts(OptionStore *store, const OptionChoice *source, const bOption *limit,
                         const QString &option, const QString &choice)
{
    const QList<OptionRef> conflicts = source->pairConstraintList();
    for (const OptionRef &other : conflicts) {
        if (other.option->priority() > limit->priority())
            store->addConstraint(option, choice, other.option->key(), other.choice->key());
    }
}

} // namespace

void addPublishingRules(OptionStore *store)
{
    addPairRules(store, publishingRules);
}

void addFixedPairRules(OptionStore *store)
{
    addPairRules(store, pageRules);
    addInterleavingMediaRules(store);
    addPairRules(store, jobRules);
}

void setPriorities(OptionStore *store)
{
    for (const PriorityRow &row : priorities) {
        const QStringList keywords = QString::fromLatin1(row.keywords).split(QLatin1Char(' '));
        for (const QString &keyword : keywords)
            store->setPriority(keyword, row.priority);
    }
}

void addFixedGroupRules(OptionStore *store)
{
    for (const GroupRule &rule : groupRules) {
        const PairRule &c = rule.conditions;
        store->addGroupConstraint({{QLatin1String(c.option1), QLatin1String(c.choice1)},
                                   {QLatin1String(c.option2), QLatin1String(c.choice2)},
                                   {QLatin1String(rule.option), QLatin1String(rule.choice)}});
    }
}

void addDerivedRules(OptionStore *store)
{
    const QString storage = QLatin1String(Maker::jobStorageUnit);

    // What needs collation can't be had without the storage that collation needs.
    const bOption *collation = store->find(QStringLiteral("Coll"));
    const bOption *storageOption = store->find(storage);
    if (collation && storageOption) {
        if (const OptionChoice *off = collation->findChoice(Keys::no))
            copyWeakerConflicts(store, off, storageOption, storage, Keys::none);
    }

    // Duplex that a policy forces has the conflicts of duplex itself.
    const bOption *duplex = store->find(QStringLiteral("Duplex"));
    const bOption *forcedDuplex = store->find(QStringLiteral("FKPDuplex"));
    if (duplex && forcedDuplex) {
        for (const char *side : {"DuplexTumble", "DuplexNoTumble"}) {
            if (const OptionChoice *choice = duplex->findChoice(QLatin1String(side)))
                copyWeakerConflicts(store, choice, forcedDuplex, QStringLiteral("FKPDuplex"),
                                    Keys::on);
        }
    }

    if (const bOption *jobStorage = store->find(QStringLiteral("BXCollate1"))) {
        const QList<OptionChoice *> choices = jobStorage->choiceList();
        for (const OptionChoice *choice : choices) {
            if (choice->key() != Keys::none)
                store->addConstraint(storage, Keys::none, jobStorage->key(), choice->key());
        }
    }
    store->addConstraint(storage, Keys::none, QStringLiteral("cPrivatePrint"), Keys::yes);
    store->addConstraint(storage, Keys::none, QStringLiteral("cCustomBox"), Keys::yes);
}
