// The login at the policy server: what goes over the line to a real HTTPS server, and what is made
// of its answers.

#include "policy/bcurl.h"
#include "policy/policyreply.h"
#include "support/policyserver.h"
#include "support/testhelpers.h"

namespace {

constexpr int settleMs = 400; // longer than the pause between two pieces of an answer
constexpr int megabyte = 1 << 20;

QStringList texts(const QSignalSpy &spy)
{
    QStringList list;
    for (const QList<QVariant> &call : spy)
        list.append(call.first().toString());
    return list;
}

QByteArray ok(const QByteArray &body, int length = -1)
{
    return PolicyServer::httpReply("200 OK", body, length);
}

} // namespace

Q_DECLARE_METATYPE(QList<QByteArray>)

class TestPolicyClient : public QObject
{
    Q_OBJECT

private slots:
    void request_data();
    void request();
    void answers_data();
    void answers();
    void slowAnswerOvertaken();
    void dialogWhileAnswerGoesOn();
    void unreachable();

    void tags_data();
    void tags();
    void policies_data();
    void policies();
    void reports_data();
    void reports();
};

// Over the line

void TestPolicyClient::request_data()
{
    addRows({"user", "password", "body"}, R"(
plain                           | ann     | secret        | userID=ann&userPWD=secret
delimiters stay                 | a=b     | x&y=z#?       | userID=a=b&userPWD=x&y=z#?
blanks and plus stay            | ann lee | a + b         | userID=ann lee&userPWD=a + b
other alphabets                 | Zoë     | Ω€            | userID=Zoë&userPWD=Ω€
empty                           |         |               | userID=&userPWD=
percent and digits are decoded  | u       | %41%2f%7E     | userID=u&userPWD=A/~
percent and less stays          | u       | 100%, %4, %zz | userID=u&userPWD=100%, %4, %zz
quotes and backslashes          | u       | \"'`$<>{}^    | userID=u&userPWD=\"'`$<>{}^)");
}

void TestPolicyClient::request()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, body);
    PolicyServer server;
    server.answerWithBody("{}");
    bcurl client;
    client.post(server.url(), user, password);
    QTRY_COMPARE(server.requests.size(), 1);
    const QString wanted =
        "POST /ws/user_manager/MobileAccess/MobileAccessRestService/loginPost HTTP/1.1\r\n"
        "Host: 127.0.0.1:%1\r\n"
        "Content-Type: text/*\r\n"
        "charsets: utf-8\r\n"
        "User-Agent: BQP\r\n"
        "Content-Length: %2\r\n"
        "Connection: Keep-Alive\r\n"
        "Accept-Encoding: gzip, deflate\r\n"
        "Accept-Language: en,*\r\n"
        "\r\n";
    QCOMPARE(QString::fromUtf8(server.requests.first()),
             wanted.arg(server.port()).arg(body.toUtf8().size()) + body);
}

void TestPolicyClient::answers_data()
{
    // The messages stand without the tag. There may be "more" errors than "errors" by chance.
    addColumns<QList<QByteArray>, QStringList, int, int>("pieces", "messages", "errors", "more");
    const auto row = [](const char *name, const QList<QByteArray> &pieces,
                        const QStringList &messages, int errors,
                        int more = 0) { addRow(name, pieces, messages, errors, more); };
    const QByteArray good = R"({"Policies":{"JE.FullColorPrint":"ON"}})";
    const QByteArray refused = R"({"error":"INVALID_USER_NAME_OR_PASSWORD"})";
    const QByteArray fault = "500 Internal Server Error";
    row("good", {ok(good)}, {good}, 0);
    row("other alphabets", {ok("{\"n\":\"Zoë\"}")}, {"{\"n\":\"Zoë\"}"}, 0);
    row("refused", {ok(refused)}, {refused}, 0);
    row("no policies", {ok("{}")}, {"{}"}, 0);
    row("no JSON", {ok("<html>Hello")}, {"<html>Hello"}, 0);
    row("zero byte ends it", {ok(QByteArray("a\0b", 3))}, {"a"}, 0);
    row("no UTF-8", {ok("a\xff")}, {"a\uFFFD"}, 0);
    row("nothing in it", {ok({})}, {}, 0);
    row("server fault with a page, at once", {PolicyServer::httpReply(fault, "oops")}, {"oops"}, 1);
    row("server fault with a page, in pieces", {PolicyServer::httpReply(fault, "oo", 4), "ps"},
        {"oo"}, 0);
    row("server fault with nothing", {PolicyServer::httpReply(fault, {})}, {}, 1);
    row("in two pieces", {ok("one", 6), "two"}, {"one"}, 0);
    row("headers first, body later", {ok({}, 3), "one"}, {"one"}, 0);
    // Who is faster, the end of the connection or the end of the reply?
    row("closed half-way", {ok("one", 6)}, {"one"}, 0, 1);
    row("closed half-way after a while", {ok("one", 6), {}}, {"one"}, 0);
    row("closed in the headers", {"HTTP/1.1 200 OK\r\nContent-Ty"}, {}, 1);
    row("closed at once", {}, {}, 1);
    row("no HTTP", {"220 mail.example.com ESMTP\r\n\r\n"}, {}, 1);
}

void TestPolicyClient::answers()
{
    QFETCH(QList<QByteArray>, pieces);
    QFETCH(QStringList, messages);
    QFETCH(int, errors);
    QFETCH(int, more);
    PolicyServer server;
    server.answerWith(pieces);
    bcurl client;
    QSignalSpy messageSpy(&client, &bcurl::messageReady);
    QSignalSpy errorSpy(&client, &bcurl::errorReady);
    client.post(server.url(), "ann lee", "secret");

    // Qt tries again before it gives up a connection that ends without an answer.
    QTRY_VERIFY(server.closed > 0 && errorSpy.size() >= errors);
    QTest::qWait(settleMs);
    const QString tag = QString("<%1 ann lee>").arg(server.url());
    QCOMPARE(texts(messageSpy), messages.replaceInStrings(QRegularExpression("^"), tag));
    QVERIFY2(errorSpy.size() >= errors && errorSpy.size() <= errors + more,
             qPrintable(QString::number(errorSpy.size())));
    for (const QString &error : texts(errorSpy))
        QVERIFY2(error.startsWith(tag) && error.size() > tag.size(), qPrintable(error));
}

void TestPolicyClient::slowAnswerOvertaken()
{
    // Requests run beside each other, and one may be huge.
    PolicyServer slow;
    slow.answerWith({{}, {}, ok(QByteArray(10 * megabyte, '{'))}, 1000);
    PolicyServer fast;
    fast.answerWithBody("{}");
    bcurl client;
    QSignalSpy spy(&client, &bcurl::messageReady);
    client.post(slow.url(), "slow", QString());
    client.post(fast.url(), "fast", QString());
    QTRY_COMPARE(spy.size(), 1);
    QVERIFY(texts(spy).first().endsWith(" fast>{}"));
    QTRY_COMPARE(spy.size(), 2);
    const QString message = texts(spy).last();
    QVERIFY(message.contains(QRegularExpression("\\A<https://[^>]* slow>\\{+\\z")));
    QTest::qWait(settleMs);
    QCOMPARE(spy.size(), 2);
}

void TestPolicyClient::dialogWhileAnswerGoesOn()
{
    // Whoever hears of the first piece may hold on to it while the rest arrives.
    PolicyServer server;
    server.answerWith({ok("one", 9), "two", "end"}, 100);
    bcurl client;
    int messages = 0;
    connect(&client, &bcurl::messageReady, this, [&messages] {
        ++messages;
        QTest::qWait(settleMs);
    });
    client.post(server.url(), QString(), QString());
    QTRY_COMPARE(server.closed, 1);
    QTest::qWait(settleMs);
    QCOMPARE(messages, 1);
}

void TestPolicyClient::unreachable()
{
    QStringList tags;
    bcurl client;
    QSignalSpy messageSpy(&client, &bcurl::messageReady);
    QSignalSpy errorSpy(&client, &bcurl::errorReady);
    for (const QString &host :
         {QString("127.0.0.1:1"), QString("my server:9094"), QString("a:b:c:9094"),
          QString(260, 'n') + ":9094", QString("nowhere.invalid:9094"), QString("[::1:9094"),
          QString("127.0.0.1:"), QString("127.0.0.1:9999999999999999"), QString(":")}) {
        tags.append("<https://" + host + " ann>");
        client.post("https://" + host, "ann", "secret");
    }
    QTRY_COMPARE(errorSpy.size(), tags.size());
    for (const QString &tag : qAsConst(tags))
        QVERIFY2(texts(errorSpy).filter(tag).size() == 1, qPrintable(tag));
    QTest::qWait(settleMs);
    QCOMPARE(errorSpy.size(), tags.size());
    QCOMPARE(messageSpy.size(), 0);
}

// What is made of an answer

void TestPolicyClient::tags_data()
{
    // Stale or not for host h, port 9094, user "ann lee".
    addColumns<QString, bool, QString>("message", "stale", "body");
    addRow("same login", "<https://h:9094 ann lee>{}", false, "{}");
    addRow("several lines", "<https://h:9094 ann lee>{\n\"a\":1}\n", false, "{\n\"a\":1}\n");
    addRow("angle brackets in the body", "<https://h:9094 ann lee><p>a</p>", false, "<p>a</p>");
    addRow("empty body", "<https://h:9094 ann lee>", false, "");
    addRow("other server", "<https://i:9094 ann lee>{}", true, "{}");
    addRow("other port", "<https://h:9095 ann lee>{}", true, "{}");
    addRow("other user, several lines", "<https://h:9094 ann>\n{\n}", true, "\n{\n}");
    addRow("upper case", "<https://H:9094 ann lee>{}", true, "{}");
    addRow("address with colons", "<https://[::1]:9094 ann lee>{}", true, "{}");
    addRow("no tag", "{}", false, "{}");
    addRow("tag of something else", "<p>{}", false, "{}");
}

void TestPolicyClient::tags()
{
    QFETCH(QString, message);
    QTEST(PolicyReply::isStale(message, "h", "9094", "ann lee"), "stale");
    QTEST(PolicyReply::withoutTag(message), "body");
}

void TestPolicyClient::policies_data()
{
    // Color, leanprint, duplex; before they are On Off On.
    addColumns<QString, bool, QString>("body", "accepted", "after");
    addRow("all three", R"({"Policies":{"JE.FullColorPrint":"ON",
        "DR.LeanPrintRestriction":"PV.On","DR.DuplexRestriction":"PV.On"}})",
           true, "On On On");
    addRow("none of them named", R"({"Policies":{}})", true, "On Off On");
    addRow("one lifted, one added", R"({"Policies":{"JE.FullColorPrint":"OFF",
        "DR.LeanPrintRestriction":"PV.On"}})",
           true, "Off On On");
    addRow("other case",
           R"({"Policies":{"JE.FullColorPrint":"on","DR.DuplexRestriction":"PV.ON"}})", true,
           "Off Off Off");
    addRow("no strings", R"({"Policies":{"JE.FullColorPrint":true,"DR.DuplexRestriction":null}})",
           true, "Off Off Off");
    addRow("policies are a list", R"({"Policies":["JE.FullColorPrint"]})", true, "On Off On");
    addRow("no policies", R"({"policies":{"JE.FullColorPrint":"ON"}})", false, "Off Off Off");
    addRow("a list", R"([{"Policies":{}}])", false, "Off Off Off");
    addRow("cut off", R"({"Policies":{"JE.FullColorPrint":"ON")", false, "Off Off Off");
    addRow("no JSON", "INVALID_USER_NAME_OR_PASSWORD", false, "Off Off Off");
    addRow("10 MB of nonsense", QString(10 * megabyte, '{'), false, "Off Off Off");
    addRow("10 MB of lists", QString(10 * megabyte, '['), false, "Off Off Off");
}

void TestPolicyClient::policies()
{
    QFETCH(QString, body);
    Policies policies{{"FKPColorMode", "On"}, {"FKPLeanprint", "Off"}, {"FKPDuplex", "On"}};
    QTEST(PolicyReply::parsePolicies(body, &policies), "accepted");
    QCOMPARE(policies.size(), 3);
    QTEST(policies["FKPColorMode"] + ' ' + policies["FKPLeanprint"] + ' ' + policies["FKPDuplex"],
          "after");
}

void TestPolicyClient::reports_data()
{
    // What is reported when the user has pressed Verify, and when not.
    addColumns<QString, QString, QString>("body", "asked", "silent");
    const QString unknown = "An unspecified error occured.";
    const QString failed = "Login failed. The user name or password you entered is incorrect.";
    const QString done =
        "Server and user credentials have been authenticated and policies have been applied.\n\n"
        "Credentials and policies will be checked again during printing.\n";
    const QString forbidden = "You do not have permission to print.";
    addRow("accepted", R"({"Policies":{}})", done, "");
    addRow("refused, as text", "INVALID_USER_NAME_OR_PASSWORD", failed, failed);
    addRow("refused, as JSON", R"({"e":"INVALID_USER_NAME_OR_PASSWORD"})", done, failed);
    addRow("may not print", R"({"Policies":{"JE.MonoPrint":"ON"}})", forbidden, forbidden);
    addRow("may not print, with blanks", R"({"JE.MonoPrint": "ON"})", done, "");
    addRow("refused and may not print", R"(INVALID_USER_NAME_OR_PASSWORD "JE.MonoPrint":"ON")",
           forbidden, forbidden);
    addRow("nonsense", "<html>", unknown, "");
}

void TestPolicyClient::reports()
{
    QFETCH(QString, body);
    QTEST(PolicyReply::report(body, true), "asked");
    QTEST(PolicyReply::report(body, false), "silent");
}

QTEST_MAIN(TestPolicyClient)

#include "tst_policyclient.moc"
