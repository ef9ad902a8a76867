#include "pages/watermark/watermarktab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/pagelayout.h"
#include "pages/base/paneldialog.h"
#include "storage/settingsfile.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

const QLatin1String switchKeyword("Wren");
const QLatin1String textKeyword("Wtxt");
const QLatin1String colorKeyword("Wclr");
const QLatin1String repeatKeyword("Wflg");
const QLatin1String superKeyword("BXSuperWatermark");
const QLatin1String colorModelKeyword("ColorModel");

const QLatin1String storeKey("CustomWatermarkStore");
const QLatin1String selectedKey("CustomWatermarkSet");

struct FeatureRow
{
    const char *keyword;
    const char *labelName;
    const char *boxName;
    const char *label;
    int usual; // position of what every text but a custom one starts with
};

// By Watermark::Feature.
constexpr FeatureRow featureRows[] = {
    {"Wfnt", "lblWFnt", "cmbBxWFnt", QT_TRANSLATE_NOOP("WatermarkTab", "Font"), 0},
    {"Wsze", "lblWSze", "cmbBxWsze", QT_TRANSLATE_NOOP("WatermarkTab", "Size"), 8},
    {"Wclr", "lblWClr", "cmbBxClr", QT_TRANSLATE_NOOP("WatermarkTab", "Color"), 3},
    {"Wang", "lblWang", "cmbBxWang", QT_TRANSLATE_NOOP("WatermarkTab", "Angle"), 23},
    {"Wtrans", "lblWtrans", "cmbBxWtrans", QT_TRANSLATE_NOOP("WatermarkTab", "Style"), 0},
    {"Wtyp", "lblWtyp", "cmbBxWtyp", QT_TRANSLATE_NOOP("WatermarkTab", "Fill"), 0},
};

// What conflicts with printing in gray.
constexpr const char *chromaticColors[] = {"Red", "Green", "Blue"};

// What tells a super watermark from "none", as part of the saved value.
constexpr const char *superKinds[] = {"UF", "SF"};

constexpr int boxWidth = 185;   // in pixels
constexpr int longestName = 32; // characters

Watermark::Look usualLook()
{
    Watermark::Look look{};
    for (int i = 0; i < Watermark::Repeat; ++i)
        look[i] = featureRows[i].usual;
    return look;
}

/// A switch whose text is only for assistive technology: a heading says it too, and on the picture
/// it could not be read.
BixCheckBoxButton *pictureButton(QWidget *parent, const char *icon, const QString &text)
{
    auto *button = new BixCheckBoxButton(parent, QString(), QIcon(QLatin1String(icon)));
    const auto parts = button->findChildren<QAbstractButton *>();
    for (QAbstractButton *part : parts)
        part->setAccessibleName(text);
    return button;
}

} // namespace

WatermarkTab::WatermarkTab(PanelDialog *dialog)
    : Tab(dialog, {QT_TRANSLATE_NOOP("WatermarkTab", "Watermark"), ":/icons/tab-watermark",
                   PageHead::WithAnOption})
{
    Tab::setTabName();
    WatermarkTab::createWidgets();
    connectBoundWidgets();
    createConnections();
    createLayout();
}

// Widgets

void WatermarkTab::createWidgets()
{
    static_assert(std::size(featureRows) == Watermark::Repeat);
    section = named(new QFrame(this), "chkBxStamp");
    heading = named(new QLabel(withColon(tr("Watermark/Stamp")), section), "lblWatermark");
    watermarkButton =
        named(pictureButton(section, ":/icons/watermark", tr("Watermark")), "chkButWatermark");
    text = PageWidgets::labeledComboBox(section, "lblWtxt", "cmbBxWtxt", withColon(tr("Text")),
                                        boxWidth);
    for (int i = 0; i < Watermark::Repeat; ++i) {
        const FeatureRow &row = featureRows[i];
        features[i] = PageWidgets::labeledComboBox(section, row.labelName, row.boxName,
                                                   withColon(tr(row.label)), boxWidth);
    }
    repeatBox = named(new QCheckBox(tr("Repeat watermark"), section), "chkBxWFlg");

    customLabel = named(new QLabel(this), "lblCustomWatermark");
    customEdit = named(new QLineEdit(this), "lnEditCustomWatermark");
    customEdit->setMaxLength(longestName);
    customEdit->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("\\S[^#]*")), customEdit));
    customLabel->setBuddy(customEdit);
    newButton = named(new QPushButton(this), "butNewCustomWatermark");
    saveButton = named(new QPushButton(this), "butSaveCustomWatermark");
    deleteButton = named(new QPushButton(this), "butDeleteCustomWatermark");
    for (QPushButton *button : {newButton, saveButton, deleteButton})
        button->setAutoDefault(false); // Return elsewhere in the window is no click here

    superHeading = named(new QLabel(withColon(tr("Super watermark")), this), "lblSuperWatermark");
    superButton = named(pictureButton(this, ":/icons/super-watermark", tr("Super watermark")),
                        "chkButSuperWatermark");
    superBox = named(new ComboBoxEx(this), "cmbBxSuperWatermark");
    WatermarkTab::retranslate();
    registerWidgets();
}

void WatermarkTab::retranslate()
{
    customLabel->setText(withColon(tr("Custom watermark")));
    newButton->setText(tr("New"));
    saveButton->setText(tr("Save"));
    deleteButton->setText(tr("Delete"));
}

void WatermarkTab::registerWidgets()
{
    boundWidgets.insert(switchKeyword, watermarkButton);
    boundWidgets.insert(textKeyword, text.box);
    markWidgets.insert(switchKeyword, heading);
    markWidgets.insert(textKeyword, text.label);
    for (int i = 0; i < Watermark::Repeat; ++i) {
        boundWidgets.insert(QLatin1String(featureRows[i].keyword), features[i].box);
        markWidgets.insert(QLatin1String(featureRows[i].keyword), features[i].label);
    }
    boundWidgets.insert(repeatKeyword, repeatBox);
    markWidgets.insert(repeatKeyword, repeatBox);
    boundWidgets.insert(superKeyword, superBox);
    markWidgets.insert(QStringLiteral("cSuper"), superHeading);
    markWidgets.insert(QStringLiteral("cCustom"), customLabel);
    markWidgets.insert(superKeyword, superHeading);

    checkBoxButtons = {superButton};
    superButton->addDependent(superBox, tr("Off"));
}

// Connections

void WatermarkTab::createConnections()
{
    // After those of all pages: the text moves into the model before its look follows.
    connect(text.box, SIGNAL(currentIndexChanged(QString)), this,
            SLOT(handleWatermarkSelection(QString)));
    const auto toggled = qOverload<bool>(&BixCheckBoxButton::toggled);
    connect(watermarkButton, toggled, this, &WatermarkTab::toggleWatermarkSection);
    connect(superButton, toggled, this, &WatermarkTab::toggleSuperWatermark);

    connect(customEdit, &QLineEdit::textChanged, this,
            &WatermarkTab::handleCustomWatermarkTextEdit);
    connect(newButton, &QPushButton::clicked, this, &WatermarkTab::createNewCustomWatermark);
    connect(saveButton, &QPushButton::clicked, this, &WatermarkTab::editCustomWatermark);
    connect(deleteButton, &QPushButton::clicked, this, &WatermarkTab::deleteCustomWatermark);
}

// Layout

void WatermarkTab::createLayout()
{
    createLookGrid();
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(section);
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(createTextGrid());
}

void WatermarkTab::createLookGrid()
{
    auto *grid = new QGridLayout(section);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(heading, 0, 0, 1, 2);
    grid->addWidget(watermarkButton, 1, 0, 2, 1, Qt::AlignLeft);
    int row = 1;
    const auto addList = [&](const PageWidgets::LabeledComboBox &list) {
        grid->addWidget(list.label, row++, 1, Qt::AlignLeft | Qt::AlignBottom);
        grid->addWidget(list.box, row++, 1, Qt::AlignLeft | Qt::AlignTop);
    };
    addList(text);
    for (const PageWidgets::LabeledComboBox &list : features)
        addList(list);
    grid->addWidget(repeatBox, row++, 0, 1, 3); // the longest text of the page
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
}

QGridLayout *WatermarkTab::createTextGrid()
{
    auto *buttonRow = new QHBoxLayout;
    for (QPushButton *button : {newButton, saveButton, deleteButton})
        buttonRow->addWidget(button);

    auto *grid = new QGridLayout;
    grid->addWidget(customLabel, 0, 0, 1, 3);
    grid->addWidget(customEdit, 1, 0, 1, 3);
    grid->addLayout(buttonRow, 2, 0, 1, 3);
    grid->addWidget(PageLayout::horizontalLine(this), 3, 0, 1, 3);
    grid->addWidget(superHeading, 4, 0, 1, 3);
    grid->addWidget(superButton, 5, 0, Qt::AlignLeft);
    grid->addWidget(superBox, 5, 1, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(6, 1);
    return grid;
}

// Loading

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
    const QStringList lines = readSettingValues(storeKey);
    for (const QString &line : lines) {
        const Watermark::Record record = Watermark::fromLine(line);
        // An entry without a text would read as the separator.
        if (!record.name.isEmpty())
            customWatermarks.insert(record.name, record.look);
    }
    if (lines.isEmpty())
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
    QString name = readSetting(selectedKey);
    if (name.isEmpty() && readSetting(textKeyword).isEmpty()) {
        if (const bOption *option = findOption(textKeyword))
            name = Watermark::customText(option->currentKey());
    }
    const int index = name.isEmpty() ? -1 : textIndex(name);
    if (index >= 0)
        text.box->setCurrentIndex(index);
}

// The list of texts

int WatermarkTab::textIndex(const QString &name) const
{
    return text.box->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

bool WatermarkTab::isCustom(const QString &name) const
{
    return customWatermarks.contains(name) && !Watermark::isBuiltInText(name);
}

/// Silently; the selection stays if its text does.
void WatermarkTab::rebuildTextList()
{
    ComboBoxEx *box = text.box;
    const QSignalBlocker silent(box);
    const QString selected = box->currentText();
    int separator = box->count() - 1;
    while (separator >= 0 && !box->itemText(separator).isEmpty())
        --separator;
    if (separator >= 0) {
        while (box->count() > separator)
            box->removeItem(box->count() - 1);
    }
    box->insertSeparator(box->count());
    for (auto entry = customWatermarks.cbegin(); entry != customWatermarks.cend(); ++entry) {
        if (!Watermark::isBuiltInText(entry.key()))
            box->addItem(entry.key(), entry.key());
    }
    box->setCurrentIndex(textIndex(selected));
}

void WatermarkTab::handleWatermarkSelection(const QString &name)
{
    const QString selected = text.box->currentText();
    customEdit->setText(isCustom(selected) ? name : QString());
    showLook(customWatermarks.value(selected, usualLook()));
    handleCustomWatermarkTextEdit();
    applySection();
    if (!text.box->signalsBlocked()) // the page is not being loaded
        dialog->setConstraints();
}

// The user's own texts

void WatermarkTab::handleCustomWatermarkTextEdit()
{
    const QString name = customEdit->text();
    newButton->setEnabled(!name.isEmpty() && textIndex(name) < 0);
    saveButton->setEnabled(watermarkButton->isChecked());
    deleteButton->setEnabled(customWatermarks.contains(name));

    QList<QWidget *> order = {customEdit};
    for (QPushButton *button : {newButton, deleteButton, saveButton}) {
        if (button->isEnabled())
            order.append(button);
    }
    order.append(repeatBox);
    PageLayout::setTabOrder(order);
}

void WatermarkTab::createNewCustomWatermark()
{
    editCustomWatermark();
}

void WatermarkTab::editCustomWatermark()
{
    const QString name = customEdit->text();
    if (name.isEmpty())
        return;
    customWatermarks.insert(name, shownLook());
    rebuildTextList();
    handleCustomWatermarkTextEdit();
    text.box->setCurrentIndex(textIndex(name));
}

void WatermarkTab::deleteCustomWatermark()
{
    customWatermarks.remove(customEdit->text());
    rebuildTextList();
    handleCustomWatermarkTextEdit();
    text.box->setCurrentIndex(0);
}

// The look of a text

Watermark::Look WatermarkTab::shownLook() const
{
    Watermark::Look look{};
    for (int i = 0; i < Watermark::Repeat; ++i)
        look[i] = features[i].box->currentIndex();
    look[Watermark::Repeat] = repeatBox->isChecked();
    return look;
}

/// Moves the widgets only; applySection() moves the model.
void WatermarkTab::showLook(const Watermark::Look &look)
{
    for (int i = 0; i < Watermark::Repeat; ++i) {
        if (i == Watermark::Color)
            showColor(look[i]);
        else if (findOption(QLatin1String(featureRows[i].keyword)))
            showIndex(i, look[i]);
    }
    if (findOption(repeatKeyword)) {
        const QSignalBlocker silent(repeatBox);
        repeatBox->setChecked(look[Watermark::Repeat] > 0);
    }
}

void WatermarkTab::showColor(int index)
{
    const bOption *color = findOption(colorKeyword);
    const int black = features[Watermark::Color].box->findText(tr("Black"));
    if (!findOption(colorModelKeyword) && black >= 0)
        showIndex(Watermark::Color, black);
    else
        showIndex(Watermark::Color, color && color->choiceCount() > 1 ? index : 0);
}

/// A position that the list doesn't have stands for the printer's default.
void WatermarkTab::showIndex(int feature, int index)
{
    ComboBoxEx *box = features[feature].box;
    const QSignalBlocker silent(box);
    if (index < 0 || index >= box->count()) {
        const bOption *option = findOption(QLatin1String(featureRows[feature].keyword));
        const OptionChoice *choice = option ? option->defaultChoice() : nullptr;
        index = qMax(0, choice ? box->findText(choice->text()) : -1);
    }
    box->setCurrentIndex(index);
}

// The switches

void WatermarkTab::toggleWatermarkSection(bool on)
{
    if (!on) {
        const QSignalBlocker silent(text.box);
        customEdit->clear();
        text.box->setCurrentIndex(0);
        showLook(usualLook());
    }
    if (currentStore)
        currentStore->setCurrentByKey(switchKeyword, Keys::yesOrNo(on));
    setSectionEnabled(on);
    if (on) {
        handleWatermarkSelection(text.box->currentText());
    } else {
        handleCustomWatermarkTextEdit();
        applySection();
    }
}

/// What the printer lacks stays disabled.
void WatermarkTab::setSectionEnabled(bool on)
{
    const auto setEnabled = [](const PageWidgets::LabeledComboBox &list, bool enabled) {
        list.label->setEnabled(enabled);
        list.box->setEnabled(enabled);
    };
    setEnabled(text, on && findOption(textKeyword));
    for (int i = 0; i < Watermark::Repeat; ++i) {
        const QLatin1String keyword(featureRows[i].keyword);
        // A printer without a choice of color has black at least.
        setEnabled(features[i],
                   on && findOption(i == Watermark::Color ? colorModelKeyword : keyword));
    }
    customLabel->setEnabled(on);
    customEdit->setEnabled(on);
    repeatBox->setEnabled(on && findOption(repeatKeyword));
}

void WatermarkTab::applySection()
{
    applyWidgetValue(0, text.box);
    for (const PageWidgets::LabeledComboBox &list : features)
        applyWidgetValue(0, list.box);
    applyWidgetValue(repeatBox->isChecked(), repeatBox);
}

void WatermarkTab::toggleSuperWatermark(bool on)
{
    // Silently: the model has taken the off value by now.
    const QSignalBlocker silent(superBox);
    if (!on && findOption(superKeyword))
        superBox->setCurrentIndex(0);
}

// Settings

QHash<QString, QString> WatermarkTab::collectSettings()
{
    Tab::collectSettings();
    if (findOption(superKeyword) && superButton->isEnabledTo(this) && !superButton->isChecked())
        savedSettings.insert(superKeyword, Keys::none);
    const QString selected = text.box->currentText();
    const bool isBuiltIn =
        Watermark::isBuiltInText(selected) && !customWatermarks.contains(selected);
    if (findOption(textKeyword) && !selected.isEmpty() && !isBuiltIn)
        savedSettings.insert(textKeyword, Watermark::quotedText(selected));
    return savedSettings;
}

Settings WatermarkTab::extraSettings()
{
    const QString selected = text.box->currentText();
    const bool custom = isCustom(selected);
    if (custom && findOption(textKeyword))
        customWatermarks.insert(selected, shownLook());
    Settings settings;
    for (auto entry = customWatermarks.cbegin(); entry != customWatermarks.cend(); ++entry)
        settings.insert(storeKey, Watermark::toLine({entry.key(), entry.value()}));
    if (custom)
        settings.insert(selectedKey, selected);
    return settings;
}
