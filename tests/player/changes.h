#pragma once

#include <QMap>
#include <QStringList>

// How two states of the panel and of the user's files differ, in the words of a case.

/// Says which items a list, parted by "|", has gained and lost, or of "KEY.blocked" which are
/// blocked and freed.
void addListChange(const QString &key, const QString &before, const QString &after,
                   QStringList *lines);
/// What is not said when another printer is shown: nearly everything is another then.
bool isOfWidget(const QString &key);
/// The value that a step is to give its widget, null for other steps.
QString valueOf(const QStringList &step);
/// Whether a widget's value ends with a word on its look.
bool looks(const QString &value, const QString &look);
QString withoutLook(QString value);
/// By the files' names with their lines.
QStringList fileChanges(const QMap<QString, QStringList> &before,
                        const QMap<QString, QStringList> &after);
/// As many to a line as can be read.
QStringList joined(const QStringList &parts, const QString &separator = "; ");
