// The panel as a whole: the unchanged program, used as a person would, with a scheduler of its own
// and the real lp commands.

#include "support/panelsteps.h"
#include "support/printserver.h"
#include "support/testhelpers.h"

#include <QImage>

#include <memory>

namespace {

constexpr char printers[] = "tblPrinters";
constexpr char pageSize[] = "cmbBxPageSize";
constexpr char mediaType[] = "cmbBxMediaType";
constexpr char source[] = "cmbBxInputSlot";
constexpr char destination[] = "cmbBxOutputBin";
constexpr char collate[] = "butGroupCol";
constexpr char duplex[] = "butGroupDuplex";
constexpr char color[] = "butGroupColorModelGeneral";
constexpr char rootWarning[] = "lblRootWarning";

const QString printer = "Office_C3";

/// The named values of the page "Basic", with the widgets that offer them.
Values basicValues(const QString &names)
{
    const QHash<QString, QString> widgets{
        {"A3", pageSize},          {"A4", pageSize},        {"A6", pageSize},
        {"Envelope DL", pageSize}, {"Labels", mediaType},   {"Plain paper", mediaType},
        {"Automatic", source},     {"Tray 1", source},      {"Tray 2", source},
        {"Tray 3", source},        {"Bypass tray", source}, {"Finisher tray", destination},
        {"Off", duplex},           {"Long edge", duplex},   {"Short edge", duplex},
    };
    Values values;
    for (const QString &name : names.split(", ", Qt::SkipEmptyParts))
        values.append({widgets.value(name), name});
    return values;
}

/// Starts the panel with the page "Basic" of the printer.
bool startOnBasic(Panel *panel)
{
    return panel->startWith(printer) && panel->clickTab("Basic");
}

} // namespace

class TestPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void queuesWithARow();
    void startSelectsNothing();
    void firstContact();
    void changeToItsEnd();
    void installedOptionChanged();

    void valuesThatExcludeEachOther_data();
    void valuesThatExcludeEachOther();
    void valueMovesWithTheHardware();
    void savedConflictIsMoved();

    void printerLost_data();
    void printerLost();
    void printerAdded_data();
    void printerAdded();
    void printerLosesItsPpd_data();
    void printerLosesItsPpd();

private:
    std::unique_ptr<PrintServer> server;
};

void TestPanel::init()
{
    Panel::complaints.clear();
    QVERIFY(makeUserFolder());
    server = std::make_unique<PrintServer>();
    QVERIFY2(server->start() && server->addSampleQueues(), qPrintable(server->error()));
}

void TestPanel::cleanup()
{
    server.reset();
    // Nothing that a developer would have to look into.
    QCOMPARE(Panel::complaints, QString());
}

// Choosing a printer and its options

void TestPanel::queuesWithARow()
{
    QVERIFY2(server->addQueue("Ratex_200", "demo/ppd/ratex200.ppd", "file:///dev/full"),
             qPrintable(server->error()));
    QCOMPARE(QProcess::execute("/usr/sbin/cupsdisable", {"Warehouse_M1"}), 0);

    Panel panel;
    QVERIFY(panel.start());
    const PanelTable table = panel.table(printers);
    QCOMPARE(table.headers, QStringList({"Printers", "Destination", "Status"}));
    QStringList rows;
    for (const QStringList &row : table.rows)
        rows.append(row.join(' '));
    // Dual_Path has two filters of the maker, Lobby_Generic none.
    QCOMPARE(rows,
             QStringList({"Dual_Path file:///dev/null Idle", "Dual_Path file:///dev/null Idle",
                          "Office_C3 file:///dev/null Idle", "Ratex_200 file:///dev/full Idle",
                          "Warehouse_M1 file:///dev/null Paused"}));
}

void TestPanel::startSelectsNothing()
{
    Panel panel;
    QVERIFY(panel.start() && panel.activateWindow(PanelWidget::ofClass("BixDialog")));
    for (const char *strayKey : {"Tab", "Return", "Space", "Down"})
        QVERIFY(panel.press(strayKey));

    QVERIFY(panel.isRunning());
    QVERIFY(!panel.hasSelection());
    QCOMPARE(panel.shownTabs(), onlyPrinterPage);
    QCOMPARE(userFolder().entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList("Settings"));
    QVERIFY(!QFile::exists(lpoptionsFile()));
    QVERIFY(!panel.isEnabled(Panel::standardButton("Ok")));
    QVERIFY(!panel.isEnabled(Panel::standardButton("Apply")));
    QVERIFY(panel.isEnabled(Panel::standardButton("Cancel")));
}

void TestPanel::firstContact()
{
    Panel panel;
    QVERIFY(panel.startWith(printer));

    // The printer's defaults are published before any button is pressed.
    QCOMPARE(panel.windowTitle(), "Brixola Press Desk - " + printer);
    QCOMPARE(panel.message(), noMessage);
    const QStringList defaults{"PageSize=A4", "Duplex=None", "Coll=True", "ColorModel=CMYK"};
    QCOMPARE(missing(defaults, savedLines(printer)), QStringList());
    QCOMPARE(missing(defaults, publishedOptions(printer)), QStringList());

    // Another click on the selected printer neither publishes again nor drops what was changed.
    QVERIFY(setFileText(cfgFile(printer), "Untouched=1\n"));
    QVERIFY(QFile::remove(lpoptionsFile()));
    QVERIFY(panel.clickTab("Basic") && panel.choose(pageSize, "A5") &&
            panel.choose(source, "Tray 1") && panel.clickTab("Printer") && panel.select(printer) &&
            panel.clickRow(printers, 2, 2));
    QCOMPARE(panel.table(printers).currentRow, 2);
    QCOMPARE(fileText(cfgFile(printer)), QByteArray("Untouched=1\n"));
    QVERIFY(!QFile::exists(lpoptionsFile()));
    QCOMPARE(panel.currentText(pageSize), QString("A5"));
    QVERIFY(panel.clickTab("Basic") && panel.clickGroupButton(collate, "Off"));
    QVERIFY(!panel.canSet({pageSize, "A3"})); // the tray still tells

    // Neither does another printer and back, now that there is a settings file.
    QVERIFY(panel.clickTab("Printer") && panel.select("Warehouse_M1") && panel.select(printer));
    QCOMPARE(fileText(cfgFile(printer)), QByteArray("Untouched=1\n"));
    QCOMPARE(panel.currentText(pageSize), QString("A4"));
}

void TestPanel::changeToItsEnd()
{
    Panel panel;
    QVERIFY(startOnBasic(&panel) && panel.choose(pageSize, "A5") &&
            panel.clickGroupButton(duplex, "Long edge") && panel.clickGroupButton(collate, "Off") &&
            panel.clickGroupButton(color, "Black & white") && panel.apply());
    QCOMPARE(panel.message(), applied);

    const QStringList chosen{"PageSize=A5", "PageRegion=A5", "Duplex=DuplexNoTumble", "Coll=False",
                             "ColorModel=Gray"};
    // These describe the paper too, but are no options that the print system could take.
    const QStringList onlySaved{"ImageableArea=A5", "PaperDimension=A5", "MediaSize=A5"};
    QCOMPARE(missing(chosen + onlySaved, savedLines(printer)), QStringList());
    const QStringList options = publishedOptions(printer);
    QCOMPARE(missing(chosen, options), QStringList());
    QCOMPARE(missing(onlySaved, options), onlySaved);

    QVERIFY(panel.answer() && panel.ok());
    QCOMPARE(panel.message(), applied);
    QVERIFY(panel.answer() && panel.waitForEnd());
    QCOMPARE(panel.exitStatus(), 0);

    QVERIFY(startOnBasic(&panel));
    QCOMPARE(panel.currentText(pageSize), QString("A5"));
    QCOMPARE(panel.currentText(duplex), QString("Long edge"));
    QCOMPARE(panel.currentText(collate), QString("Off"));
    QCOMPARE(panel.currentText(color), QString("Black & white"));

    const QByteArray saved = fileText(cfgFile(printer)) + fileText(lpoptionsFile());
    QVERIFY(panel.choose(pageSize, "A4") && panel.cancel() && panel.waitForEnd());
    QCOMPARE(panel.exitStatus(), 0);
    QCOMPARE(fileText(cfgFile(printer)) + fileText(lpoptionsFile()), saved);
}

void TestPanel::installedOptionChanged()
{
    Panel panel;
    QVERIFY(panel.startWith(printer));
    QVERIFY(!panel.isShown(rootWarning));
    QTemporaryDir pictures;
    const QString file = pictures.filePath("warning.png");
    QVERIFY(panel.click("chkBxOption20") && panel.grab(rootWarning, file));
    // Its border has the colour of the page, but for what shines through.
    const QImage picture(file);
    QVERIFY(qAbs(qGray(picture.pixel(0, 0)) - qGray(picture.pixel(2, 2))) < 32);

    QVERIFY(panel.choose("cmbBxOption21", "Tray 3") && panel.click("chkBxOption20"));
    QVERIFY(panel.isShown(rootWarning)); // one of two is still another
    QVERIFY(panel.choose("cmbBxOption21", "Not installed"));
    QVERIFY(!panel.isShown(rootWarning));

    QVERIFY(panel.click("chkBxOption20") && panel.select("Ratex_200"));
    QVERIFY(!panel.isShown(rootWarning)); // it was the other printer's
}

// Conflicts

void TestPanel::valuesThatExcludeEachOther_data()
{
    addRows({"chosen", "shown", "grey", "free"}, R"(
hardware that is not there         |                             | Automatic            | Tray 3, Finisher tray       | Tray 1, A3, A6, Long edge
a tray greys sizes                 | Tray 1                      | Tray 1, A4           | A3, A6, Envelope DL, Labels | Tray 2
a tray moves the size              | A6, Tray 1                  | Tray 1, A4           | A3, A6                      | Tray 2
a size ranks below the tray        | A6                          | A6, Automatic        | Labels                      | Tray 1, Long edge
media move the sheet to one side   | Long edge, Labels           | Labels, Off          | Long edge, Short edge, A6   | A3
size and tray together move it too | Short edge, Bypass tray, A6 | A6, Bypass tray, Off | Long edge, Short edge       | A4
two moves after one another        | Bypass tray, A6, Tray 1     | Tray 1, A4, Off      | A6                          | Long edge, Short edge, Plain paper
)");
}

void TestPanel::valuesThatExcludeEachOther()
{
    QFETCH(QString, chosen);
    QFETCH(QString, shown);
    QFETCH(QString, grey);
    QFETCH(QString, free);

    Panel panel;
    QVERIFY(startOnBasic(&panel));
    for (const Value &value : basicValues(chosen))
        QVERIFY(panel.set(value));
    for (const Value &value : basicValues(shown))
        QCOMPARE(panel.currentText(value.first), value.second);
    for (const Value &value : basicValues(grey))
        QVERIFY2(!panel.canSet(value), qPrintable(value.second));
    for (const Value &value : basicValues(free))
        QVERIFY2(panel.canSet(value), qPrintable(value.second));

    // What is shown is what is saved, and nothing hinders it.
    QVERIFY(panel.apply());
    QCOMPARE(panel.message(), applied);
    QVERIFY(panel.answer() && panel.cancel() && panel.startWith(printer));
    for (const Value &value : basicValues(shown))
        QCOMPARE(panel.currentText(value.first), value.second);
}

void TestPanel::valueMovesWithTheHardware()
{
    const Value finisherTray(destination, "Finisher tray");
    const Value fromLargeTray(source, "Large capacity tray");
    const Value smallSheet(pageSize, "A6");
    Panel panel;
    QVERIFY(startOnBasic(&panel) && panel.set(smallSheet) && panel.clickTab("Printer") &&
            panel.choose("cmbBxOption17", "Staple finisher") && panel.click("chkBxOption20"));
    QVERIFY(!panel.canSet(finisherTray)); // small sheets don't get there
    QVERIFY(panel.clickTab("Basic") && panel.set(fromLargeTray) && panel.set(finisherTray));
    QCOMPARE(panel.currentText(pageSize), QString("A4"));
    QVERIFY(!panel.canSet(smallSheet));

    QVERIFY(panel.clickTab("Printer") && panel.choose("cmbBxOption17", "Not installed") &&
            panel.click("chkBxOption20") && panel.clickTab("Basic"));
    QCOMPARE(panel.currentText(destination), QString("Automatic"));
    QCOMPARE(panel.currentText(source), QString("Automatic"));
    QVERIFY(!panel.canSet(finisherTray));
    QVERIFY(!panel.canSet(fromLargeTray));
    QVERIFY(panel.canSet(smallSheet)); // the tray that was left has no say any more
    QVERIFY(panel.apply());
    QCOMPARE(panel.message(), applied);
    QCOMPARE(missing({"OutputBin=Auto", "InputSlot=Auto"}, savedLines(printer)), QStringList());
}

void TestPanel::savedConflictIsMoved()
{
    // Such a file comes from a time when the printer had more hardware.
    QVERIFY(setFileText(cfgFile(printer), "InputSlot=LargeCapacity\nOutputBin=Finisher\n"
                                          "PageSize=B5\nMediaType=NoSuchMedia\n"));
    Panel panel;
    QVERIFY(startOnBasic(&panel));
    QCOMPARE(panel.currentText(source), QString("Automatic"));
    QCOMPARE(panel.currentText(destination), QString("Automatic"));
    QCOMPARE(panel.currentText(pageSize), QString("JIS B5"));
    QCOMPARE(panel.currentText(mediaType), QString("Plain paper"));
    QVERIFY(panel.isEnabled(Panel::standardButton("Apply")));
}

// Printers that come and go

void TestPanel::printerLost_data()
{
    // "back" in the last column: the lost printer is there again before the next one is selected.
    addRows({"lost", "noticed", "next", "back"}, R"(
the selected one                              | Office_C3 | at a change | Dual_Path |
the selected one, and what takes its row      | Office_C3 | at a change | Ratex_200 |
the selected one, which comes back to its row | Office_C3 | at a change | Office_C3 | back
another one, with the focus in the table      | Ratex_200 | by a click  | Office_C3 |
)");
}

void TestPanel::printerLost()
{
    QFETCH(QString, lost);
    QFETCH(QString, noticed);
    QFETCH(QString, next);
    QFETCH(QString, back);
    Panel panel;
    const auto basicPage = [&panel] { return panel.tabs().value(1).rect; };
    QVERIFY(panel.start());
    QVERIFY(basicPage().isEmpty());
    QVERIFY(panel.select(printer));
    const QRect room = basicPage();
    const QRect above = panel.tabs().value(0).rect;
    QCOMPARE(room, above.translated(0, above.height()));
    const QByteArray saved = fileText(cfgFile(printer));
    const QStringList files = userFolder().entryList(QDir::Files);
    QVERIFY(QFile::remove(lpoptionsFile()));

    QVERIFY2(server->removeQueue(lost), qPrintable(server->error()));
    QVERIFY(noticed == "by a click" ? panel.select(lost)
                                    : panel.clickTab("Basic") && panel.choose(pageSize, "A5"));
    QCOMPARE(panel.message(), printersChanged);
    QVERIFY(panel.answer());
    QCOMPARE(panel.message(), noMessage); // told once

    // Nothing is selected in its place, not even when the window is used again.
    QVERIFY(panel.activateWindow(PanelWidget::ofClass("BixDialog")));
    QVERIFY(!panel.rowsOf(0).contains(lost));
    QCOMPARE(panel.rowsOf(0).size(), 4);
    QVERIFY(!panel.hasSelection());
    QCOMPARE(panel.shownTabs(), onlyPrinterPage);
    QVERIFY(basicPage().isEmpty());
    QVERIFY(!panel.isShown("cmbBxOption17"));
    QVERIFY(!panel.isShown(pageSize));
    QCOMPARE(userFolder().entryList(QDir::Files), files);
    QCOMPARE(fileText(cfgFile(printer)), saved);
    QVERIFY(!QFile::exists(lpoptionsFile()));

    if (!back.isEmpty()) {
        QVERIFY2(server->addSampleQueues(), qPrintable(server->error()));
        QVERIFY(panel.apply()); // the way to have the table refreshed
        QCOMPARE(panel.message(), nothingSelected);
        QVERIFY(panel.answer());
        QVERIFY(!panel.hasSelection());
    }
    QVERIFY(panel.select(next));
    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.windowTitle(), "Brixola Press Desk - " + next);
    QCOMPARE(panel.rowsOf(0).value(panel.table(printers).currentRow), next);
    QCOMPARE(basicPage(), room);
    QVERIFY(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.apply());
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(next).contains("PageSize=A5"));

    // Without a printer OK closes the window all the same.
    QVERIFY2(panel.answer() && server->removeQueue(next), qPrintable(server->error()));
    QVERIFY(panel.choose(pageSize, "A4") && panel.answer() && panel.ok());
    QCOMPARE(panel.message(), nothingSelected);
    QVERIFY(panel.answer() && panel.waitForEnd());
    QCOMPARE(panel.exitStatus(), 0);
}

void TestPanel::printerAdded_data()
{
    addRows({"name", "ppd", "row"}, R"(
at the end of the table | Zone_5 | demo/ppd/mx210.ppd   | 5
before the selected one | Annex  | demo/ppd/mx210.ppd   | 0
of another maker        | Zone_5 | demo/ppd/generic.ppd | -1
)");
}

void TestPanel::printerAdded()
{
    QFETCH(QString, name);
    QFETCH(QString, ppd);
    QFETCH(QString, row);
    Panel panel;
    QVERIFY(startOnBasic(&panel));
    QVERIFY2(server->addQueue(name, ppd), qPrintable(server->error()));
    QVERIFY(panel.choose(pageSize, "A5"));

    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.rowsOf(0).indexOf(name), row.toInt());
    QVERIFY(!QFile::exists(cfgFile(name)));
    // The selected printer is the same, with what was changed.
    QCOMPARE(panel.windowTitle(), "Brixola Press Desk - " + printer);
    QCOMPARE(panel.currentText(pageSize), QString("A5"));
    QVERIFY(panel.apply());
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(printer).contains("PageSize=A5"));
}

void TestPanel::printerLosesItsPpd_data()
{
    addRows({"key"}, R"(
by a click |
by a key   | Down
)");
}

void TestPanel::printerLosesItsPpd()
{
    QFETCH(QString, key);
    const QString other = "Ratex_200"; // in the next row
    const QString stored = "/etc/cups/ppd/Ratex_200.ppd";
    const QByteArray sound = fileText(stored);
    Panel panel;
    QVERIFY(panel.startWith(printer) && panel.click("chkBxOption20") && panel.select(printer));
    QVERIFY(!sound.isEmpty() && setFileText(stored, "rubbish\n"));
    QVERIFY(key.isEmpty() ? panel.select(other) : panel.press(key));
    QCOMPARE(panel.message(), noMessage);
    // Nothing of the printer before is left to be taken for its options.
    QVERIFY(!panel.hasSelection());
    QCOMPARE(panel.shownTabs(), onlyPrinterPage);
    QVERIFY(!panel.isShown("chkBxOption20"));
    QVERIFY(!panel.isShown(rootWarning));
    QVERIFY(!panel.isEnabled(Panel::standardButton("Apply")));
    QVERIFY(!QFile::exists(cfgFile(other)));

    QVERIFY(setFileText(stored, sound));
    QVERIFY(panel.select(other));
    QCOMPARE(panel.windowTitle(), "Brixola Press Desk - " + other);
    QVERIFY(panel.shownTabs().contains("Basic"));
}

QTEST_GUILESS_MAIN(TestPanel)
#include "tst_panel.moc"
