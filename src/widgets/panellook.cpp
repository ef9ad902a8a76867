#include "widgets/panellook.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <memory>

namespace {

/// At least 2.5:1 against the window's white and light grays, and plainly no usable text.
constexpr QRgb disabledText = 0xff8a8a8a;
constexpr int usualType = 13; // pixels: 9 or 10 points on most screens
constexpr QRgb placeholderText = 0xff707070;

constexpr QPalette::ColorRole textRoles[] = {QPalette::WindowText, QPalette::Text,
                                             QPalette::ButtonText};

int lineWidth(const QFontMetrics &metrics, int flags, const QString &text)
{
    return metrics.size(flags & Qt::TextShowMnemonic, text).width();
}

bool isCut(const QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.editable = box->isEditable();
    const QRect room = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, box);
    // The style leaves a pixel at either side.
    return lineWidth(box->fontMetrics(), 0, box->currentText()) > room.width() - 2;
}

bool isCut(const QAbstractButton *button, QStyle::SubElement element)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    const QRect room = button->style()->subElementRect(element, &option, button);
    return lineWidth(button->fontMetrics(), Qt::TextShowMnemonic, button->text()) > room.width();
}

bool isCut(const QLabel *label)
{
    if (label->wordWrap() || label->textFormat() == Qt::RichText)
        return false;
    const QRect room = label->contentsRect();
    const int indent = std::max(0, label->indent()) + 2 * label->margin();
    return lineWidth(label->fontMetrics(), 0, label->text()) > room.width() - indent;
}

/// The whole text of a widget that shows only its beginning; empty if it shows all of it.
QString cutText(const QObject *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return isCut(label) ? label->text() : QString();
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return isCut(box) ? box->currentText() : QString();
    QString text;
    if (const auto *check = qobject_cast<const QCheckBox *>(widget))
        text = isCut(check, QStyle::SE_CheckBoxContents) ? check->text() : QString();
    else if (const auto *radio = qobject_cast<const QRadioButton *>(widget))
        text = isCut(radio, QStyle::SE_RadioButtonContents) ? radio->text() : QString();
    else if (const auto *button = qobject_cast<const QPushButton *>(widget))
        text = isCut(button, QStyle::SE_PushButtonContents) ? button->text() : QString();
    return text.replace(QLatin1Char('\n'), QLatin1Char(' ')).remove(QLatin1Char('&'));
}

/// The tool tip with the whole text above what it says otherwise.
QString withWholeText(const QString &whole, const QString &toolTip)
{
    if (Qt::mightBeRichText(toolTip))
        return Qt::convertFromPlainText(whole) + toolTip;
    QString text = toolTip;
    if (toolTip.isEmpty())
        text = whole;
    else if (!toolTip.startsWith(whole))
        text = whole + QLatin1Char('\n') + toolTip;
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

PanelLook::PanelLook()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void PanelLook::use()
{
    auto *look = new PanelLook; // the application's from here on
    QApplication::setStyle(look);
    QApplication::setPalette(lightPalette());
    // A desktop's theme may have given these colours of their own.
    QToolTip::setPalette(lightPalette());
    qApp->installEventFilter(look);
}

QPalette PanelLook::lightPalette()
{
    const QPalette fusion =
        std::unique_ptr<QStyle>(QStyleFactory::create(QStringLiteral("Fusion")))->standardPalette();
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = QPalette::ColorRole(i);
            palette.setColor(group, role, fusion.color(group, role));
        }
    }
    palette.setColor(QPalette::PlaceholderText, QColor::fromRgb(placeholderText));
    for (const QPalette::ColorRole role : textRoles)
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(disabledText));
    return palette;
}

double PanelLook::typeFactor(const QFont &font)
{
    return std::max(1.0, double(QFontInfo(font).pixelSize()) / usualType);
}

void PanelLook::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    const bool isLine = element == CE_ShapedFrame && frame && (frame->state & State_Sunken) &&
                        (frame->frameShape == QFrame::HLine || frame->frameShape == QFrame::VLine);
    if (!isLine) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    // The style's two pens may fall on the same row of the screen, the light one above the dark.
    QRect line = frame->rect;
    const bool isFlat = frame->frameShape == QFrame::HLine;
    const QPoint step(isFlat ? 0 : 1, isFlat ? 1 : 0);
    line.moveTopLeft(line.topLeft() + step * ((isFlat ? line.height() : line.width()) / 2 - 1));
    line.setSize(isFlat ? QSize(line.width(), 1) : QSize(1, line.height()));
    painter->fillRect(line, frame->palette.dark());
    painter->fillRect(line.translated(step), frame->palette.light());
}

QIcon PanelLook::standardIcon(StandardPixmap kind, const QStyleOption *option,
                              const QWidget *widget) const
{
    auto known = icons.constFind(kind);
    if (known == icons.constEnd())
        known = icons.insert(kind, QProxyStyle::standardIcon(kind, option, widget));
    return *known;
}

void PanelLook::drawItemText(QPainter *painter, const QRect &rect, int flags,
                             const QPalette &palette, bool enabled, const QString &text,
                             QPalette::ColorRole textRole) const
{
    QString shown = text;
    const QFontMetrics metrics = painter->fontMetrics();
    if (!(flags & Qt::TextWordWrap) && lineWidth(metrics, flags, text) > rect.width()) {
        QStringList lines = text.split(QLatin1Char('\n'));
        for (QString &line : lines)
            line = metrics.elidedText(line, Qt::ElideRight, rect.width(),
                                      flags & Qt::TextShowMnemonic);
        shown = lines.join(QLatin1Char('\n'));
    }
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, shown, textRole);
}

void PanelLook::showToolTip(const QPoint &position, const QString &whole, const QString &toolTip,
                            QWidget *widget)
{
    QToolTip::showText(position, withWholeText(whole, toolTip), widget);
}

bool PanelLook::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !watched->isWidgetType())
        return false;
    auto *widget = static_cast<QWidget *>(watched);
    const QString whole = cutText(widget);
    if (whole.isEmpty())
        return false;
    showToolTip(static_cast<QHelpEvent *>(event)->globalPos(), whole, widget->toolTip(), widget);
    return true;
}
