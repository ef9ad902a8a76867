#pragma once

#include "model/optionchoice.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>

#include <memory>
#include <vector>

/// The options of one printer by keyword: those its PPD declares and those the panel adds.
///
/// Owns every bOption, also one that another with the same keyword has replaced; a bOption owns its
/// choices; every other pointer is borrowed. Each printer selection makes a new store and leaves
/// the old one alive, so that no pointer which a page still holds can dangle.
///
/// Adding a rule posts no block; it acts from the next bOption::setCurrent() of its values on.
/// Unknown keywords and values are the ordinary case: look-ups answer null, setters do nothing.
class OptionStore
{
public:
    OptionStore();
    OptionStore(const OptionStore &) = delete;
    OptionStore &operator=(const OptionStore &) = delete;
    ~OptionStore();

    /// Null for a keyword that this printer lacks: every caller tests.
    bOption *find(const QString &key) const { return options.value(key); }
    /// Both pointers are null for a value that this printer lacks.
    OptionRef findValue(const QString &optionKey, const QString &choiceKey) const;
    /// Takes the option over; under a used keyword it replaces the one before.
    void insert(bOption *option);
    /// All options, in no order that anybody may rely on.
    QList<bOption *> optionList() const { return options.values(); }

    /// Selects a value from stored text.
    void setCurrentByKey(const QString &optionKey, const QString &choiceKey);
    void setPriority(const QString &optionKey, int priority);

    /// The two values exclude each other; the option with the lower priority number wins.
    void addConstraint(const QString &option1, const QString &choice1, const QString &option2,
                       const QString &choice2);
    /// The same for values that are found already. Without effect if one of them is null.
    static void addConstraint(const OptionRef &first, const OptionRef &second);
    /// Two of three values, given as keyword and choice key, exclude the third: the one whose
    /// option ranks lowest at the time of the call. Without effect for any other number of values.
    void addGroupConstraint(const QList<QPair<QString, QString>> &values);
    /// The same for values that are found already. Without effect if one of them is null.
    static void addGroupConstraint(const OptionRefList &values);
    /// Withdraws all blocks but those that a value has posted on itself, by a three-way rule that
    /// names no other. The selection stays, and acts again as each option is set anew.
    void releaseAllConstraints();

    /// The printer's hardware options, in the order in which they are shown.
    QList<bOption *> installedOptions() const;

    /// The print queue; files of the printer are named after it.
    const QString &printerName() const { return printerName_; }
    void setPrinterName(const QString &name) { printerName_ = name; }
    /// The ModelName of the PPD.
    const QString &modelName() const { return modelName_; }
    void setModelName(const QString &name) { modelName_ = name; }
    /// True if the queue renders through one of the maker's raster or PDF filters.
    bool rasterOrPdfFilter() const { return rasterOrPdfFilter_; }
    void setRasterOrPdfFilter(bool on) { rasterOrPdfFilter_ = on; }

private:
    bool rasterOrPdfFilter_ = false;
    QString printerName_;
    QString modelName_;
    QHash<QString, bOption *> options;
    std::vector<std::unique_ptr<bOption>> replacedOptions;
};

/// The selected printer's options; null while none is selected. Written by the Printer page when a
/// row is selected and by the main dialog when the printer is gone; every page only reads it.
extern OptionStore *currentStore;

/// The selected printer's option of this keyword; null without a printer too.
bOption *currentOption(const QString &key);
