#pragma once

#include "pages/imaging/adjustmentvalues.h"
#include "pages/imaging/adjustmentwidgets.h"

#include <QDialog>

class QCheckBox;
class QLabel;

/// Brightness and contrast of black and white printing ("Madj").
///
/// Writes no file: the Imaging page asks for collectAdjustments(), which tells what the widgets
/// show, also after Cancel. Only the next exec() brings the committed values back into them.
class monoDialog : public QDialog
{
    Q_OBJECT

public:
    explicit monoDialog(QWidget *parent);

    /// Takes over what the current settings file holds.
    void loadStates();
    /// Keys and values, each value in its coarse and its exact form.
    AdjustmentValues::Pairs collectAdjustments() const;

public slots:
    int exec() override;
    /// Commits what the widgets show.
    void saveSettings();
    /// Switches the adjustment off and forgets its values.
    void resetStates();
    /// The sending slider's text follows it, and the other way round.
    void setLineEditText(int value);
    void setSliderValue();
    /// Off sets both values to 0.
    void toggleAdjustment(bool enabled);

private:
    void createLayout();
    void refreshWidgets();

    QCheckBox *customBox;
    QLabel *brightnessLabel;
    QLabel *contrastLabel;
    AdjustmentWidgets::Row brightness;
    AdjustmentWidgets::Row contrast;
    QVector<QPair<QString, int>> savedValues; ///< the committed values; the last of a key counts
};
