#include "pages/job/emailcheck.h"

#include "functiontests.h"
#include "support/testhelpers.h"

class TestEmailCheck : public QObject
{
    Q_OBJECT

private slots:
    void finds_data();
    void finds();
};

void TestEmailCheck::finds_data()
{
    addRows({"address", "fault"}, R"(
ordinary                          | jo@office.example.com | none
shortest                          | a@b.c                 | none
dot behind the at                 | a@.b                  | none
quote                             | "jo"@x.y              | double quote
nothing                           |                       | empty
no at is told before a blank      | jo example            | format
blank is told before an umlaut    | jö doe@x.y            | blank
umlaut is told before the format  | @jö                   | not ASCII
at first                          | @x.y                  | format
at last                           | jo.doe@               | format
two ats                           | jo@x@y.z              | format
dot before the at                 | jo.@x.y               | format
leading dot                       | .jo@x.y               | format
two dots in the name              | jo..doe@x.y           | format
two dots in the host              | jo@x..y               | format
no dot behind the at              | jo.doe@host           | format
trailing dot                      | jo@x.y.               | format
)");
    const QString longName(120, 'n');
    addRow("quote behind the limit", longName + "@host.y 12\"", "double quote");
    addRow("dot behind the limit", longName + "@host.yy.", "none");
    addRow("cut at its last dot", longName + "@hosts..y", "format");
    addRow("at behind the limit", QString(200, 'n') + "@x.y", "format");
    addRow("limit within a letter", longName + QStringLiteral("@xx.yyyé"), "not ASCII");
    addRow("endless", QString(1000000, '.') + '@', "format");
}

void TestEmailCheck::finds()
{
    const QStringList faults = {"none", "double quote", "empty", "format", "blank", "not ASCII"};
    QFETCH(QString, address);
    QTEST(faults[int(checkEmail(address))], "fault");
}

static const FunctionTests::Entry<TestEmailCheck> entry;

#include "emailcheck.moc"
