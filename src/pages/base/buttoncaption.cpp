#include "pages/base/buttoncaption.h"

#include "pages/base/pagewidgets.h"
#include "widgets/bixcheckboxbutton.h"

#include <QCheckBox>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int longestLine = 10; // characters of a caption that stays in one line

} // namespace

QString ButtonCaption::inTwoLines(const QString &caption)
{
    QString best = caption;
    int width = caption.size();
    for (int i = 1; i < caption.size() - 1 && caption.size() > longestLine; ++i) {
        const bool atBlank = caption[i] == QLatin1Char(' ');
        if (!atBlank && caption[i] != QLatin1Char('-'))
            continue;
        const QString first = caption.left(atBlank ? i : i + 1);
        const QString second = caption.mid(i + 1);
        if (std::max(first.size(), second.size()) < width) {
            width = std::max(first.size(), second.size());
            best = first + QLatin1Char('\n') + second;
        }
    }
    return best;
}

void ButtonCaption::set(BixCheckBoxButton *button, const QString &caption, const QString &name)
{
    auto *box = button->findChild<QCheckBox *>();
    auto *picture = button->findChild<QPushButton *>();
    if (!box || !picture)
        return;
    box->setText(inTwoLines(caption));
    button->setLabel(name.isEmpty() ? caption : name);
    button->setPictureToolTip(PageWidgets::withoutColon(button->label()));
    // The two share a cell.
    picture->setStyleSheet(
        QStringLiteral("QPushButton { border: none; outline: none; padding-bottom: %1px; }")
            .arg(box->sizeHint().height()));
}
