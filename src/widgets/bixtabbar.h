#pragma once

#include <QTabBar>

/// The list of pages: icon and text side by side in a dark column. Disabled tabs draw nothing.
class BixTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit BixTabBar(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
