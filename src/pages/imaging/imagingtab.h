#pragma once

#include "pages/base/tab.h"

class QGridLayout;
class QLabel;
class QPushButton;
class adjustmentDialog;
class monoDialog;

/// The page "Imaging": print quality, LeanPrint and colour, with the two adjustment dialogs.
///
/// Its colour group mirrors that of the page "Basic". Whoever chooses a colour mode loses the
/// adjustments of the other one.
class ImagingTab : public Tab
{
    Q_OBJECT

public:
    explicit ImagingTab(PanelDialog *dialog);

    void createWidgets() override;
    void reload() override;
    QHash<QString, QString> collectSettings() override;
    Settings extraSettings() override { return {}; }
    void clearMarks() override;
    void retranslate() override;
    QString keywordOf(const QObject *control) const override;
    void choose(const OptionChoice &choice) override;
    void explain(const OptionLabels &labels) override;

    /// The group that mirrors the one of the page "Basic".
    BixButtonGroup *colorGroup() const { return colorGroup_; }

public slots:
    /// Brings model and list of levels in line with the LeanPrint switch.
    void leanprintButtonToggled();
    void leanprintComboBoxChanged();
    void showAdjustmentDialog();
    bool enableOptions() override;
    bool enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option) override;
    /// Forgets the adjustments of the colour mode that was not chosen: 0 stands for full color.
    void clearDialogSettings(int index);
    /// For the mode that the colour group shows.
    void clearDialogSettings();

protected:
    QString greyReason(const QWidget *widget) const override;

private:
    void createConnections();
    void createLayout();
    void enableAdjustment();
    void loadLeanPrint();
    bool isLeanPrintOn() const;
    /// Sets the option to what switch and list show.
    void applyLeanPrint();
    /// Greys blocked levels and moves off them; true if something had to move.
    bool enableLeanPrint(bOption *option);
    void explainLeanPrint(const Reasons &reasons);
    void loadResolutionFallback();

    QGridLayout *qualityGrid;
    QGridLayout *colorGrid;
    QLabel *trappingPicture;
    QLabel *qualityLabel;
    QLabel *resolutionLabel;
    ComboBoxEx *resolutionBox;
    BixButtonGroup *leanprintGroup;
    ComboBoxEx *leanprintBox;
    BixButtonGroup *colorGroup_;
    QLabel *adjustmentPicture;
    QLabel *adjustmentLabel;
    QPushButton *adjustmentButton;
    adjustmentDialog *colorDialog;
    monoDialog *grayDialog;
};
