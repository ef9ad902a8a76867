#include "casefile.h"

#include <QFile>

namespace {

void addText(const Case &each, QStringList *lines)
{
    *lines += each.before;
    if (!each.title.isEmpty())
        lines->append("== " + each.title);
    for (const CaseStep &step : each.steps) {
        *lines += step.before;
        lines->append(step.text);
        for (const QString &line : step.block)
            lines->append("  " + line);
        for (const QString &line : step.expected)
            lines->append("> " + line);
    }
}

} // namespace

bool CaseFile::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error_ = path + ": " + file.errorString();
        return false;
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    Case *current = &preamble;
    for (int i = 0; i < lines.size(); ++i) {
        const QString &line = lines[i];
        const bool belongsToStep = line.startsWith("> ") || line.startsWith("  ");
        if (belongsToStep && (current->steps.isEmpty() || !after.isEmpty())) {
            error_ = QString("%1:%2: no step above").arg(path).arg(i + 1);
            return false;
        }
        if (line.startsWith("> ")) {
            current->steps.last().expected.append(line.mid(2));
        } else if (line.startsWith("  ")) {
            current->steps.last().block.append(line.mid(2));
        } else if (line.isEmpty() || line.startsWith('#')) {
            after.append(line);
        } else if (line.startsWith("== ")) {
            cases.append({after, line.mid(3), {}, i + 1});
            current = &cases.last();
            after.clear();
        } else {
            current->steps.append({after, line, {}, {}, i + 1});
            after.clear();
        }
    }
    return true;
}

QString CaseFile::text() const
{
    QStringList lines;
    addText(preamble, &lines);
    for (const Case &each : cases)
        addText(each, &lines);
    return (lines + after).join('\n') + '\n';
}
