#include "widgets/focusring.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace {

constexpr int thickness = 2; // pixels
// At least 3:1 against the panel's white and light gray, and against the blue of a selection.
constexpr QRgb ringColor = 0xff0b4f9e;

/// Keys that move the focus or act on it, which no text is typed with.
bool leadsOn(const QKeyEvent &event)
{
    return event.text().isEmpty() || event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

/// What is drawn of a control: style sheets give some of them a margin.
QRect drawnPart(const QWidget *control)
{
    if (qobject_cast<const QComboBox *>(control)) {
        QStyleOptionComboBox option;
        option.initFrom(control);
        return control->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                QStyle::SC_ComboBoxFrame, control);
    }
    if (qobject_cast<const QCheckBox *>(control)) {
        QStyleOptionButton option;
        option.initFrom(control);
        const auto part = [&](QStyle::SubElement element) {
            return control->style()->subElementRect(element, &option, control);
        };
        return part(QStyle::SE_CheckBoxIndicator) | part(QStyle::SE_CheckBoxContents);
    }
    return control->rect();
}

/// A rectangle over whatever lies below it. Qt's own focus frame leaves out what it surrounds, and
/// a control at the edge of its parent would have it cut off.
class Ring : public QWidget
{
public:
    explicit Ring(QWidget *window)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QPen pen(QColor::fromRgb(ringColor), thickness);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        painter.drawRect(
            rect().adjusted(thickness / 2, thickness / 2, -thickness / 2, -thickness / 2));
    }
};

} // namespace

FocusRing::FocusRing(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::follow);
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isWay = type == QEvent::KeyPress && leadsOn(*static_cast<QKeyEvent *>(event));
    if (byKeyboard ? type == QEvent::MouseButtonPress : isWay) {
        byKeyboard = isWay;
        follow();
    } else if (ring && watched != ring && (type == QEvent::Move || type == QEvent::Resize)) {
        // The control may have moved with any of its parents.
        follow();
    }
    return false;
}

void FocusRing::follow()
{
    QWidget *focused = QApplication::focusWidget();
    if (!byKeyboard || !focused || focused->isWindow()) {
        delete ring;
        return;
    }
    QWidget *window = focused->window();
    if (!ring || ring->parentWidget() != window) {
        delete ring;
        ring = new Ring(window);
    }
    const QRect part = drawnPart(focused);
    ring->setGeometry(QRect(focused->mapTo(window, part.topLeft()), part.size())
                          .adjusted(-thickness, -thickness, thickness, thickness));
    ring->raise();
    ring->show();
}
