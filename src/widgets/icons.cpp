#include "widgets/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPixmap>

namespace {

/// Reads its picture when it is drawn for the first time: most stand on pages that nobody has
/// turned to yet, and all together would hold up the start.
class LateIcon : public QIconEngine
{
public:
    explicit LateIcon(const QString &path)
        : path_(path)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override
    {
        return icon().availableSizes(mode, state);
    }
    QIconEngine *clone() const override { return new LateIcon(*this); }
    void virtual_hook(int id, void *data) override
    {
        if (id == QIconEngine::IsNullHook)
            *static_cast<bool *>(data) = !QFile::exists(path_);
        else
            QIconEngine::virtual_hook(id, data);
    }

private:
    const QIcon &icon() const
    {
        // By way of a pixmap: an icon would ask the MIME database what a file without an ending
        // holds.
        if (icon_.isNull())
            icon_.addPixmap(QPixmap(path_));
        return icon_;
    }

    const QString path_;
    mutable QIcon icon_;
};

/// Screens with another scale factor take another file, which Qt finds for an icon of its own.
QIcon newIcon(const QString &path)
{
    return qApp->devicePixelRatio() > 1 ? QIcon(path) : QIcon(new LateIcon(path));
}

} // namespace

QIcon Icons::icon(const QString &path)
{
    // Copies of an icon share its pixmaps.
    static QHash<QString, QIcon> icons;
    if (icons.isEmpty())
        qAddPostRoutine([] { icons.clear(); }); // pixmaps must not outlive the application
    auto known = icons.find(path);
    if (known == icons.end())
        known = icons.insert(path, newIcon(path));
    return *known;
}
