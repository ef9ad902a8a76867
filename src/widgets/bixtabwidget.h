#pragma once

#include <QTabWidget>

/// The pages beside their list; draws the dark column of the list down to the bottom edge. A dot on
/// a tab tells that something has changed on a page that does not show.
class BixTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit BixTabWidget(QWidget *parent = nullptr);

    /// Puts a dot on the tab of a page, which goes when the page is opened.
    void setDot(QWidget *page);
    void clearDots();
    /// Whether the tab of a page has a dot.
    bool hasDot(const QWidget *page) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setDotAt(int index, bool on);
};
