#include "printserver.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

#include <cups/cups.h>

#include <memory>

namespace {

constexpr int commandTimeoutMs = 30000;
constexpr char serverVariable[] = "CUPS_SERVER";
constexpr char rootVariable[] = "CUPS_SERVERROOT";

void restoreVariable(const char *name, const QByteArray &value)
{
    if (value.isNull())
        qunsetenv(name);
    else
        qputenv(name, value);
}

} // namespace

// A short path, since the scheduler's socket lies in it and its address holds 107 bytes.
PrintServer::PrintServer()
    : m_directory("/tmp/cups-XXXXXX")
    , m_outerServer(qgetenv(serverVariable))
    , m_outerRoot(qgetenv(rootVariable))
{
}

PrintServer::~PrintServer()
{
    if (m_running && !stop())
        qWarning("%s", qPrintable(m_error));
    restoreVariable(serverVariable, m_outerServer);
    restoreVariable(rootVariable, m_outerRoot);
}

bool PrintServer::start()
{
    QByteArray output;
    if (!run("start", {}, &output))
        return false;
    m_running = true;
    static const QRegularExpression assignment("\\b(CUPS_\\w+)=(\\S+)");
    auto matches = assignment.globalMatch(QString::fromLocal8Bit(output));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        qputenv(match.captured(1).toLatin1().constData(), match.captured(2).toLocal8Bit());
    }
    if (!qgetenv(serverVariable).startsWith(directory().toLocal8Bit())) {
        m_error = "the print server did not say where it is: " + QString::fromLocal8Bit(output);
        return false;
    }
    return true;
}

bool PrintServer::stop()
{
    if (!run("stop", {}))
        return false;
    m_running = false;
    return true;
}

bool PrintServer::addSampleQueues()
{
    return run("queues", {});
}

bool PrintServer::addQueue(const QString &name, const QString &ppd, const QString &deviceUri)
{
    return run("add", {name, sourceFile(ppd), deviceUri});
}

bool PrintServer::addQueueByRequest(const QByteArray &name, const QString &ppd)
{
    // A connection of its own: the one that libcups keeps may be to an earlier scheduler.
    const std::unique_ptr<http_t, void (*)(http_t *)> connection(
        httpConnect2(qgetenv(serverVariable).constData(), 0, nullptr, AF_UNSPEC,
                     HTTP_ENCRYPTION_IF_REQUESTED, 1, commandTimeoutMs, nullptr),
        httpClose);
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/printers/%s", name.constData());
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr, "file:///dev/null");
    ippAddInteger(request, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE);
    ippAddBoolean(request, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 1);
    ippDelete(cupsDoFileRequest(connection.get(), request, "/admin/",
                                sourceFile(ppd).toLocal8Bit().constData()));
    if (cupsLastError() <= IPP_STATUS_OK_CONFLICTING)
        return true;
    m_error = QString("queue %1: %2")
                  .arg(QString::fromUtf8(name), QString::fromUtf8(cupsLastErrorString()));
    return false;
}

bool PrintServer::removeQueue(const QString &name)
{
    return run("remove", {name});
}

QString PrintServer::sourceFile(const QString &relativePath)
{
    return QDir(QStringLiteral(PRESSDESK_SOURCE_DIR)).absoluteFilePath(relativePath);
}

bool PrintServer::run(const QString &command, const QStringList &arguments, QByteArray *output)
{
    const QString script = sourceFile("demo/printserver.sh");
    QProcess process;
    process.start(script, QStringList{command, directory()} + arguments);
    const bool ended = process.waitForFinished(commandTimeoutMs);
    if (output)
        *output = process.readAllStandardOutput();
    if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    m_error = QString("%1 %2: %3 %4")
                  .arg(script, command, ended ? QString() : process.errorString(),
                       QString::fromLocal8Bit(process.readAllStandardError()));
    return false;
}
