#include "paneldriverplugin.h"

#include "driverserver.h"

QObject *PanelDriverPlugin::create(const QString &name, const QString &specification)
{
    Q_UNUSED(specification)
    const QString socketPath = qEnvironmentVariable("PRESSDESK_DRIVER_SOCKET");
    if (name.compare("pressdeskolddriver", Qt::CaseInsensitive) != 0 || socketPath.isEmpty())
        return nullptr;
    return new DriverServer(socketPath);
}
