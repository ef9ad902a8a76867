#pragma once

#include <QHash>
#include <QString>

/// The complete text of a gedit page setup file (a GTK key file with the group "Page Setup",
/// lengths in millimetres) for each PageSize keyword of a PPD that gedit has a paper for. Never
/// written to.
extern const QHash<QString, QString> pageSetupTable;
