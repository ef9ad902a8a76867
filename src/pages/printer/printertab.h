#pragma once

#include "model/printerstatus.h"
#include "pages/base/tab.h"

#include <QList>
#include <QPair>
#include <QSet>

#include <memory>

class OptionStore;
class PrinterTable;
class QGridLayout;
class QLabel;
class QTableWidget;
struct PrintQueue;
enum class PrintSystem;

/// The page "Printer": the queues of the maker's printers in a table, and the selected one's
/// installed options.
///
/// Selecting a row makes a new OptionStore the current one. The page keeps the one before as well:
/// until the click is over, the report of what was moved still points into it. A change of an
/// installed option is no setting of the user: the page only reports it.
///
/// The status of a queue is asked for when its row comes into view, and comes in while the page
/// shows; until then the row keeps its last one.
class PrinterTab : public Tab
{
    Q_OBJECT

public:
    explicit PrinterTab(PanelDialog *dialog);
    ~PrinterTab() override;

    void createWidgets() override;
    void connectComboBox(ComboBoxEx *box) override;
    void connectCheckBox(QCheckBox *box) override;
    void reload() override;
    void retranslate() override;
    bool hasUserSettings() const override { return false; }

    /// A reload that keeps the widgets of the installed options.
    virtual void refreshPage();

    /// The list of queues; its currentCellChanged() is the selection of a printer.
    QTableWidget *table() const;
    /// The queue of a row of the list; empty if there is no such row.
    QString queueInRow(int row) const;
    /// True while an installed option differs from what the printer's PPD says.
    bool installedOptionsChanged() const { return installedChanged; }
    /// Takes what the page shows as what the PPD says.
    void recordInstalledValues();
    /// Asks the print system for its queues anew, and lists them anew if they are others. The
    /// selected queue stays selected, and no printer change comes of it.
    void reloadPrinterTable();
    /// Whether the status of queues may be asked for, which takes time from what else runs; at
    /// first it may. What was not asked for meanwhile is asked for afterwards.
    void setAsking(bool on);
    /// Shows that no printer is selected.
    void clearPrinterSelection();

public slots:
    void changePrinter(int row, int collumn, int prev_row, int prev_collumn);
    void checkForChanges(int value);

private:
    void createTable();
    void setHeaders();
    /// Name and destination of each.
    using Rows = QList<QPair<QString, QString>>;

    void showQueues(const QList<PrintQueue> &queues, PrintSystem state);
    void fillTable(const Rows &rows);
    /// Has the status of each queue asked for again once its row is in view.
    void askAnew();
    void askSoon();
    void askForRowsInView();
    void showStatus(const QString &queue, const QString &status);
    void explainEmptiness(bool answered);
    void updateHint();
    QStringList listedQueues() const;
    Rows listedRows() const;
    void createInstalledOptions();
    void addInstalledOption(const bOption *option);
    void removeInstalledOptions();
    static QString installedValue(const QWidget *widget);

    PrinterTable *printerTable;
    QLabel *installedHeader;
    QLabel *rootWarning;
    QLabel *selectHint; ///< in the room of the installed options while no printer is selected
    QGridLayout *installedGrid;
    int installedRowCount = 0;
    QHash<QString, QString> installedValues; ///< as last loaded or written
    bool installedChanged = false;
    PrinterStatusReader *statusReader;
    QHash<QString, QString> statuses; ///< by queue, as they were told last
    QSet<QString> upToDate;           ///< queues whose status is not to be asked for
    bool mayAsk = true;
    std::unique_ptr<OptionStore> store; ///< of the printer that was selected last
    std::unique_ptr<OptionStore> previousStore;
};
