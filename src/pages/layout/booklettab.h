#pragma once

#include "pages/base/tab.h"

/// The page "Layout": makes a booklet of the job, and folds it.
class BookletTab : public Tab
{
    Q_OBJECT

public:
    explicit BookletTab(PanelDialog *dialog);

    void createWidgets() override;
    void beforeLoad() override {}

    virtual void connectSignals();

private:
    void createLayout();

    BixButtonGroup *bindingGroup = nullptr;
    QCheckBox *foldBox = nullptr;
};
