#include "sketch/sheetwords.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/optionlabels.h"

#include <QCoreApplication>

namespace {

/// How an option that isn't off is said.
enum class Said
{
    Value,  ///< "A5"
    Phrase, ///< "Staple: Front corner", and the label alone of a switch
};

struct WordRow
{
    const char *keyword;
    Said said;
    const char *under = ""; ///< the switch without which it is off
};

// In the order in which one would tell of a job.
constexpr WordRow paperRows[] = {
    {"PageSize", Said::Value}, {"MediaType", Said::Value},      {"ColorModel", Said::Value},
    {"Lnpr", Said::Phrase},    {"Duplex", Said::Value},         {"BXBooklet", Said::Phrase},
    {"Fold", Said::Phrase},    {"cTriFld", Said::Phrase},       {"FldC", Said::Value, "cTriFld"},
    {"cBiFld", Said::Phrase},  {"Stpl", Said::Phrase, "cStpl"}, {"Pnch", Said::Value, "cHole"},
    {"Rotate", Said::Phrase},
};
constexpr WordRow copyRows[] = {
    {"Sep", Said::Phrase},
    {"Coll", Said::Phrase},
};

struct ModeRow
{
    const char *keyword;
    const char *mediaKeyword;
};

constexpr ModeRow modeRows[] = {{"cCovBut", "CvrM"}, {"cInsBut", "Pmed"}, {"cIntBut", "Tmed"}};

class Words
{
public:
    Words(const OptionStore &store, const OptionLabels &labels)
        : store(store)
        , labels(labels)
    {
    }

    void add(const WordRow &row)
    {
        const OptionChoice *choice = current(row.keyword);
        const OptionChoice *under = current(row.under);
        if (!choice || OptionLabels::isOff(*choice) || (under && OptionLabels::isOff(*under)))
            return;
        words.append(row.said == Said::Value ? OptionLabels::value(*choice)
                                             : labels.phrase(*choice));
    }
    void addLabeled(const char *keyword, const QString &value)
    {
        const bOption *option = store.find(QLatin1String(keyword));
        if (!option)
            return;
        const QString label = labels.label(*option);
        // As elsewhere, see OptionLabels.
        words.append(value.isEmpty()
                         ? label
                         : QCoreApplication::translate("OptionLabels", "%1: %2", "option and value")
                               .arg(label, value));
    }
    OptionChoice *current(const char *keyword) const
    {
        const bOption *option = store.find(QLatin1String(keyword));
        return option ? option->current() : nullptr;
    }

    QStringList words;

private:
    const OptionStore &store;
    const OptionLabels &labels;
};

} // namespace

QString sheetWords(const OptionStore &store, const SheetPages &pages, const OptionLabels &labels)
{
    Words words(store, labels);
    for (const WordRow &row : paperRows)
        words.add(row);
    const OptionChoice *watermark = words.current("Wren");
    if (watermark && watermark->key() == Keys::yes)
        words.addLabeled("Wren", pages.watermark);
    for (const ModeRow &row : modeRows) {
        const OptionChoice *media = words.current(row.mediaKeyword);
        if (pages.modes.contains(QLatin1String(row.keyword)))
            words.addLabeled(row.keyword, media ? OptionLabels::value(*media) : QString());
    }
    for (const WordRow &row : copyRows)
        words.add(row);
    return words.words.join(QStringLiteral(", "));
}
