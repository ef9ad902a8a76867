#include "player.h"

#include "changes.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>

namespace {

constexpr int longestAwaitMs = 20000;

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
    told.clear();
    hasEnded = false;
    Case played = wanted;
    const QString error = world.reset();
    saved = world.files();
    QStringList failed = error.isEmpty() ? QStringList() : QStringList(error);
    for (CaseStep step : preamble.steps)
        failed += stepResult(&step);
    for (CaseStep &step : played.steps) {
        step.expected = failed + stepResult(&step);
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

QStringList Player::stepResult(CaseStep *step)
{
    const QStringList words = QProcess::splitCommand(step->text);
    const QString verb = words.value(0);
    static const QStringList ofWorld{"queue", "ppd", "saved", "file", "command", "env", "run"};
    QStringList lines;
    if (ofWorld.contains(verb)) {
        lines = worldStep(verb, words, *step);
        // A step of the surroundings may change what the panel is to be compared with later.
        if (!panel.isRunning())
            saved = world.files();
    } else if (verb == "=") {
        lines = startIfNeeded();
        step->text = "= " + show(step->text.mid(2)).join("\n= ");
    } else {
        lines = panelStep(verb, step->text);
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
    if (verb == "queue" && !step.block.isEmpty()) {
        // With a PPD of its own.
        const QString ppd = name + ".ppd";
        error = world.addPpd(ppd, step.block);
        error += world.addQueue(QStringList{name, ppd} + words.mid(2));
    } else if (verb == "queue")
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

/// Nobody has to write the step that says what goes without saying.
QStringList Player::startIfNeeded()
{
    if (panel.isRunning() || hasEnded)
        return {};
    const QStringList lines = startPanel();
    shown = panel.state();
    return lines;
}

QStringList Player::panelStep(const QString &verb, const QString &line)
{
    QStringList lines;
    QStringList words = QProcess::splitCommand(line);
    if (verb == "start")
        arguments = words.mid(1);
    if (verb == "start" || verb == "restart") {
        lines = openDialog();
        panel.stop();
        lines += startPanel();
        lines += changes({}, true);
        if (verb == "start" || words.size() == 1)
            return joined(lines + confirmed());
    }
    lines += startIfNeeded();
    if (verb == "await") {
        QElapsedTimer clock;
        clock.start();
        while (lines.isEmpty() && clock.elapsed() < longestAwaitMs && panel.isRunning()) {
            QThread::msleep(20);
            lines = changes({});
        }
        return joined(words.value(1) == "message" ? lines : lines + confirmed());
    }
    QString step = line;
    if (verb == "select" || verb == "restart") {
        words[0] = "select";
        step = "row tblPrinters" + line.mid(verb.size());
    } else if (verb == "apply") {
        step = "click Apply";
    }
    if (!goToPageOf(verb == "select" ? "tblPrinters" : words.value(1)) || !panel.send(step))
        return joined(lines) + QStringList("error: " + panel.error());
    if (verb == "apply" && panel.state().value("message") == "Settings applied.")
        panel.send("click Ok");
    lines += changes(words, words.first() == "select");
    return joined(lines + confirmed());
}

/// What it leads to that a message has been read.
QStringList Player::confirmed()
{
    QStringList lines;
    while (platform == "offscreen" && shown.contains("message") && panel.send("click Ok"))
        lines += changes({});
    return lines;
}

/// Clicks the tab of the widget's page if another one is in front.
bool Player::goToPageOf(const QString &word)
{
    QStringList page;
    if (!panel.send("page \"" + QString(word).replace('"', "\"\"\"") + '"', &page))
        return false;
    if (page.first() == "-1")
        return true;
    const bool done = panel.send("tab #" + page.first());
    shown["page"] = panel.state().value("page");
    return done;
}

QStringList Player::changes(const QStringList &step, bool quiet)
{
    QStringList lines;
    const PanelState now = panel.state();
    if (now.isEmpty() && !hasEnded) {
        hasEnded = true;
        lines.append("ended " + panel.end());
    }
    const auto files = world.files();
    // Much comes with another printer, also with one that was selected by a key.
    const QString title = now.value("title");
    const bool isOther =
        step.value(0) == "press" && title != mainTitle && title.startsWith("Brixola Press Desk - ");
    expect(step, now);
    lines += windowChanges(now, quiet || isOther) + fileChanges(saved, files);
    if (step.value(0) == "select") {
        // The first time it saves the defaults and publishes them.
        const QString cfg = step.value(1) + ".cfg";
        const QString published = "published " + step.value(1);
        if (!files.contains(cfg))
            lines.append(cfg + ": none");
        else if (lines.removeOne(cfg + ": new") && !lines.removeOne(published + ": new") &&
                 !files.contains(published))
            lines.append(published + ": none");
    }
    shown = now;
    saved = files;
    return lines;
}

QStringList Player::windowChanges(const PanelState &after, bool quiet)
{
    QStringList lines;
    QMap<QString, QStringList> otherLooks;
    for (auto entry = after.begin(); entry != after.end(); ++entry) {
        const QString &key = entry.key();
        const QString &value = entry.value();
        const QString before = shown.value(key);
        const bool isOfFront = key == "title" || key == "message" || key == "nameless";
        if ((!shown.contains(key) && !isOfFront) || before == value ||
            (quiet && (isOfWidget(key) || value.startsWith("Brixola Press Desk"))) ||
            (looks(before, "hidden") && looks(value, "hidden")))
            continue;
        if (key.endsWith(".items") || key.endsWith(".blocked")) {
            addListChange(key, before, value, &lines);
        } else if (!isOfFront && !isNews(key, before, value)) {
            for (const char *look : {"grey", "hidden"}) {
                if (looks(before, look) != looks(value, look))
                    otherLooks[(looks(value, look) ? "" : "not ") + QString(look)].append(key);
            }
        } else {
            told.insert(key + ": " + withoutLook(value));
            lines.append(key + ": " + value);
        }
    }
    for (auto entry = otherLooks.begin(); entry != otherLooks.end(); ++entry)
        lines += lookLines(entry.key(), entry.value());
    return lines;
}

/// Whether the value is to be said: it has changed, or can be used again and the case has not said
/// it yet.
bool Player::isNews(const QString &key, const QString &before, const QString &after) const
{
    const QString value = withoutLook(after);
    const bool isValue = !key.startsWith("lbl") && value != "button" && value != "\"\"" &&
                         value.compare(key, Qt::CaseInsensitive) != 0;
    return withoutLook(before) != value ||
           (isValue && after == value && !told.contains(key + ": " + value));
}

/// A list that a case has told already is known again by its first name and its length.
QStringList Player::lookLines(const QString &look, const QStringList &names)
{
    const QString all = names.join(' ');
    if (told.contains(all) && names.size() > 3)
        return {QString("%1: %2 and %3 more").arg(look, names.first()).arg(names.size() - 1)};
    told.insert(all);
    QStringList lines = joined(names, ", ");
    for (QString &line : lines)
        line.prepend(look + ": ");
    return lines;
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
    if (step.value(0) == "row") {
        const QString row = now.value(step.value(1));
        shown[step.value(1)] = row.contains(step.value(2)) ? row : QString("another row");
    }
    // A mark on any page is what greys these.
    if (now.value("marked") != shown.value("marked")) {
        for (const char *button : {"Apply", "Ok"})
            shown[button] =
                withoutLook(shown.value(button)) + (now.value("marked").isEmpty() ? "" : " grey");
    }
    // A dialog that closes leads back to the window, or to one that was there before.
    const QString title = now.value("title");
    const bool isMain = title.startsWith("Brixola Press Desk");
    if (isMain ? title == mainTitle : told.contains(title))
        shown["title"] = title;
    if (isMain)
        mainTitle = title;
    else
        told.insert(title);
}

/// `asked`: "KEY" or "KEY: VALUE" and so on, as it is answered.
QStringList Player::show(const QString &asked)
{
    QStringList lines;
    for (const QString &part : asked.split("; ")) {
        const QString key = part.section(": ", 0, 0);
        const QString file = key.section(':', 0, 0);
        const QString widget = key.section('.', 0, -2);
        QStringList answer;
        if (key.contains(':')) {
            // "FILE:KEY", a line of a file or of what is published.
            const QString start = key.section(':', 1) + '=';
            for (const QString &line : saved.value(file))
                if (line.startsWith(start))
                    answer.append(line.mid(start.size()));
            lines.append(key + ": " + (answer.isEmpty() ? "none" : answer.join('|')));
        } else if (shown.contains(key)) {
            const QString blocked = shown.value(key + ".blocked");
            lines.append(key + ": " + shown.value(key) +
                         (blocked.isEmpty() ? QString() : " blocks " + blocked));
        } else if (!widget.isEmpty() &&
                   panel.send("ask \"" + widget + "\" \"" + key.section('.', -1) + '"', &answer)) {
            lines.append(key + ": " + answer.first());
        } else {
            lines.append(key + ": not there");
        }
    }
    return joined(lines);
}
