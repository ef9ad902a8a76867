#pragma once

#include "pages/base/tab.h"

class QGridLayout;

/// The page "Basic": paper, source and destination, collation, duplex and colour.
class GeneralTab : public Tab
{
    Q_OBJECT

public:
    explicit GeneralTab(PanelDialog *dialog);

    void addComboBoxItems(ComboBoxEx *box, bOption *option) override;
    void createWidgets() override;
    void reload() override;
    QHash<QString, QString> collectSettings() override;
    void clearMarks() override;

    /// Shows the options' names, the panel's own for paper size, source and destination.
    virtual void relabel();

    /// The group that the Imaging page mirrors.
    BixButtonGroup *colorGroup() const { return colorGroup_; }

public slots:
    bool enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option) override;

private:
    void addComboBox(QGridLayout *grid, int row, const char *keyword, const QString &label);
    BixButtonGroup *addGroup(const char *keyword, const QString &accessibleName,
                             const QString &title);
    void createLayout();

    QGridLayout *paperGrid;
    BixButtonGroup *collateGroup;
    BixButtonGroup *duplexGroup;
    BixButtonGroup *colorGroup_;
};
