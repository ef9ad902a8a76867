#pragma once

#include "pages/base/pagewidgets.h"
#include "pages/base/tab.h"
#include "pages/watermark/customwatermarks.h"

#include <array>

class QFrame;
class QGridLayout;
class QLineEdit;
class QPushButton;

/// The page "Watermark": a text across each page, one of the printer's or the user's own, and the
/// super watermark.
///
/// The user's own texts stand behind a separator in the list of texts. Each has a look of its own,
/// kept in the settings file; any other text comes up with the same fixed look. The name field
/// below shows the selected own text, and new ones are typed there.
class WatermarkTab : public Tab
{
    Q_OBJECT

public:
    explicit WatermarkTab(PanelDialog *dialog);

    void createWidgets() override;
    void beforeLoad() override;
    void reload() override;
    QHash<QString, QString> collectSettings() override;
    /// One entry for each custom watermark, all under the same key.
    Settings extraSettings() override;
    void retranslate() override;
    void explain(const OptionLabels &labels) override;
    /// The text that is selected, the printer's or the user's own.
    QString shownText() const;

protected:
    QString greyReason(const QWidget *widget) const override;

private slots:
    /// Enables the buttons by what the name field holds.
    void handleCustomWatermarkTextEdit();
    void createNewCustomWatermark();
    void deleteCustomWatermark();
    void editCustomWatermark();
    /// Shows the look of the selected text.
    void handleWatermarkSelection(const QString &name);
    void toggleWatermarkSection(bool on);
    void toggleSuperWatermark(bool on);

protected:
    QList<QWidget *> focusOrder() const override;

private:
    /// What takes the focus one after the other for the user's own texts.
    QList<QWidget *> customOrder() const;
    void registerWidgets();
    void createConnections();
    void createLayout();
    void createLookGrid();
    QGridLayout *createTextGrid();

    void loadSwitches();
    void removeCustomItem();
    void addColorItem();
    void loadStore();
    void addDefaultWatermark();
    void selectSavedText();

    void rebuildTextList();
    int textIndex(const QString &text) const;
    /// The printer's texts stand before it, the user's own behind it; -1 if there is none.
    int separatorIndex() const;

    Watermark::Look shownLook() const;
    void showLook(const Watermark::Look &look);
    void showColor(int index);
    void showIndex(int feature, int index);
    void setSectionEnabled(bool on);
    void applySection();
    void explainTextInput();

    QFrame *section = nullptr; ///< switch, text and look
    QLabel *heading = nullptr;
    BixCheckBoxButton *watermarkButton = nullptr;
    PageWidgets::LabeledComboBox text;
    std::array<PageWidgets::LabeledComboBox, Watermark::Repeat> features; ///< by Watermark::Feature
    QCheckBox *repeatBox = nullptr;
    QLabel *customLabel = nullptr;
    QLineEdit *customEdit = nullptr;
    QPushButton *newButton = nullptr;
    QPushButton *saveButton = nullptr;
    QPushButton *deleteButton = nullptr;
    QLabel *superHeading = nullptr;
    BixCheckBoxButton *superButton = nullptr;
    ComboBoxEx *superBox = nullptr;

    CustomWatermarks customWatermarks;
};
