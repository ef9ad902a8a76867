#include "model/optionstore.h"
#include "pages/accounteditdialog.h"
#include "pages/accountlines.h"
#include "pages/accountlistdialog.h"
#include "pages/jobtab.h"
#include "support/recordingdialog.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

namespace {

const QString printer = QStringLiteral("BqManagment 99 Default*\ncJobAccount 7 False True");

/// "ID=description" for each account, sorted, joined by commas.
QString text(const Accounts &accounts)
{
    QStringList lines;
    for (const QString &id : sortedAccountIds(accounts))
        lines << accountLine(id, accounts.value(id));
    return lines.join(',');
}

Accounts accountsOf(const QString &lines)
{
    return accountsFromLines(lines.split(',', Qt::SkipEmptyParts));
}

/// The Job page with its two dialogs.
struct Panel
{
    void load(const QString &settings, const QString &options = printer)
    {
        dialog.selectPrinter(options, settings);
        page->retranslate();
        page->reload();
    }
    void open() { button("butAccountID")->click(); }

    template <typename Widget>
    Widget *find(const QString &name) const
    {
        const QList<Widget *> widgets = page->findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (widget->accessibleName() == name)
                return widget;
        }
        qFatal("no widget %s", qPrintable(name));
        return nullptr;
    }
    QPushButton *button(const char *name) const { return find<QPushButton>(name); }
    ComboBoxEx *box(const char *name) const { return find<ComboBoxEx>(name); }
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
        const auto found = list->table->findItems(id, Qt::MatchExactly);
        list->table->setCurrentItem(found.value(0));
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
    /// The values of the repeated key, sorted.
    QStringList storedLines() const
    {
        const QHash<QString, QString> extra = page->extraSettings();
        QStringList stored;
        for (auto entry = extra.cbegin(); entry != extra.cend(); ++entry) {
            if (entry.key() == QLatin1String("CustomAccountIDStore"))
                stored << entry.value();
        }
        stored.sort();
        return stored;
    }
    QString combo() const
    {
        const ComboBoxEx *ids = box("cmbBxAccountID");
        QStringList texts;
        for (int i = 0; i < ids->count(); ++i)
            texts << (i == ids->currentIndex() ? '[' + ids->itemText(i) + ']' : ids->itemText(i));
        return texts.join(',');
    }

    RecordingDialog dialog;
    JobTab *page = new JobTab(&dialog);
    AccountListDialog *list = page->findChild<AccountListDialog *>();
    AccountEditDialog *edit = list->findChild<AccountEditDialog *>();
};

const QString threeAccounts =
    QStringLiteral("CustomAccountIDStore=20=twenty\nCustomAccountIDStore=100=hundred\n"
                   "CustomAccountIDStore=3=three\nCustomAccountID=20\nBqManagment=20\n");

} // namespace

class TestAccounts : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void enters_data();
    void enters();

    void loads_data();
    void loads();
    void saves();
    void tenThousandAccounts();

    void listIsSortedAsText();
    void newAccount();
    void editedAccount();
    void refusedAccounts();
    void cancelledDeletion();
    void deletedAccount();
};

// Without widgets

void TestAccounts::lines_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("accounts");
    QTest::newRow("sorted as text") << "20=b,3=c,100=a"
                                    << "100=a,20=b,3=c";
    QTest::newRow("no description") << "12=,13"
                                    << "12=,13=";
    QTest::newRow("leading zeros") << "007=Bond,7=Other"
                                   << "007=Bond,7=Other";
    QTest::newRow("description is cut at an equals sign") << "1=a=b=c"
                                                          << "1=a";
    QTest::newRow("without an ID") << ",=lost,1=found"
                                   << "1=found";
    QTest::newRow("same ID twice") << "1=first,1=second"
                                   << "1=second";
}

void TestAccounts::lines()
{
    QFETCH(QString, stored);
    QTEST(text(accountsOf(stored)), "accounts");
}

void TestAccounts::enters_data()
{
    QTest::addColumn<QString>("former"); // ID, empty for a new account
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("fault");
    QTest::addColumn<QString>("accounts");
    const QString before = "12=a,34=b";
    QTest::newRow("new") << ""
                         << "56" << int(AccountFault::None) << "12=a,34=b,56=x";
    QTest::newRow("new without an ID") << ""
                                       << "" << int(AccountFault::NoId) << before;
    QTest::newRow("new with a used ID") << ""
                                        << "12" << int(AccountFault::IdInUse) << before;
    QTest::newRow("description only") << "12"
                                      << "12" << int(AccountFault::None) << "12=x,34=b";
    QTest::newRow("renamed") << "12"
                             << "9" << int(AccountFault::None) << "34=b,9=x";
    QTest::newRow("renamed to a used ID") << "12"
                                          << "34" << int(AccountFault::IdInUse) << before;
    QTest::newRow("renamed to nothing") << "12"
                                        << "" << int(AccountFault::NoId) << before;
}

void TestAccounts::enters()
{
    QFETCH(QString, former);
    QFETCH(QString, id);
    QFETCH(int, fault);
    Accounts accounts = accountsOf("12=a,34=b");
    QCOMPARE(int(enterAccount(&accounts, {id, "x", former.isEmpty(), former})), fault);
    QTEST(text(accounts), "accounts");
}

// The printer's file

void TestAccounts::loads_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("shown"); // switch, mode, typed ID or list
    const QString list = "CustomAccountIDStore=20=b\nCustomAccountIDStore=100=a\n";
    const QString custom = "BqManagment 99 Default Custom.MG77*\ncJobAccount 7 False True";
    QTest::newRow("nothing saved") << "" << printer << "off 1 ";
    QTest::newRow("off") << "BqManagment=Default\n" + list << printer << "off 1 [100],20";
    QTest::newRow("picked") << "BqManagment=20\nCustomAccountID=20\n" + list << printer
                            << "on 1 100,[20]";
    QTest::newRow("typed") << "BqManagment=5\nCustomAccountID=5\n" + list << printer << "on 0 5";
    QTest::newRow("no longer in the list") << "BqManagment=20\nCustomAccountID=20\n"
                                           << printer << "on 0 20";
    QTest::newRow("on without an ID") << "BqManagment=20\n" + list << printer << "off 1 [100],20";
    QTest::newRow("default of the print system") << "" << custom << "on 0 77";
    QTest::newRow("no accounting")
        << "BqManagment=20\nCustomAccountID=20\n" + list << "cEmail 99 False True"
        << "off 0 ";
}

void TestAccounts::loads()
{
    QFETCH(QString, settings);
    QFETCH(QString, options);
    Panel panel;
    panel.load(settings, options);
    const auto *accounting = panel.find<BixCheckBoxButton>("chkButBqManagment");
    const auto *edit = panel.find<QLineEdit>("lnEditAccountID");
    const int mode = panel.box("cmbBxBqManagment")->currentIndex();
    QCOMPARE(edit->isHidden(), mode == 1);
    QCOMPARE(panel.box("cmbBxAccountID")->isHidden(), mode == 0);
    QCOMPARE(panel.button("butAccountID")->isHidden(), mode == 0);
    QTEST(QString("%1 %2 %3")
              .arg(accounting->isChecked() ? "on" : "off")
              .arg(mode)
              .arg(mode == 0 ? edit->text() : panel.combo()),
          "shown");
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestAccounts::saves()
{
    Panel panel;
    panel.load(threeAccounts);
    const QHash<QString, QString> extra = panel.page->extraSettings();
    QCOMPARE(panel.storedLines(), QStringList({"100=hundred", "20=twenty", "3=three"}));
    QCOMPARE(extra.value("CustomAccountID"), QString("20"));
    QCOMPARE(extra.value("BqManagment"), QString("20"));
    // The list stays while accounting is off.
    panel.find<BixCheckBoxButton>("chkButBqManagment")->setChecked(false);
    QCOMPARE(panel.storedLines().size(), 3);
    QCOMPARE(panel.page->extraSettings().value("BqManagment"), QString("Default"));
}

void TestAccounts::tenThousandAccounts()
{
    Panel panel;
    QString settings = "BqManagment=9999\nCustomAccountID=9999\n";
    for (int i = 0; i < 10000; ++i)
        settings += QString("CustomAccountIDStore=%1=%2\n").arg(i).arg(QString(40, 'x'));
    settings += "CustomAccountIDStore=" + QString(100000, '=') + '\n';
    panel.load(settings);
    QCOMPARE(panel.box("cmbBxAccountID")->count(), 10000);
    QCOMPARE(panel.box("cmbBxAccountID")->currentText(), QString("9999"));
    panel.open();
    QCOMPARE(panel.list->table->rowCount(), 10000);
    panel.selectRow("5000");
    panel.list->deleteButton->click();
    panel.press(panel.list->buttonBox, QDialogButtonBox::Ok);
    QCOMPARE(panel.storedLines().size(), 9999);
}

// The dialogs

void TestAccounts::listIsSortedAsText()
{
    Panel panel;
    panel.load(threeAccounts);
    QVERIFY(!panel.list->isVisible());
    panel.open();
    QVERIFY(panel.list->isVisible());
    QCOMPARE(panel.rows(), QString("100=hundred,20=twenty,3=three"));
    // The order that the user chose stays.
    panel.list->table->sortByColumn(1, Qt::DescendingOrder);
    const QString byDescription = "20=twenty,3=three,100=hundred";
    QCOMPARE(panel.rows(), byDescription);
    panel.list->close();
    panel.open();
    QCOMPARE(panel.rows(), byDescription);
}

void TestAccounts::newAccount()
{
    Panel panel;
    panel.load(threeAccounts);
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
    Panel panel;
    panel.load(threeAccounts);
    panel.open();
    panel.selectRow("20");
    QVERIFY(panel.list->editButton->isEnabled());
    panel.list->editButton->click();
    QCOMPARE(panel.edit->windowTitle(), QString("Edit Account ID"));
    QCOMPARE(panel.edit->idEdit->text(), QString("20"));
    QCOMPARE(panel.edit->descriptionEdit->text(), QString("twenty"));
    QCOMPARE(panel.enter("20", "changed"), QString());
    QCOMPARE(panel.rows(), QString("100=hundred,20=changed,3=three"));

    panel.selectRow("3");
    emit panel.list->table->cellDoubleClicked(2, 1);
    QVERIFY(panel.edit->isVisible());
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
    Panel panel;
    panel.load(threeAccounts);
    panel.open();
    const QString before = panel.rows();
    const QString inUse = "Account ID Error: This Account ID already exists.";
    panel.list->newButton->click();
    QCOMPARE(panel.enter("", "x"),
             QString("Account ID Error: Account ID must be 1 to 8 numbers in length"));
    QCOMPARE(panel.enter("20", "x"), inUse);
    QVERIFY(panel.edit->isVisible());
    panel.press(panel.edit->buttonBox, QDialogButtonBox::Cancel);
    panel.selectRow("3");
    panel.list->editButton->click();
    QCOMPARE(panel.enter("20", "x"), inUse);
    QVERIFY(panel.edit->isVisible());
    QCOMPARE(panel.rows(), before);
}

void TestAccounts::cancelledDeletion()
{
    Panel panel;
    panel.load(threeAccounts);
    panel.open();
    panel.selectRow("20");
    panel.list->deleteButton->click();
    QCOMPARE(panel.rows(), QString("100=hundred,3=three"));
    QCOMPARE(panel.combo(), QString("100,[20],3"));
    panel.press(panel.list->buttonBox, QDialogButtonBox::Cancel);
    QVERIFY(!panel.list->isVisible());
    panel.open();
    QCOMPARE(panel.rows(), QString("100=hundred,20=twenty,3=three"));
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestAccounts::deletedAccount()
{
    Panel panel;
    panel.load(threeAccounts);
    panel.open();
    for (const char *id : {"20", "100", "3"}) {
        panel.selectRow(id);
        QVERIFY(panel.list->deleteButton->isEnabled());
        panel.list->deleteButton->click();
    }
    QVERIFY(!panel.list->editButton->isEnabled());
    QVERIFY(!panel.list->deleteButton->isEnabled());
    panel.press(panel.list->buttonBox, QDialogButtonBox::Ok);
    QCOMPARE(panel.combo(), QString());
    QCOMPARE(panel.find<QLabel>("lblBqManagment")->toolTip(),
             QString("You must add an account ID to the list."));
    QVERIFY(panel.page->hasMarks());
}

QTEST_MAIN(TestAccounts)

#include "tst_accounts.moc"
