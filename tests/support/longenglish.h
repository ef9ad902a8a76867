#pragma once

#include <QTranslator>

/// English with accents, each word longer by 40 %.
class LongEnglish : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        QStringList words = QString::fromUtf8(text).split(' ');
        for (QString &word : words)
            if (!word.contains('%') && !word.contains('<'))
                word.insert((word.size() + 1) / 2, QString(qRound(word.size() * 0.4), u'é'));
        return words.join(' ');
    }
};
