#include "shortppd.h"

#include <QRegularExpression>

namespace {

constexpr char header[] = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "CASE.PPD"
*Manufacturer: "Brixola"
*Product: "(Case)"
*ModelName: "Brixola Case"
*ShortNickName: "Brixola Case"
*NickName: "Brixola Case"
*PSVersion: "(3010.000) 0"
*1284DeviceID: "MFG:Brixola;MDL:Case;"
*cupsFilter: "application/vnd.cups-postscript 0 bixfilter_F"
)PPD";

/// "key/text" with "_" for blanks, as a PPD has it.
QString keyAndText(const QString &word)
{
    const QString key = word.section('/', 0, 0);
    return key + '/' + (word.contains('/') ? word.section('/', 1).replace('_', ' ') : key);
}

QString optionText(const QString &head, QStringList choices)
{
    const QString word = head.section(' ', 0, 0);
    const QString group = head.section(' ', 1, 1);
    const QString key = word.section('/', 0, 0);
    QString standard = choices.value(0).section('/', 0, 0);
    QString text;
    for (QString choice : qAsConst(choices)) {
        if (choice.endsWith('*')) {
            choice.chop(1);
            standard = choice.section('/', 0, 0);
        }
        text += QString("*%1 %2: \"\"\n").arg(key, keyAndText(choice));
    }
    text = QString("*OpenUI *%1: PickOne\n*Default%2: %3\n").arg(keyAndText(word), key, standard) +
           text + QString("*CloseUI: *%1\n").arg(key);
    return group.isEmpty() ? text : QString("*OpenGroup: %1\n%2*CloseGroup: %1\n").arg(group, text);
}

} // namespace

QString ppdText(const QStringList &parts)
{
    QString text = header;
    for (const QString &part : parts) {
        static const QRegularExpression values("^\\*\\S+ \\S+ \\*\\S+ \\S+( \\*\\S+ \\S+)?$");
        if (part.startsWith('*') && values.match(part).hasMatch())
            text += (part.count('*') == 3 ? "*cupsUIConstraints: \"" + part + '"'
                                          : "*UIConstraints: " + part) +
                    '\n';
        else if (part.startsWith('*'))
            text += part + '\n';
        else if (part.contains(": "))
            text += optionText(part.section(": ", 0, 0),
                               part.section(": ", 1).split(' ', Qt::SkipEmptyParts));
        else if (part.contains('='))
            text += '*' + part.section('=', 0, 0) + ": \"" + part.section('=', 1) + "\"\n";
    }
    return text;
}
