#include "support/readback.h"

#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/watermark/watermarkrows.h"
#include "storage/command.h"
#include "storage/settingsfile.h"
#include "support/testhelpers.h"

#include <QDir>
#include <QProcess>

namespace {

/// A look goes with the texts of the user's own; the printer's texts come up with the usual one.
bool isUsualLook(const QString &keyword, const QString &after)
{
    using namespace WatermarkRows;
    const bOption *text = currentOption(textKeyword);
    if (!text || !text->hasChoice(readSetting(textKeyword)))
        return false;
    const QList<OptionChoice *> choices = currentOption(keyword)->choiceList();
    for (const FeatureRow &row : featureRows)
        if (keyword == row.keyword)
            return choices.value(row.usual) && choices[row.usual]->key() == after;
    return keyword == repeatKeyword && after == "False";
}

} // namespace

QMap<QString, QString> selection()
{
    QMap<QString, QString> selected;
    for (const bOption *option : currentStore->optionList())
        selected.insert(option->key(), option->currentKey());
    return selected;
}

QMap<QString, QStringList> published()
{
    QMap<QString, QStringList> queues;
    for (const QByteArray &line : fileText(QDir::home().filePath(".cups/lpoptions")).split('\n')) {
        const QStringList words = QProcess::splitCommand(QString::fromUtf8(line));
        queues.insert(words.value(1), words.mid(2));
    }
    return queues;
}

QStringList unpublished(const QStringList &published)
{
    QStringList missing;
    for (const bOption *option : currentStore->optionList()) {
        const QString value = readSetting(option->key());
        const QString pair = option->key() + '=' + value;
        // What is no word comes apart on the way.
        if (option->isPpdOption() && isOneWord(value) && !published.contains(pair))
            missing << pair;
    }
    return missing;
}

QString whyOtherwise(const QString &keyword, const QString &before, const QString &after)
{
    const QString saved = readSetting(keyword);
    if (isUsualLook(keyword, after))
        return "the look of a printer's watermark text";
    // The buttons say what kind of fold it is, which is all that is saved and published.
    if (keyword == "FldA" && saved == before && after == "None")
        return "a fold is on";
    // Cancelled values stay in the dialog until it opens again, and Apply takes what is there.
    if (QStringList{"Cadj", "CaColorSpace", "Madj"}.contains(keyword) && saved == after)
        return "a cancelled adjustment";
    return {};
}
