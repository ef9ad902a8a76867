#include "benchpanel.h"

#include "model/optionstore.h"
#include "support/testhelpers.h"
#include "usage.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTableWidget>

#include <cstdio>

void DialogCloser::handle(QDialog *dialog)
{
    const Usage now = usageNow();
    wallAtLast = now.wall;
    cpuAtLast = now.own;
    ++closed;
    QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
}

BenchPanel::BenchPanel()
    : printers_(findNamed<QTableWidget>(this, "tblPrinters"))
    , tabs_(findChild<BixTabWidget *>())
{
    qApp->installEventFilter(this);
    show();
    printers_->setCurrentCell(0, 0);
    painted(0);
}

bool BenchPanel::showsPrinter() const
{
    return currentStore != nullptr;
}

void BenchPanel::turnToAnyPage()
{
    // The first page's controls are hardware, which nobody clicks at each print.
    hands_.turnPage(tabs_, 1);
}

bool BenchPanel::clickAnything()
{
    QList<QWidget *> controls;
    for (QWidget *control : usableControls(tabs_->currentWidget())) {
        const auto *button = qobject_cast<QAbstractButton *>(control);
        // A button that can't be checked opens a dialog.
        if (qobject_cast<ComboBoxEx *>(control) || (button && button->isCheckable()))
            controls.append(control);
    }
    return !controls.isEmpty() && !hands_.use(hands_.pick(controls)).isEmpty();
}

double BenchPanel::painted(double since)
{
    double last = usageNow().wall;
    for (int quiet = 0; quiet < 2;) {
        hasDrawn_ = false;
        QCoreApplication::processEvents();
        if (hasDrawn_)
            last = usageNow().wall;
        quiet = hasDrawn_ ? 0 : quiet + 1;
    }
    return last - since;
}

bool BenchPanel::eventFilter(QObject *watched, QEvent *event)
{
    hasDrawn_ = hasDrawn_ || event->type() == QEvent::Paint;
    return BixDialog::eventFilter(watched, event);
}

bool prepareUser()
{
    userDir = userDirectory();
    ensureUserDir();
    if (setFileText(settingsPath(), "Telemetry=False\n"))
        return true;
    std::fprintf(stderr, "can't write %s: run this in the sandbox\n", qPrintable(settingsPath()));
    return false;
}
