#include "pages/watermark/watermarktab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/buttoncaption.h"
#include "pages/base/onelinevalidator.h"
#include "pages/base/pagelayout.h"
#include "pages/base/paneldialog.h"
#include "pages/watermark/watermarkrows.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/icons.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

using PageWidgets::named;
using PageWidgets::withColon;
using namespace WatermarkRows;

namespace {

constexpr int boxWidth = 185;   // in pixels
constexpr int longestName = 32; // characters

BixCheckBoxButton *pictureButton(QWidget *parent, const char *icon, const QString &caption,
                                 const QString &name)
{
    auto *button = new BixCheckBoxButton(parent, QString(), Icons::icon(QLatin1String(icon)));
    ButtonCaption::set(button, caption, name);
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
    //: Short, since it stands below a small picture. A hyphen may break the line.
    const QString caption = tr("Watermark", "caption");
    watermarkButton = named(pictureButton(section, ":/icons/watermark", caption, tr("Watermark")),
                            "chkButWatermark");
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
    customEdit->setValidator(new OneLineValidator(QStringLiteral("\\S[^#]*"), customEdit));
    customLabel->setBuddy(customEdit);
    newButton = named(new QPushButton(this), "butNewCustomWatermark");
    saveButton = named(new QPushButton(this), "butSaveCustomWatermark");
    deleteButton = named(new QPushButton(this), "butDeleteCustomWatermark");
    for (QPushButton *button : {newButton, saveButton, deleteButton})
        button->setAutoDefault(false); // Return elsewhere in the window is no click here

    superHeading = named(new QLabel(withColon(tr("Super watermark")), this), "lblSuperWatermark");
    //: Short, since it stands below a small picture. A hyphen may break the line.
    const QString superCaption = tr("Super watermark", "caption");
    superButton =
        named(pictureButton(this, ":/icons/super-watermark", superCaption, tr("Super watermark")),
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

// The list of texts

QString WatermarkTab::shownText() const
{
    return text.box->currentText();
}

int WatermarkTab::textIndex(const QString &name) const
{
    return text.box->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

int WatermarkTab::separatorIndex() const
{
    int separator = text.box->count() - 1;
    while (separator >= 0 && !text.box->itemText(separator).isEmpty())
        --separator;
    return separator;
}

/// Silently; the selection stays if its text does.
void WatermarkTab::rebuildTextList()
{
    ComboBoxEx *box = text.box;
    const QSignalBlocker silent(box);
    const QString selected = box->currentText();
    const int separator = separatorIndex();
    if (separator >= 0) {
        while (box->count() > separator)
            box->removeItem(box->count() - 1);
    }
    QSet<QString> printersTexts;
    for (int i = 0; i < box->count(); ++i)
        printersTexts.insert(box->itemText(i));
    box->insertSeparator(box->count());
    const QStringList names = customWatermarks.names();
    for (const QString &name : names) {
        // Even a built-in text is the user's own where the printer has it in other words.
        if (!printersTexts.contains(name))
            box->addItem(name, name);
    }
    box->setCurrentIndex(textIndex(selected));
}

void WatermarkTab::handleWatermarkSelection(const QString &name)
{
    const QString selected = text.box->currentText();
    const bool isBuiltIn =
        Watermark::isBuiltInText(selected) && textIndex(selected) < separatorIndex();
    customEdit->setText(customWatermarks.contains(selected) && !isBuiltIn ? name : QString());
    showLook(customWatermarks.look(selected, usualLook()));
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
    explainTextInput();

    PageLayout::setTabOrder(customOrder());
}

QList<QWidget *> WatermarkTab::customOrder() const
{
    QList<QWidget *> order = {customEdit};
    for (QPushButton *button : {newButton, deleteButton, saveButton}) {
        if (button->isEnabled())
            order.append(button);
    }
    order.append(repeatBox);
    return order;
}

QList<QWidget *> WatermarkTab::focusOrder() const
{
    // What belongs to the user's own texts stays together.
    const QList<QWidget *> all = Tab::focusOrder();
    const QList<QWidget *> together = customOrder();
    QList<QWidget *> order;
    for (QWidget *widget : all) {
        if (widget == customEdit) {
            std::copy_if(together.cbegin(), together.cend(), std::back_inserter(order),
                         [&](QWidget *one) { return all.contains(one); });
        } else if (!together.contains(widget) || !all.contains(customEdit)) {
            order.append(widget);
        }
    }
    return order;
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
    if (findOption(textKeyword) && customWatermarks.isCustom(selected))
        savedSettings.insert(textKeyword, Watermark::quotedText(selected));
    return savedSettings;
}

Settings WatermarkTab::extraSettings()
{
    const QString selected = text.box->currentText();
    // While the switch is off, the list stands on its first text and the look is nobody's.
    if (watermarkButton->isChecked() && findOption(textKeyword) &&
        customWatermarks.contains(selected))
        customWatermarks.insert(selected, shownLook());
    Settings settings;
    customWatermarks.save(&settings, customWatermarks.isCustom(selected) ? selected : QString());
    return settings;
}
