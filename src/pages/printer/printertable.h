#pragma once

#include <QTableWidget>

/// A table in which only a click or a key makes a row current: Qt's tables choose the first row
/// when they get the focus, and here that would select a printer and publish its defaults. While no
/// row is current, none looks selected.
class PrinterTable : public QTableWidget
{
    Q_OBJECT

public:
    using QTableWidget::QTableWidget;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void dropStaleSelection();
};
