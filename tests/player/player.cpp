#include "player.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>

namespace {

constexpr int longestAwaitMs = 20000;

QStringList parted(const QString &list)
{
    return list.split('|', Qt::SkipEmptyParts);
}

/// Those of the first that the second lacks.
QStringList without(QStringList list, const QStringList &others)
{
    for (const QString &other : others)
        list.removeOne(other);
    return list;
}

void addListChange(const QString &key, const QString &before, const QString &after,
                   QStringList *lines)
{
    const QString name = key.section('.', 0, 0);
    const bool isBlocked = key.endsWith(".blocked");
    const QStringList gone = without(parted(before), parted(after));
    const QStringList come = without(parted(after), parted(before));
    if (!come.isEmpty())
        lines->append(name + (isBlocked ? " blocks " : " gains ") + come.join('|'));
    if (!gone.isEmpty())
        lines->append(name + (isBlocked ? " frees " : " loses ") + gone.join('|'));
}

/// What is not said when another printer is shown: nearly everything is another then.
bool isOfWidget(const QString &key)
{
    static const QStringList others{"title", "message", "nameless", "marked", "lblRootWarning"};
    return !others.contains(key);
}

/// The value that a step is to give its widget, null for other steps.
QString valueOf(const QStringList &step)
{
    const QString verb = step.value(0);
    if (verb == "check" || verb == "uncheck")
        return verb == "check" ? "on" : "off";
    if (verb == "type")
        return '"' + step.value(2) + '"';
    return verb == "choose" || verb == "pick" ? step.value(2) : QString();
}

QStringList windowChanges(const PanelState &before, const PanelState &after, bool quiet)
{
    QStringList lines;
    for (auto entry = after.begin(); entry != after.end(); ++entry) {
        const QString &key = entry.key();
        const bool isOfFront = key == "title" || key == "message" || key == "nameless";
        if ((!before.contains(key) && !isOfFront) || before.value(key) == entry.value() ||
            (quiet && (isOfWidget(key) || entry.value().startsWith("Brixola Press Desk"))) ||
            (before.value(key).endsWith(" hidden") && entry.value().endsWith(" hidden")))
            continue;
        if (key.endsWith(".items") || key.endsWith(".blocked"))
            addListChange(key, before.value(key), entry.value(), &lines);
        else
            lines.append(key + ": " + entry.value());
    }
    return lines;
}

/// The lines that are new and, with "-" in front, the keys that are gone.
QStringList lineChanges(const QStringList &before, const QStringList &after)
{
    QStringList changes = without(after, before);
    for (const QString &line : without(before, after)) {
        const QString key = line.section('=', 0, 0) + '=';
        if (after.filter(QRegularExpression('^' + QRegularExpression::escape(key))).isEmpty())
            changes.append('-' + line.section('=', 0, 0));
    }
    changes.sort();
    return changes;
}

QStringList fileChanges(const QMap<QString, QStringList> &before,
                        const QMap<QString, QStringList> &after)
{
    QMap<QString, QStringList> changed;
    QStringList lines;
    for (auto entry = after.begin(); entry != after.end(); ++entry) {
        if (!before.contains(entry.key()))
            lines.append(entry.key() + ": new");
        else if (before.value(entry.key()) != entry.value())
            changed.insert(entry.key(), lineChanges(before.value(entry.key()), entry.value()));
    }
    for (auto entry = before.begin(); entry != before.end(); ++entry) {
        if (!after.contains(entry.key()))
            lines.append(entry.key() + ": gone");
    }
    for (auto entry = changed.begin(); entry != changed.end(); ++entry) {
        // Most of what is saved is published too.
        const QString queue = entry.key().section('.', 0, -2);
        const QStringList published = changed.value("published " + queue);
        QStringList both;
        for (const QString &line : published)
            if (entry.key().endsWith(".cfg") && entry.value().contains(line))
                both.append(line);
        if (!both.isEmpty()) {
            lines.append("saved and published: " + both.join(' '));
            changed["published " + queue] = without(published, both);
        }
        const QStringList rest = without(entry.value(), both);
        if (!rest.isEmpty())
            lines.append(entry.key() + ": " + rest.join(' '));
    }
    return lines;
}

/// Several changes to a line, as long as it can be read.
QStringList joined(const QStringList &changes)
{
    constexpr int width = 110;
    QStringList lines;
    for (const QString &change : changes) {
        if (lines.isEmpty() || lines.last().size() + change.size() > width)
            lines.append(change);
        else
            lines.last() += "; " + change;
    }
    return lines;
}

} // namespace

Player::Player(const QString &platform)
    : platform(platform)
{
}

Case Player::play(const Case &preamble, const Case &wanted)
{
    panel.stop();
    panel.complaints();
    prepareEnvironment();
    arguments.clear();
    shown.clear();
    mainTitle.clear();
    hasEnded = false;
    Case played = wanted;
    const QString error = world.reset();
    saved = world.files();
    QStringList failed = error.isEmpty() ? QStringList() : QStringList(error);
    for (const CaseStep &step : preamble.steps)
        failed += stepResult(step);
    for (CaseStep &step : played.steps) {
        step.expected = failed + stepResult(step);
        failed.clear();
    }
    // What should have closed would not show otherwise.
    if (!played.steps.isEmpty())
        played.steps.last().expected += openDialog();
    panel.stop();
    return played;
}

QStringList Player::openDialog() const
{
    const QString title = shown.value("title");
    if (!panel.isRunning() || title == mainTitle || title.startsWith("Brixola Press Desk"))
        return {};
    return {"left open: " + title};
}

void Player::prepareEnvironment()
{
    panel.environment = QProcessEnvironment::systemEnvironment();
    panel.environment.remove("LANGUAGE");
    panel.environment.remove("LC_ALL");
    for (const auto &[name, value] : std::initializer_list<std::pair<const char *, QString>>{
             {"LANG", "en_US.UTF-8"},
             {"QT_QPA_PLATFORM", platform},
             {"QT_QPA_GENERIC_PLUGINS", "pressdeskdriver"},
             {"QT_PLUGIN_PATH", QStringLiteral(PRESSDESK_PLUGINS)},
             // The panel draws without OpenGL, whose drivers leak a little when they are loaded.
             {"QT_XCB_GL_INTEGRATION", "none"},
             // Some builds of Qt send warnings to the journal unless a terminal is there.
             {"QT_FORCE_STDERR_LOGGING", "1"}})
        panel.environment.insert(name, value);
}

QStringList Player::stepResult(const CaseStep &step)
{
    const QStringList words = QProcess::splitCommand(step.text);
    const QString verb = words.value(0);
    static const QStringList ofWorld{"queue", "ppd", "saved", "file", "command", "env", "run"};
    QStringList lines;
    if (ofWorld.contains(verb)) {
        lines = worldStep(verb, words, step);
        // A step of the surroundings may change what the panel is to be compared with later.
        if (!panel.isRunning())
            saved = world.files();
    } else if (verb == "show") {
        lines = show(words.mid(1));
    } else {
        lines = panelStep(verb, step.text);
    }
    for (QString line : panel.complaints()) {
        // Qt's remarks on the surroundings of a test. That on the seed has no end of its line.
        static const QRegularExpression seed("QT_HASH_SEED: .*stable value\\.");
        line.remove(seed);
        if (!line.isEmpty() && !line.contains("XKEYBOARD") &&
            !line.contains("This plugin does not support"))
            lines.append("complaint: " + line);
    }
    return lines;
}

QStringList Player::worldStep(const QString &verb, const QStringList &words, const CaseStep &step)
{
    const QString name = words.value(1);
    QString error;
    if (verb == "queue")
        error = world.addQueue(words.mid(1));
    else if (verb == "ppd")
        error = world.addPpd(name, step.block);
    else if (verb == "saved")
        error = world.writeSettings(name, words.mid(2) + step.block);
    else if (verb == "file")
        error = world.writeFile(name, step.block);
    else if (verb == "command")
        error = world.standIn(name, step.block);
    else if (verb == "env" && name.contains('='))
        panel.environment.insert(name.section('=', 0, 0), name.section('=', 1));
    else if (verb == "env")
        panel.environment.remove(name);
    else
        return world.run(QString(step.text + '\n' + step.block.join('\n')).mid(4));
    return error.isEmpty() ? QStringList() : QStringList("error: " + error);
}

QStringList Player::startPanel()
{
    world.keepOnlyWantedQueues();
    panel.environment.insert("PATH", world.searchPath());
    shown.clear();
    saved = world.files();
    const QString launcher = panel.environment.value("LAUNCHER");
    QStringList command = launcher.split(' ', Qt::SkipEmptyParts);
    command << QStringLiteral(PRESSDESK_PROGRAM) << arguments;
    hasEnded = false;
    return panel.start(command) ? QStringList() : QStringList("error: " + panel.error());
}

QStringList Player::panelStep(const QString &verb, const QString &line)
{
    QStringList lines;
    const bool restarts = verb == "start" || verb == "restart";
    if (verb == "start")
        arguments = QProcess::splitCommand(line).mid(1);
    if (restarts) {
        lines = openDialog();
        panel.stop();
    }
    if (restarts || (!panel.isRunning() && !hasEnded)) {
        lines += startPanel();
        // Nobody has to write the step that says what goes without saying.
        if (restarts || !lines.isEmpty()) {
            addChanges({}, true, &lines);
            return lines;
        }
        shown = panel.state();
    }
    if (verb == "await") {
        QElapsedTimer clock;
        clock.start();
        while (lines.isEmpty() && clock.elapsed() < longestAwaitMs && panel.isRunning()) {
            QThread::msleep(20);
            addChanges({}, false, &lines);
        }
        return lines;
    }
    QStringList answer;
    const QString step = verb == "select"  ? "row tblPrinters" + line.mid(6)
                         : verb == "apply" ? "click Apply"
                                           : line;
    bool done = panel.send(step, &answer);
    if (verb == "apply" && panel.state().value("message") == "Settings applied.")
        done = panel.send("click Ok", &answer);
    if (!done) {
        lines.append("error: " + panel.error());
        return lines;
    }
    if (verb == "ask")
        return answer;
    addChanges(QProcess::splitCommand(line), verb == "select", &lines);
    return lines;
}

void Player::addChanges(const QStringList &step, bool quiet, QStringList *lines)
{
    const PanelState now = panel.state();
    if (now.isEmpty() && !hasEnded) {
        hasEnded = true;
        lines->append("ended " + panel.end());
    }
    const auto files = world.files();
    expect(step, now);
    QStringList changes = windowChanges(shown, now, quiet) + fileChanges(saved, files);
    if (step.value(0) == "select") {
        // The first time it saves the defaults and publishes them.
        const QString cfg = step.value(1) + ".cfg";
        const QString published = "published " + step.value(1);
        if (!files.contains(cfg))
            changes.append(cfg + ": none");
        else if (changes.removeOne(cfg + ": new") && !changes.removeOne(published + ": new") &&
                 !files.contains(published))
            changes.append(published + ": none");
    }
    *lines += joined(changes);
    shown = now;
    saved = files;
}

/// Changes what is known to have been shown so that a step's own effect goes without saying, and
/// its lack doesn't.
void Player::expect(const QStringList &step, const PanelState &now)
{
    if (step.value(0) == "tab")
        shown["page"] = step.value(1);
    const QString value = valueOf(step);
    if (!value.isNull() && shown.contains(step.value(1)))
        shown[step.value(1)] = value;
    // A dialog that closes leads back to the window.
    const QString title = now.value("title");
    if (title == mainTitle)
        shown["title"] = title;
    else if (title.startsWith("Brixola Press Desk"))
        mainTitle = title;
}

QStringList Player::show(const QStringList &keys)
{
    QStringList lines;
    for (const QString &key : keys) {
        if (key.contains(':')) {
            // "FILE:KEY", a line of a file or of what is published.
            const QString start = key.section(':', 1) + '=';
            const QStringList found =
                saved.value(key.section(':', 0, 0))
                    .filter(QRegularExpression('^' + QRegularExpression::escape(start)));
            lines.append(found.isEmpty() ? key + ": none"
                                         : key.section(':', 0, 0) + ": " + found.join(' '));
        } else if (!shown.contains(key)) {
            lines.append(key + ": not there");
        } else {
            lines.append(key + ": " + shown.value(key));
            if (!shown.value(key + ".blocked").isEmpty())
                lines.append(key + " blocks " + shown.value(key + ".blocked"));
        }
    }
    return joined(lines);
}
