#include "widgets/customtabstyle.h"

void CustomTabStyle::drawControl(ControlElement, const QStyleOption *, QPainter *,
                                 const QWidget *) const
{
}

QSize CustomTabStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                       const QSize &size, const QWidget *widget) const
{
    return QCommonStyle::sizeFromContents(type, option, size, widget);
}
