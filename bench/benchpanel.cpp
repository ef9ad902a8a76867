#include "benchpanel.h"

#include "model/optionstore.h"
#include "pages/base/tab.h"
#include "support/testhelpers.h"
#include "usage.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTableWidget>

#include <cstdio>

DialogCloser::DialogCloser()
{
    qApp->installEventFilter(this);
}

bool DialogCloser::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (event->type() == QEvent::Show && dialog && dialog->isModal()) {
        const Usage now = usageNow();
        wallAtLast = now.wall;
        cpuAtLast = now.own;
        ++closed;
        QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
    }
    return false;
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
    QList<int> usable;
    // The first page's controls are hardware, which nobody clicks at each print.
    for (int page = 1; page < tabs_->count(); ++page)
        if (tabs_->isTabEnabled(page))
            usable.append(page);
    if (!usable.isEmpty())
        tabs_->setCurrentIndex(usable[any(usable.size())]);
}

bool BenchPanel::clickAnything()
{
    QList<QWidget *> controls;
    const QList<QWidget *> widgets = tabs_->currentWidget()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto *box = qobject_cast<ComboBoxEx *>(widget);
        const auto *button = qobject_cast<QAbstractButton *>(widget);
        // A button that can't be checked opens a dialog.
        if (widget->isVisible() && widget->isEnabled() &&
            ((box && box->count() > 1) || (button && button->isCheckable())))
            controls.append(widget);
    }
    if (controls.isEmpty())
        return false;
    QWidget *control = controls[any(controls.size())];
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        button->click();
        return true;
    }
    auto *box = qobject_cast<ComboBoxEx *>(control);
    QList<int> items;
    for (int item = 0; item < box->count(); ++item)
        if (item != box->currentIndex() &&
            (box->model()->index(item, 0).flags() & Qt::ItemIsEnabled))
            items.append(item);
    if (items.isEmpty())
        return false;
    box->setCurrentIndex(items[any(items.size())]);
    return true;
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
