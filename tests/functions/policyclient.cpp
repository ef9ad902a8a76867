// The login at the policy server: what a real HTTPS server's answers lead to, and what is read in
// them.

#include "functiontests.h"
#include "policy/bcurl.h"
#include "policy/policyreply.h"
#include "support/testhelpers.h"

#include <QTcpSocket>

namespace {

constexpr int settleMs = 400;
constexpr int shownLength = 20; // of a message: one is huge

struct Answer
{
    const char *user;
    const char *script;  ///< writes the answer; "later" waits until all messages have come
    const char *message; ///< null if there is none
    int errors;
};

constexpr Answer answersOfServer[] = {
    {"good", "http 200 2; printf {}", "{}", 0},
    {"slow and huge", "sleep 1; http 200 9999999; yes '{' | tr -d '\\n' | head -c 9999999", nullptr,
     1},
    {"just a megabyte", "http 200 1048576; yes '{' | tr -d '\\n' | head -c 1048576",
     "{{{{{{{{{{{{{{{{{{{{", 0},
    {"other alphabet", "http 200 4; printf Zoë", "Zoë", 0},
    {"zero byte ends it", "http 200 3; printf 'a\\0b'", "a", 0},
    {"no UTF-8", "http 200 2; printf 'a\\377'", "a\xef\xbf\xbd", 0},
    {"nothing in it", "http 200 0", nullptr, 0},
    {"no fault yet", "http 399 2; printf {}", "{}", 0},
    {"held fault with policies", "printf %s \"$(http 400 2; printf {})\"", nullptr, 1},
    {"login asked for", "http 401 4; printf oops", nullptr, 1},
    {"held fault in pieces", "http 500 4; printf oo; sleep .2; printf ps", nullptr, 1},
    {"fault without an end", "http 500 4; printf oo; sleep 60", nullptr, 1},
    {"fault with nothing", "http 500 0", nullptr, 1},
    {"two pieces", "http 200 6; printf one; later; printf two", "one", 0},
    {"held, in two pieces", "http 200 6; printf one; sleep .2; printf two", "one", 0},
    {"body later", "http 200 3; sleep .5; printf one", "one", 0},
    {"closed half-way", "http 200 6; printf one", "one", 0},
    {"closed half-way later", "http 200 6; printf one; later", "one", 0},
    {"closed in the headers", "printf 'HTTP/1.1 200 OK\\r\\nContent-Ty'", nullptr, 1},
    {"closed at once", ":", nullptr, 1},
    {"no HTTP", "printf '220 mail.example.com ESMTP\\r\\n\\r\\n'", nullptr, 1},
};

/// A client with what it has told.
struct Client
{
    /// The messages without the tag, which has to be there.
    static QStringList texts(const QSignalSpy &spy, const QString &tag)
    {
        QStringList list;
        for (const QList<QVariant> &call : spy) {
            const QString text = call.first().toString();
            list.append(text.startsWith(tag) ? text.mid(tag.size(), shownLength) : "no tag");
        }
        return list;
    }

    bcurl curl;
    QSignalSpy messages{&curl, &bcurl::messageReady};
    QSignalSpy errors{&curl, &bcurl::errorReady};
};

/// Starts a server with this command for an answer, and waits until it listens.
void startServer(QProcess *server, quint16 port, const QString &command)
{
    server->start(qEnvironmentVariable("PRESSDESK_BUILD_DIR") + "/tests/policyserver",
                  {QString::number(port), command});
    QTcpSocket probe;
    QTRY_VERIFY((probe.abort(), probe.connectToHost("127.0.0.1", port), probe.waitForConnected()));
}

/// Stale or not for host h, port 9094, user "ann lee"; what stands behind the tag.
QStringList tag(const QStringList &in)
{
    const bool stale = PolicyReply::isStale(in[0], "h", "9094", "ann lee");
    return {stale ? "stale" : "", PolicyReply::withoutTag(in[0])};
}

const FunctionTests::Table tags("TestPolicyClient", 1, tag, R"(
same login                  | <https://h:9094 ann lee>{}       |       | {}
angle brackets in the body  | <https://h:9094 ann lee><p>a</p> |       | <p>a</p>
empty body                  | <https://h:9094 ann lee>         |       |
other server                | <https://i:9094 ann lee>{}       | stale | {}
other port                  | <https://h:9095 ann lee>{}       | stale | {}
other user                  | <https://h:9094 ann>{}           | stale | {}
upper case                  | <https://H:9094 ann lee>{}       | stale | {}
address with colons         | <https://[::1]:9094 ann lee>{}   | stale | {}
no tag                      | {}                               |       | {}
tag of something else       | <p>{}                            |       | {}
)");

/// Color, leanprint, duplex; before they are On Off On.
QStringList policiesAfter(const QStringList &in)
{
    Policies policies{{"FKPColorMode", "On"}, {"FKPLeanprint", "Off"}, {"FKPDuplex", "On"}};
    const bool accepted = PolicyReply::parsePolicies(in[0], &policies);
    return {accepted ? "accepted" : "refused", policies["FKPColorMode"] + ' ' +
                                                   policies["FKPLeanprint"] + ' ' +
                                                   policies["FKPDuplex"]};
}

const FunctionTests::Table policies("TestPolicyClient", 1, policiesAfter, R"(
all three              | {"Policies":{"JE.FullColorPrint":"ON","DR.LeanPrintRestriction":"PV.On","DR.DuplexRestriction":"PV.On"}} | accepted | On On On
none of them named     | {"Policies":{}}                                                              | accepted | On Off On
one lifted, one added  | {"Policies":{"JE.FullColorPrint":"OFF","DR.LeanPrintRestriction":"PV.On"}}   | accepted | Off On On
other case             | {"Policies":{"JE.FullColorPrint":"on","DR.DuplexRestriction":"PV.ON"}}       | accepted | Off Off Off
no strings             | {"Policies":{"JE.FullColorPrint":true,"DR.DuplexRestriction":null}}          | accepted | Off Off Off
policies are a list    | {"Policies":["JE.FullColorPrint"]}                                           | accepted | On Off On
no policies            | {"policies":{"JE.FullColorPrint":"ON"}}                                      | refused  | Off Off Off
a list                 | [{"Policies":{}}]                                                            | refused  | Off Off Off
cut off                | {"Policies":{"JE.FullColorPrint":"ON"                                        | refused  | Off Off Off
no JSON                | INVALID_USER_NAME_OR_PASSWORD                                                | refused  | Off Off Off
ten megabytes          | ({){10000000}  | refused | Off Off Off
ten megabytes of lists | [{10000000}    | refused | Off Off Off
)");

/// How the report begins when the user has pressed Verify, and when not.
QStringList firstWords(const QStringList &in)
{
    return {PolicyReply::report(in[0], true).section(' ', 0, 1),
            PolicyReply::report(in[0], false).section(' ', 0, 1)};
}

const FunctionTests::Table reports("TestPolicyClient", 1, firstWords, R"(
accepted                     | {"Policies":{}}                              | Server and     |
refused, as text             | INVALID_USER_NAME_OR_PASSWORD                | Login failed.  | Login failed.
refused, as JSON             | {"e":"INVALID_USER_NAME_OR_PASSWORD"}        | Server and     | Login failed.
may not print                | {"Policies":{"JE.MonoPrint":"ON"}}           | You do         | You do
may not print, with blanks   | {"JE.MonoPrint": "ON"}                       | Server and     |
refused and may not print    | INVALID_USER_NAME_OR_PASSWORD "JE.MonoPrint":"ON" | You do    | You do
nonsense                     | <html>                                       | An unspecified |
)");

} // namespace

class TestPolicyClient : public QObject
{
    Q_OBJECT

private slots:
    void answers();
    void unreachable();
};

void TestPolicyClient::answers()
{
    QTemporaryDir folder;
    for (const Answer &answer : answersOfServer)
        QVERIFY(setFileText(folder.filePath(answer.user), answer.script));
    QProcess server;
    startServer(
        &server, 9094,
        QString("http() { printf 'HTTP/1.1 %s x\\r\\nContent-Length: %d\\r\\n\\r\\n' $@; }\n"
                "later() { until [ -e %1/go ]; do sleep .05; done; }\n"
                "user=$(sed -n 's/^userID=\\(.*\\)&.*/\\1/p')\n"
                ". \"%1/$user\"")
            .arg(folder.path()));

    // All at once: no request waits for another.
    std::vector<std::unique_ptr<Client>> clients;
    for (const Answer &answer : answersOfServer) {
        clients.push_back(std::make_unique<Client>());
        // Whoever hears of a message may hold on to it in a dialog, while the rest arrives.
        if (QString(answer.user).startsWith("held"))
            for (const auto signal : {&bcurl::messageReady, &bcurl::errorReady})
                connect(&clients.back()->curl, signal, this, [] { QTest::qWait(settleMs); });
        clients.back()->curl.post("https://127.0.0.1:9094", answer.user, "secret");
    }
    for (size_t i = 0; i < clients.size(); ++i)
        QTRY_VERIFY2(clients[i]->messages.size() >= (answersOfServer[i].message ? 1 : 0),
                     answersOfServer[i].user);
    QVERIFY(setFileText(folder.filePath("go"), ""));
    for (size_t i = 0; i < clients.size(); ++i)
        QTRY_VERIFY2(clients[i]->errors.size() >= answersOfServer[i].errors,
                     answersOfServer[i].user);
    QTest::qWait(settleMs);
    server.kill();
    server.waitForFinished();
    for (size_t i = 0; i < clients.size(); ++i) {
        const Answer &wanted = answersOfServer[i];
        const QString tag = QString("<https://127.0.0.1:9094 %1>").arg(wanted.user);
        const QString name = wanted.user + QString(": ");
        QCOMPARE(name + Client::texts(clients[i]->messages, tag).join("|"), name + wanted.message);
        const QStringList errors = Client::texts(clients[i]->errors, tag);
        QVERIFY2(errors.size() == wanted.errors && !errors.contains("no tag") &&
                     !errors.contains(""),
                 qPrintable(name + errors.join("|")));
    }
}

void TestPolicyClient::unreachable()
{
    const QStringList hosts{"127.0.0.1:1",
                            "my server:9094",
                            "a:b:c:9094",
                            QString(260, 'n') + ":9094",
                            "nowhere.invalid:9094",
                            "[::1:9094",
                            "127.0.0.1:",
                            "127.0.0.1:9999999999999999",
                            ":"};
    Client client;
    for (const QString &host : hosts)
        client.curl.post("https://" + host, "ann", "secret");
    QTRY_COMPARE(client.errors.size(), hosts.size());
    QTest::qWait(settleMs);
    QCOMPARE(client.errors.size(), hosts.size());
    QCOMPARE(client.messages.size(), 0);
}

static const FunctionTests::Entry<TestPolicyClient> entry;

#include "policyclient.moc"
