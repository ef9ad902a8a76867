#pragma once

#include <QTabBar>

/// The list of pages: icon and text side by side in a dark column. Disabled tabs draw nothing. A
/// tab whose data is true has a dot at its icon.
class BixTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit BixTabBar(QWidget *parent = nullptr);

protected:
    /// Shows the whole of a text that ends in an ellipsis.
    bool event(QEvent *event) override;
    /// The pages stand below each other: Up and Down go through them.
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect textPlace(int index) const;
    /// The text as far as there is room for it.
    QString shownText(int index) const;
};
