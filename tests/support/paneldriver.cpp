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
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp"), QStringLiteral("-noreset")});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(startTimeoutMs)) {
        }
        const QByteArray number = m_server.readLine().trimmed();
        if (!number.isEmpty())
            m_name = QLatin1Char(':') + QString::fromLatin1(number);
    }

    QProcess m_server;
    QString m_name;
};

// Upwards from the program's folder, since it stands somewhere below the build folder.
QString pluginPath(const QString &program)
{
    QDir folder = QFileInfo(program).absoluteDir();
    do {
        const QString path = folder.absoluteFilePath(QStringLiteral("tests/plugins"));
        if (QFileInfo::exists(path + QStringLiteral("/generic/libpressdeskdriver.so")))
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
    return {{QStringLiteral("target"), widget.target()}};
}

QJsonObject rowRequest(const PanelWidget &table, const PanelEntry &row, int column)
{
    QJsonObject message = withTarget(table);
    message.insert(QStringLiteral("row"), row.value());
    message.insert(QStringLiteral("column"), column);
    return message;
}

} // namespace

PanelWidget::PanelWidget(const QString &key, const QString &value)
    : m_target{{key, value}}
{
}

PanelWidget::PanelWidget(const QString &accessibleName)
    : PanelWidget(QStringLiteral("name"), accessibleName)
{
}

PanelWidget::PanelWidget(const char *accessibleName)
    : PanelWidget(QString::fromUtf8(accessibleName))
{
}

PanelWidget PanelWidget::button(const QString &text)
{
    return {QStringLiteral("text"), text};
}

PanelWidget PanelWidget::standardButton(const QString &name)
{
    return {QStringLiteral("standardButton"), name};
}

PanelWidget PanelWidget::ofClass(const QString &className)
{
    return {QStringLiteral("class"), className};
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
    , m_directory(QStringLiteral("/tmp/panel-XXXXXX"))
{
    m_environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_directory.path());
    // Some builds of Qt send warnings to the journal unless a terminal is there.
    m_environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
    setLanguage(QStringLiteral("en_US"));
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
    m_environment.insert(QStringLiteral("LANG"), locale + QStringLiteral(".UTF-8"));
}

void PanelDriver::setLauncher(const QStringList &command)
{
    m_launcher = command;
}

bool PanelDriver::start(const QStringList &arguments)
{
    if (isRunning())
        return fail(QStringLiteral("the panel is running already"));
    const QString plugins = pluginPath(m_program);
    if (plugins.isEmpty())
        return fail(QStringLiteral("no plugin for the panel above %1").arg(m_program));
    const VirtualDisplay &display = VirtualDisplay::instance();
    if (display.name().isEmpty())
        return fail(QStringLiteral("Xvfb did not start: ") + display.error());

    m_socket.abort();
    const QString socketPath = m_directory.filePath(QStringLiteral("driver"));
    QFile::remove(socketPath);
    QProcessEnvironment environment = m_environment;
    environment.insert(QStringLiteral("DISPLAY"), display.name());
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), plugins);
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("pressdeskdriver"));
    environment.insert(QStringLiteral("PRESSDESK_DRIVER_SOCKET"), socketPath);
    m_panel.setProcessEnvironment(environment);
    // Files, so that a panel that says much never waits for us to read it.
    m_panel.setStandardOutputFile(m_directory.filePath(QStringLiteral("stdout")));
    m_panel.setStandardErrorFile(m_directory.filePath(QStringLiteral("stderr")));
    QStringList command = m_launcher + QStringList{m_program} + arguments;
    const QString program = command.takeFirst();
    m_panel.start(program, command);
    return connectToPanel() && sync() &&
           waitFor(
               [this] {
                   for (const QJsonObject &window : windows())
                       if (window.value(QLatin1String("visible")).toBool())
                           return true;
                   return false;
               },
               QStringLiteral("the first window"), startTimeoutMs) &&
           sync();
}

bool PanelDriver::connectToPanel()
{
    if (!m_panel.waitForStarted(startTimeoutMs))
        return fail(QStringLiteral("%1: %2").arg(m_program, m_panel.errorString()));
    const QString socketPath = m_directory.filePath(QStringLiteral("driver"));
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < startTimeoutMs) {
        m_socket.connectToServer(socketPath);
        if (m_socket.waitForConnected(pollMs))
            return true;
        if (m_panel.waitForFinished(pollMs) || !isRunning())
            return fail(QStringLiteral("the panel ended at once"));
    }
    return fail(QStringLiteral("the panel does not load the plugin: ") + m_socket.errorString());
}

bool PanelDriver::isRunning() const
{
    return m_panel.state() != QProcess::NotRunning;
}

bool PanelDriver::waitForEnd(int timeoutMs)
{
    if (!isRunning() || m_panel.waitForFinished(timeoutMs))
        return true;
    return fail(QStringLiteral("the panel did not end"));
}

int PanelDriver::exitStatus() const
{
    return m_panel.exitStatus() == QProcess::NormalExit ? m_panel.exitCode() : -1;
}

QString PanelDriver::standardError() const
{
    QFile file(m_directory.filePath(QStringLiteral("stderr")));
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
    return act(QStringLiteral("click"), withTarget(widget));
}

bool PanelDriver::doubleClick(const PanelWidget &widget)
{
    QJsonObject message = withTarget(widget);
    message.insert(QStringLiteral("double"), true);
    return act(QStringLiteral("click"), message);
}

bool PanelDriver::clickTab(const PanelEntry &tab)
{
    return act(QStringLiteral("click"), {{QStringLiteral("tab"), tab.value()}});
}

bool PanelDriver::clickTab(const PanelWidget &bar, const PanelEntry &tab)
{
    QJsonObject message = withTarget(bar);
    message.insert(QStringLiteral("tab"), tab.value());
    return act(QStringLiteral("click"), message);
}

bool PanelDriver::clickRow(const PanelWidget &table, const PanelEntry &row, int column)
{
    return act(QStringLiteral("click"), rowRequest(table, row, column));
}

bool PanelDriver::doubleClickRow(const PanelWidget &table, const PanelEntry &row, int column)
{
    QJsonObject message = rowRequest(table, row, column);
    message.insert(QStringLiteral("double"), true);
    return act(QStringLiteral("click"), message);
}

bool PanelDriver::clickGroupButton(const PanelWidget &group, const PanelEntry &button)
{
    QJsonObject message = withTarget(group);
    message.insert(QStringLiteral("button"), button.value());
    return act(QStringLiteral("click"), message);
}

bool PanelDriver::choose(const PanelWidget &comboBox, const PanelEntry &item)
{
    QJsonObject message = withTarget(comboBox);
    message.insert(QStringLiteral("item"), item.value());
    return act(QStringLiteral("choose"), message);
}

bool PanelDriver::type(const QString &text)
{
    return act(QStringLiteral("type"), {{QStringLiteral("text"), text}});
}

bool PanelDriver::enter(const PanelWidget &field, const QString &text)
{
    return click(field) && press(QStringLiteral("Ctrl+A")) &&
           (text.isEmpty() ? press(QStringLiteral("Backspace")) : type(text));
}

bool PanelDriver::press(const QString &keys)
{
    return act(QStringLiteral("key"), {{QStringLiteral("keys"), keys}});
}

bool PanelDriver::activateWindow(const PanelWidget &widget)
{
    return act(QStringLiteral("activate"), withTarget(widget));
}

bool PanelDriver::closeWindow(const PanelWidget &widget)
{
    return act(QStringLiteral("close"), withTarget(widget));
}

bool PanelDriver::sync()
{
    QJsonObject reply;
    return request({{QStringLiteral("command"), QStringLiteral("sync")}}, &reply, replyTimeoutMs);
}

bool PanelDriver::isShown(const PanelWidget &widget)
{
    return state(widget).value(QLatin1String("visible")).toBool();
}

bool PanelDriver::isEnabled(const PanelWidget &widget)
{
    const QJsonObject known = state(widget);
    return known.value(QLatin1String("visible")).toBool() &&
           known.value(QLatin1String("enabled")).toBool();
}

QString PanelDriver::text(const PanelWidget &widget)
{
    return state(widget).value(QLatin1String("text")).toString();
}

QString PanelDriver::currentText(const PanelWidget &widget)
{
    return state(widget).value(QLatin1String("currentText")).toString();
}

bool PanelDriver::isChecked(const PanelWidget &widget)
{
    return state(widget).value(QLatin1String("checked")).toBool();
}

QString PanelDriver::toolTip(const PanelWidget &widget)
{
    return state(widget).value(QLatin1String("toolTip")).toString();
}

QStringList PanelDriver::items(const PanelWidget &comboBox)
{
    QStringList texts;
    const QJsonArray all = state(comboBox).value(QLatin1String("items")).toArray();
    for (const QJsonValue &item : all)
        texts.append(item[QLatin1String("text")].toString());
    return texts;
}

QStringList PanelDriver::enabledItems(const PanelWidget &comboBox)
{
    QStringList texts;
    const QJsonArray all = state(comboBox).value(QLatin1String("items")).toArray();
    for (const QJsonValue &item : all)
        if (item[QLatin1String("enabled")].toBool())
            texts.append(item[QLatin1String("text")].toString());
    return texts;
}

QJsonObject PanelDriver::state(const PanelWidget &widget)
{
    return query(QStringLiteral("state"), withTarget(widget))
        .value(QLatin1String("state"))
        .toObject();
}

QJsonObject PanelDriver::focus()
{
    return query(QStringLiteral("focus")).value(QLatin1String("state")).toObject();
}

PanelTable PanelDriver::table(const PanelWidget &table)
{
    const QJsonObject reply = query(QStringLiteral("table"), withTarget(table));
    PanelTable contents;
    contents.headers = toStringList(reply.value(QLatin1String("headers")).toArray());
    const QJsonArray rows = reply.value(QLatin1String("rows")).toArray();
    for (const QJsonValue &row : rows)
        contents.rows.append(toStringList(row.toArray()));
    contents.currentRow = reply.value(QLatin1String("currentRow")).toInt(-1);
    contents.selectedRows = toIntVector(reply.value(QLatin1String("selectedRows")).toArray());
    contents.columnWidths = toIntVector(reply.value(QLatin1String("columnWidths")).toArray());
    return contents;
}

QVector<PanelTab> PanelDriver::tabs()
{
    QVector<PanelTab> result;
    const QJsonArray all = query(QStringLiteral("tabs")).value(QLatin1String("tabs")).toArray();
    for (const QJsonValue &tab : all)
        result.append(
            {tab[QLatin1String("text")].toString(), tab[QLatin1String("enabled")].toBool(),
             tab[QLatin1String("current")].toBool(), toRect(tab[QLatin1String("rect")].toArray())});
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
    const QJsonObject box =
        query(QStringLiteral("messageBox")).value(QLatin1String("messageBox")).toObject();
    return {!box.isEmpty(), box.value(QLatin1String("title")).toString(),
            box.value(QLatin1String("text")).toString(),
            toStringList(box.value(QLatin1String("buttons")).toArray())};
}

QString PanelDriver::windowTitle()
{
    return state(PanelWidget::ofClass(QStringLiteral("BixDialog")))
        .value(QLatin1String("windowTitle"))
        .toString();
}

QVector<QJsonObject> PanelDriver::windows()
{
    QVector<QJsonObject> result;
    const QJsonArray all =
        query(QStringLiteral("windows")).value(QLatin1String("windows")).toArray();
    for (const QJsonValue &window : all)
        result.append(window.toObject());
    return result;
}

bool PanelDriver::grab(const PanelWidget &widget, const QString &path)
{
    QJsonObject message = withTarget(widget);
    message.insert(QStringLiteral("path"), QFileInfo(path).absoluteFilePath());
    return !query(QStringLiteral("grab"), message).isEmpty();
}

bool PanelDriver::grabFrontWindow(const QString &path)
{
    return !query(QStringLiteral("grab"),
                  {{QStringLiteral("path"), QFileInfo(path).absoluteFilePath()}})
                .isEmpty();
}

bool PanelDriver::grabScreen(const QString &path)
{
    return !query(QStringLiteral("grab"),
                  {{QStringLiteral("path"), QFileInfo(path).absoluteFilePath()},
                   {QStringLiteral("screen"), true}})
                .isEmpty();
}

bool PanelDriver::waitFor(const std::function<bool()> &condition, const QString &what,
                          int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (!isRunning() || m_panel.waitForFinished(0))
            return fail(QStringLiteral("the panel ended before ") + what);
        if (clock.elapsed() > timeoutMs)
            return fail(QStringLiteral("timed out waiting for ") + what);
        QThread::msleep(pollMs);
    }
    return true;
}

bool PanelDriver::fail(const QString &message)
{
    m_error = message;
    const QString said = standardError().trimmed();
    if (!said.isEmpty())
        m_error += QStringLiteral("\nThe panel's error output:\n") + said;
    return false;
}

bool PanelDriver::request(QJsonObject message, QJsonObject *reply, int timeoutMs)
{
    const QString id = QStringLiteral("id");
    message.insert(id, ++m_lastId);
    const QByteArray line = QJsonDocument(message).toJson(QJsonDocument::Compact);
    if (m_socket.state() != QLocalSocket::ConnectedState)
        return fail(QStringLiteral("no panel to send to: ") + QString::fromUtf8(line));
    m_socket.write(line + '\n');
    m_socket.flush();
    QElapsedTimer clock;
    clock.start();
    // A reply that came too late for an earlier request is passed over.
    do {
        while (!m_socket.canReadLine()) {
            const int left = timeoutMs - static_cast<int>(clock.elapsed());
            if (left <= 0 || !m_socket.waitForReadyRead(left))
                return fail(QStringLiteral("no answer to %1: %2")
                                .arg(QString::fromUtf8(line), m_socket.errorString()));
        }
        *reply = QJsonDocument::fromJson(m_socket.readLine()).object();
    } while (reply->value(id) != message.value(id));
    const QString error = reply->value(QLatin1String("error")).toString();
    return error.isEmpty() || fail(QStringLiteral("%1: %2").arg(QString::fromUtf8(line), error));
}

bool PanelDriver::act(const QString &command, QJsonObject message)
{
    message.insert(QStringLiteral("command"), command);
    QJsonObject reply;
    return request(message, &reply, replyTimeoutMs) && (sync() || endedWell());
}

QJsonObject PanelDriver::query(const QString &command, QJsonObject message)
{
    message.insert(QStringLiteral("command"), command);
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
    return exitStatus() == 0 ||
           fail(QStringLiteral("the panel ended with status %1").arg(exitStatus()));
}
