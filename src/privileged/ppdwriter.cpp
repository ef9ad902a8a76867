#include "privileged/ppdwriter.h"

#include "privileged/secretmemory.h"

#include <QFile>
#include <QStandardPaths>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int mostLines = 3;

bool isHarmless(QChar character)
{
    // In UTF-8 no letter holds a byte that means something to a shell.
    return character.isLetter() || character.isDigit() ||
           QLatin1String("_-.+@:,/%=").contains(character);
}

bool isHarmless(const QString &word)
{
    return !word.isEmpty() && std::all_of(word.begin(), word.end(),
                                          [](QChar character) { return isHarmless(character); });
}

} // namespace

namespace PpdWriter {

bool areHarmless(const QString &printer, const QString &arguments, QString *culprit)
{
    const auto refuse = [culprit](const QString &word) {
        if (culprit)
            *culprit = word;
        return false;
    };
    if (!isHarmless(printer) || printer.startsWith(QLatin1Char('-')))
        return refuse(printer);
    QStringList pairs = arguments.split(QLatin1Char(' '));
    const QString rest = pairs.takeLast(); // what is behind the last blank
    if (!rest.isEmpty())
        return refuse(rest);
    for (const QString &pair : qAsConst(pairs)) {
        // A pair with a blank in it falls apart into words without a "=".
        if (!isHarmless(pair) || pair.indexOf(QLatin1Char('=')) <= 0)
            return refuse(pair);
    }
    return true;
}

bool isToolInstalled()
{
    const QStringList usual{QStringLiteral("/usr/local/sbin"), QStringLiteral("/usr/local/bin"),
                            QStringLiteral("/usr/sbin"),       QStringLiteral("/usr/bin"),
                            QStringLiteral("/sbin"),           QStringLiteral("/bin")};
    const QString name = QLatin1String(tool);
    return !QStandardPaths::findExecutable(name).isEmpty() ||
           !QStandardPaths::findExecutable(name, usual).isEmpty();
}

QByteArray commandLine(const QString &password, const QString &prefix, const QString &printer,
                       const QString &arguments)
{
    const bool sudo = prefix.contains(QLatin1String("sudo"));
    QByteArray secret = password.toLocal8Bit();
    const QByteArray tail = "\" | " + prefix.toUtf8() + (sudo ? "" : " \"") + ' ' +
                            QByteArray(tool) + " '" + printer.toUtf8() + "' " + arguments.toUtf8() +
                            (sudo ? " 2>&1 >/dev/null" : "\"");
    const QByteArray head = " echo \"";
    QByteArray line;
    line.reserve(head.size() + secret.size() + tail.size()); // never moves, so leaves no copy
    line.append(head).append(secret).append(tail);
    cleanse(&secret);
    return line;
}

int run(const char *line)
{
    FILE *stream = popen(line, "r");
    if (!stream)
        return 1;
    {
        QFile file;
        file.open(stream, QIODevice::ReadOnly);
        QTextStream text(&file);
        for (int lines = 0; lines < mostLines && !text.atEnd(); ++lines)
            text.readLine();
    }
    const int status = pclose(stream);
    const bool ended = (status & 0x7f) == 0;
    return ended ? (status >> 8) & 0xff : 1;
}

} // namespace PpdWriter
