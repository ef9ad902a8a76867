#pragma once

#include <QIcon>

/// The panel's own pictures, read and decoded once for each scale factor.
namespace Icons {

/// The icon of a path such as ":/icons/error"; without a picture if there is none by that name.
QIcon icon(const QString &path);

} // namespace Icons
