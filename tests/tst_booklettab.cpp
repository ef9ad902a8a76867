#include "pages/layout/booklettab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "widgets/bixbuttongroup.h"

#include <QCheckBox>
#include <QPushButton>
#include <QtTest>

namespace {

const QString booklet = "BXBooklet 99 None/Off* Left/Left_edge_binding Right/Right_edge_binding\n";
const QString fold = "Fold/Fold_the_booklet 99 False* True\n";

/// The page's two widgets in words, a greyed one with "-" before it.
QString shown(const BookletTab *page)
{
    const auto *group = page->findChild<BixButtonGroup *>();
    const auto *box = page->findChild<QCheckBox *>();
    const auto greyed = [](const QWidget *widget) { return widget->isEnabled() ? "" : "-"; };
    return greyed(group) + group->currentText() + ", " + greyed(box) +
           (box->isChecked() ? "fold" : "flat");
}

} // namespace

class TestBookletTab : public QObject
{
    Q_OBJECT

private slots:
    void offersWhatThePrinterHas();
    void roundTrip();
};

void TestBookletTab::offersWhatThePrinterHas()
{
    RecordingDialog dialog;
    auto *page = new BookletTab(&dialog);
    QVERIFY(!page->isAvailable());
    const auto loaded = [&](const QString &options) {
        dialog.selectPrinter(options, "BXBooklet=Right\nFold=True");
        page->reload();
        return shown(page) + (page->isAvailable() ? "" : ", no such page");
    };
    QCOMPARE(loaded(booklet + fold), QString("Right edge binding, fold"));
    QCOMPARE(page->findChild<QCheckBox *>()->text(), QString("Fold the booklet"));
    QCOMPARE(loaded(booklet), QString("Right edge binding, -flat"));
    QCOMPARE(loaded(fold), QString("-Right edge binding, fold"));
    QCOMPARE(loaded("A 99 B"), QString("-Right edge binding, -flat, no such page"));
}

void TestBookletTab::roundTrip()
{
    RecordingDialog dialog;
    auto *page = new BookletTab(&dialog);
    dialog.selectPrinter(booklet + fold);
    page->reload();
    page->findChild<BixButtonGroup *>()->buttonAt(1)->click();
    page->findChild<QCheckBox *>()->click();
    QCOMPARE(RecordingDialog::current("BXBooklet"), QString("Left"));
    QCOMPARE(dialog.takeCalls().size(), 2);
    writeCfg(currentCfgPath, Settings(page->collectSettings()), true);

    auto *fresh = new BookletTab(&dialog);
    fresh->reload();
    QCOMPARE(shown(fresh), QString("Left edge binding, fold"));
    fresh->markKeyword("Fold", QString()); // each widget carries its own mark
    QVERIFY(!fresh->findChild<QCheckBox *>()->icon().isNull() && fresh->hasMarks());
}

QTEST_MAIN(TestBookletTab)

#include "tst_booklettab.moc"
