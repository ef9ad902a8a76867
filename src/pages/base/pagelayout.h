#pragma once

#include <QList>

class QFrame;
class QWidget;

/// Pieces that the pages' layouts are put together from.
namespace PageLayout {

/// Sunken lines between groups of options.
QFrame *horizontalLine(QWidget *parent);
QFrame *verticalLine(QWidget *parent);
/// The order in which the keyboard reaches the widgets; null entries are passed over.
void setTabOrder(const QList<QWidget *> &widgets);

} // namespace PageLayout
