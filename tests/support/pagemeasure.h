#pragma once

#include <QStringList>

class QWidget;

/// What stands badly on a page or dialog as it shows: widgets that overlap or reach beyond it, and
/// texts that are cut. What can be scrolled to is in sight.
class PageMeasure
{
public:
    explicit PageMeasure(QWidget *page);

    QStringList faults;
    QStringList shortened; ///< texts that end in an ellipsis, and whose tool tips have the rest

private:
    void note(const QWidget *widget, const QString &fault);
    void check(QWidget *widget);
    void checkPlace(QWidget *widget);
    void checkText(QWidget *widget);

    QWidget *page;
};
