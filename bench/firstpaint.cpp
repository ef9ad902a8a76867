#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

/// Ends the program as soon as one of its windows has been drawn.
class FirstPaint : public QObject
{
    Q_OBJECT

public:
    FirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(watched);
        // What is in the window is drawn before the event loop goes on.
        if (event->type() == QEvent::Paint && widget && widget->isWindow())
            QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }
};

class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject *create(const QString &, const QString &) override { return new FirstPaint; }
};

#include "firstpaint.moc"
