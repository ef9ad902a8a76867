#include "driverplugin.h"

#include "driverserver.h"

QObject *DriverPlugin::create(const QString &name, const QString &specification)
{
    Q_UNUSED(specification)
    const QString socketPath = qEnvironmentVariable("PRESSDESK_DRIVER_SOCKET");
    if (name.compare("pressdeskdriver", Qt::CaseInsensitive) != 0 || socketPath.isEmpty())
        return nullptr;
    return new DriverServer(socketPath);
}
