#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QList>
#include <QString>

namespace Mnemonics {

void give(const QList<QAbstractButton *> &buttons)
{
    const QLatin1Char sign('&');
    QString taken;
    for (QAbstractButton *button : buttons) {
        QString text = button->text().remove(sign);
        for (int i = 0; i < text.size(); ++i) {
            const QChar letter = text[i].toLower();
            if (!letter.isLetter() || taken.contains(letter))
                continue;
            taken.append(letter);
            text.insert(i, sign);
            break;
        }
        button->setText(text);
    }
}

} // namespace Mnemonics
