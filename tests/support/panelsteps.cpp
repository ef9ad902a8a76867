#include "panelsteps.h"

#include "testhelpers.h"

#include <QFile>
#include <QProcess>

namespace {

constexpr char printers[] = "tblPrinters";

bool isGroup(const QString &widget)
{
    return widget.startsWith("but");
}

} // namespace

const QStringList noMessage;
const QStringList applied{"Success", "Settings applied."};
const QStringList nothingSelected{QString(), "Select a printer."};
const QStringList notPublished{"Error", "Error: Printer does not exist or lpoptions failed."};
const QStringList printersChanged{
    "Error", "It looks like your installed printers have changed.\nReloading list now."};

const QStringList onlyPrinterPage{"Printer"};

// Files

QDir userFolder()
{
    return QDir("/usr/share/brixola/tester");
}

QString cfgFile(const QString &printer)
{
    return userFolder().filePath(printer + ".cfg");
}

QString lpoptionsFile()
{
    return QDir::home().filePath(".cups/lpoptions");
}

bool makeUserFolder()
{
    QFile::remove(lpoptionsFile());
    return userFolder().removeRecursively() && userFolder().mkpath(".") &&
           setFileText(userFolder().filePath("Settings"), "Telemetry=False\n");
}

QStringList savedLines(const QString &printer)
{
    return QString::fromUtf8(fileText(cfgFile(printer))).split('\n');
}

QStringList publishedOptions(const QString &printer)
{
    QProcess lpoptions;
    lpoptions.start("lpoptions", {"-p", printer});
    lpoptions.waitForFinished();
    return QString::fromUtf8(lpoptions.readAll()).simplified().split(' ');
}

QStringList missing(QStringList wanted, const QStringList &lines)
{
    for (const QString &line : lines)
        wanted.removeAll(line);
    return wanted;
}

// The panel

QString Panel::complaints;

Panel::Panel()
    : PanelDriver(QStringLiteral(PRESSDESK_PROGRAM))
{
}

Panel::~Panel()
{
    if (QTest::currentTestFailed() && !error().isEmpty())
        qInfo("The panel's last error: %s", qPrintable(error()));
    complaints += standardError();
}

bool Panel::startWith(const QString &printer)
{
    complaints += standardError(); // of the run before, if any
    return start() && select(printer);
}

bool Panel::select(const QString &printer)
{
    return clickRow(printers, printer);
}

bool Panel::answer()
{
    return waitFor([this] { return messageBox().shown; }, "a message") && ok();
}

PanelWidget Panel::standardButton(const char *name)
{
    return PanelWidget::standardButton(QLatin1String(name));
}

QStringList Panel::message()
{
    const PanelMessageBox box = messageBox();
    return box.shown ? QStringList{box.title, box.text} : noMessage;
}

QStringList Panel::rowsOf(int column)
{
    QStringList texts;
    const QVector<QStringList> rows = table(printers).rows;
    for (const QStringList &row : rows)
        texts.append(row.value(column));
    return texts;
}

bool Panel::hasSelection()
{
    const PanelTable table = this->table(printers);
    return table.currentRow != -1 || !table.selectedRows.isEmpty() ||
           windowTitle() != "Brixola Press Desk";
}

bool Panel::set(const Value &value)
{
    return isGroup(value.first) ? clickGroupButton(value.first, value.second)
                                : choose(value.first, value.second);
}

bool Panel::canSet(const Value &value)
{
    if (!isGroup(value.first))
        return enabledItems(value.first).contains(value.second);
    const QJsonArray buttons = state(value.first).value("buttons").toArray();
    for (const QJsonValue &button : buttons)
        if (button["name"] == value.second)
            return button["enabled"].toBool();
    return false;
}
