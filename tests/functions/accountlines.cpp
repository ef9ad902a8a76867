#include "pages/job/accountlines.h"

#include "functiontests.h"

/// What is kept of stored lines when "FORMER>LINE" is entered, without a former ID for a new
/// account.
static QStringList kept(const QStringList &in)
{
    Accounts accounts = accountsFromLines(in[0].split(','));
    const QString former = in[1].section('>', 0, 0);
    const QString line = in[1].section('>', 1);
    const AccountFault fault = enterAccount(
        &accounts, {line.section('=', 0, 0), line.section('=', 1), former.isEmpty(), former});
    QStringList lines;
    for (const QString &id : sortedAccountIds(accounts))
        lines << accountLine(id, accounts.value(id));
    return {QStringList({"none", "no ID", "in use"})[int(fault)], lines.join(',')};
}

static const FunctionTests::Table table("TestAccountLines", 2, kept, R"(
sorted as text      | 20=b,3=c,100=a    | 3>3=d      | none   | 100=a,20=b,3=d
no description      | 12=,13            | >14=       | none   | 12=,13=,14=
leading zeros       | 007=Bond,7=Other  | 7>07=Other | none   | 007=Bond,07=Other
equals sign         | 1=a=b=c           | >2=b       | none   | 1=a,2=b
without an ID       | ,=lost,1=found    | >=lost     | no ID  | 1=found
same ID twice       | 1=first,1=second  | >1=third   | in use | 1=second
ID of another       | 1=a,2=b           | 1>2=a      | in use | 1=a,2=b
ID taken away       | 1=a               | 1>=a       | no ID  | 1=a
)");
