#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The personal list of account IDs: how it is stored, sorted and changed.

/// Account ID (digits, kept as text, since leading zeros count) and description.
using Accounts = QHash<QString, QString>;

/// The accounts of stored lines "ID=description". A description ends at the next "="; of lines
/// with the same ID the last one counts, and lines without an ID are passed over.
Accounts accountsFromLines(const QStringList &lines);
/// How an account is stored.
QString accountLine(const QString &id, const QString &description);
/// Sorted as texts: "100" comes before "20".
QStringList sortedAccountIds(const Accounts &accounts);

/// Why an account is refused.
enum class AccountFault
{
    None,
    NoId,
    IdInUse,
};

/// What the user entered for one account.
struct AccountEntry
{
    QString id;
    QString description;
    bool isNew = true;
    QString formerId; ///< of an account that is edited; empty for a new one
};

/// Adds an account or changes one, which may get another ID. With a fault nothing changes.
AccountFault enterAccount(Accounts *accounts, const AccountEntry &entry);
