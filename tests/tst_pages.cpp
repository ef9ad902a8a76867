#include "model/optionstore.h"
#include "pages/basic/generaltab.h"
#include "pages/printer/printertab.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
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
    void color();
    void colorClickMovesTheOptionFirst();
    void customSizeIsNotOffered();
    void paperSizeReachesItsAliases();
    void labelsOfOtherPrinters();
    void installedOptionsAppear();
    void installedChange();
    void installedOptionsGoWithTheirPrinter();
};

// Basic

void TestPages::color()
{
    GeneralPanel panel;
    const BixButtonGroup *group = panel.page->colorGroup();
    const auto *label = group->findChild<QLabel *>();
    const QColor normal = label->palette().color(label->foregroundRole());
    const auto loaded = [&](const QString &options) {
        panel.load(colorOption); // a printer before
        panel.load(options, "ColorModel=CMYK");
        panel.page->enableOptions(); // a constraint pass leaves it so
        return QString("%1 %2%3").arg(label->text(), group->isEnabled() ? "" : "disabled ",
                                      panel.page->collectSettings().value("ColorModel"));
    };
    QCOMPARE(loaded(colorOption), QString("Color: Full color CMYK"));
    QCOMPARE(loaded("ColorModel 99 Mono/Monochrome*"), QString("Color: Black & white disabled "));
    QCOMPARE(loaded("ColorModel 99 Gray/Black_&_white*"),
             QString("Color: Black & white disabled Gray"));
    QCOMPARE(label->palette().color(QPalette::Disabled, label->foregroundRole()), normal);
    QCOMPARE(loaded("Other 99 A"), QString("Color: Black & white disabled "));
    QCOMPARE(label->palette().color(QPalette::Disabled, label->foregroundRole()), normal);
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

void TestPages::customSizeIsNotOffered()
{
    GeneralPanel panel;
    const auto loaded = [&](const QString &options, const QString &saved) {
        panel.load(options, "PageSize=" + saved);
        const auto *box = panel.widget<ComboBoxEx>("cmbBxPageSize");
        return QString("%1 of %2, %3")
            .arg(box->currentText())
            .arg(box->count())
            .arg(panel.current("PageSize"));
    };
    QCOMPARE(loaded(paperOption, "A5"), QString("A5 of 2, A5"));
    QCOMPARE(loaded("PageSize 99 A5 Custom/Own A4*", "Custom"), QString("A4 of 2, A4"));
    QCOMPARE(loaded("PageSize 99 A5 A4 Custom*", QString()), QString("A5 of 2, A5"));
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

const QString installed = QStringLiteral("Option27/Last 99 False* B\n"
                                         "Option18/Finisher 9 None* Staple/Staple_&_fold\n"
                                         "Option17/Tray_R&D 5 True False*\n"
                                         "Option8/Disk 99 False True* Maybe\n"
                                         "Other 99 A* B\n"
                                         "Option17=True Option18=Staple\n");

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
    QVERIFY(!tray->isChecked() && disk->isChecked());
    QCOMPARE(label->text(), QString("Finisher:"));
    QCOMPARE(finisher->currentText(), QString("Staple & fold"));

    const QWidget *column[] = {tray, disk, label, finisher, last};
    for (int i = 1; i < 5; ++i)
        QVERIFY(column[i]->y() > column[i - 1]->y());
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestPages::installedChange()
{
    PrinterPanel panel;
    panel.load(installed);
    panel.load(installed, "Option18=Staple"); // connects new widgets, once each
    panel.dialog.remark = [&] { return panel.current("Option17") + panel.current("Option18"); };
    auto *tray = panel.widget<QCheckBox>("chkBxOption17");
    tray->click();
    QCOMPARE(panel.dialog.takeCalls(), QStringList("setConstraints TrueNone")); // it excludes that
    QCOMPARE(panel.widget<ComboBoxEx>("cmbBxOption18")->currentText(), QString("None"));

    panel.page->markKeyword("Option17", QString());
    currentStore->setCurrentByKey("Option17", "False");
    panel.page->refreshPage(); // keeps it
    QCOMPARE(panel.widget<QCheckBox>("chkBxOption17"), tray);
    QVERIFY(tray->isChecked() && tray->icon().isNull());
    QCOMPARE(panel.current("Option17"), QString("True"));
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    QVERIFY(panel.page->installedOptionsChanged());
    panel.page->recordInstalledValues(); // written
    QVERIFY(!panel.page->installedOptionsChanged());
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
    panel.page->reload();
    panel.page->refreshPage();
    QVERIFY(!panel.page->installedOptionsChanged());
}

QTEST_MAIN(TestPages)

#include "tst_pages.moc"
