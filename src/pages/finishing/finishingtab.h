#pragma once

#include "pages/base/pagewidgets.h"
#include "pages/base/tab.h"

#include <array>

class QGridLayout;

/// The page "Finishing": what the finisher does with the printed sheets.
///
/// Folding, punching and stapling have a button each, bound to an option of the panel's own that
/// is "True" or "False"; the lists under a button hold the PPD's options and are saved as "None"
/// while it is off. The PPD's one option for folding, FldA, has no widget: it follows from the two
/// fold buttons, which may both be on after a load. That is a conflict and shows as one.
class FinishingTab : public Tab
{
    Q_OBJECT

public:
    explicit FinishingTab(PanelDialog *dialog);

    void createWidgets() override;
    void reload() override;
    QHash<QString, QString> collectSettings() override;
    void markKeyword(const QString &keyword, const QString &value) override;
    void clearMarks() override;
    bool hasMarks() override;
    QString label(const QString &keyword) const override;
    QStringList followersOf(const QString &keyword) const override;
    void resetForDisabled() override;

    virtual void connectSignals();
    /// Sets a button from the saved value of an option: a fold button by its fold, any other by
    /// "True". Without effect for a null option or if nothing is saved.
    virtual void loadFoldButton(BixCheckBoxButton *button, bOption *option);

    /// The title of the rotation group in the language of a locale's name such as "de_DE", in
    /// English for languages without one. It goes by the locale and not by the catalogue.
    static QString rotateTitle(const QString &localeName);

private slots:
    /// Moves the state of the two fold buttons into the model.
    void markFold();
    /// Names both fold headings as conflicting while both buttons are on.
    void checkFoldConstraints();
    void toggleStaple(bool toggled);
    void togglePunch(bool toggled);
    void toggleTriFold(bool toggled);
    void toggleBiFold(bool toggled);

private:
    /// What can be switched on, each with a heading; in the order of their table.
    enum Mode
    {
        TriFold,
        BiFold,
        Staple,
        Punch,
        ModeCount
    };
    /// The lists under them; in the order of their table.
    enum List
    {
        PrintSide,
        FoldDirection,
        TriFoldSheets,
        BiFoldSheets,
        StapleLocation,
        StapleMethod,
        PunchMethod,
        ListCount
    };

    void registerWidgets();
    void addDependents(Mode mode, const QList<List> &lists);
    void createLayout();
    QGridLayout *createFoldGrid();
    QGridLayout *createStapleGrid();
    void addList(QGridLayout *grid, int row, List list);

    bool isOn(Mode mode) const;
    QString nameOf(Mode mode) const;
    void loadFolds();
    void loadStaple();
    void loadPunch();
    void loadRotate();
    void loadSeparation();

    BixButtonGroup *separationGroup = nullptr;
    BixButtonGroup *rotateGroup = nullptr;
    std::array<BixCheckBoxButton *, ModeCount> buttons{};
    std::array<QLabel *, ModeCount> headings{};
    std::array<PageWidgets::LabeledComboBox, ListCount> lists{};
    bool foldMarked = false; ///< FldA has a mark
};
