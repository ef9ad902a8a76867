#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>

/// The restrictions that hold for a user: a synthetic option's keyword and "On" or "Off".
using Policies = QHash<QString, QString>;

/// What the answer of the policy server says. Needs no window and no connection.
///
/// An answer is a tag, "<https://HOST:PORT USER>", and a body. The body should be JSON:
/// {"Policies":{"JE.FullColorPrint":"ON",...}}. It may be anything.
class PolicyReply
{
    Q_DECLARE_TR_FUNCTIONS(FKPTab)

public:
    /// The three restrictions, none of them in force.
    static Policies noRestrictions();

    /// True if the tag names another login than this one. A message without a tag is current. The
    /// host ends at the first colon, so that a host with colons (an IPv6 address) fits no tag.
    static bool isStale(const QString &message, const QString &server, const QString &port,
                        const QString &user);
    /// The body, without the tag.
    static QString withoutTag(const QString &message);

    /// Takes the restrictions over from a body; one that it doesn't name stays as it was. Without
    /// "Policies" in it none is in force, and the result is false.
    static bool parsePolicies(const QString &body, Policies *policies);

    /// What to tell the user about a body; empty for nothing. `interactive`: the user has asked.
    ///
    /// A plain search of the text, in which the last sign found wins: a refused login with a brace
    /// in its answer reads as a success, though nothing but parsePolicies() says whether it was.
    static QString report(const QString &body, bool interactive);

    /// Shown for a refused login.
    static QString loginFailed();
};
