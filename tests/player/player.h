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
    QStringList stepResult(const CaseStep &step);
    QStringList worldStep(const QString &verb, const QStringList &words, const CaseStep &step);
    QStringList panelStep(const QString &verb, const QString &line);
    QStringList startPanel();
    QStringList show(const QStringList &keys);
    void addChanges(const QStringList &step, bool quiet, QStringList *lines);
    void expect(const QStringList &step, const PanelState &now);
    QStringList openDialog() const;
    void prepareEnvironment();

    const QString platform;
    World world;
    PanelProcess panel;
    QStringList arguments;
    PanelState shown;
    QString mainTitle; ///< what the main window was called last
    QMap<QString, QStringList> saved;
    bool hasEnded = false;
};
