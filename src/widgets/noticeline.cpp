#include "widgets/noticeline.h"

#include <QAccessible>
#include <QKeySequence>
#include <QTimer>

namespace {

constexpr int longWork = 500; // milliseconds

} // namespace

NoticeLine::NoticeLine(QWidget *parent)
    : QLabel(parent)
{
    // As wide as the layout lets it be, whatever it says.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setTextFormat(Qt::RichText); // of plain text and a link
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
}

void NoticeLine::tell(const Sentence &sentence, const QStringList &items, const QString &link)
{
    sentence_ = sentence;
    items_ = items;
    link_ = link;
    const QString whole = sentence_(items_.join(QStringLiteral(", ")));
    const QString keys = QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText);
    setToolTip(link.isEmpty() ? whole
                              : tr("%1 %2 (%3)", "sentence, offer, keys").arg(whole, link, keys));
    showFitting();
    announce();
}

void NoticeLine::forget()
{
    sentence_ = nullptr;
    items_.clear();
    link_.clear();
    setToolTip(QString());
    showFitting();
}

void NoticeLine::showWork(const QString &text)
{
    if (work_ == text)
        return;
    work_ = text;
    showFitting();
    // Of what is over at once a reader that asks back finds nothing.
    QTimer::singleShot(longWork, this, [this] {
        if (!work_.isEmpty())
            announce();
    });
}

void NoticeLine::endWork()
{
    if (work_.isEmpty())
        return;
    work_.clear();
    showFitting();
}

void NoticeLine::showState(const QString &text)
{
    if (state_ == text)
        return;
    state_ = text;
    showFitting();
    if (!state_.isEmpty())
        announce();
}

void NoticeLine::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    QLabel::focusNextPrevChild(true);
}

void NoticeLine::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    showFitting();
}

QString NoticeLine::listOf(int count) const
{
    QString shown = items_.mid(0, count).join(QStringLiteral(", "));
    const int more = items_.size() - count;
    if (more == 0)
        return shown;
    return more == 1 ? tr("%1 and one more").arg(shown) : tr("%1 and %2 more").arg(shown).arg(more);
}

void NoticeLine::showFitting()
{
    const QString blank = QStringLiteral(" ");
    const bool isAlone = work_.isEmpty() && !sentence_;
    const QString state = state_.isEmpty() || isAlone ? state_ : state_ + blank;
    if (!work_.isEmpty() || !sentence_) {
        setText((state + work_).toHtmlEscaped());
        return;
    }
    const int room = contentsRect().width() - fontMetrics().horizontalAdvance(state) -
                     fontMetrics().horizontalAdvance(link_.isEmpty() ? link_ : blank + link_);
    int count = items_.size();
    QString text = sentence_(listOf(count));
    while (count > 1 && fontMetrics().horizontalAdvance(text) > room)
        text = sentence_(listOf(--count));
    text = (state + fontMetrics().elidedText(text, Qt::ElideRight, room)).toHtmlEscaped();
    if (!link_.isEmpty())
        text += QStringLiteral(" <a href=\"#\">%1</a>").arg(link_.toHtmlEscaped());
    setText(text);
}

void NoticeLine::announce()
{
    // As if it had come into sight just now, which readers say of a notification. Of the event that
    // is called an alert they never hear on X11 and Wayland.
    QAccessibleEvent event(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}
