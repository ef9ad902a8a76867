#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

/// What surrounds the panel in the sandbox: the queues of the private print server, the user's
/// files, stand-ins for commands. Every operation returns an error text, empty if all went well.
class World
{
public:
    World();

    /// As after a fresh installation; queues go when keepOnlyWantedQueues() runs.
    QString reset();
    /// `words`: name, PPD (a file of demo/ppd, tests/cases/stores or one that addPpd() made), then
    /// "Option=Choice" for installed options and an address if it is not "file:///dev/null".
    QString addQueue(const QStringList &words);
    QString addPpd(const QString &name, const QStringList &parts);
    QString keepOnlyWantedQueues();
    QString writeFile(const QString &path, const QStringList &lines);
    /// The settings file of a printer or profile.
    QString writeSettings(const QString &name, const QStringList &lines);
    /// Lets a shell script stand in for a command; without lines the command is missing.
    QString standIn(const QString &command, const QStringList &lines);
    /// Runs a shell command in `folder()`; what it says, and its status if that is not 0.
    QStringList run(const QString &command);

    /// The search path that has the stand-ins.
    QString searchPath() const;
    /// An empty folder for what a case makes.
    static QString folder();

    /// "KEY=VALUE" lines by file below the user's folder, and by queue as lpoptions keeps them
    /// ("published QUEUE"); a file without lines has an empty one.
    QMap<QString, QStringList> files() const;

private:
    QMap<QString, QString> present; ///< queue to how it was added; empty if that is not known
    QSet<QString> wanted;
    QSet<QString> missing; ///< commands
};
