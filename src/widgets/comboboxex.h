#pragma once

#include <QComboBox>

/// A combo box whose list opens as wide as its longest item. It leaves the mouse wheel to the page
/// unless it has the focus, so that scrolling never changes an option, and Ctrl+Tab to the tab
/// widget around it.
class ComboBoxEx : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBoxEx(QWidget *parent = nullptr);

    /// The width in pixels in type of the ordinary size. In larger type the box grows with its
    /// texts, as far as there is room.
    void setUsualWidth(int width);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int grownWidth(int textWidth) const;

    int usualWidth = 0; ///< 0 for that of the texts
};
