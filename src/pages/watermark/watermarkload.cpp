// How the page "Watermark" is loaded: which texts and colors there are, and what was saved.

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/watermark/watermarkrows.h"
#include "pages/watermark/watermarktab.h"
#include "storage/settingsfile.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

using namespace WatermarkRows;

void WatermarkTab::beforeLoad()
{
    const bOption *model = findOption(colorModelKeyword);
    const bOption *color = findOption(colorKeyword);
    if (!model || !color || !model->isValid() || !color->isValid())
        return;
    // The import has these rules too; a store that was filled otherwise gets them here.
    for (const char *key : chromaticColors)
        currentStore->addConstraint(colorModelKeyword, QStringLiteral("Gray"), colorKeyword,
                                    QLatin1String(key));
}

void WatermarkTab::reload()
{
    setBoundSignalsBlocked(true);
    const QSignalBlocker silentButton(superButton); // bound to no option
    beforeLoad();
    savedSettings.clear();
    loadSwitches();
    setTabName();
    applyLabels();
    loadOptions();
    customEdit->clear();
    customWatermarks.clear();
    removeCustomItem();
    addColorItem();
    loadStore();
    handleWatermarkSelection(text.box->currentText());
    applyAllWidgets();
    toggleWatermarkSection(watermarkButton->isChecked());
    setBoundSignalsBlocked(false);
}

void WatermarkTab::loadSwitches()
{
    // On a printer that lacks it nobody could turn it off.
    if (!findOption(switchKeyword))
        watermarkButton->setChecked(false);
    const bool present = findOption(superKeyword);
    const QString saved = present ? readSetting(superKeyword) : QString();
    superButton->setEnabled(present);
    superButton->setChecked(
        std::any_of(std::begin(superKinds), std::end(superKinds),
                    [&](const char *kind) { return saved.contains(QLatin1String(kind)); }));
}

void WatermarkTab::removeCustomItem()
{
    // What the PPD offers for any text of one's own; here each of them has an entry.
    const bOption *option = findOption(textKeyword);
    const OptionChoice *custom = option ? option->findChoice(QStringLiteral("Custom")) : nullptr;
    for (const QString &name : {tr("Custom"), custom ? custom->text() : QString()}) {
        const int index = name.isEmpty() ? -1 : textIndex(name);
        if (index >= 0)
            text.box->removeItem(index);
    }
}

void WatermarkTab::addColorItem()
{
    const bOption *color = findOption(colorKeyword);
    ComboBoxEx *box = features[Watermark::Color].box;
    if (findOption(switchKeyword) && (!color || color->choiceCount() == 1) &&
        box->findText(tr("Black")) < 0)
        box->addItem(tr("Black"));
}

void WatermarkTab::loadStore()
{
    if (!customWatermarks.load())
        addDefaultWatermark();
    rebuildTextList();
    selectSavedText();
    handleCustomWatermarkTextEdit();
}

void WatermarkTab::addDefaultWatermark()
{
    const bOption *option = findOption(textKeyword);
    const QString name = option ? Watermark::customText(option->currentKey()) : QString();
    if (name.isEmpty())
        return;
    const ComboBoxEx *fonts = features[Watermark::Font].box;
    // All of them are looked up among the fonts; what isn't there is -1, and comes up with the
    // printer's default.
    const auto position = [fonts](const bOption *feature) {
        return feature
                   ? fonts->findData(feature->currentKey(), Qt::DisplayRole, Qt::MatchFixedString)
                   : 0;
    };
    Watermark::Look look{};
    for (int i = 0; i < Watermark::Repeat; ++i)
        look[i] = position(findOption(QLatin1String(featureRows[i].keyword)));
    look[Watermark::Repeat] = position(findOption(repeatKeyword));
    customWatermarks.insert(name, look);
}

void WatermarkTab::selectSavedText()
{
    QString name = CustomWatermarks::savedSelection();
    if (name.isEmpty() && readSetting(textKeyword).isEmpty()) {
        if (const bOption *option = findOption(textKeyword))
            name = Watermark::customText(option->currentKey());
    }
    if (name.isEmpty())
        return;
    // A text of the printer's in another language, or of another printer, is still what is printed.
    if (textIndex(name) < 0 && watermarkButton->isChecked() &&
        readSetting(textKeyword) == Watermark::quotedText(name)) {
        customWatermarks.insert(name, shownLook()); // as it was saved
        rebuildTextList();
    }
    const int index = textIndex(name);
    if (index >= 0)
        text.box->setCurrentIndex(index);
}
