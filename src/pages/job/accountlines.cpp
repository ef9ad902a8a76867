#include "pages/job/accountlines.h"

Accounts accountsFromLines(const QStringList &lines)
{
    const QLatin1Char separator('=');
    Accounts accounts;
    accounts.reserve(lines.size());
    for (const QString &line : lines) {
        const QString id = line.section(separator, 0, 0);
        if (!id.isEmpty())
            accounts.insert(id, line.section(separator, 1, 1));
    }
    return accounts;
}

QString accountLine(const QString &id, const QString &description)
{
    return id + QLatin1Char('=') + description;
}

QStringList sortedAccountIds(const Accounts &accounts)
{
    QStringList ids = accounts.keys();
    ids.sort(Qt::CaseSensitive);
    return ids;
}

AccountFault enterAccount(Accounts *accounts, const AccountEntry &entry)
{
    const bool renamed = !entry.isNew && entry.id != entry.formerId;
    if (entry.id.isEmpty())
        return AccountFault::NoId;
    if (accounts->contains(entry.id) && (entry.isNew || renamed))
        return AccountFault::IdInUse;
    if (renamed)
        accounts->remove(entry.formerId);
    accounts->insert(entry.id, entry.description);
    return AccountFault::None;
}
