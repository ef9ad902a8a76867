#include "paneldriver.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QPointer>
#include <QThread>

namespace {

constexpr int startTimeoutMs = 30000;
constexpr int endTimeoutMs = 5000;
constexpr int pollMs = 20;
// The panel may wait this long for lpoptions, and cannot answer meanwhile.
constexpr int replyTimeoutMs = 40000;

/// An X server without a window manager that all panels of this process share.
class VirtualDisplay : public QObject
{
public:
    /// The display, made on first use and ended with the application object.
    static VirtualDisplay &instance()
    {
        static QPointer<VirtualDisplay> display;
        if (!display)
            display = new VirtualDisplay(QCoreApplication::instance());
        return *display;
    }

    ~VirtualDisplay() override
    {
        m_server.terminate();
        if (!m_server.waitForFinished(endTimeoutMs))
            m_server.kill();
    }

    /// ":" and a number; empty if the server did not start.
    QString name() const { return m_name; }
    QString error() const { return m_server.errorString(); }

private:
    explicit VirtualDisplay(QObject *parent)
        : QObject(parent)
    {
        m_server.setStandardErrorFile(QProcess::nullDevice());
        m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten",
                                "tcp", "-noreset"});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(startTimeoutMs)) {
        }
        const QByteArray number = m_server.readLine().trimmed();
        if (!number.isEmpty())
            m_name = ':' + QString::fromLatin1(number);
    }

    QProcess m_server;
    QString m_name;
};

// Upwards from the program's folder, since it stands somewhere below the build folder.
QString pluginPath(const QString &program)
{
    QDir folder = QFileInfo(program).absoluteDir();
    do {
        const QString path = folder.absoluteFilePath("tests/plugins");
        if (QFileInfo::exists(path + "/generic/libpressdeskolddriver.so"))
            return path;
    } while (folder.cdUp());
    return QString();
}

QStringList toStringList(const QJsonArray &array)
{
    QStringList texts;
    for (const QJsonValue &value : array)
        texts.append(value.toString());
    return texts;
}

QVector<int> toIntVector(const QJsonArray &array)
{
    QVector<int> numbers;
    for (const QJsonValue &value : array)
        numbers.append(value.toInt());
    return numbers;
}

QRect toRect(const QJsonArray &array)
{
    return {array.at(0).toInt(), array.at(1).toInt(), array.at(2).toInt(), array.at(3).toInt()};
}

QJsonObject withTarget(const PanelWidget &widget)
{
    return {{"target", widget.target()}};
}

QJsonObject rowRequest(const PanelWidget &table, const PanelEntry &row, int column)
{
    QJsonObject message = withTarget(table);
    message.insert("row", row.value());
    message.insert("column", column);
    return message;
}

} // namespace

PanelWidget::PanelWidget(const QString &key, const QString &value)
    : m_target{{key, value}}
{
}

PanelWidget::PanelWidget(const QString &accessibleName)
    : PanelWidget("name", accessibleName)
{
}

PanelWidget::PanelWidget(const char *accessibleName)
    : PanelWidget(QString::fromUtf8(accessibleName))
{
}

PanelWidget PanelWidget::button(const QString &text)
{
    return {"text", text};
}

PanelWidget PanelWidget::standardButton(const QString &name)
{
    return {"standardButton", name};
}

PanelWidget PanelWidget::ofClass(const QString &className)
{
    return {"class", className};
}

PanelEntry::PanelEntry(int index)
    : m_value(index)
{
}

PanelEntry::PanelEntry(const QString &text)
    : m_value(text)
{
}

PanelEntry::PanelEntry(const char *text)
    : m_value(QString::fromUtf8(text))
{
}

PanelDriver::PanelDriver(const QString &program)
    : m_program(program)
    , m_environment(QProcessEnvironment::systemEnvironment())
    , m_directory("/tmp/panel-XXXXXX")
{
    m_environment.remove("WAYLAND_DISPLAY");
    m_environment.insert("QT_QPA_PLATFORM", "xcb");
    // The panel draws without OpenGL, whose drivers leak a little when they are only loaded.
    m_environment.insert("QT_XCB_GL_INTEGRATION", "none");
    m_environment.insert("XDG_RUNTIME_DIR", m_directory.path());
    // Some builds of Qt send warnings to the journal unless a terminal is there.
    m_environment.insert("QT_FORCE_STDERR_LOGGING", "1");
    setLanguage("en_US");
}

PanelDriver::~PanelDriver()
{
    m_socket.abort();
    if (!isRunning())
        return;
    m_panel.terminate();
    if (!m_panel.waitForFinished(endTimeoutMs)) {
        m_panel.kill();
        m_panel.waitForFinished(endTimeoutMs);
    }
}

void PanelDriver::setEnvironment(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

void PanelDriver::unsetEnvironment(const QString &name)
{
    m_environment.remove(name);
}

void PanelDriver::setLanguage(const QString &locale)
{
    for (const char *name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES"})
        m_environment.remove(QLatin1String(name));
    m_environment.insert("LANG", locale + ".UTF-8");
}

void PanelDriver::setLauncher(const QStringList &command)
{
    m_launcher = command;
}

bool PanelDriver::start(const QStringList &arguments)
{
    if (isRunning())
        return fail("the panel is running already");
    const QString plugins = pluginPath(m_program);
    if (plugins.isEmpty())
        return fail(QString("no plugin for the panel above %1").arg(m_program));
    const VirtualDisplay &display = VirtualDisplay::instance();
    if (display.name().isEmpty())
        return fail("Xvfb did not start: " + display.error());

    m_socket.abort();
    const QString socketPath = m_directory.filePath("driver");
    QFile::remove(socketPath);
    QProcessEnvironment environment = m_environment;
    environment.insert("DISPLAY", display.name());
    environment.insert("QT_PLUGIN_PATH", plugins);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "pressdeskolddriver");
    environment.insert("PRESSDESK_DRIVER_SOCKET", socketPath);
    m_panel.setProcessEnvironment(environment);
    // Files, so that a panel that says much never waits for us to read it.
    m_panel.setStandardOutputFile(m_directory.filePath("stdout"));
    m_panel.setStandardErrorFile(m_directory.filePath("stderr"));
    QStringList command = m_launcher + QStringList{m_program} + arguments;
    const QString program = command.takeFirst();
    m_panel.start(program, command);
    return connectToPanel() && sync() &&
           waitFor(
               [this] {
                   for (const QJsonObject &window : windows())
                       if (window.value("visible").toBool())
                           return true;
                   return false;
               },
               "the first window", startTimeoutMs) &&
           sync();
}

bool PanelDriver::connectToPanel()
{
    if (!m_panel.waitForStarted(startTimeoutMs))
        return fail(QString("%1: %2").arg(m_program, m_panel.errorString()));
    const QString socketPath = m_directory.filePath("driver");
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < startTimeoutMs) {
        m_socket.connectToServer(socketPath);
        if (m_socket.waitForConnected(pollMs))
            return true;
        if (m_panel.waitForFinished(pollMs) || !isRunning())
            return fail("the panel ended at once");
    }
    return fail("the panel does not load the plugin: " + m_socket.errorString());
}

bool PanelDriver::isRunning() const
{
    return m_panel.state() != QProcess::NotRunning;
}

bool PanelDriver::waitForEnd(int timeoutMs)
{
    if (!isRunning() || m_panel.waitForFinished(timeoutMs))
        return true;
    return fail("the panel did not end");
}

int PanelDriver::exitStatus() const
{
    return m_panel.exitStatus() == QProcess::NormalExit ? m_panel.exitCode() : -1;
}

QString PanelDriver::standardError() const
{
    QFile file(m_directory.filePath("stderr"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    // Not the panel's doing, and without a line end of its own.
    static const QString seedNotice =
        QStringLiteral("QT_HASH_SEED: forced seed value is not 0, cannot guarantee that the "
                       "hashing functions will produce a stable value.");
    return QString::fromLocal8Bit(file.readAll()).remove(seedNotice);
}

bool PanelDriver::click(const PanelWidget &widget)
{
    return act("click", withTarget(widget));
}

bool PanelDriver::clickTab(const PanelEntry &tab)
{
    return act("click", {{"tab", tab.value()}});
}

bool PanelDriver::clickTab(const PanelWidget &bar, const PanelEntry &tab)
{
    QJsonObject message = withTarget(bar);
    message.insert("tab", tab.value());
    return act("click", message);
}

bool PanelDriver::clickRow(const PanelWidget &table, const PanelEntry &row, int column)
{
    return act("click", rowRequest(table, row, column));
}

bool PanelDriver::clickGroupButton(const PanelWidget &group, const PanelEntry &button)
{
    QJsonObject message = withTarget(group);
    message.insert("button", button.value());
    return act("click", message);
}

bool PanelDriver::choose(const PanelWidget &comboBox, const PanelEntry &item)
{
    QJsonObject message = withTarget(comboBox);
    message.insert("item", item.value());
    return act("choose", message);
}

bool PanelDriver::type(const QString &text)
{
    return act("type", {{"text", text}});
}

bool PanelDriver::enter(const PanelWidget &field, const QString &text)
{
    return click(field) && press("Ctrl+A") && (text.isEmpty() ? press("Backspace") : type(text));
}

bool PanelDriver::press(const QString &keys)
{
    return act("key", {{"keys", keys}});
}

bool PanelDriver::activateWindow(const PanelWidget &widget)
{
    return act("activate", withTarget(widget));
}

bool PanelDriver::closeWindow(const PanelWidget &widget)
{
    return act("close", withTarget(widget));
}

bool PanelDriver::sync()
{
    QJsonObject reply;
    return request({{"command", "sync"}}, &reply, replyTimeoutMs);
}

bool PanelDriver::isShown(const PanelWidget &widget)
{
    return state(widget).value("visible").toBool();
}

bool PanelDriver::isEnabled(const PanelWidget &widget)
{
    const QJsonObject known = state(widget);
    return known.value("visible").toBool() && known.value("enabled").toBool();
}

QString PanelDriver::text(const PanelWidget &widget)
{
    return state(widget).value("text").toString();
}

QString PanelDriver::currentText(const PanelWidget &widget)
{
    return state(widget).value("currentText").toString();
}

bool PanelDriver::isChecked(const PanelWidget &widget)
{
    return state(widget).value("checked").toBool();
}

QString PanelDriver::toolTip(const PanelWidget &widget)
{
    return state(widget).value("toolTip").toString();
}

QStringList PanelDriver::items(const PanelWidget &comboBox)
{
    QStringList texts;
    const QJsonArray all = state(comboBox).value("items").toArray();
    for (const QJsonValue &item : all)
        texts.append(item["text"].toString());
    return texts;
}

QStringList PanelDriver::enabledItems(const PanelWidget &comboBox)
{
    QStringList texts;
    const QJsonArray all = state(comboBox).value("items").toArray();
    for (const QJsonValue &item : all)
        if (item["enabled"].toBool())
            texts.append(item["text"].toString());
    return texts;
}

QJsonObject PanelDriver::state(const PanelWidget &widget)
{
    return query("state", withTarget(widget)).value("state").toObject();
}

PanelTable PanelDriver::table(const PanelWidget &table)
{
    const QJsonObject reply = query("table", withTarget(table));
    PanelTable contents;
    contents.headers = toStringList(reply.value("headers").toArray());
    const QJsonArray rows = reply.value("rows").toArray();
    for (const QJsonValue &row : rows)
        contents.rows.append(toStringList(row.toArray()));
    contents.currentRow = reply.value("currentRow").toInt(-1);
    contents.selectedRows = toIntVector(reply.value("selectedRows").toArray());
    contents.columnWidths = toIntVector(reply.value("columnWidths").toArray());
    return contents;
}

QVector<PanelTab> PanelDriver::tabs()
{
    QVector<PanelTab> result;
    const QJsonArray all = query("tabs").value("tabs").toArray();
    for (const QJsonValue &tab : all)
        result.append({tab["text"].toString(), tab["enabled"].toBool(), tab["current"].toBool(),
                       toRect(tab["rect"].toArray())});
    return result;
}

QStringList PanelDriver::shownTabs()
{
    QStringList texts;
    const QVector<PanelTab> all = tabs();
    for (const PanelTab &tab : all)
        if (!tab.rect.isEmpty())
            texts.append(tab.text);
    return texts;
}

PanelMessageBox PanelDriver::messageBox()
{
    const QJsonObject box = query("messageBox").value("messageBox").toObject();
    return {!box.isEmpty(), box.value("title").toString(), box.value("text").toString(),
            toStringList(box.value("buttons").toArray())};
}

QString PanelDriver::windowTitle()
{
    return state(PanelWidget::ofClass("BixDialog")).value("windowTitle").toString();
}

QVector<QJsonObject> PanelDriver::windows()
{
    QVector<QJsonObject> result;
    const QJsonArray all = query("windows").value("windows").toArray();
    for (const QJsonValue &window : all)
        result.append(window.toObject());
    return result;
}

bool PanelDriver::grab(const PanelWidget &widget, const QString &path)
{
    QJsonObject message = withTarget(widget);
    message.insert("path", QFileInfo(path).absoluteFilePath());
    return !query("grab", message).isEmpty();
}

bool PanelDriver::grabScreen(const QString &path)
{
    return !query("grab", {{"path", QFileInfo(path).absoluteFilePath()}, {"screen", true}})
                .isEmpty();
}

bool PanelDriver::waitFor(const std::function<bool()> &condition, const QString &what,
                          int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (!isRunning() || m_panel.waitForFinished(0))
            return fail("the panel ended before " + what);
        if (clock.elapsed() > timeoutMs)
            return fail("timed out waiting for " + what);
        QThread::msleep(pollMs);
    }
    return true;
}

bool PanelDriver::fail(const QString &message)
{
    m_error = message;
    const QString said = standardError().trimmed();
    if (!said.isEmpty())
        m_error += "\nThe panel's error output:\n" + said;
    return false;
}

bool PanelDriver::request(QJsonObject message, QJsonObject *reply, int timeoutMs)
{
    const QString id = "id";
    message.insert(id, ++m_lastId);
    const QByteArray line = QJsonDocument(message).toJson(QJsonDocument::Compact);
    if (m_socket.state() != QLocalSocket::ConnectedState)
        return fail("no panel to send to: " + QString::fromUtf8(line));
    m_socket.write(line + '\n');
    m_socket.flush();
    QElapsedTimer clock;
    clock.start();
    // A reply that came too late for an earlier request is passed over.
    do {
        while (!m_socket.canReadLine()) {
            const int left = timeoutMs - static_cast<int>(clock.elapsed());
            if (left <= 0 || !m_socket.waitForReadyRead(left))
                return fail(QString("no answer to %1: %2")
                                .arg(QString::fromUtf8(line), m_socket.errorString()));
        }
        *reply = QJsonDocument::fromJson(m_socket.readLine()).object();
    } while (reply->value(id) != message.value(id));
    const QString error = reply->value("error").toString();
    return error.isEmpty() || fail(QString("%1: %2").arg(QString::fromUtf8(line), error));
}

bool PanelDriver::act(const QString &command, QJsonObject message)
{
    message.insert("command", command);
    QJsonObject reply;
    return request(message, &reply, replyTimeoutMs) && (sync() || endedWell());
}

QJsonObject PanelDriver::query(const QString &command, QJsonObject message)
{
    message.insert("command", command);
    QJsonObject reply;
    return request(message, &reply, replyTimeoutMs) ? reply : QJsonObject();
}

// An action that closes the panel is done when the process has gone.
bool PanelDriver::endedWell()
{
    if (m_socket.state() == QLocalSocket::ConnectedState)
        return false;
    if (!waitForEnd())
        return false;
    return exitStatus() == 0 || fail(QString("the panel ended with status %1").arg(exitStatus()));
}
