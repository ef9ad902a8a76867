#pragma once

#include <QCommonStyle>

/// A style that draws no control, for tab bars that paint themselves.
class CustomTabStyle : public QCommonStyle
{
    Q_OBJECT

public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget = nullptr) const override;
};
