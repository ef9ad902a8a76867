#include "model/optionstore.h"
#include "pages/generaltab.h"
#include "pages/printertab.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

namespace {

template <typename Page>
struct Panel
{
    void load(const QString &options, const QString &settings = QString())
    {
        dialog.selectPrinter(options, settings);
        page->reload();
    }
    QString current(const char *keyword) const
    {
        return RecordingDialog::current(QLatin1String(keyword));
    }
    template <typename Widget>
    Widget *widget(const char *name) const
    {
        return findNamed<Widget>(page, name);
    }

    RecordingDialog dialog;
    Page *page = new Page(&dialog);
};

using GeneralPanel = Panel<GeneralTab>;
using PrinterPanel = Panel<PrinterTab>;

const QString paperOption = "PageSize/Media_Size 99 A4* A5 Custom\n";
const QString colorOption = "ColorModel 99 CMYK/Full_color* Gray/Black_&_white\n";

} // namespace

class TestPages : public QObject
{
    Q_OBJECT

private slots:
    void color_data();
    void color();
    void colorClickMovesTheOptionFirst();
    void customSizeIsNotOffered_data();
    void customSizeIsNotOffered();
    void paperSizeReachesItsAliases();
    void labelsOfOtherPrinters();
    void noQueues();
    void installedOptionsAppear();
    void installedChangeWarns();
    void installedConflict();
    void installedOptionsGoWithTheirPrinter();
    void refreshKeepsInstalledOptions();
};

// Basic

void TestPages::color_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("usable");
    QTest::addColumn<QString>("collected");
    const QString blockedGray = "ColorModel 99 Gray/Black_&_white*\nForce 1 Off On\n"
                                "Force=On ColorModel=Gray";
    addRow("printer without color", "Other 99 A", "Black & white", false, "");
    addRow("gray only", "ColorModel 99 Gray/Black_&_white*", "Black & white", false, "Gray");
    addRow("gray only, and blocked", blockedGray, "Black & white", false, "Gray");
    addRow("one value with another name", "ColorModel 99 Mono/Monochrome*", "Black & white", false,
           "");
    addRow("color", colorOption, "Full color", true, "CMYK");
}

void TestPages::color()
{
    QFETCH(QString, option);
    QFETCH(QString, shown);
    GeneralPanel panel;
    const BixButtonGroup *group = panel.page->colorGroup();
    const auto *label = group->findChild<QLabel *>();
    const QColor normal = label->palette().color(label->foregroundRole());
    panel.load(colorOption); // a printer before
    panel.load(option, "ColorModel=CMYK");
    currentStore->setCurrentByKey("Force", "On");
    panel.page->enableOptions(); // a constraint pass leaves it so
    QCOMPARE(label->text(), "Color: " + shown);
    QTEST(group->isEnabled(), "usable");
    QCOMPARE(label->palette().color(QPalette::Disabled, label->foregroundRole()), normal);
    QTEST(panel.page->collectSettings().value("ColorModel"), "collected");
}

void TestPages::colorClickMovesTheOptionFirst()
{
    GeneralPanel panel;
    panel.load(colorOption);
    panel.dialog.remark = [&] { return panel.current("ColorModel"); };
    panel.page->colorGroup()->buttonAt(1)->click();
    QCOMPARE(panel.dialog.takeCalls(),
             QStringList({"setConstraints Gray", "toggleColorMode Gray"}));
    panel.page->reload();
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestPages::customSizeIsNotOffered_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("shown");
    addRow("another size saved", paperOption, "A5", "A5");
    addRow("custom saved, in the middle, default behind it", "PageSize 99 A5 Custom/Own A4*",
           "Custom", "A4");
    addRow("custom is the default", "PageSize 99 A5 A4 Custom*", "", "A5");
}

void TestPages::customSizeIsNotOffered()
{
    QFETCH(QString, option);
    QFETCH(QString, saved);
    QFETCH(QString, shown);
    GeneralPanel panel;
    panel.load(option, "PageSize=" + saved);
    const auto *box = panel.widget<ComboBoxEx>("cmbBxPageSize");
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->currentText(), shown);
    QCOMPARE(panel.current("PageSize"), shown);
}

void TestPages::paperSizeReachesItsAliases()
{
    GeneralPanel panel;
    panel.load(paperOption + "InputSlot 99 Tray1 Tray2*", "PageSize=A5");
    QHash<QString, QString> expected{{"InputSlot", "Tray2"}};
    for (const char *keyword :
         {"PageSize", "PageRegion", "ImageableArea", "PaperDimension", "MediaSize"})
        expected.insert(QLatin1String(keyword), "A5");
    QCOMPARE(panel.page->collectSettings(), expected);

    panel.load("InputSlot 99 Tray1* Tray2"); // without a trace of the printer before
    QCOMPARE(panel.page->collectSettings(), (QHash<QString, QString>{{"InputSlot", "Tray1"}}));
    QCOMPARE(panel.widget<ComboBoxEx>("cmbBxPageSize")->count(), 0);
}

void TestPages::labelsOfOtherPrinters()
{
    GeneralPanel panel;
    QStringList texts;
    for (int i = 0; i < 2; ++i) {
        panel.load(paperOption + "InputSlot/Paper_source 99 A*\nOutputBin/Output_tray 99 A*\n"
                                 "MediaType/Paper_type 99 A*\nDuplex 99 None/Off*");
        texts.clear();
        for (const char *name : {"lblPageSize", "lblInputSlot", "lblOutputBin", "lblMediaType"})
            texts << panel.widget<QLabel>(name)->text();
        // The PPD's name counts for one of them; marks and their blanks don't stay.
        QCOMPARE(texts, QStringList({"Print size:", "Source:", "Destination:", "Paper type:"}));
        panel.page->markKeyword("PageSize", QString());
        panel.page->markKeyword("Duplex", QString());
    }
    panel.load(paperOption);
    const auto *duplex = panel.widget<BixButtonGroup>("butGroupDuplex");
    QVERIFY(!duplex->findChild<QLabel *>()->text().contains("<img"));
}

// Printer

void TestPages::noQueues()
{
    PrinterPanel panel;
    panel.dialog.show();
    const QTableWidget *table = panel.page->table();
    panel.page->reloadPrinterTable();
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(table->horizontalHeaderItem(2)->text(), QString("Status"));
    QCOMPARE(table->columnWidth(0), 186);
    panel.page->reload(); // without a printer
    panel.page->refreshPage();
    panel.page->clearPrinterSelection();
    QVERIFY(!panel.page->installedOptionsChanged());
}

const QString installed = QStringLiteral("Option27/Last 99 False* B\n"
                                         "Option18/Finisher 99 None* Staple/Staple_&_fold\n"
                                         "Option17/Tray_R&D 99 True False*\n"
                                         "Option8/Disk 99 False True* Maybe\n"
                                         "Other 99 A* B\n");

void TestPages::installedOptionsAppear()
{
    PrinterPanel panel;
    panel.page->resize(900, 900);
    panel.dialog.show();
    panel.load(installed, "Option18=Staple");
    QCoreApplication::processEvents();
    const auto *tray = panel.widget<QCheckBox>("chkBxOption17");
    const auto *disk = panel.widget<QCheckBox>("chkBxOption8");
    const auto *label = panel.widget<QLabel>("lblOption18");
    const auto *finisher = panel.widget<ComboBoxEx>("cmbBxOption18");
    const auto *last = panel.widget<ComboBoxEx>("cmbBxOption27");
    QVERIFY(tray && disk && label && finisher && last);
    QCOMPARE(panel.page->findChildren<ComboBoxEx *>().size(), 2); // no other option
    QVERIFY(!tray->isChecked());
    QVERIFY(disk->isChecked());
    QCOMPARE(label->text(), QString("Finisher:"));
    QCOMPARE(finisher->currentText(), QString("Staple & fold"));
    QCOMPARE(panel.current("Option18"), QString("Staple"));

    const QWidget *column[] = {tray, disk, label, finisher, last};
    for (int i = 1; i < 5; ++i)
        QVERIFY(column[i]->y() > column[i - 1]->y());
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestPages::installedChangeWarns()
{
    PrinterPanel panel;
    panel.load(installed);
    panel.load(installed); // connects new widgets, once each
    panel.dialog.remark = [&] { return panel.current("Option17"); };
    panel.widget<QCheckBox>("chkBxOption17")->click();
    QCOMPARE(panel.dialog.takeCalls(), QStringList("setConstraints True"));
    QVERIFY(panel.widget<QLabel>("lblRootWarning"));
    QVERIFY(panel.page->installedOptionsChanged());
    panel.page->recordInstalledValues(); // written
    QVERIFY(!panel.widget<QLabel>("lblRootWarning"));
    QVERIFY(!panel.page->installedOptionsChanged());
}

void TestPages::installedConflict()
{
    PrinterPanel panel;
    panel.load(
        "Option17 5 False* True\nOption18 9 None Staple* Fold\nOption17=True Option18=Staple");
    panel.widget<QCheckBox>("chkBxOption17")->click();
    const auto *finisher = panel.widget<ComboBoxEx>("cmbBxOption18");
    QCOMPARE(finisher->currentText(), QString("None"));
    QCOMPARE(panel.current("Option18"), QString("None"));
    QVERIFY(!(finisher->model()->index(1, 0).flags() & Qt::ItemIsEnabled));
}

void TestPages::installedOptionsGoWithTheirPrinter()
{
    PrinterPanel panel;
    panel.load(installed);
    const QPointer<QCheckBox> former = panel.widget<QCheckBox>("chkBxOption17");
    panel.load("Option17 99 Small* Large");
    QVERIFY(former && former->isHidden()); // it may be the sender of what led here
    QVERIFY(panel.widget<ComboBoxEx>("cmbBxOption17"));
    QVERIFY(!panel.widget<ComboBoxEx>("cmbBxOption18"));
    QCOMPARE(panel.page->collectSettings().size(), 1);

    currentStore = nullptr;
    panel.page->clearPrinterSelection();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!former);
    QVERIFY(panel.page->findChildren<ComboBoxEx *>().isEmpty());
    QVERIFY(panel.page->collectSettings().isEmpty());
}

void TestPages::refreshKeepsInstalledOptions()
{
    PrinterPanel panel;
    panel.load(installed);
    auto *tray = panel.widget<QCheckBox>("chkBxOption17");
    tray->click();
    panel.dialog.takeCalls();
    panel.page->markKeyword("Option17", QString());
    currentStore->setCurrentByKey("Option17", "False");
    panel.page->refreshPage();
    QCOMPARE(panel.widget<QCheckBox>("chkBxOption17"), tray);
    QVERIFY(tray->isChecked());
    QVERIFY(tray->icon().isNull());
    QCOMPARE(panel.current("Option17"), QString("True"));
    QVERIFY(panel.page->installedOptionsChanged());
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

QTEST_MAIN(TestPages)

#include "tst_pages.moc"
