#pragma once

#include "casefile.h"
#include "panelprocess.h"
#include "world.h"

/// Plays cases on the panel and says what each step led to.
class Player
{
public:
    /// `platform`: of Qt, "offscreen" or "xcb".
    explicit Player(const QString &platform);

    /// The case's steps with what they led to in `expected`.
    Case play(const Case &preamble, const Case &wanted);

private:
    QStringList stepResult(CaseStep *step);
    QStringList worldStep(const QString &verb, const QStringList &words, const CaseStep &step);
    QStringList panelStep(const QString &verb, const QString &line);
    QStringList startPanel();
    QStringList startIfNeeded();
    QStringList confirmed();
    bool goToPageOf(const QString &word);
    QStringList show(const QString &asked);
    QStringList changes(const QStringList &step, bool quiet = false);
    QStringList windowChanges(const PanelState &after, bool quiet);
    bool isNews(const QString &key, const QString &before, const QString &after) const;
    QStringList lookLines(const QString &look, const QStringList &names);
    void expect(const QStringList &step, const PanelState &now);
    QStringList openDialog() const;
    void prepareEnvironment();

    const QString platform;
    World world;
    PanelProcess panel;
    QStringList arguments;
    PanelState shown;
    QString mainTitle;  ///< what the main window was called last
    QSet<QString> told; ///< titles of dialogs, values, and lists of widgets that look otherwise
    QMap<QString, QStringList> saved;
    bool hasEnded = false;
};
