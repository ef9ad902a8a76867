#pragma once

#include "sketch/sheetpainter.h"

#include <QWidget>

#include <optional>

class BixTabWidget;
class OptionLabels;
class Tab;

/// The drawing of the printed sheets in the dark column below the list of pages.
///
/// Hidden while no printer is selected or the column has no room for it. It takes no focus; a click
/// on a part of the drawing opens the page where that is set. Tool tip and accessible description
/// say in words what it shows.
class SheetView : public QWidget
{
    Q_OBJECT

public:
    /// A child of `tabs`; pages and labels are borrowed.
    SheetView(BixTabWidget *tabs, const QList<Tab *> &pages, const OptionLabels &labels);

    /// Shows what the pages are set to, anew only if it looks otherwise. `moved` has the keywords
    /// of what the panel changed by itself, with the keys that were selected before.
    void showSettings(const QHash<QString, QString> &moved);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    /// Lies at the lower edge of the column, and hides where that is too low.
    void place();
    SheetPages pagesNow() const;
    std::optional<SheetPart> partAt(const QPoint &point) const;
    /// What a click on a part leads to: those keywords of it that are on, or all if none is.
    QStringList keywordsOf(SheetPart part) const;
    QString toolTipAt(const QPoint &point) const;
    /// Opens the page, and gives the focus to the control.
    void open(SheetPart part);

    BixTabWidget *const tabs;
    const QList<Tab *> pages;
    const OptionLabels &labels;
    SheetSketch sketch;
    SheetSketch before;
    QVector<SheetArea> areas; ///< as last drawn
    std::optional<SheetPart> pressed;
};
