#pragma once

#include "pages/imaging/adjustmentvalues.h"

#include <QDialog>
#include <QHash>

#include <vector>

class ComboBoxEx;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSignalBlocker;
class QSlider;

/// Colour adjustments ("Cadj"): hue, saturation and lightness, or colour balance.
///
/// Every value has a slider and a text that follow each other. The master hue turns all hues and
/// excludes the six single ones; so do the two forms each other ("CaColorSpace").
///
/// Writes no file: the Imaging page asks for collectAdjustments(), which tells what the widgets
/// show, also after Cancel. Only the next exec() brings the committed values back into them.
class adjustmentDialog : public QDialog
{
    Q_OBJECT

public:
    explicit adjustmentDialog(QWidget *parent);

    /// Takes over what the current settings file holds.
    void loadStates();
    /// Keys and values, each value in its coarse and its exact form.
    AdjustmentValues::Pairs collectAdjustments() const;

public slots:
    int exec() override;
    /// Commits what the widgets show.
    void saveSettings();
    /// Switches the adjustment off and sets all values to 0.
    void resetStates();
    /// Enables the two forms while "Custom" is on, and selects the printer's current one.
    void checkAdjustmentSettings();
    /// Shows the row of this hue alone, given by the text of its option.
    void hueSelectedChanged(const QString &hue);
    /// The sending slider's text follows it, and the other way round.
    void setLineEditText(int value);
    void setSliderValue();
    /// With "Custom" off nothing is left of either form.
    void markCaColorSpace();
    void clearMasterSliderValue();
    void clearOtherSliderValues();
    void clearHSLSettings();
    void clearColorBalanceSettings();

private:
    void createRows();
    void createLayout();
    void connectRows();
    void connectForms();
    void enableForms();
    void refreshWidgets();
    void showForm();
    void showValue(const QString &key, double value);
    void showHueRow(const QString &key);
    void clearRows(unsigned kinds);
    bool anyHue() const;
    QString colorSpace() const;
    /// Nothing announces itself while this lives.
    std::vector<QSignalBlocker> silence() const;

    static constexpr int scale = 100; ///< positions of a slider in a step of the printer

    int hueIndex = 0; ///< the hue that is shown first
    QHash<QString, QSlider *> sliders;
    QHash<QString, QLineEdit *> lineEdits;
    QHash<QString, QString> hueKeys;             ///< text of an option to its keyword
    QHash<QString, QLabel *> labels;             ///< of the form with the hues
    QVector<QPair<QString, double>> savedValues; ///< the committed values

    QCheckBox *customBox;
    QRadioButton *hslButton;
    QRadioButton *balanceButton;
    QGroupBox *hueGroup;
    QGroupBox *levelGroup;
    ComboBoxEx *hueBox;
};
