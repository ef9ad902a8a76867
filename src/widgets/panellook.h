#pragma once

#include <QHash>
#include <QIcon>
#include <QProxyStyle>

/// How the whole program looks, on every desktop: Qt's Fusion style in light colours, since the
/// window brings its own light background.
///
/// A text in one line that is wider than its room ends in an ellipsis, and the tool tip of its
/// widget begins with the whole of it. The text itself, which screen readers get, stays whole.
class PanelLook : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives the application this style, its palette and its tool tips; once, at the start.
    static void use();
    /// Every role in every group, so that nothing is left to the desktop.
    static QPalette lightPalette();
    /// Shows a text of which the widget has no room for all, above its own tool tip.
    static void showToolTip(const QPoint &position, const QString &whole, const QString &toolTip,
                            QWidget *widget);

    /// How much larger the type is than usual; 1 for type of the usual size and below.
    static double typeFactor(const QFont &font);

    /// Draws dividing lines so that they show at every scale factor.
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    /// The icons of dialogs' buttons, read once for all dialogs.
    QIcon standardIcon(StandardPixmap kind, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;

protected:
    /// Shows the tool tips of all widgets whose text does not fit.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    PanelLook();

    mutable QHash<int, QIcon> icons;
};
