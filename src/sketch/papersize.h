#pragma once

#include <QSizeF>

class QString;

/// Width and height in millimetres of the paper of a PageSize keyword, the short edge first; an
/// empty size for one that nobody knows here.
QSizeF paperSize(const QString &pageSize);
