#include "pages/base/onelinevalidator.h"

#include <QRegularExpression>

OneLineValidator::OneLineValidator(const QString &pattern, QObject *parent)
    : QRegExpValidator(QRegExp(pattern), parent)
{
}

QValidator::State OneLineValidator::validate(QString &text, int &cursor) const
{
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|[\n\r\\x{2028}\\x{2029}]"));
    static const QRegularExpression inFront(QStringLiteral("^[\n\r\\x{2028}\\x{2029}]+"));
    if (!text.contains(lineBreak))
        return QRegExpValidator::validate(text, cursor);

    const auto tryWithout = [&](const auto &withoutBreaks) {
        QString line = withoutBreaks(text);
        int place = withoutBreaks(text.left(cursor)).size();
        const State state = QRegExpValidator::validate(line, place);
        if (state != Invalid) {
            text = line;
            cursor = place;
        }
        return state;
    };
    const QString blank(QLatin1Char(' '));
    State state = tryWithout([&](QString line) { return line.replace(lineBreak, blank); });
    // Some patterns have blanks, but none in front.
    if (state == Invalid)
        state = tryWithout(
            [&](QString line) { return line.remove(inFront).replace(lineBreak, blank); });
    if (state == Invalid)
        state = tryWithout([&](QString line) { return line.remove(lineBreak); });
    return state;
}
