// The login at the policy server: what goes over the line to a real HTTPS server, and what is made
// of its answers.

#include "policy/bcurl.h"
#include "policy/policyreply.h"
#include "support/policyserver.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr int settleMs = 400; // longer than the pause between two pieces of an answer
constexpr int megabyte = 1 << 20;

const QByteArray restrictedBody = R"({"Policies":{"JE.FullColorPrint":"ON"}})";

/// A row of test data; texts may be literals.
template <typename... Cells>
void addRow(const char *name, const Cells &...cells)
{
    (QTest::newRow(name) << ... << cells);
}

QStringList texts(const QSignalSpy &spy)
{
    QStringList list;
    for (const QList<QVariant> &call : spy)
        list.append(call.first().toString());
    return list;
}

/// "color leanprint duplex" as far as they are in force.
QString inForce(const Policies &policies)
{
    QStringList list;
    for (const auto &[option, name] : {std::pair("FKPColorMode", "color"),
                                       {"FKPLeanprint", "leanprint"},
                                       {"FKPDuplex", "duplex"}})
        if (policies.value(QLatin1String(option)) == QLatin1String("On"))
            list.append(QLatin1String(name));
    return list.join(QLatin1Char(' '));
}

} // namespace

Q_DECLARE_METATYPE(QList<QByteArray>)

class TestPolicyClient : public QObject
{
    Q_OBJECT

private slots:
    void request();
    void bodyOfRequest_data();
    void bodyOfRequest();
    void answers_data();
    void answers();
    void slowAnswerOvertaken();
    void dialogWhileAnswerGoesOn();
    void unreachable_data();
    void unreachable();

    void staleness_data();
    void staleness();
    void tagTakenOff_data();
    void tagTakenOff();
    void policies_data();
    void policies();
    void reports_data();
    void reports();
};

// Over the line

void TestPolicyClient::request()
{
    PolicyServer server;
    server.answerWithBody(restrictedBody);
    bcurl client;
    client.post(server.url(), QStringLiteral("ann"), QStringLiteral("secret"));
    QTRY_COMPARE(server.requests.size(), 1);
    const QByteArray wanted =
        "POST /ws/user_manager/MobileAccess/MobileAccessRestService/loginPost HTTP/1.1\r\n"
        "Host: 127.0.0.1:" +
        server.port().toLatin1() +
        "\r\n"
        "Content-Type: text/*\r\n"
        "charsets: utf-8\r\n"
        "User-Agent: BQP\r\n"
        "Content-Length: 25\r\n"
        "Connection: Keep-Alive\r\n"
        "Accept-Encoding: gzip, deflate\r\n"
        "Accept-Language: en,*\r\n"
        "\r\n"
        "userID=ann&userPWD=secret";
    QCOMPARE(server.requests.first(), wanted);
}

void TestPolicyClient::bodyOfRequest_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char *name, const char *user, const char *password,
                        const char *body) {
        addRow(name, QString::fromUtf8(user), QString::fromUtf8(password), QByteArray(body));
    };
    row("delimiters stay", "a=b", "x&y=z#?", "userID=a=b&userPWD=x&y=z#?");
    row("blanks and plus stay", "ann lee", "a + b", "userID=ann lee&userPWD=a + b");
    row("other alphabets", "Zoë", "Ω€", "userID=Zoë&userPWD=Ω€");
    row("empty", "", "", "userID=&userPWD=");
    row("percent and two digits are decoded", "u", "%41%2f%7E", "userID=u&userPWD=A/~");
    row("percent and less stays", "u", "100%, %4, %zz", "userID=u&userPWD=100%, %4, %zz");
    row("quotes and backslashes", "u", "\\\"'`$<>{}|^", "userID=u&userPWD=\\\"'`$<>{}|^");
}

void TestPolicyClient::bodyOfRequest()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    PolicyServer server;
    server.answerWithBody(restrictedBody);
    bcurl client;
    client.post(server.url(), user, password);
    QTRY_COMPARE(server.requests.size(), 1);
    const QByteArray request = server.requests.first();
    QTEST(request.mid(request.indexOf("\r\n\r\n") + 4), "body");
}

void TestPolicyClient::answers_data()
{
    QTest::addColumn<QList<QByteArray>>("pieces");
    QTest::addColumn<QStringList>("messages"); // without the tag
    QTest::addColumn<int>("errors");           // this many
    QTest::addColumn<int>("more");             // or as many more
    const auto row = [](const char *name, const QList<QByteArray> &pieces,
                        const QStringList &messages, int errors,
                        int more = 0) { addRow(name, pieces, messages, errors, more); };
    const QByteArray refused = R"({"error":"INVALID_USER_NAME_OR_PASSWORD"})";
    const QString restricted = QString::fromUtf8(restrictedBody);
    const auto ok = [](const QByteArray &body, int length = -1) {
        return PolicyServer::httpReply("200 OK", body, length);
    };
    const QByteArray fault = "500 Internal Server Error";

    row("good", {ok(restrictedBody)}, {restricted}, 0);
    row("other alphabets", {ok("{\"n\":\"Zo\xc3\xab\"}")}, {QString::fromUtf8("{\"n\":\"Zoë\"}")},
        0);
    row("refused", {ok(refused)}, {QString::fromUtf8(refused)}, 0);
    row("no policies", {ok("{}")}, {QStringLiteral("{}")}, 0);
    row("no JSON", {ok("<html>Hello")}, {QStringLiteral("<html>Hello")}, 0);
    row("zero byte ends it", {ok(QByteArray("a\0b", 3))}, {QStringLiteral("a")}, 0);
    row("no UTF-8", {ok("a\xff")}, {QString(QLatin1Char('a')) + QChar(QChar::ReplacementCharacter)},
        0);
    row("nothing in it", {ok({})}, {}, 0);
    row("server fault with a page, at once", {PolicyServer::httpReply(fault, "oops")},
        {QStringLiteral("oops")}, 1);
    row("server fault with a page, in pieces", {PolicyServer::httpReply(fault, "oo", 4), "ps"},
        {QStringLiteral("oo")}, 0);
    row("server fault with nothing", {PolicyServer::httpReply(fault, {})}, {}, 1);
    row("in two pieces", {ok(restrictedBody.left(9), restrictedBody.size()), restrictedBody.mid(9)},
        {restricted.left(9)}, 0);
    row("headers first, body later", {ok({}, restrictedBody.size()), restrictedBody}, {restricted},
        0);
    // Who is faster, the end of the connection or the end of the reply?
    row("closed half-way", {ok(restrictedBody.left(9), restrictedBody.size())},
        {restricted.left(9)}, 0, 1);
    row("closed half-way after a while", {ok(restrictedBody.left(9), restrictedBody.size()), {}},
        {restricted.left(9)}, 0);
    row("closed in the headers", {"HTTP/1.1 200 OK\r\nContent-Ty"}, {}, 1);
    row("closed at once", {}, {}, 1);
    row("no HTTP", {"220 mail.example.com ESMTP\r\n\r\n"}, {}, 1);
}

void TestPolicyClient::answers()
{
    QFETCH(QList<QByteArray>, pieces);
    QFETCH(QStringList, messages);
    QFETCH(int, errors);
    PolicyServer server;
    server.answerWith(pieces);
    bcurl client;
    QSignalSpy messageSpy(&client, &bcurl::messageReady);
    QSignalSpy errorSpy(&client, &bcurl::errorReady);
    client.post(server.url(), QStringLiteral("ann lee"), QStringLiteral("secret"));

    // Qt tries again before it gives up a connection that ends without an answer.
    QTRY_VERIFY(server.closed > 0 && errorSpy.size() >= errors);
    QTest::qWait(settleMs);
    const QString tag = QStringLiteral("<%1 ann lee>").arg(server.url());
    for (QString &message : messages)
        message.prepend(tag);
    QCOMPARE(texts(messageSpy), messages);
    QFETCH(int, more);
    QVERIFY2(errorSpy.size() >= errors && errorSpy.size() <= errors + more,
             qPrintable(QString::number(errorSpy.size())));
    for (const QString &error : texts(errorSpy))
        QVERIFY2(error.startsWith(tag) && error.size() > tag.size(), qPrintable(error));
}

void TestPolicyClient::slowAnswerOvertaken()
{
    // Requests run beside each other, and one may be huge.
    PolicyServer slow;
    const QByteArray nonsense(10 * megabyte, '{');
    slow.answerWith({{}, {}, PolicyServer::httpReply("200 OK", nonsense)}, 1000);
    PolicyServer fast;
    fast.answerWithBody("{}");
    bcurl client;
    QSignalSpy spy(&client, &bcurl::messageReady);
    client.post(slow.url(), QStringLiteral("slow"), QString());
    client.post(fast.url(), QStringLiteral("fast"), QString());
    QTRY_COMPARE(spy.size(), 1);
    QVERIFY(texts(spy).first().endsWith(QLatin1String(" fast>{}")));
    QTRY_COMPARE(spy.size(), 2);
    const QString tag = QStringLiteral("<%1 slow>").arg(slow.url());
    const QString message = texts(spy).last();
    QVERIFY(message.startsWith(tag + QLatin1Char('{')));
    QCOMPARE(message.size() - tag.size(), message.count(QLatin1Char('{')));
    QTest::qWait(settleMs);
    QCOMPARE(spy.size(), 2);
}

void TestPolicyClient::dialogWhileAnswerGoesOn()
{
    // Whoever hears of the first piece may hold on to it while the rest arrives.
    PolicyServer server;
    server.answerWith({PolicyServer::httpReply("200 OK", "one", 9), "two", "end"}, 100);
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

void TestPolicyClient::unreachable_data()
{
    QTest::addColumn<QString>("url");
    addRow("nobody listens", "https://127.0.0.1:1");
    addRow("name with blanks", "https://my server:9094");
    addRow("name with colons", "https://a:b:c:9094");
    addRow("name of 260 characters", QStringLiteral("https://%1:9094").arg(QString(260, 'n')));
    addRow("unknown name", "https://nowhere.invalid:9094");
    addRow("broken brackets", "https://[::1:9094");
    addRow("no port", "https://127.0.0.1:");
    addRow("port too large", "https://127.0.0.1:9999999999999999");
    addRow("nothing", "https://:");
}

void TestPolicyClient::unreachable()
{
    QFETCH(QString, url);
    bcurl client;
    QSignalSpy messageSpy(&client, &bcurl::messageReady);
    QSignalSpy errorSpy(&client, &bcurl::errorReady);
    client.post(url, QStringLiteral("ann"), QStringLiteral("secret"));
    QTRY_COMPARE(errorSpy.size(), 1);
    QVERIFY(texts(errorSpy).first().startsWith(QStringLiteral("<%1 ann>").arg(url)));
    QTest::qWait(settleMs / 4);
    QCOMPARE(errorSpy.size(), 1);
    QCOMPARE(messageSpy.size(), 0);
}

// What is made of an answer

void TestPolicyClient::staleness_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("stale"); // for host h, port 9094, user "ann lee"
    addRow("same login", "<https://h:9094 ann lee>{}", false);
    addRow("answer of several lines", "<https://h:9094 ann lee>{\n}", false);
    addRow("other server", "<https://i:9094 ann lee>{}", true);
    addRow("other port", "<https://h:9095 ann lee>{}", true);
    addRow("other user", "<https://h:9094 ann>{}", true);
    addRow("other user, answer of several lines", "<https://h:9094 ann>\n{\n}", true);
    addRow("upper case", "<https://H:9094 ann lee>{}", true);
    addRow("address with colons", "<https://[::1]:9094 ann lee>{}", true);
    addRow("no tag", "{}", false);
    addRow("nothing", "", false);
    addRow("tag of something else", "<p>{}", false);
}

void TestPolicyClient::staleness()
{
    QFETCH(QString, message);
    QTEST(PolicyReply::isStale(message, QStringLiteral("h"), QStringLiteral("9094"),
                               QStringLiteral("ann lee")),
          "stale");
}

void TestPolicyClient::tagTakenOff_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("body");
    addRow("JSON", "<https://h:9094 u>{}", "{}");
    addRow("angle brackets in the body stay", "<https://h:9094 u><p>hello</p>", "<p>hello</p>");
    addRow("several lines", "<https://h:9094 u>{\n\"a\":1}\n", "{\n\"a\":1}\n");
    addRow("empty body", "<https://h:9094 u>", "");
    addRow("no tag", "{}", "{}");
}

void TestPolicyClient::tagTakenOff()
{
    QFETCH(QString, message);
    QTEST(PolicyReply::withoutTag(message), "body");
}

void TestPolicyClient::policies_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("inForce"); // after "color duplex"
    const auto row = [](const char *name, const QByteArray &body, bool accepted,
                        const char *inForce) {
        addRow(name, body, accepted, QString::fromLatin1(inForce));
    };
    row("all three", R"({"Policies":{"JE.FullColorPrint":"ON","DR.LeanPrintRestriction":"PV.On",
        "DR.DuplexRestriction":"PV.On"}})",
        true, "color leanprint duplex");
    row("none of them named", R"({"Policies":{}})", true, "color duplex");
    row("one lifted, one added", R"({"Policies":{"JE.FullColorPrint":"OFF",
        "DR.LeanPrintRestriction":"PV.On"}})",
        true, "leanprint duplex");
    row("other case", R"({"Policies":{"JE.FullColorPrint":"on","DR.DuplexRestriction":"PV.ON"}})",
        true, "");
    row("values swapped", R"({"Policies":{"JE.FullColorPrint":"PV.On",
        "DR.DuplexRestriction":"ON"}})",
        true, "");
    row("no strings", R"({"Policies":{"JE.FullColorPrint":true,"DR.DuplexRestriction":null}})",
        true, "");
    row("policies are a list", R"({"Policies":["JE.FullColorPrint"]})", true, "color duplex");
    row("no policies", R"({"policies":{"JE.FullColorPrint":"ON"}})", false, "");
    row("a list", R"([{"Policies":{}}])", false, "");
    row("cut off", R"({"Policies":{"JE.FullColorPrint":"ON")", false, "");
    row("no JSON", "INVALID_USER_NAME_OR_PASSWORD", false, "");
    row("empty", "", false, "");
    row("10 MB of nonsense", QByteArray(10 * megabyte, '{'), false, "");
    row("10 MB of lists", QByteArray(10 * megabyte, '['), false, "");
}

void TestPolicyClient::policies()
{
    QFETCH(QByteArray, body);
    Policies policies = PolicyReply::noRestrictions();
    QCOMPARE(inForce(policies), QString());
    policies[QStringLiteral("FKPColorMode")] = QStringLiteral("On");
    policies[QStringLiteral("FKPDuplex")] = QStringLiteral("On");
    QTEST(PolicyReply::parsePolicies(QString::fromUtf8(body), &policies), "accepted");
    QTEST(inForce(policies), "inForce");
    QCOMPARE(policies.size(), 3);
}

void TestPolicyClient::reports_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("asked");  // the report when the user has pressed Verify
    QTest::addColumn<QString>("silent"); // and when not
    const QString unknown = QStringLiteral("An unspecified error occured.");
    const QString failed =
        QStringLiteral("Login failed. The user name or password you entered is incorrect.");
    const QString done = QStringLiteral(
        "Server and user credentials have been authenticated and policies have been applied.\n\n"
        "Credentials and policies will be checked again during printing.\n");
    const QString forbidden = QStringLiteral("You do not have permission to print.");
    const QString none;
    addRow("accepted", R"({"Policies":{}})", done, none);
    addRow("refused, as text", "INVALID_USER_NAME_OR_PASSWORD", failed, failed);
    addRow("refused, as JSON", R"({"e":"INVALID_USER_NAME_OR_PASSWORD"})", done, failed);
    addRow("may not print", R"({"Policies":{"JE.MonoPrint":"ON"}})", forbidden, forbidden);
    addRow("may not print, with blanks", R"({"JE.MonoPrint": "ON"})", done, none);
    addRow("refused and may not print", R"(INVALID_USER_NAME_OR_PASSWORD "JE.MonoPrint":"ON")",
           forbidden, forbidden);
    addRow("nonsense", "<html>", unknown, none);
    addRow("empty", "", unknown, none);
}

void TestPolicyClient::reports()
{
    QFETCH(QString, body);
    QTEST(PolicyReply::report(body, true), "asked");
    QTEST(PolicyReply::report(body, false), "silent");
}

QTEST_MAIN(TestPolicyClient)

#include "tst_policyclient.moc"
