#pragma once

#include <QIcon>

/// The panel's own pictures, each read and decoded once, as late as it can be.
namespace Icons {

/// The icon of a path such as ":/icons/error"; without a picture if there is none by that name.
QIcon icon(const QString &path);

} // namespace Icons
