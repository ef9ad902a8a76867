#include "app/bixdialog.h"
#include "app/busyguard.h"
#include "app/publication.h"
#include "app/settingscollector.h"
#include "desktop/desktopsettings.h"
#include "model/optionstore.h"
#include "model/printqueues.h"
#include "pages/printer/printertab.h"
#include "storage/settingsfile.h"
#include "widgets/bixtabwidget.h"
#include "widgets/noticeline.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

// Publication: the settings file, the print system, the desktop applications.

namespace {

/// \param published the print system has been told of the settings that a file could not take
void tellUnsaved(PanelDialog *dialog, const QString &path, bool published)
{
    QMessageBox box(dialog);
    box.setWindowTitle(BixDialog::tr("Error"));
    QString text = BixDialog::tr("The settings could not be saved in %1.").arg(path);
    if (published)
        text += QLatin1Char('\n') + BixDialog::tr("The print system may use them all the same.");
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.exec();
}

} // namespace

void BixDialog::writeTolpoptions()
{
    published = false;
    if (!currentStore)
        return;
    const QString printer = currentStore->printerName();
    if (!queueNames().contains(printer)) {
        showFailedPublication();
        return;
    }
    const Settings settings = collector->collect();
    const bool saved = writeCfg(cfgPath(printer), settings, true);
    const bool complete = publish(printer, settings);
    if (!saved) {
        tellUnsaved(this, cfgPath(printer), complete);
        closeAfterApply = false; // with the window the choices would be gone
    }
    if (!complete)
        showFailedPublication();
    published = saved && complete;
}

void BixDialog::showFailedPublication()
{
    QMessageBox box(this);
    box.setWindowTitle(tr("Error"));
    box.setText(tr("Error: Printer does not exist or lpoptions failed."));
    box.exec();
    tabWidget->setCurrentIndex(0);
    // Apply has filled the table anew, so that nothing seems to have changed since. While the
    // scheduler is only restarted, nothing that was set is to be lost.
    if (!checkPrinters() && !isSelectedPrinterKnown() && isPrintSystemReachable())
        unselectPrinters();
}

bool BixDialog::publish(const QString &printer, const Settings &settings)
{
    const bool couldApply = buttonBox->button(QDialogButtonBox::Apply)->isEnabled();
    const bool wasSettling = settling.isActive();
    setButtonsEnabled(false);
    settling.stop();
    notice->showWork(tr("Applying..."));
    printerTab->setAsking(false);
    bool complete = false;
    {
        const BusyGuard busy;
        // What starts a pass meanwhile, such as the policy server, only asks for a later one.
        const QScopedValueRollback<bool> held(passRunning, true);
        passDue = false;
        complete = publication->run(printer, settings);
        if (complete)
            runDesktopExport(settings);
    }
    printerTab->setAsking(true);
    notice->endWork();
    setButtonsEnabled(couldApply);
    if (wasSettling)
        settling.start();
    if (passDue)
        QTimer::singleShot(0, this, &BixDialog::setConstraints);
    return complete;
}
