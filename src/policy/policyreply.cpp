#include "policy/policyreply.h"

#include "model/keys.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

struct PolicyRow
{
    const char *jsonKey;
    const char *restricted; ///< every other value lifts the restriction
    const char *option;
};

constexpr PolicyRow policyRows[] = {
    {"JE.FullColorPrint", "ON", "FKPColorMode"},
    {"DR.LeanPrintRestriction", "PV.On", "FKPLeanprint"},
    {"DR.DuplexRestriction", "PV.On", "FKPDuplex"},
};

const QLatin1String policiesKey("Policies");
const QLatin1String refusedLogin("INVALID_USER_NAME_OR_PASSWORD");
const QLatin1String noPrinting("\"JE.MonoPrint\":\"ON\"");

} // namespace

Policies PolicyReply::noRestrictions()
{
    Policies policies;
    for (const PolicyRow &row : policyRows)
        policies.insert(QLatin1String(row.option), Keys::off);
    return policies;
}

bool PolicyReply::isStale(const QString &message, const QString &server, const QString &port,
                          const QString &user)
{
    static const QRegularExpression tag(QStringLiteral("<https://(.*?):(.*?) (.*?)>.*"));
    const QRegularExpressionMatch match = tag.match(message);
    return match.hasMatch() &&
           (match.captured(1) != server || match.captured(2) != port || match.captured(3) != user);
}

QString PolicyReply::withoutTag(const QString &message)
{
    static const QRegularExpression tag(QStringLiteral("<.*?>"));
    const QRegularExpressionMatch match = tag.match(message);
    return match.hasMatch() ? QString(message).remove(match.capturedStart(), match.capturedLength())
                            : message;
}

bool PolicyReply::parsePolicies(const QString &body, Policies *policies)
{
    const QJsonObject reply = QJsonDocument::fromJson(body.toUtf8()).object();
    if (!reply.contains(policiesKey)) {
        *policies = noRestrictions();
        return false;
    }
    const QJsonObject values = reply.value(policiesKey).toObject();
    for (const PolicyRow &row : policyRows) {
        const QJsonValue value = values.value(QLatin1String(row.jsonKey));
        if (value.isUndefined())
            continue;
        const bool restricted = value.toString() == QLatin1String(row.restricted);
        policies->insert(QLatin1String(row.option), Keys::onOrOff(restricted));
    }
    return true;
}

QString PolicyReply::loginFailed()
{
    return tr("Login failed. The user name or password you entered is incorrect.");
}

QString PolicyReply::report(const QString &body, bool interactive)
{
    QString text;
    if (interactive)
        text = tr("An unspecified error occured.");
    if (body.contains(refusedLogin))
        text = loginFailed();
    if (interactive && body.contains(QLatin1Char('{')))
        text = tr("Server and user credentials have been authenticated and policies have been "
                  "applied.\n\nCredentials and policies will be checked again during printing.\n");
    if (body.contains(noPrinting))
        text = tr("You do not have permission to print.");
    return text;
}
