// The panel as a whole: the unchanged program, used as a person would, with a scheduler of its own
// and the real lp commands.

#include "support/panelsteps.h"
#include "support/printserver.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

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
    void cancelSavesNothing();
    void singleColor_data();
    void singleColor();
    void installedOptionChanged();
    void warningHasNoFrame();

    void valuesThatExcludeEachOther_data();
    void valuesThatExcludeEachOther();
    void valueMovesWithTheHardware();
    void savedConflictIsMoved();

    void printerLost_data();
    void printerLost();
    void selectAfterLoss_data();
    void selectAfterLoss();
    void roomInTheBar();
    void nothingToApplyTo();
    void printerAdded_data();
    void printerAdded();
    void printerGoneBeforeApply();
    void lpoptionsFails_data();
    void lpoptionsFails();

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
    QVERIFY2(server->addQueue(QStringLiteral("Ratex_200"), QStringLiteral("demo/ppd/ratex200.ppd"),
                              QStringLiteral("file:///dev/full")),
             qPrintable(server->error()));
    QCOMPARE(QProcess::execute(QStringLiteral("/usr/sbin/cupsdisable"),
                               {QStringLiteral("Warehouse_M1")}),
             0);

    Panel panel;
    QVERIFY2(panel.start(), qPrintable(panel.error()));
    QCOMPARE(panel.table(printers).headers,
             QStringList({QStringLiteral("Printers"), QStringLiteral("Destination"),
                          QStringLiteral("Status")}));
    // Dual_Path has two filters of the maker, Lobby_Generic none.
    QCOMPARE(panel.rowsOf(0), QStringList({QStringLiteral("Dual_Path"), QStringLiteral("Dual_Path"),
                                           QStringLiteral("Office_C3"), QStringLiteral("Ratex_200"),
                                           QStringLiteral("Warehouse_M1")}));
    const QString nowhere = QStringLiteral("file:///dev/null");
    QCOMPARE(panel.rowsOf(1),
             QStringList({nowhere, nowhere, nowhere, QStringLiteral("file:///dev/full"), nowhere}));
    const QString idle = QStringLiteral("Idle");
    QCOMPARE(panel.rowsOf(2), QStringList({idle, idle, idle, idle, QStringLiteral("Paused")}));
}

void TestPanel::startSelectsNothing()
{
    Panel panel;
    QVERIFY2(panel.start() && panel.activateWindow(PanelWidget::ofClass("BixDialog")),
             qPrintable(panel.error()));
    for (const char *strayKey : {"Tab", "Return", "Space", "Down"})
        QVERIFY2(panel.press(QLatin1String(strayKey)), qPrintable(panel.error()));

    QVERIFY(panel.isRunning());
    QVERIFY(!panel.hasSelection());
    QCOMPARE(panel.shownTabs(), onlyPrinterPage);
    QCOMPARE(userFolder().entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("Settings")});
    QVERIFY(!QFile::exists(lpoptionsFile()));
    QVERIFY(!panel.isEnabled(Panel::standardButton("Ok")));
    QVERIFY(!panel.isEnabled(Panel::standardButton("Apply")));
    QVERIFY(panel.isEnabled(Panel::standardButton("Cancel")));
}

void TestPanel::firstContact()
{
    const QString printer = QStringLiteral("Office_C3");
    Panel panel;
    QVERIFY2(panel.startWith(printer), qPrintable(panel.error()));

    // The printer's defaults are published before any button is pressed.
    QCOMPARE(panel.windowTitle(), QStringLiteral("Brixola Press Desk - Office_C3"));
    QCOMPARE(panel.message(), noMessage);
    const QStringList defaults{QStringLiteral("PageSize=A4"), QStringLiteral("Duplex=None"),
                               QStringLiteral("Coll=True"), QStringLiteral("ColorModel=CMYK")};
    QCOMPARE(missing(defaults, savedLines(printer)), QStringList());
    QCOMPARE(missing(defaults, publishedOptions(printer)), QStringList());

    // Another click on the selected printer neither publishes again nor drops what was changed.
    QVERIFY(writeFile(cfgFile(printer), "Untouched=1\n"));
    QVERIFY(QFile::remove(lpoptionsFile()));
    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") &&
                 panel.choose(source, "Tray 1") && panel.clickTab("Printer") &&
                 panel.select(printer) && panel.clickRow(printers, 2, 2),
             qPrintable(panel.error()));
    QCOMPARE(panel.table(printers).currentRow, 2);
    QCOMPARE(contents(cfgFile(printer)), QByteArray("Untouched=1\n"));
    QVERIFY(!QFile::exists(lpoptionsFile()));
    QCOMPARE(panel.currentText(pageSize), QStringLiteral("A5"));
    QVERIFY2(panel.clickTab("Basic") && panel.clickGroupButton(collate, "Off"),
             qPrintable(panel.error()));
    QVERIFY(!panel.canSet({pageSize, "A3"})); // the tray still tells

    // Neither does another printer and back, now that there is a settings file.
    QVERIFY2(panel.clickTab("Printer") && panel.select("Warehouse_M1") && panel.select(printer),
             qPrintable(panel.error()));
    QCOMPARE(contents(cfgFile(printer)), QByteArray("Untouched=1\n"));
    QCOMPARE(panel.currentText(pageSize), QStringLiteral("A4"));
}

void TestPanel::changeToItsEnd()
{
    const QString printer = QStringLiteral("Office_C3");
    Panel panel;
    QVERIFY2(panel.startWith(printer) && panel.clickTab("Basic") && panel.choose(pageSize, "A5") &&
                 panel.clickGroupButton(duplex, "Long edge") &&
                 panel.clickGroupButton(collate, "Off") &&
                 panel.clickGroupButton(color, "Black & white") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);

    const QStringList chosen{QStringLiteral("PageSize=A5"), QStringLiteral("PageRegion=A5"),
                             QStringLiteral("Duplex=DuplexNoTumble"), QStringLiteral("Coll=False"),
                             QStringLiteral("ColorModel=Gray")};
    // These describe the paper too, but are no options that the print system could take.
    const QStringList onlySaved{QStringLiteral("ImageableArea=A5"),
                                QStringLiteral("PaperDimension=A5"),
                                QStringLiteral("MediaSize=A5")};
    QCOMPARE(missing(chosen + onlySaved, savedLines(printer)), QStringList());
    const QStringList options = publishedOptions(printer);
    QCOMPARE(missing(chosen, options), QStringList());
    QCOMPARE(missing(onlySaved, options), onlySaved);

    QVERIFY2(panel.answer() && panel.ok(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY2(panel.answer() && panel.waitForEnd(), qPrintable(panel.error()));
    QCOMPARE(panel.exitStatus(), 0);

    QVERIFY2(panel.startWith(printer) && panel.clickTab("Basic"), qPrintable(panel.error()));
    QCOMPARE(panel.currentText(pageSize), QStringLiteral("A5"));
    QCOMPARE(panel.currentText(duplex), QStringLiteral("Long edge"));
    QCOMPARE(panel.currentText(collate), QStringLiteral("Off"));
    QCOMPARE(panel.currentText(color), QStringLiteral("Black & white"));
}

void TestPanel::cancelSavesNothing()
{
    const QString printer = QStringLiteral("Office_C3");
    Panel panel;
    QVERIFY2(panel.startWith(printer), qPrintable(panel.error()));
    const QByteArray saved = contents(cfgFile(printer));
    const QByteArray published = contents(lpoptionsFile());

    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.cancel() &&
                 panel.waitForEnd(),
             qPrintable(panel.error()));
    QCOMPARE(panel.exitStatus(), 0);
    QCOMPARE(contents(cfgFile(printer)), saved);
    QCOMPARE(contents(lpoptionsFile()), published);
}

void TestPanel::singleColor_data()
{
    QTest::addColumn<QString>("printer");
    QTest::newRow("the colour option has one choice") << QStringLiteral("Ratex_200");
    QTest::newRow("there is no colour option") << QStringLiteral("Warehouse_M1");
}

void TestPanel::singleColor()
{
    QFETCH(QString, printer);
    Panel panel;
    // A colour printer first, whose settings must not stay behind.
    QVERIFY2(panel.startWith("Office_C3") && panel.clickTab("Basic"), qPrintable(panel.error()));
    QCOMPARE(panel.currentText(color), QStringLiteral("Full color"));
    const QString labelColor = panel.state(color).value(QLatin1String("color")).toString();

    QVERIFY2(panel.clickTab("Printer") && panel.select(printer) && panel.clickTab("Basic"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(color), QStringLiteral("Black & white"));
    QVERIFY(panel.isShown(color));
    QVERIFY(!panel.isEnabled(color));
    QCOMPARE(panel.state(color).value(QLatin1String("color")).toString(), labelColor);

    QVERIFY2(panel.clickTab("Printer") && panel.select("Office_C3") && panel.clickTab("Basic"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(color), QStringLiteral("Full color"));
    QVERIFY(panel.isEnabled(color));
}

void TestPanel::installedOptionChanged()
{
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3"), qPrintable(panel.error()));
    QVERIFY(!panel.isShown(rootWarning));

    QVERIFY2(panel.click("chkBxOption20"), qPrintable(panel.error()));
    QVERIFY(panel.isShown(rootWarning));
    QVERIFY2(panel.choose("cmbBxOption21", "Tray 3") && panel.click("chkBxOption20"),
             qPrintable(panel.error()));
    QVERIFY(panel.isShown(rootWarning)); // one of two is still another
    QVERIFY2(panel.choose("cmbBxOption21", "Not installed"), qPrintable(panel.error()));
    QVERIFY(!panel.isShown(rootWarning));

    QVERIFY2(panel.click("chkBxOption20") && panel.select("Ratex_200"), qPrintable(panel.error()));
    QVERIFY(!panel.isShown(rootWarning)); // it was the other printer's
}

void TestPanel::warningHasNoFrame()
{
    QTemporaryDir pictures;
    const QString file = pictures.filePath(QStringLiteral("warning.png"));
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.click("chkBxOption20") &&
                 panel.grab(rootWarning, file),
             qPrintable(panel.error()));
    const QImage picture(file);
    QVERIFY(!picture.isNull());
    // Its border has the colour of the page, but for what shines through.
    const int border = qGray(picture.pixel(0, 0));
    const int page = qGray(picture.pixel(2, 2));
    QVERIFY2(qAbs(border - page) < 32, qPrintable(QString::number(border)));
}

// Conflicts

void TestPanel::valuesThatExcludeEachOther_data()
{
    QTest::addColumn<Values>("chosen");
    QTest::addColumn<Values>("shown"); // afterwards
    QTest::addColumn<Values>("grey");
    QTest::addColumn<Values>("free");

    const Value a3{pageSize, "A3"}, a4{pageSize, "A4"}, a6{pageSize, "A6"};
    const Value envelope{pageSize, "Envelope DL"};
    const Value automatic{source, "Automatic"}, tray1{source, "Tray 1"}, tray2{source, "Tray 2"};
    const Value tray3{source, "Tray 3"}, bypass{source, "Bypass tray"};
    const Value plain{mediaType, "Plain paper"}, labels{mediaType, "Labels"};
    const Value oneSide{duplex, "Off"}, longEdge{duplex, "Long edge"};
    const Value shortEdge{duplex, "Short edge"};

    QTest::newRow("hardware that is not there")
        << Values() << Values{automatic} << Values{tray3, {destination, "Finisher tray"}}
        << Values{tray1, tray2, bypass, a3, a6, longEdge};
    QTest::newRow("a tray greys the sizes that it does not take")
        << Values{tray1} << Values{tray1, a4} << Values{a3, a6, envelope, labels} << Values{tray2};
    QTest::newRow("a tray moves the size off one that it does not take")
        << Values{a6, tray1} << Values{tray1, a4} << Values{a3, a6} << Values{tray2};
    QTest::newRow("a size does not move the tray") // it ranks below
        << Values{a6} << Values{a6, automatic} << Values{labels} << Values{tray1, longEdge};
    QTest::newRow("size and media grey each other")
        << Values{{mediaType, "Transparency"}} << Values{a4} << Values{a3, a6, longEdge}
        << Values{plain};
    QTest::newRow("labels move the sheet to one side")
        << Values{longEdge, labels} << Values{labels, oneSide} << Values{longEdge, shortEdge, a6}
        << Values{a3};
    QTest::newRow("size and tray together grey both edges")
        << Values{a6, bypass} << Values{a6, bypass, oneSide} << Values{longEdge, shortEdge}
        << Values{a4};
    QTest::newRow("size and tray together move the sheet to one side")
        << Values{shortEdge, bypass, a6} << Values{a6, bypass, oneSide}
        << Values{longEdge, shortEdge} << Values{a4};
    QTest::newRow("two moves after one another") // tray, then size, then free edges again
        << Values{bypass, a6, tray1} << Values{tray1, a4, oneSide} << Values{a6}
        << Values{longEdge, shortEdge, plain};
}

void TestPanel::valuesThatExcludeEachOther()
{
    QFETCH(Values, chosen);
    QFETCH(Values, shown);
    QFETCH(Values, grey);
    QFETCH(Values, free);

    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.clickTab("Basic"), qPrintable(panel.error()));
    for (const Value &value : qAsConst(chosen))
        QVERIFY2(panel.set(value), qPrintable(panel.error()));
    for (const Value &value : qAsConst(shown))
        QCOMPARE(panel.currentText(value.first), value.second);
    for (const Value &value : qAsConst(grey))
        QVERIFY2(!panel.canSet(value), qPrintable(value.second));
    for (const Value &value : qAsConst(free))
        QVERIFY2(panel.canSet(value), qPrintable(value.second));

    // What is shown is what is saved, and nothing hinders it.
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY2(panel.answer() && panel.cancel() && panel.startWith("Office_C3"),
             qPrintable(panel.error()));
    for (const Value &value : qAsConst(shown))
        QCOMPARE(panel.currentText(value.first), value.second);
}

void TestPanel::valueMovesWithTheHardware()
{
    const char *largeTray = "chkBxOption20";
    const Value finisher("cmbBxOption17", "Staple finisher");
    const Value noFinisher("cmbBxOption17", "Not installed");
    const Value finisherTray(destination, "Finisher tray");
    const Value fromLargeTray(source, "Large capacity tray");
    const Value smallSheet(pageSize, "A6");
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.clickTab("Basic") && panel.set(smallSheet) &&
                 panel.clickTab("Printer") && panel.set(finisher) && panel.click(largeTray),
             qPrintable(panel.error()));
    QVERIFY(!panel.canSet(finisherTray)); // small sheets don't get there
    QVERIFY2(panel.clickTab("Basic") && panel.set(fromLargeTray) && panel.set(finisherTray),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(pageSize), QStringLiteral("A4"));
    QVERIFY(!panel.canSet(smallSheet));

    QVERIFY2(panel.clickTab("Printer") && panel.set(noFinisher) && panel.click(largeTray) &&
                 panel.clickTab("Basic"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(destination), QStringLiteral("Automatic"));
    QCOMPARE(panel.currentText(source), QStringLiteral("Automatic"));
    QVERIFY(!panel.canSet(finisherTray));
    QVERIFY(!panel.canSet(fromLargeTray));
    QVERIFY(panel.canSet(smallSheet)); // the tray that was left has no say any more
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QCOMPARE(missing({QStringLiteral("OutputBin=Auto"), QStringLiteral("InputSlot=Auto")},
                     savedLines(QStringLiteral("Office_C3"))),
             QStringList());
}

void TestPanel::savedConflictIsMoved()
{
    // Such a file comes from a time when the printer had more hardware.
    const QString printer = QStringLiteral("Office_C3");
    QVERIFY(writeFile(cfgFile(printer), "InputSlot=LargeCapacity\nOutputBin=Finisher\nPageSize=B5\n"
                                        "MediaType=NoSuchMedia\n"));
    Panel panel;
    QVERIFY2(panel.startWith(printer) && panel.clickTab("Basic"), qPrintable(panel.error()));
    QCOMPARE(panel.currentText(source), QStringLiteral("Automatic"));
    QCOMPARE(panel.currentText(destination), QStringLiteral("Automatic"));
    QCOMPARE(panel.currentText(pageSize), QStringLiteral("JIS B5"));
    QCOMPARE(panel.currentText(mediaType), QStringLiteral("Plain paper"));
    QVERIFY(panel.isEnabled(Panel::standardButton("Apply")));
}

// Printers that come and go

void TestPanel::printerLost_data()
{
    QTest::addColumn<QString>("lost");
    QTest::addColumn<bool>("clickOnIt");
    QTest::newRow("the selected one, noticed at the next change")
        << QStringLiteral("Office_C3") << false;
    // The table has the focus when the message has gone.
    QTest::newRow("another one, noticed as it is clicked") << QStringLiteral("Ratex_200") << true;
}

void TestPanel::printerLost()
{
    QFETCH(QString, lost);
    QFETCH(bool, clickOnIt);
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3"), qPrintable(panel.error()));
    const QByteArray saved = contents(cfgFile(QStringLiteral("Office_C3")));
    const QStringList files = userFolder().entryList(QDir::Files);
    QVERIFY(QFile::remove(lpoptionsFile()));

    QVERIFY2(server->removeQueue(lost), qPrintable(server->error()));
    QVERIFY2(clickOnIt ? panel.select(lost)
                       : panel.clickTab("Basic") && panel.choose(pageSize, "A5"),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), printersChanged);
    QVERIFY2(panel.answer(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), noMessage); // told once

    QVERIFY(!panel.rowsOf(0).contains(lost));
    QCOMPARE(panel.rowsOf(0).size(), 4);
    QVERIFY(!panel.hasSelection());
    QCOMPARE(panel.shownTabs(), onlyPrinterPage);
    QVERIFY(!panel.isShown("cmbBxOption17"));
    QVERIFY(!panel.isShown(pageSize));

    // Nothing was selected in its place, not even when the window is used again.
    QVERIFY2(panel.activateWindow(PanelWidget::ofClass("BixDialog")), qPrintable(panel.error()));
    QVERIFY(!panel.hasSelection());
    QCOMPARE(userFolder().entryList(QDir::Files), files);
    QCOMPARE(contents(cfgFile(QStringLiteral("Office_C3"))), saved);
    QVERIFY(!QFile::exists(lpoptionsFile()));
}

void TestPanel::selectAfterLoss_data()
{
    QTest::addColumn<bool>("comesBack");
    QTest::addColumn<QString>("printer");
    QTest::newRow("the one that took its row") << false << QStringLiteral("Ratex_200");
    QTest::newRow("another one") << false << QStringLiteral("Dual_Path");
    QTest::newRow("itself, come back to its row") << true << QStringLiteral("Office_C3");
}

void TestPanel::selectAfterLoss()
{
    QFETCH(bool, comesBack);
    QFETCH(QString, printer);
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.clickTab("Basic"), qPrintable(panel.error()));
    QVERIFY2(server->removeQueue(QStringLiteral("Office_C3")), qPrintable(server->error()));
    QVERIFY2(panel.choose(pageSize, "A5") && panel.answer(), qPrintable(panel.error()));
    if (comesBack) {
        QVERIFY2(server->addSampleQueues(), qPrintable(server->error()));
        QVERIFY2(panel.apply(), qPrintable(panel.error())); // the way to have the table refreshed
        QCOMPARE(panel.message(), nothingSelected);
        QVERIFY2(panel.answer(), qPrintable(panel.error()));
        QVERIFY(!panel.hasSelection());
    }

    QVERIFY2(panel.select(printer), qPrintable(panel.error()));
    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.windowTitle(), QStringLiteral("Brixola Press Desk - ") + printer);
    QCOMPARE(panel.rowsOf(0).value(panel.table(printers).currentRow), printer);
    QVERIFY(QFile::exists(cfgFile(printer)));
    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(printer).contains(QStringLiteral("PageSize=A5")));
}

void TestPanel::roomInTheBar()
{
    Panel panel;
    const auto basicPage = [&] { return panel.tabs().value(1).rect; };
    QVERIFY2(panel.start(), qPrintable(panel.error()));
    QVERIFY(basicPage().isEmpty());

    QVERIFY2(panel.select("Office_C3"), qPrintable(panel.error()));
    const QVector<PanelTab> tabs = panel.tabs();
    QCOMPARE(tabs.value(1).rect.size(), tabs.value(0).rect.size());
    QCOMPARE(tabs.value(1).rect.top(), tabs.value(0).rect.bottom() + 1);
    const QRect room = basicPage();

    QVERIFY2(server->removeQueue(QStringLiteral("Office_C3")), qPrintable(server->error()));
    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.answer(),
             qPrintable(panel.error()));
    QVERIFY(basicPage().isEmpty());

    QVERIFY2(panel.select("Ratex_200"), qPrintable(panel.error()));
    QCOMPARE(basicPage(), room);
}

void TestPanel::nothingToApplyTo()
{
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.clickTab("Basic"), qPrintable(panel.error()));
    QVERIFY2(server->removeQueue(QStringLiteral("Office_C3")), qPrintable(server->error()));
    QVERIFY2(panel.choose(pageSize, "A5") && panel.answer() && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), nothingSelected);
    QVERIFY2(panel.answer(), qPrintable(panel.error()));
    QVERIFY(panel.isRunning());

    QVERIFY2(panel.ok(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), nothingSelected);
    QVERIFY2(panel.answer() && panel.waitForEnd(), qPrintable(panel.error()));
    QCOMPARE(panel.exitStatus(), 0);
}

void TestPanel::printerAdded_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<int>("row"); // -1 for none
    QTest::newRow("at the end of the table")
        << QStringLiteral("Zone_5") << QStringLiteral("demo/ppd/mx210.ppd") << 5;
    QTest::newRow("before the selected one")
        << QStringLiteral("Annex") << QStringLiteral("demo/ppd/mx210.ppd") << 0;
    QTest::newRow("of another maker")
        << QStringLiteral("Zone_5") << QStringLiteral("demo/ppd/generic.ppd") << -1;
}

void TestPanel::printerAdded()
{
    QFETCH(QString, name);
    QFETCH(QString, ppd);
    QFETCH(int, row);
    Panel panel;
    QVERIFY2(panel.startWith("Office_C3") && panel.clickTab("Basic"), qPrintable(panel.error()));
    QVERIFY2(server->addQueue(name, ppd), qPrintable(server->error()));
    QVERIFY2(panel.choose(pageSize, "A5"), qPrintable(panel.error()));

    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.rowsOf(0).indexOf(name), row);
    QVERIFY(!QFile::exists(cfgFile(name)));
    // The selected printer is the same, with what was changed.
    QCOMPARE(panel.windowTitle(), QStringLiteral("Brixola Press Desk - Office_C3"));
    QCOMPARE(panel.currentText(pageSize), QStringLiteral("A5"));
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(QStringLiteral("Office_C3")).contains(QStringLiteral("PageSize=A5")));
}

void TestPanel::printerGoneBeforeApply()
{
    const QString printer = QStringLiteral("Office_C3");
    Panel panel;
    QVERIFY2(panel.startWith(printer) && panel.clickTab("Basic") && panel.choose(pageSize, "A5"),
             qPrintable(panel.error()));
    const QByteArray saved = contents(cfgFile(printer));
    QVERIFY2(server->removeQueue(printer), qPrintable(server->error()));

    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), notPublished);
    QVERIFY2(panel.answer(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), noMessage);
    QVERIFY(panel.tabs().value(0).current);
    QVERIFY(!panel.rowsOf(0).contains(printer));
    QCOMPARE(contents(cfgFile(printer)), saved);
}

void TestPanel::lpoptionsFails_data()
{
    QTest::addColumn<QByteArray>("lpoptions"); // a stand-in's text, null for none
    QTest::addColumn<QStringList>("atFirstContact");
    QTest::addColumn<QStringList>("atApply");
    QTest::newRow("missing") << QByteArray() << notPublished << notPublished;
    // What it makes of the options is its own affair.
    QTest::newRow("refuses the options")
        << QByteArray("#!/bin/sh\necho 'lpoptions: Unknown option.' >&2\nexit 1\n") << noMessage
        << applied;
}

void TestPanel::lpoptionsFails()
{
    QFETCH(QByteArray, lpoptions);
    QFETCH(QStringList, atFirstContact);
    QFETCH(QStringList, atApply);
    QTemporaryDir commands;
    QVERIFY(QFile::link(QStringLiteral("/usr/bin/lpstat"),
                        commands.filePath(QStringLiteral("lpstat"))));
    if (!lpoptions.isNull()) {
        const QString script = commands.filePath(QStringLiteral("lpoptions"));
        QVERIFY(writeFile(script, lpoptions));
        QVERIFY(QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner));
    }
    const QString printer = QStringLiteral("Office_C3");
    Panel panel;
    panel.setEnvironment(QStringLiteral("PATH"), commands.path());

    QVERIFY2(panel.startWith(printer), qPrintable(panel.error()));
    QCOMPARE(panel.message(), atFirstContact);
    QVERIFY2(atFirstContact == noMessage || panel.answer(), qPrintable(panel.error()));
    QVERIFY(savedLines(printer).contains(QStringLiteral("PageSize=A4")));
    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.ok(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), atApply);
    QVERIFY(savedLines(printer).contains(QStringLiteral("PageSize=A5")));
    QVERIFY2(panel.answer() && panel.waitForEnd(), qPrintable(panel.error()));
    QCOMPARE(panel.exitStatus(), 0);
}

QTEST_GUILESS_MAIN(TestPanel)
#include "tst_panel.moc"
