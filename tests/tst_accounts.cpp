#include "model/optionstore.h"
#include "pages/job/accounteditdialog.h"
#include "pages/job/accountlines.h"
#include "pages/job/accountlistdialog.h"
#include "pages/job/jobtab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

namespace {

const QString threeAccounts =
    QStringLiteral("CustomAccountIDStore=20=twenty; CustomAccountIDStore=100=hundred; "
                   "CustomAccountIDStore=3=three; CustomAccountID=20; BqManagment=20");

/// The Job page with its two dialogs.
struct Panel
{
    /// Settings are lines with "; " between them.
    explicit Panel(QString settings = threeAccounts, const QString &choices = "Default*")
    {
        dialog.selectPrinter("cJobAccount 7 False True\nBqManagment 99 " + choices,
                             settings.replace("; ", "\n"));
        page->retranslate();
        page->reload();
    }
    void open() const { findNamed<QPushButton>(page, "butAccountID")->click(); }
    void press(const QDialogButtonBox *buttons, QDialogButtonBox::StandardButton which) const
    {
        buttons->button(which)->click();
    }

    /// What the table shows, row by row.
    QString rows() const
    {
        QStringList texts;
        for (int row = 0; row < list->table->rowCount(); ++row)
            texts << list->table->item(row, 0)->text() + '=' + list->table->item(row, 1)->text();
        return texts.join(',');
    }
    void selectRow(const QString &id) const
    {
        list->table->setCurrentItem(list->table->findItems(id, Qt::MatchExactly).value(0));
    }
    /// Enters an account in the open edit dialog and answers a message box. The box's title and
    /// text, joined by a colon; empty if none came.
    QString enter(const QString &id, const QString &description) const
    {
        QString message;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, [&message] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                message = box->windowTitle() + ": " + box->text();
                box->accept();
            }
        });
        closer.start(5);
        for (const auto &[line, typed] :
             {std::pair(edit->idEdit, id), std::pair(edit->descriptionEdit, description)}) {
            line->clear();
            QTest::keyClicks(line, typed);
        }
        press(edit->buttonBox, QDialogButtonBox::Ok);
        return message;
    }
    /// All values of a key, sorted.
    QStringList stored(const QString &key) const
    {
        QStringList values = Settings(page->extraSettings()).values(key);
        values.sort();
        return values;
    }
    /// The IDs to pick from, the current one in brackets.
    QString combo() const
    {
        const auto *ids = findNamed<ComboBoxEx>(page, "cmbBxAccountID");
        QStringList texts;
        for (int i = 0; i < ids->count(); ++i)
            texts << (i == ids->currentIndex() ? '[' + ids->itemText(i) + ']' : ids->itemText(i));
        return texts.join(',');
    }

    RecordingDialog dialog;
    JobTab *page = new JobTab(&dialog);
    BixCheckBoxButton *accounting = findNamed<BixCheckBoxButton>(page, "chkButBqManagment");
    AccountListDialog *list = page->findChild<AccountListDialog *>();
    AccountEditDialog *edit = list->findChild<AccountEditDialog *>();
};

} // namespace

class TestAccounts : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();

    void defaultOfThePrintSystem();
    void saves();
    void tenThousandAccounts();

    void listIsSortedAsText();
    void newAccount();
    void editedAccount();
    void refusedAccounts();
    void deletedAccounts();
};

void TestAccounts::lines_data()
{
    addRows({"stored", "accounts"}, R"(
sorted as text      | 20=b,3=c,100=a        | 100=a,20=b,3=c
no description      | 12=,13                | 12=,13=
leading zeros       | 007=Bond,7=Other      | 007=Bond,7=Other
equals sign         | 1=a=b=c               | 1=a
without an ID       | ,=lost,1=found        | 1=found
same ID twice       | 1=first,1=second      | 1=second
)");
}

void TestAccounts::lines()
{
    QFETCH(QString, stored);
    const Accounts accounts = accountsFromLines(stored.split(','));
    QStringList lines;
    for (const QString &id : sortedAccountIds(accounts))
        lines << accountLine(id, accounts.value(id));
    QTEST(lines.join(','), "accounts");
}

// The printer's file

void TestAccounts::defaultOfThePrintSystem()
{
    const Panel panel(QString(), "Default Custom.MG77*");
    QVERIFY(panel.accounting->isChecked());
    QCOMPARE(findNamed<QLineEdit>(panel.page, "lnEditAccountID")->text(), QString("77"));
    QVERIFY(!findNamed<QPushButton>(panel.page, "butAccountID"));
}

void TestAccounts::saves()
{
    const Panel panel;
    const QStringList list = {"100=hundred", "20=twenty", "3=three"};
    QCOMPARE(panel.stored("CustomAccountIDStore"), list);
    QCOMPARE(panel.stored("CustomAccountID"), QStringList("20"));
    QCOMPARE(panel.stored("BqManagment"), QStringList("20"));
    // The list stays while accounting is off.
    panel.accounting->setChecked(false);
    QCOMPARE(panel.stored("CustomAccountIDStore"), list);
    QCOMPARE(panel.stored("BqManagment"), QStringList("Default"));
}

void TestAccounts::tenThousandAccounts()
{
    QString settings = "BqManagment=9999; CustomAccountID=9999";
    for (int i = 0; i < 10000; ++i)
        settings += QString("; CustomAccountIDStore=%1=%2").arg(i).arg(QString(40, 'x'));
    const Panel panel(settings + "; CustomAccountIDStore=" + QString(100000, '='));
    QVERIFY(panel.combo().endsWith(",[9999]"));
    panel.open();
    QCOMPARE(panel.list->table->rowCount(), 10000);
    panel.selectRow("5000");
    panel.list->deleteButton->click();
    panel.press(panel.list->buttonBox, QDialogButtonBox::Ok);
    QCOMPARE(panel.stored("CustomAccountIDStore").size(), 9999);
}

// The dialogs

void TestAccounts::listIsSortedAsText()
{
    const Panel panel;
    panel.open();
    QCOMPARE(panel.rows(), QString("100=hundred,20=twenty,3=three"));
    // The order that the user chose stays.
    const auto reopened = [&](int column) {
        panel.list->table->sortByColumn(column, Qt::DescendingOrder);
        panel.list->close();
        panel.open();
        return panel.rows();
    };
    QCOMPARE(reopened(0), QString("3=three,20=twenty,100=hundred"));
    QCOMPARE(reopened(1), QString("20=twenty,3=three,100=hundred"));
}

void TestAccounts::newAccount()
{
    Panel panel;
    panel.open();
    panel.list->newButton->click();
    QCOMPARE(panel.edit->windowTitle(), QString("New Account ID"));
    const QString description = "A description of more than 31 characters";
    QCOMPARE(panel.enter("0a0123456789", description), QString());
    QVERIFY(!panel.edit->isVisible());
    QCOMPARE(panel.rows().section(',', 0, 0), "00123456=" + description.left(31));
    QCOMPARE(panel.combo(), QString("100,[20],3"));

    panel.dialog.remark = [&] { return panel.combo(); };
    panel.press(panel.list->buttonBox, QDialogButtonBox::Ok);
    QVERIFY(!panel.list->isVisible());
    // The pass sees the new list, and the choice stays.
    QCOMPARE(panel.dialog.takeCalls(), QStringList("setConstraints 00123456,100,[20],3"));
}

void TestAccounts::editedAccount()
{
    const Panel panel;
    panel.open();
    panel.selectRow("20");
    panel.list->editButton->click();
    QCOMPARE(panel.edit->windowTitle(), QString("Edit Account ID"));
    QCOMPARE(panel.edit->idEdit->text() + panel.edit->descriptionEdit->text(), QString("20twenty"));
    QCOMPARE(panel.enter("20", "changed"), QString());
    panel.selectRow("3");
    emit panel.list->table->cellDoubleClicked(2, 1);
    QCOMPARE(panel.enter("4", "four"), QString());
    QCOMPARE(panel.rows(), QString("100=hundred,20=changed,4=four"));

    // A cancelled edit leaves the next new one alone.
    panel.selectRow("4");
    panel.list->editButton->click();
    panel.press(panel.edit->buttonBox, QDialogButtonBox::Cancel);
    QVERIFY(!panel.edit->isVisible());
    panel.list->newButton->click();
    QCOMPARE(panel.edit->idEdit->text(), QString());
    QCOMPARE(panel.enter("5", ""), QString());
    QCOMPARE(panel.rows(), QString("100=hundred,20=changed,4=four,5="));
}

void TestAccounts::refusedAccounts()
{
    const QString noId = "Account ID Error: Account ID must be 1 to 8 numbers in length";
    const QString inUse = "Account ID Error: This Account ID already exists.";
    const Panel panel;
    panel.open();
    const QString before = panel.rows();
    panel.list->newButton->click();
    QCOMPARE(panel.enter("", "x"), noId);
    QCOMPARE(panel.enter("20", "x"), inUse);
    QVERIFY(panel.edit->isVisible());
    panel.press(panel.edit->buttonBox, QDialogButtonBox::Cancel);
    panel.selectRow("3");
    panel.list->editButton->click();
    QCOMPARE(panel.enter("", "x"), noId);
    QCOMPARE(panel.enter("20", "x"), inUse);
    QCOMPARE(panel.rows(), before);
}

void TestAccounts::deletedAccounts()
{
    Panel panel;
    const auto deleteAll = [&] {
        panel.open();
        for (const char *id : {"20", "100", "3"}) {
            panel.selectRow(id);
            panel.list->deleteButton->click();
        }
    };
    deleteAll();
    QCOMPARE(panel.rows(), QString());
    QVERIFY(!panel.list->editButton->isEnabled() && !panel.list->deleteButton->isEnabled());
    panel.press(panel.list->buttonBox, QDialogButtonBox::Cancel);
    QVERIFY(!panel.list->isVisible());
    QCOMPARE(panel.combo(), QString("100,[20],3"));
    QCOMPARE(panel.dialog.takeCalls(), QStringList());

    deleteAll();
    panel.press(panel.list->buttonBox, QDialogButtonBox::Ok);
    QCOMPARE(panel.combo(), QString());
    QCOMPARE(findNamed<QLabel>(panel.page, "lblBqManagment")->toolTip(),
             QString("You must add an account ID to the list."));
    QVERIFY(panel.page->hasMarks());
}

QTEST_MAIN(TestAccounts)

#include "tst_accounts.moc"
