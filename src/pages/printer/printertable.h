#pragma once

#include <QTableWidget>

class QLabel;

/// A table in which only a click or a key makes a row current: Qt's tables choose the first row
/// when they get the focus, and here that would select a printer and publish its defaults. While no
/// row is current, none looks selected.
class PrinterTable : public QTableWidget
{
    Q_OBJECT

public:
    PrinterTable(int rows, int columns, QWidget *parent);

    /// Says in the room of the rows why there are none; with an empty text it says nothing.
    /// \param text plain text
    /// \param link a further line, which lookAgain() tells of when it is followed
    void explainEmptiness(const QString &text, const QString &link);

signals:
    void lookAgain();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void dropStaleSelection();

    QLabel *explanation;
};
