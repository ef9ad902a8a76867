// What is typed or answered, and single values of settings files.

#include "fuzz.h"
#include "pages/job/accountlines.h"
#include "pages/publishing/pagelist.h"
#include "pages/watermark/watermarkrecords.h"
#include "policy/policyreply.h"
#include "storage/passwordcipher.h"
#include "storage/secretsetting.h"

void Fuzz::policy(const QByteArray &input)
{
    const QString server = QStringLiteral("h");
    const QString port = QStringLiteral("9094");
    const QString user = QStringLiteral("ann lee");
    const QString text = QString::fromUtf8(input);
    PolicyReply::isStale(text, server, port, user);
    const QString tagged = QStringLiteral("<https://h:9094 ann lee>") + text;
    mustHold(!PolicyReply::isStale(tagged, server, port, user), "one's own login is current");
    mustHold(PolicyReply::withoutTag(tagged) == text, "behind the tag stands the body");

    for (const QString &body : {text, PolicyReply::withoutTag(text)}) {
        Policies policies;
        const bool accepted = PolicyReply::parsePolicies(body, &policies);
        mustHold(accepted || policies == PolicyReply::noRestrictions(),
                 "without policies none is in force");
        for (auto policy = policies.cbegin(); policy != policies.cend(); ++policy)
            mustHold(PolicyReply::noRestrictions().contains(policy.key()) &&
                         (policy.value() == QLatin1String("On") ||
                          policy.value() == QLatin1String("Off")),
                     "a policy is one of three and either on or off");
        PolicyReply::report(body, false);
        PolicyReply::report(body, true);
    }
}

void Fuzz::pageList(const QByteArray &input)
{
    for (const bool cover : {false, true}) {
        const auto [verdict, pages] = PageList::check(QString::fromUtf8(input), cover);
        PageList::message(verdict);
        mustHold(pages.isEmpty() == (verdict != PageList::Verdict::Good),
                 "only a good list has pages");
        if (pages.isEmpty())
            continue;
        const PageList::Result again = PageList::check(pages, cover);
        mustHold(again.verdict == PageList::Verdict::Good && again.pages == pages,
                 "the pages are a good list themselves");
        const QStringList numbers = pages.split(QLatin1Char(','));
        int last = (cover ? PageList::firstPageBehindCover : PageList::firstPage) - 1;
        for (const QString &number : numbers) {
            mustHold(number.toInt() > last && number.toInt() <= PageList::lastPage,
                     "ascending pages within the limits");
            last = number.toInt();
        }
        mustHold(numbers.size() <= PageList::mostPages, "not too many pages");
    }
}

void Fuzz::watermark(const QByteArray &input)
{
    const QString text = QString::fromUtf8(input);
    const Watermark::Record record = Watermark::fromLine(text);
    const Watermark::Record again = Watermark::fromLine(Watermark::toLine(record));
    mustHold(again.name == record.name && again.look == record.look,
             "a record's line is read as that record");
    mustHold(Watermark::customText(QStringLiteral("Custom.") + text) == text,
             "the text of a custom value");
    Watermark::customText(text);
    Watermark::isBuiltInText(text);
    Watermark::quotedText(text);
}

void Fuzz::account(const QByteArray &input)
{
    const QStringList lines = QString::fromUtf8(input).split(QLatin1Char('\n'));
    Accounts accounts = accountsFromLines(lines);
    const QStringList ids = sortedAccountIds(accounts);
    QStringList stored;
    for (const QString &id : ids)
        stored.append(accountLine(id, accounts.value(id)));
    mustHold(accountsFromLines(stored) == accounts, "what is stored is read again");

    const Accounts before = accounts;
    const QString &first = lines.first();
    const AccountEntry entry{first.section(QLatin1Char('='), 0, 0),
                             first.section(QLatin1Char('='), 1), lines.size() % 2 == 0,
                             ids.value(0)};
    if (enterAccount(&accounts, entry) == AccountFault::None)
        mustHold(accounts.value(entry.id) == entry.description, "an account is entered");
    else
        mustHold(accounts == before, "with a fault nothing changes");
}

void Fuzz::secret(const QByteArray &input)
{
    const QString text = QString::fromUtf8(input);
    const QByteArray decrypted = decryptText(text);
    mustHold(decrypted.isNull() == (text.size() % 2 != 0 || text.isEmpty()),
             "null without digits or with an odd number of them");
    mustHold(decrypted.size() <= text.size() / 2, "no more text than digits for it");

    const QByteArray plain(input.constData()); // a zero byte ends it
    const QByteArray encrypted = encryptText(input);
    mustHold(encrypted.size() == (plain.size() + 1) / 16 * 16 + 16, "whole blocks of 16 bytes");
    mustHold(decryptText(toHex(encrypted)) == plain &&
                 decryptText(toHex(encrypted).toUpper()) == plain,
             "the text that was encrypted, in either case of the digits");

    const QString secret = QString::fromUtf8(plain);
    if (secret.startsWith(QChar(QChar::ByteOrderMark)))
        return; // which Qt drops where a text begins
    const QString back = SecretSetting::decrypted(SecretSetting::encrypted(secret));
    mustHold(SecretSetting::withSingleBackslashes(back) == secret, "the secret that was stored");
}
