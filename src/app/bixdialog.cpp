#include "app/bixdialog.h"

#include "app/changereport.h"
#include "app/keyboardareas.h"
#include "app/publication.h"
#include "app/settingscollector.h"
#include "model/optionstore.h"
#include "pages/base/optionlabels.h"
#include "pages/basic/generaltab.h"
#include "pages/imaging/imagingtab.h"
#include "pages/printer/printertab.h"
#include "privileged/passwordprompt.h"
#include "sketch/sheetview.h"
#include "storage/ownfile.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixtabwidget.h"
#include "widgets/noticeline.h"
#include "widgets/spoken.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

namespace {

constexpr int mostRepeats = 10;

} // namespace

// The window

void BixDialog::showEvent(QShowEvent *event)
{
    PanelDialog::showEvent(event);
    // A button box makes its OK the default as it is shown; here Return must not print settings
    // away from wherever the focus happens to be.
    buttonBox->button(QDialogButtonBox::Ok)->setDefault(false);
}

void BixDialog::keyPressEvent(QKeyEvent *event)
{
    const bool forward = !(event->modifiers() & Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_F6:
        areas->goRound(forward);
        return;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        areas->walk(event->key() == Qt::Key_Tab && forward);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // No button here is a default one, which Qt would press; elsewhere it does nothing.
        KeyboardAreas::pressFocused();
        return;
    default:
        PanelDialog::keyPressEvent(event);
    }
}

bool BixDialog::focusNextPrevChild(bool)
{
    return false;
}

void BixDialog::setButtonsEnabled(bool on)
{
    for (const QDialogButtonBox::StandardButton which :
         {QDialogButtonBox::Ok, QDialogButtonBox::Apply})
        buttonBox->button(which)->setEnabled(on);
}

void BixDialog::setProfileButtonsEnabled(bool on)
{
    saveAsButton->setEnabled(on);
    profilesButton->setEnabled(on);
    explainButtons();
}

void BixDialog::enableTabs()
{
    for (Tab *page : qAsConst(pages))
        tabWidget->setTabEnabled(tabWidget->indexOf(page), page->isAvailable());
    // Enabling alone doesn't lay the bar out anew: a page would come without room, or leave it.
    for (Tab *page : qAsConst(pages))
        tabWidget->setTabText(tabWidget->indexOf(page), page->tabName());
}

// Printer change

void BixDialog::printerChanged(int row, int, int previousRow, int)
{
    if (row == previousRow)
        return;
    setButtonsEnabled(false);
    setProfileButtonsEnabled(false);
    if (!currentStore) {
        const QString queue = printerTab->queueInRow(row);
        printerTab->clearMarks();
        setWindowTitle(tr("Brixola Press Desk"));
        if (!checkPrinters())
            showUnreadablePpd(queue); // the queue is there
        setButtonsEnabled(false);
        return;
    }
    notice->forget();
    for (Tab *page : qAsConst(pages))
        page->retranslate();
    const QString printer = currentStore->printerName();
    // Qt's mark for unsaved changes, doubled, stands for itself.
    setWindowTitle(tr("Brixola Press Desk") + QStringLiteral(" - ") +
                   QString(printer).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
    enableTabs();
    reloadPrinterTab = true;
    profileChanged();
    reloadPrinterTab = false;
    // First contact: publish the defaults, as they are before any conflict is worked out.
    // Where nothing can be saved every contact would be the first.
    if (!cfgExists(printer) && OwnFile::isOwnDirectory(userDir))
        writeTolpoptions();
    setConstraints();
    if (currentStore) {
        setButtonsEnabled(true);
        setProfileButtonsEnabled(true);
    }
}

void BixDialog::showUnreadablePpd(const QString &queue)
{
    unselectPrinters();
    if (!queue.isEmpty())
        notice->tell(
            [](const QString &name) { return tr("The PPD of %1 can't be read.").arg(name); },
            {queue});
}

void BixDialog::profileChanged()
{
    if (!currentStore)
        return;
    report->startOver();
    currentStore->releaseAllConstraints();
    for (Tab *page : qAsConst(pages)) {
        if (page == printerTab) {
            if (reloadPrinterTab)
                printerTab->reload();
            else
                printerTab->refreshPage();
        } else if (tabWidget->isTabEnabled(tabWidget->indexOf(page))) {
            page->reload();
        } else {
            page->resetForDisabled();
        }
    }
}

// The constraint pass

void BixDialog::setConstraints()
{
    if (!currentStore)
        return;
    // A page that moves a widget says so in the middle of a pass: the one that runs sees to it.
    report->noteSender(sender());
    if (passRunning) {
        passDue = true;
        return;
    }
    beginMoves();
    if (runPass() && constraintPasses++ < mostRepeats)
        setConstraints();
    else
        constraintPasses = 0;
    endMoves();
    if (!report->isMoving()) { // the outermost pass looks round
        queueWatch.look();
        settling.start();
    }
    emit constraintsWorkedOut();
}

void BixDialog::beginMoves()
{
    report->beginMoves();
}

void BixDialog::endMoves()
{
    report->endMoves();
}

void BixDialog::settle()
{
    report->settle();
    if (auto *page = qobject_cast<Tab *>(tabWidget->currentWidget()))
        page->explain(*labels);
    explainButtons();
    sheetView->showSettings(report->moved());
}

bool BixDialog::runPass()
{
    const QScopedValueRollback<bool> running(passRunning, true);
    passDue = false;
    for (Tab *page : qAsConst(pages))
        page->setMarked(false);
    bool changed = false;
    for (Tab *page : qAsConst(pages))
        changed = page->enableOptions() || changed;
    for (int i = 0; i < pages.size(); ++i) {
        if (pages[i]->isAvailable())
            markPage(i);
    }
    constraintsClear = !hasMarks();
    setButtonsEnabled(constraintsClear);
    saveAsButton->setEnabled(constraintsClear);
    return changed || passDue;
}

void BixDialog::markPage(int index)
{
    Tab *page = pages[index];
    page->beforeConstraints();
    page->clearMarks();
    tabWidget->setTabIcon(index, page->tabIcon());
    page->markConstraintWidgets();
    if (page->hasMarks())
        tabWidget->setTabIcon(index, page->tabConstraintIcon());
    // For screen readers, which have no icons.
    tabWidget->setTabWhatsThis(index, page->hasMarks() ? Spoken::conflict() : QString());
}

bool BixDialog::hasMarks() const
{
    // Every page is asked, pages that don't show included.
    bool marks = false;
    for (Tab *page : pages)
        marks = page->hasMarks() || marks;
    return marks;
}

void BixDialog::toggleColorMode()
{
    const auto *group = qobject_cast<BixButtonGroup *>(sender());
    if (group && group == generalTab->colorGroup()) {
        imagingTab->colorGroup()->setButton(group->currentIndex());
        imagingTab->clearDialogSettings();
    } else if (group && group == imagingTab->colorGroup()) {
        generalTab->colorGroup()->setButton(group->currentIndex());
    } else {
        // A policy has taken the colours away.
        imagingTab->clearDialogSettings(1);
    }
}

// Apply

void BixDialog::slotButtonApply()
{
    closeAfterApply = true;
    printerTab->reloadPrinterTable();
    if (!currentStore) {
        QMessageBox box(this);
        box.setText(tr("Select a printer."));
        box.exec();
        return;
    }
    if (printerTab->installedOptionsChanged()) {
        changeInstalledOptions();
        // A printer that is gone would stay selected: no look at the queues finds it missing again.
        if (currentStore && !isSelectedPrinterKnown())
            showFailedPublication();
        return;
    }
    writeTolpoptions();
    showApplied();
}

void BixDialog::changeInstalledOptions()
{
    QString pairs;
    const QHash<QString, QString> settings = printerTab->collectSettings();
    for (auto i = settings.cbegin(); i != settings.cend(); ++i)
        pairs += i.key() + QLatin1Char('=') + i.value() + QLatin1Char(' ');
    // Goes on with the publication by itself.
    std::make_unique<PasswordPrompt>(this, pairs)->exec();
}

void BixDialog::recordInstalledValues()
{
    printerTab->recordInstalledValues();
}

void BixDialog::showApplied()
{
    if (!published)
        return; // its message has been shown
    QMessageBox box(this);
    box.setWindowTitle(tr("Success"));
    box.setText(tr("Settings applied."));
    box.setMinimumSize(100, 100);
    box.exec();
}

void BixDialog::accept()
{
    slotButtonApply();
    if (closeAfterApply)
        close();
}
