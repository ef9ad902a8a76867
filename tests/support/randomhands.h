#pragma once

#include <QList>
#include <QString>

#include <algorithm>
#include <random>

class QTabWidget;
class QWidget;

/// Everything below `parent` that a user could use now: what shows, is enabled and isn't read-only,
/// of lists what has something to choose. In the order in which it was made.
QList<QWidget *> usableControls(const QWidget *parent);

/// Hands that use a window at random; the same seed and the same windows give the same clicks.
class RandomHands
{
public:
    explicit RandomHands(unsigned seed)
        : engine_(seed)
    {
    }

    int below(int limit) { return int(engine_() % unsigned(limit)); }
    bool oneIn(int times) { return below(times) == 0; }
    template <typename List>
    auto pick(const List &list)
    {
        return list[below(int(list.size()))];
    }
    template <typename List>
    List shuffled(List list)
    {
        std::shuffle(list.begin(), list.end(), engine_);
        return list;
    }

    /// Turns to a page that can be used, from the page `first` on. False if there is none.
    bool turnPage(QTabWidget *tabs, int first);
    /// Does something that a user could do with one of usableControls(), and says what; empty if it
    /// has nothing else to choose now.
    QString use(QWidget *control);

private:
    std::mt19937 engine_;
};
