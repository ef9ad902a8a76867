#include "pages/printer/printertab.h"

#include "model/optionstore.h"
#include "model/printqueues.h"
#include "model/queueppd.h"
#include "pages/base/errorlabel.h"
#include "pages/printer/printertable.h"
#include "storage/settingsfile.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {

enum Column
{
    NameColumn,
    DestinationColumn,
    StatusColumn,
    ColumnCount
};

constexpr int emptyColumnWidth = 186;
constexpr int warningColumn = 3;
constexpr int hintRow = 998; // below all options

void setCell(QTableWidget *table, int row, Column column, const QString &text)
{
    table->setItem(row, column, new QTableWidgetItem(text));
}

} // namespace

PrinterTab::PrinterTab(PanelDialog *dialog)
    : Tab(dialog,
          {QT_TRANSLATE_NOOP("PrinterTab", "Printer"), ":/icons/tab-printer", PageHead::Always})
    , statusReader(new PrinterStatusReader(this))
{
    connect(statusReader, &PrinterStatusReader::answered, this, &PrinterTab::showStatus);
    PrinterTab::createWidgets();
}

PrinterTab::~PrinterTab()
{
    currentStore = nullptr;
}

QTableWidget *PrinterTab::table() const
{
    return printerTable;
}

QString PrinterTab::queueInRow(int row) const
{
    const QTableWidgetItem *item = printerTable->item(row, NameColumn);
    return item ? item->text() : QString();
}

// Widgets

void PrinterTab::createWidgets()
{
    setContentsMargins(3, 3, 3, 3);
    Tab::setTabName();
    createTable();

    installedHeader = new QLabel(tr("Installed options"), this);
    installedHeader->setEnabled(false);
    rootWarning =
        new QLabel(tr("Root access is required to make changes to installable options"), this);
    rootWarning->setAccessibleName(QStringLiteral("lblRootWarning"));
    styleErrorLabel(rootWarning, 10);
    rootWarning->hide();
    auto *headerGrid = new QGridLayout;
    headerGrid->addWidget(installedHeader, 0, 0, 1, warningColumn, Qt::AlignLeft);
    headerGrid->addWidget(rootWarning, 0, warningColumn, 1, 8, Qt::AlignLeft);

    auto *scrollArea = new QScrollArea(this);
    auto *installedArea = new QWidget(scrollArea);
    installedGrid = new QGridLayout(installedArea);
    installedGrid->setColumnStretch(2, 1);
    installedGrid->setRowStretch(999, 1); // keeps all rows at the top
    selectHint = new QLabel(tr("Select a printer."), installedArea);
    selectHint->setAccessibleName(QStringLiteral("lblSelectPrinter"));
    installedGrid->addWidget(selectHint, hintRow, 0, 1, 3);
    installedGrid->setSizeConstraint(QLayout::SetFixedSize);
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(installedArea);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(printerTable);
    layout->addLayout(headerGrid);
    layout->addWidget(scrollArea);
    PrintSystem state;
    const QList<PrintQueue> queues = printQueues(&state);
    showQueues(queues, state);
    if (printerTable->rowCount() > 0)
        printerTable->resizeColumnsToContents();
}

void PrinterTab::createTable()
{
    printerTable = new PrinterTable(0, ColumnCount, this);
    printerTable->setAccessibleName(QStringLiteral("tblPrinters"));
    printerTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    printerTable->setSelectionMode(QAbstractItemView::SingleSelection);
    printerTable->verticalHeader()->hide();
    printerTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    printerTable->horizontalHeader()->setStretchLastSection(true);
    printerTable->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    printerTable->setTabKeyNavigation(false);
    setHeaders();
    for (int column = 0; column < ColumnCount; ++column)
        printerTable->setColumnWidth(column, emptyColumnWidth);
    connect(printerTable, &PrinterTable::lookAgain, this, &PrinterTab::reloadPrinterTable);
    connect(printerTable, &PrinterTable::viewPainted, this, &PrinterTab::askForRowsInView,
            Qt::QueuedConnection);
    connect(printerTable, &QTableWidget::currentCellChanged, this, &PrinterTab::changePrinter);
}

void PrinterTab::setHeaders()
{
    const QString headers[] = {tr("Printers"), tr("Destination"), tr("Status")};
    for (int column = 0; column < ColumnCount; ++column)
        printerTable->setHorizontalHeaderItem(column, new QTableWidgetItem(headers[column]));
}

void PrinterTab::showQueues(const QList<PrintQueue> &queues, PrintSystem state)
{
    knownPrinters = namesOf(queues);
    Rows rows;
    for (const PrintQueue &queue : queues) {
        for (int count = makerRowCount(queue); count > 0; --count)
            rows.append({queue.name, queue.deviceUri});
    }
    if (rows != listedRows())
        fillTable(rows);
    explainEmptiness(state == PrintSystem::Answers);
    updateHint();
    statusReader->startOver();
    askAnew();
}

void PrinterTab::fillTable(const Rows &rows)
{
    // A queue with two rows keeps the one that was selected.
    const QStringList listed = listedQueues();
    QString selected = listed.value(printerTable->currentRow());
    const int which = printerTable->currentRow() - listed.indexOf(selected);
    // Its row may have been missing for a while, as when the scheduler starts anew.
    if (selected.isEmpty() && currentStore)
        selected = currentStore->printerName();

    printerTable->setRowCount(0);
    printerTable->setRowCount(rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        setCell(printerTable, row, NameColumn, rows[row].first);
        setCell(printerTable, row, DestinationColumn, rows[row].second);
        setCell(printerTable, row, StatusColumn, statuses.value(rows[row].first, tr("Asking...")));
    }
    printerTable->resizeRowsToContents();
    const int row = listedQueues().indexOf(selected);
    if (selected.isEmpty() || row < 0)
        printerTable->setCurrentCell(-1, -1);
    else
        printerTable->selectRow(row + which);
}

void PrinterTab::askAnew()
{
    upToDate.clear();
    askSoon();
}

void PrinterTab::askSoon()
{
    // A table that doesn't show asks once it does.
    if (printerTable->isVisible())
        QTimer::singleShot(0, this, &PrinterTab::askForRowsInView);
}

void PrinterTab::setAsking(bool on)
{
    mayAsk = on;
    askSoon();
}

void PrinterTab::askForRowsInView()
{
    if (!mayAsk)
        return;
    QStringList queues;
    const auto [first, last] = printerTable->rowsInView();
    for (int row = first; row <= last; ++row) {
        if (!upToDate.contains(queueInRow(row)))
            queues.append(queueInRow(row));
    }
    statusReader->ask(queues);
}

void PrinterTab::showStatus(const QString &queue, const QString &status)
{
    statuses.insert(queue, status);
    upToDate.insert(queue);
    // The table may have other rows by now than when the queue was asked for.
    for (int row = 0; row < printerTable->rowCount(); ++row) {
        QTableWidgetItem *item = printerTable->item(row, StatusColumn);
        if (queueInRow(row) != queue || item->text() == status)
            continue;
        item->setText(status);
        printerTable->resizeRowToContents(row);
    }
}

void PrinterTab::explainEmptiness(bool answered)
{
    QString text;
    if (!answered)
        text = tr("The print system (CUPS) does not answer, so no printer can be listed.");
    else if (printerTable->rowCount() == 0)
        text = tr("There is no Brixola printer yet. A print queue counts as one if it uses the PPD "
                  "of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer "
                  "with that PPD in the print settings of your system or with lpadmin.");
    printerTable->explainEmptiness(text, tr("Look again"));
}

void PrinterTab::updateHint()
{
    selectHint->setVisible(!currentStore && printerTable->rowCount() > 0);
}

PrinterTab::Rows PrinterTab::listedRows() const
{
    Rows rows;
    for (int row = 0; row < printerTable->rowCount(); ++row)
        rows.append({queueInRow(row), printerTable->item(row, DestinationColumn)->text()});
    return rows;
}

QStringList PrinterTab::listedQueues() const
{
    QStringList names;
    for (int row = 0; row < printerTable->rowCount(); ++row)
        names.append(queueInRow(row));
    return names;
}

void PrinterTab::reloadPrinterTable()
{
    PrintSystem state;
    const QList<PrintQueue> queues = printQueues(&state);
    if (state == PrintSystem::Silent)
        return; // what is known stays
    const QSignalBlocker silent(printerTable);
    setBoundSignalsBlocked(true);
    showQueues(queues, state);
    setBoundSignalsBlocked(false);
}

void PrinterTab::clearPrinterSelection()
{
    const QSignalBlocker silent(printerTable);
    printerTable->clearSelection();
    // So that a click selects any row again, also the one that was current.
    printerTable->setCurrentCell(-1, -1);
    removeInstalledOptions();
    rootWarning->hide();
    printerTable->verticalScrollBar()->setValue(0);
    installedHeader->setEnabled(false);
    updateHint();
}

void PrinterTab::retranslate()
{
    setHeaders();
    setTabName();
    askAnew();
    styleErrorLabel(rootWarning, 10); // the window has given the page its colours since it was made
    rootWarning->setText(tr("Root access is required to make changes to installable options"));
    installedHeader->setText(tr("Installed options"));
    installedHeader->update();
    selectHint->setText(tr("Select a printer."));
}

// Selecting a printer

void PrinterTab::changePrinter(int row, int, int prev_row, int)
{
    if (row == prev_row)
        return;
    const QString name = queueInRow(row);
    currentStore = nullptr;
    PrintSystem state;
    const QSet<QString> names = queueNames(&state);
    if (state == PrintSystem::Silent || names.contains(name)) {
        // Without a PPD that can be read there is no store, and the pages show nothing.
        if (std::unique_ptr<OptionStore> made = QueuePpd(name).makeStore()) {
            made->setPrinterName(name);
            currentStore = made.get();
            previousStore = std::move(store);
            store = std::move(made);
            // Not only after the click: until then its first publication may take a while.
            printerTable->selectionModel()->select(printerTable->model()->index(row, NameColumn),
                                                   QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
        }
    }
    if (!currentStore)
        rootWarning->hide();
    currentCfgPath = currentStore ? cfgPath(currentStore->printerName()) : QString();
}

void PrinterTab::reload()
{
    setBoundSignalsBlocked(true);
    createInstalledOptions();
    setTabName();
    savedSettings.clear();
    clearMarks();
    applyLabels();
    installedHeader->setEnabled(true);
    updateHint();
    installedHeader->setText(tr("Installed options"));
    loadOptions();
    applyAllWidgets();
    connectBoundWidgets();
    recordInstalledValues();
    enableOptions();
    setBoundSignalsBlocked(false);
}

void PrinterTab::refreshPage()
{
    setBoundSignalsBlocked(true);
    constraintWidgets.clear();
    savedSettings.clear();
    clearMarks();
    applyAllWidgets();
    setBoundSignalsBlocked(false);
}
