#include "pages/watermark/watermarkrecords.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *builtInTexts[] = {
    "CONFIDENTIAL", "ORIGINAL", "COPY", "DO NOT PHOTOCOPY", "DRAFT", "FINAL", "PROOF",
};

// In this order.
constexpr char escapedCharacters[] = {'@', '$', '#', '!', ' '};

const QLatin1String customPrefix("Custom.");

constexpr int longestNumbers = 127; // bytes, of which the seven numbers need far less

} // namespace

QString Watermark::toLine(const Record &record)
{
    QStringList numbers;
    for (const int number : record.look)
        numbers.append(QString::number(number));
    return record.name + QLatin1Char('=') + numbers.join(QLatin1Char(' '));
}

Watermark::Record Watermark::fromLine(const QString &line)
{
    const int equals = line.lastIndexOf(QLatin1Char('='));
    Record record;
    record.name = line.left(equals); // all of it if there is no "="
    if (equals < 0)
        return record;
    const QByteArray numbers = line.mid(equals + 1).toUtf8().left(longestNumbers);
    int feature = 0;
    for (const QByteArray &number : numbers.split(' ')) {
        if (!number.isEmpty() && feature < FeatureCount)
            record.look[feature++] = number.toInt();
    }
    return record;
}

QString Watermark::quotedText(const QString &text)
{
    QString quoted = text;
    for (const char character : escapedCharacters)
        quoted.replace(QLatin1Char(character), QLatin1Char('\\') + QString(QLatin1Char(character)));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

bool Watermark::isBuiltInText(const QString &text)
{
    return std::any_of(std::begin(builtInTexts), std::end(builtInTexts),
                       [&](const char *builtIn) { return text == QLatin1String(builtIn); });
}

QString Watermark::customText(const QString &key)
{
    return key.startsWith(customPrefix) ? key.mid(customPrefix.size()) : QString();
}
