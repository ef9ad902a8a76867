#include "model/optionstore.h"
#include "pages/booklettab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "widgets/bixbuttongroup.h"

#include <QCheckBox>
#include <QPushButton>
#include <QtTest>

namespace {

const QString booklet = QStringLiteral("BXBooklet 99 None/Off* Left/Left_edge_binding "
                                       "Right/Right_edge_binding\n");
const QString fold = QStringLiteral("Fold/Fold_the_booklet 99 False* True\n");

/// The page's two widgets in words, a greyed one with "-" before it.
QString shown(const BookletTab *page)
{
    const auto *group = page->findChild<BixButtonGroup *>();
    const auto *box = page->findChild<QCheckBox *>();
    const auto greyed = [](const QWidget *widget) { return widget->isEnabled() ? "" : "-"; };
    return greyed(group) + group->currentText() + QStringLiteral(", ") + greyed(box) +
           (box->isChecked() ? "fold" : "flat");
}

} // namespace

class TestBookletTab : public QObject
{
    Q_OBJECT

private slots:
    void loads_data();
    void loads();
    void roundTrip();
};

void TestBookletTab::loads_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<bool>("available");
    QTest::addColumn<QString>("widgets");
    const auto row = [](const char *name, const QString &options, const char *settings,
                        bool available, const char *widgets) {
        QTest::newRow(name) << options << settings << available << widgets;
    };
    const QString both = booklet + fold;
    // Without bindings the buttons stay as the printer before left them.
    const char *const noBinding = "-Right edge binding, fold";
    row("makes no booklets", "A 99 B", "Fold=True", false, "-Right edge binding, -flat");
    row("binds but can't fold", booklet, "BXBooklet=Left", true, "Left edge binding, -flat");
    row("folds but can't bind", fold, "Fold=True", true, noBinding);
    row("nothing saved", both, "", true, "Off, flat");
    row("both saved", both, "BXBooklet=Right\nFold=True", true, "Right edge binding, fold");
    row("the printer lost the binding", both, "BXBooklet=Top", true, "Off, flat");
    row("only one binding", "BXBooklet 99 L/Left_edge_binding*", "", true,
        "-Left edge binding, -flat");
    row("bindings with one name", "BXBooklet 99 A/Off B/Off* C/Off", "", true, "Off, -flat");
    row("fold with one value", "Fold 99 True*", "", true, noBinding);
}

void TestBookletTab::loads()
{
    QFETCH(QString, options);
    QFETCH(QString, settings);
    RecordingDialog dialog;
    auto *page = new BookletTab(&dialog);
    QVERIFY(!page->isAvailable());
    dialog.selectPrinter(booklet + fold, "BXBooklet=Right\nFold=True"); // a printer before
    page->reload();
    QCOMPARE(page->findChild<QCheckBox *>()->text(), QStringLiteral("Fold the booklet"));
    dialog.selectPrinter(options, settings);
    page->reload();
    QTEST(page->isAvailable(), "available");
    QTEST(shown(page), "widgets");
}

void TestBookletTab::roundTrip()
{
    RecordingDialog dialog;
    auto *page = new BookletTab(&dialog);
    dialog.selectPrinter(booklet + fold);
    page->reload();
    page->findChild<BixButtonGroup *>()->buttonAt(1)->click();
    page->findChild<QCheckBox *>()->click();
    QCOMPARE(RecordingDialog::current("BXBooklet"), QStringLiteral("Left"));
    QCOMPARE(dialog.takeCalls().size(), 2);
    writeCfg(currentCfgPath, Settings(page->collectSettings()), true);

    auto *fresh = new BookletTab(&dialog);
    fresh->reload();
    QCOMPARE(shown(fresh), QStringLiteral("Left edge binding, fold"));
    fresh->markKeyword("Fold", QString()); // each widget carries its own mark
    QVERIFY(!fresh->findChild<QCheckBox *>()->icon().isNull() && fresh->hasMarks());
}

QTEST_MAIN(TestBookletTab)

#include "tst_booklettab.moc"
