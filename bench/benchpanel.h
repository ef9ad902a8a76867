#pragma once

#include "app/bixdialog.h"
#include "support/dialoghandler.h"
#include "support/randomhands.h"

class BixTabWidget;
class QTableWidget;

/// Closes every dialog as soon as it shows, and remembers what had been used by then.
class DialogCloser : public DialogHandler
{
public:
    int closed = 0;
    double wallAtLast = 0; ///< in s, see Usage
    double cpuAtLast = 0;  ///< of this process

protected:
    void handle(QDialog *dialog) override;
};

/// The panel with hands that use it: it shows, with the printer of the first row selected.
class BenchPanel : public BixDialog
{
    Q_OBJECT

public:
    BenchPanel();

    QTableWidget *printers() const { return printers_; }
    BixTabWidget *tabs() const { return tabs_; }
    bool showsPrinter() const;
    /// Turns to another page, any that can be used.
    void turnToAnyPage();
    /// A click on any control of the page in front. False if none can be used.
    bool clickAnything();
    /// Goes through events until nothing is drawn any more. In s from `since`, see Usage, to the
    /// end of the last drawing.
    double painted(double since);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTableWidget *printers_;
    BixTabWidget *tabs_;
    bool hasDrawn_ = false;
    RandomHands hands_{1};
};

/// Answers the question that the panel has at its first start, for it would wait. False, with a
/// message, outside the sandbox.
bool prepareUser();
