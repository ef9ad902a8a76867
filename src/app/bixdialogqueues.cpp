#include "app/bixdialog.h"
#include "app/changereport.h"
#include "model/optionstore.h"
#include "model/printqueues.h"
#include "pages/printer/printertab.h"
#include "profiles/profiledialog.h"
#include "widgets/noticeline.h"

#include <QApplication>
#include <QMessageBox>
#include <QThread>

// Print queues that come and go while the window is open.

namespace {

constexpr int retryAfter = 100; // ms

/// The main loop runs within itself, say for a dialog of a page, or something is open or held that
/// must not lose what it belongs to. Into the list of profiles such news may come: what it applies
/// is a change of the options as any other.
bool isInTheMiddle(const QWidget *profileList)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return QThread::currentThread()->loopLevel() > 1 || (modal && modal != profileList) ||
           QApplication::activePopupWidget() || QApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

void BixDialog::watchQueues()
{
    retry.setSingleShot(true);
    retry.setInterval(retryAfter);
    connect(&queueWatch, &QueueWatch::answered, this, &BixDialog::takeQueueNames);
    connect(&retry, &QTimer::timeout, this, [this] {
        if (isInTheMiddle(profileDialog))
            retry.start();
        else
            queueWatch.look();
    });
}

bool BixDialog::isLooking() const
{
    return queueWatch.isLooking() || (retry.isActive() && !isInTheMiddle(profileDialog));
}

void BixDialog::takeQueueNames(PrintSystem state, const QSet<QString> &names)
{
    tellSilence(state);
    if (state == PrintSystem::Silent || names == knownPrinters)
        return;
    if (isInTheMiddle(profileDialog))
        retry.start();
    else
        showOtherQueues();
}

bool BixDialog::checkPrinters()
{
    PrintSystem state;
    const QSet<QString> names = queueNames(&state);
    tellSilence(state);
    if (state == PrintSystem::Silent || names == knownPrinters)
        return false;
    showOtherQueues();
    return true;
}

void BixDialog::tellSilence(PrintSystem state)
{
    const bool isSilent = state == PrintSystem::Silent;
    notice->showState(isSilent ? tr("Print server does not answer.") : QString());
    if (isSilent)
        queueWatch.look(); // tells when it answers again
}

void BixDialog::showOtherQueues()
{
    printerTab->reloadPrinterTable();
    if (isSelectedPrinterKnown())
        return;
    unselectPrinters();
    QMessageBox box(this);
    box.setWindowTitle(tr("Error"));
    box.setText(tr("It looks like your installed printers have changed.\nReloading list now."));
    box.exec();
}

bool BixDialog::isSelectedPrinterKnown()
{
    return currentStore && knownPrinters.contains(currentStore->printerName());
}

void BixDialog::unselectPrinters()
{
    currentStore = nullptr; // the object stays with the Printer page
    printerTab->clearPrinterSelection();
    setWindowTitle(tr("Brixola Press Desk"));
    setButtonsEnabled(false);
    setProfileButtonsEnabled(false);
    enableTabs();
    report->startOver();
    settling.start();
}
