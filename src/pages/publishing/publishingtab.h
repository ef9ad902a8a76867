#pragma once

#include "pages/base/pagewidgets.h"
#include "pages/base/tab.h"

#include <array>

class QGridLayout;
class QLineEdit;
class QRadioButton;

/// The page "Publishing": a cover, sheets inserted before given pages, and backing sheets between
/// transparencies.
///
/// Each of the three has a switch. Apart from the media, which are options of the PPD, they are
/// settings of the page's own; options that the panel adds stand for them in conflicts.
/// Interleaving goes with neither of the other two: the labels of what is on together get marked,
/// and nothing is switched off.
class PublishingTab : public Tab
{
    Q_OBJECT

public:
    explicit PublishingTab(PanelDialog *dialog);

    void createWidgets() override;
    void reload() override;
    Settings extraSettings() override;
    void clearMarks() override;
    void beforeConstraints() override;
    /// A list of pages that is missing or not good counts as a mark.
    bool hasMarks() override;
    void retranslate() override;
    void markConstraintWidgets() override;
    /// The keywords of those of the three that are switched on.
    QStringList modesOn() const;

private slots:
    /// Judges the list of pages and shows on its label what is wrong.
    void checkPageInsertInputText();
    void BlockAllSignals(bool block);
    /// Moves the choice of sides into the model.
    void coverRadioButtonSelectionChanged();
    void coverModeToggled(bool toggleState);
    void pageInsertToggled(bool toggleState);
    void interleaveToggled(bool toggleState);

private:
    // Each in the order of its table.
    enum Mode
    {
        Cover,
        PageInsert,
        Interleaving,
        ModeCount
    };
    enum Sides
    {
        Front,
        FrontAndBack,
        SidesCount
    };
    enum Print
    {
        CoverFrontOutside,
        CoverFrontInside,
        CoverBackOutside,
        CoverBackInside,
        InsertFront,
        InsertBack,
        Backing,
        PrintCount
    };
    static constexpr Print coverPrints[] = {CoverFrontOutside, CoverFrontInside, CoverBackOutside,
                                            CoverBackInside};
    enum Caption
    {
        PrintOnto,
        CoverFront,
        CoverBack,
        InsertPages,
        PagesError,
        CaptionCount
    };

    void registerWidgets();
    void addDependents();
    void createConnections();
    void createLayout();
    QGridLayout *createCoverGrid();
    QGridLayout *createInsertGrid();

    bool isOn(Mode mode) const;
    bool isPrinted(Print print) const;
    void clearPages();
    void loadCover();
    void loadPageInsert();
    void loadInterleaving();
    /// Names a mode as conflicting with those of these that are on beside it.
    void setConflict(Mode mode, const QList<Mode> &others);

    std::array<QString, ModeCount> conflicts; ///< what the marks of the modes say; empty for none
    std::array<QLabel *, ModeCount> headings{};
    std::array<BixCheckBoxButton *, ModeCount> buttons{};
    std::array<PageWidgets::LabeledComboBox, ModeCount> media{};
    std::array<QRadioButton *, SidesCount> sides{};
    std::array<QCheckBox *, PrintCount> prints{};
    std::array<QLabel *, CaptionCount> captions{};
    QLineEdit *pagesEdit = nullptr;

    QString pageInsertList;         ///< the last good list in its normal form, "2,5,9"
    bool pageInsertInvalid = false; ///< the list failed its last test, or is undecided
};
