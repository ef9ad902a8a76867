#include "pages/job/accountlines.h"

#include "functiontests.h"
#include "support/testhelpers.h"

class TestAccountLines : public QObject
{
    Q_OBJECT

private slots:
    void keeps_data();
    void keeps();
};

void TestAccountLines::keeps_data()
{
    // What is entered: the former ID, none for a new account, and the new line.
    addRows({"stored", "entered", "fault", "accounts"}, R"(
sorted as text      | 20=b,3=c,100=a    | 3>3=d      | none   | 100=a,20=b,3=d
no description      | 12=,13            | >14=       | none   | 12=,13=,14=
leading zeros       | 007=Bond,7=Other  | 7>07=Other | none   | 007=Bond,07=Other
equals sign         | 1=a=b=c           | >2=b       | none   | 1=a,2=b
without an ID       | ,=lost,1=found    | >=lost     | no ID  | 1=found
same ID twice       | 1=first,1=second  | >1=third   | in use | 1=second
ID of another       | 1=a,2=b           | 1>2=a      | in use | 1=a,2=b
ID taken away       | 1=a               | 1>=a       | no ID  | 1=a
)");
}

void TestAccountLines::keeps()
{
    QFETCH(QString, stored);
    QFETCH(QString, entered);
    Accounts accounts = accountsFromLines(stored.split(','));
    const QString former = entered.section('>', 0, 0);
    const QString line = entered.section('>', 1);
    const AccountFault fault = enterAccount(
        &accounts, {line.section('=', 0, 0), line.section('=', 1), former.isEmpty(), former});
    QTEST(QStringList({"none", "no ID", "in use"})[int(fault)], "fault");
    QStringList lines;
    for (const QString &id : sortedAccountIds(accounts))
        lines << accountLine(id, accounts.value(id));
    QTEST(lines.join(','), "accounts");
}

static const FunctionTests::Entry<TestAccountLines> entry;

#include "accountlines.moc"
