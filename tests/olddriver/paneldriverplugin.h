#pragma once

#include <QGenericPlugin>

/// Qt loads this plugin into the panel when QT_QPA_GENERIC_PLUGINS names "pressdeskolddriver".
class PanelDriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "pressdeskolddriver.json")

public:
    /// The running driver, owned by the application object; null for another key and without a
    /// socket path in PRESSDESK_DRIVER_SOCKET.
    QObject *create(const QString &name, const QString &specification) override;
};
