#pragma once

#include <QTableWidget>

#include <utility>

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

    /// The first and the last row of which something shows, or would if the table did; the last
    /// is -1 if there are none.
    std::pair<int, int> rowsInView() const;

signals:
    void lookAgain();
    /// Other rows may be in view than before.
    void viewPainted();

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void dropStaleSelection();

    QLabel *explanation;
};
