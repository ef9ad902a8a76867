#pragma once

#include <QList>
#include <QVector>

class OptionChoice;
class OptionStore;
class bOption;

/// What constraint passes move by themselves, from one time that the panel is at rest to the next.
///
/// Comparing the whole selection before and after each pass finds every move, whichever page made
/// it and however; what the user sets lies between the passes. Knows nothing of widgets.
class ChangeWatch
{
public:
    struct Move
    {
        bOption *option;
        OptionChoice *from; ///< at rest, before the action that led to it; may be null
        OptionChoice *to;
    };

    /// Watches these options from now on; null stands for none. They are borrowed.
    void restart(const OptionStore *store);
    /// What is selected now is what the user sees; what was moved is forgotten.
    void rest();

    /// Around a pass. Those within another one count as its part.
    void beginPass();
    void endPass();
    bool isInPass() const { return depth > 0; }

    /// The values that passes have moved since, in no order, without those that are back.
    QList<Move> moves() const;
    /// What was selected at rest; null for an option that is not watched.
    OptionChoice *atRest(const bOption *option) const;

private:
    using Selection = QVector<OptionChoice *>; ///< parallel to `options`

    Selection selection() const;

    QList<bOption *> options;
    Selection resting;
    Selection beforePass;
    Selection firstMoved; ///< what the first pass found that moved the value
    QVector<bool> moved;
    int depth = 0;
};
