#pragma once

#include <QTabWidget>

/// The pages beside their list; draws the dark column of the list down to the bottom edge.
class BixTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit BixTabWidget(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
