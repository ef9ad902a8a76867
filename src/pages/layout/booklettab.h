#pragma once

#include "pages/base/tab.h"

/// The page "Layout": makes a booklet of the job, and folds it.
class BookletTab : public Tab
{
    Q_OBJECT

public:
    explicit BookletTab(PanelDialog *dialog);

    void setTabName() override;
    void createWidgets() override;
    void beforeLoad() override {}
    QIcon tabIcon() override;
    QIcon tabConstraintIcon() override;
    bool isAvailable() override;

    virtual void connectSignals();

private:
    void createLayout();

    BixButtonGroup *bindingGroup = nullptr;
    QCheckBox *foldBox = nullptr;
};
