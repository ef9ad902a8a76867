#include "support/pagemeasure.h"

#include "widgets/bixcheckboxbutton.h"

#include <QtWidgets>

namespace {

QString textOf(const QWidget *widget)
{
    return widget->property(widget->inherits("QComboBox") ? "currentText" : "text").toString();
}

QString nameOf(const QWidget *widget)
{
    return QString(widget->metaObject()->className()) + ' ' + widget->accessibleName() + ' ' +
           textOf(widget).left(40).simplified();
}

QRect roomOf(QWidget *widget)
{
    QStyleOptionButton button;
    button.initFrom(widget);
    button.text = textOf(widget);
    QStyleOptionComboBox combo;
    combo.initFrom(widget);
    const QStyle *style = widget->style();
    if (widget->inherits("QComboBox"))
        return style->subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxEditField,
                                     widget);
    for (const auto &[type, part] : {std::pair("QCheckBox", QStyle::SE_CheckBoxContents),
                                     std::pair("QRadioButton", QStyle::SE_RadioButtonContents),
                                     std::pair("QPushButton", QStyle::SE_PushButtonContents)})
        if (widget->inherits(type))
            return style->subElementRect(part, &button, widget);
    return widget->contentsRect();
}

bool tellsWhole(QWidget *widget, QString text)
{
    QHelpEvent help(QEvent::ToolTip, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
    QToolTip::hideText();
    QApplication::sendEvent(widget, &help);
    QTextDocument shown;
    shown.setHtml(QToolTip::text());
    return shown.toPlainText().startsWith(text.replace('\n', ' ').remove('&').simplified()) ||
           QToolTip::text().startsWith(text);
}

} // namespace

PageMeasure::PageMeasure(QWidget *page)
    : page(page)
{
    for (QWidget *widget : page->findChildren<QWidget *>())
        if (widget->isVisible() && widget->window() == page->window())
            check(widget);
}

void PageMeasure::note(const QWidget *widget, const QString &fault)
{
    faults << nameOf(widget) + ": " + fault;
}

void PageMeasure::check(QWidget *widget)
{
    if (widget->inherits("QLabel") || widget->inherits("QAbstractButton") ||
        widget->inherits("QComboBox"))
        checkText(widget);
    checkPlace(widget);
}

void PageMeasure::checkPlace(QWidget *widget)
{
    for (QWidget *above = widget->parentWidget(); above != page; above = above->parentWidget())
        if (above->inherits("QAbstractScrollArea") || above->inherits("QComboBox"))
            return; // whatever is too much there can be scrolled to
    if (!page->rect().contains(QRect(widget->mapTo(page, QPoint()), widget->size())))
        note(widget, "reaches beyond the page");
    if (qobject_cast<BixCheckBoxButton *>(widget->parent()))
        return; // whose two parts share a cell
    for (QObject *each : widget->parent()->children())
        if (auto *other = qobject_cast<QWidget *>(each))
            if (other > widget && other->isVisible() && !other->isWindow() &&
                other->geometry().intersects(widget->geometry()))
                note(widget, "overlaps " + nameOf(other));
}

void PageMeasure::checkText(QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    const QString text = textOf(widget);
    if (text.isEmpty())
        return;
    const bool isRich = label && label->textFormat() == Qt::RichText;
    const int flags = label && label->wordWrap() ? Qt::TextWordWrap : Qt::TextShowMnemonic;
    const QRect room = roomOf(widget);
    QSize need = widget->fontMetrics().boundingRect(room, flags, text).size();
    if (isRich)
        need = {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
    if (need.height() > room.height() + 2)
        note(widget, QString("lacks %1 in height").arg(need.height() - room.height()));
    if (need.width() <= room.width())
        return;
    const QString lack = QString("%1 pixels too long").arg(need.width() - room.width());
    if (isRich || !tellsWhole(widget, text))
        note(widget, lack);
    else
        shortened << nameOf(widget) + ": " + lack;
}
