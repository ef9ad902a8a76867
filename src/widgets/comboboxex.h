#pragma once

#include <QComboBox>

/// A combo box whose list opens as wide as its longest item. It leaves the mouse wheel to the page
/// unless it has the focus, so that scrolling never changes an option.
class ComboBoxEx : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBoxEx(QWidget *parent = nullptr);

    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent *event) override;
};
