// Puts the lower left corners of pictures of the panel's pages side by side: see
// demo/contact-sheet.
//
//   pressdesk-contactsheet SHEET WIDTH HEIGHT PICTURE...    WIDTH and HEIGHT of a corner, in pixels

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QStringList pictures = arguments.mid(4);
    const QSize corner(arguments.value(2).toInt(), arguments.value(3).toInt());
    if (corner.isEmpty() || pictures.isEmpty()) {
        std::fprintf(stderr, "usage: pressdesk-contactsheet SHEET WIDTH HEIGHT PICTURE...\n");
        return 2;
    }
    const int columns = std::min(6, int(pictures.size()));
    const int rows = (pictures.size() + columns - 1) / columns;
    QImage sheet(corner.width() * columns, corner.height() * rows, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    for (int i = 0; i < pictures.size(); ++i) {
        const QImage picture(pictures[i]);
        if (picture.isNull()) {
            std::fprintf(stderr, "can't read %s\n", qPrintable(pictures[i]));
            return 1;
        }
        const QPoint place(i % columns * corner.width(), i / columns * corner.height());
        const QPoint from(0, picture.height() - corner.height());
        painter.drawImage(place, picture, QRect(from, corner));
    }
    painter.end();
    if (!sheet.save(arguments[1])) {
        std::fprintf(stderr, "can't write %s\n", qPrintable(arguments[1]));
        return 1;
    }
    return 0;
}
