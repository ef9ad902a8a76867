#include "changes.h"

#include <QRegularExpression>

namespace {

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

} // namespace

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

bool isOfWidget(const QString &key)
{
    static const QStringList others{"title", "message", "nameless", "marked", "lblRootWarning"};
    return !others.contains(key);
}

QString valueOf(const QStringList &step)
{
    const QString verb = step.value(0);
    if (verb == "check" || verb == "uncheck")
        return verb == "check" ? "on" : "off";
    if (verb == "type")
        return '"' + step.value(2) + '"';
    return verb == "choose" || verb == "pick" ? step.value(2) : QString();
}

bool looks(const QString &value, const QString &look)
{
    return value.section(' ', look == "hidden" ? -1 : -2).split(' ').contains(look);
}

QString withoutLook(QString value)
{
    static const QRegularExpression look("(^| )grey$|(^| )(grey )?hidden$");
    return value.remove(look);
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

QStringList joined(const QStringList &parts, const QString &separator)
{
    constexpr int width = 110;
    QStringList lines;
    for (const QString &part : parts) {
        if (lines.isEmpty() || lines.last().size() + part.size() > width)
            lines.append(part);
        else
            lines.last() += separator + part;
    }
    return lines;
}
