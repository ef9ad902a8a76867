#include "widgets/accessibleproxy.h"

#include <QCoreApplication>

AccessibleProxy::AccessibleProxy(QAccessibleInterface *qt)
    : qt(qt)
    , qtId(QAccessible::uniqueId(qt))
{
}

AccessibleProxy::~AccessibleProxy()
{
    // At the end of the program the cache takes them all down in any order.
    if (!QCoreApplication::closingDown() && QAccessible::accessibleInterface(qtId) == qt)
        QAccessible::deleteAccessibleInterface(qtId);
}
