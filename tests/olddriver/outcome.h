#pragma once

#include <QJsonObject>
#include <QString>

#include <functional>

/// What a request leads to: a reply, and what is done only after the reply has left.
///
/// A click can open a modal dialog and so come back much later; the reply must not wait for it.
struct Outcome
{
    QJsonObject reply;
    std::function<void()> action; ///< empty for a query

    static Outcome failure(const QString &message) { return {{{"error", message}}, {}}; }
};
