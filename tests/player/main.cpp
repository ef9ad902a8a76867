// Plays case files on the unchanged panel and compares what each step leads to.
//
//   pressdesk-play [--rewrite FOLDER] [--only TITLE] FILE...
//
// Runs in the sandbox, on a print server (see tests/play). Files that end in ".story" are played on
// an X server, others without a display. With --rewrite each file's text with what was found is put
// into FOLDER. Ends with 1 if a case led to something else.

#include "player.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace {

QTextStream out(stdout);

/// Prints the steps of which the result is another.
bool compare(const QString &path, const Case &wanted, const Case &found)
{
    bool same = true;
    for (int i = 0; i < wanted.steps.size(); ++i) {
        const CaseStep &step = wanted.steps[i];
        const QString text = found.steps[i].text;
        if (step.expected == found.steps[i].expected && step.text == text)
            continue;
        same = false;
        out << path << ':' << step.line << ": " << step.text << '\n';
        if (step.text != text)
            out << "  + " << text << '\n';
        for (const QString &line : step.expected)
            if (!found.steps[i].expected.contains(line))
                out << "  - " << line << '\n';
        for (const QString &line : found.steps[i].expected)
            if (!step.expected.contains(line))
                out << "  + " << line << '\n';
    }
    return same;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument("FILE", "case file");
    parser.addOption({"rewrite", "put the files with what was found there", "FOLDER"});
    parser.addOption({"only", "play only cases with this in their title", "TITLE"});
    parser.process(application);

    int passed = 0;
    int failed = 0;
    const QStringList paths = parser.positionalArguments();
    for (const QString &path : paths) {
        CaseFile file;
        if (!file.read(path)) {
            out << file.error() << '\n';
            return 1;
        }
        Player player(path.endsWith(".story") ? "xcb" : "offscreen");
        for (Case &each : file.cases) {
            if (!each.title.contains(parser.value("only")))
                continue;
            const Case found = player.play(file.preamble, each);
            const bool same = compare(path, each, found);
            ++(same ? passed : failed);
            out << (same ? "passed: " : "FAILED: ") << each.title << '\n';
            out.flush();
            each = found;
        }
        QFile rewritten(QDir(parser.value("rewrite")).filePath(QFileInfo(path).fileName()));
        if (parser.isSet("rewrite") &&
            (!rewritten.open(QIODevice::WriteOnly) || rewritten.write(file.text().toUtf8()) < 0)) {
            out << rewritten.fileName() << ": " << rewritten.errorString() << '\n';
            return 1;
        }
    }
    out << passed << " passed, " << failed << " failed\n";
    return failed > 0 || passed == 0 ? 1 : 0;
}
