// Build tool: draws SVG files on top of each other into one PNG, so that the partner of an icon
// (a frame below it, a badge above it) needs no drawing of its own.

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

/// Ends the tool with `message` about `file` on standard error and exit status 1.
[[noreturn]] void fail(const QString &file, const QString &message)
{
    std::fprintf(stderr, "rendericons: %s: %s\n", qPrintable(file), qPrintable(message));
    std::exit(1);
}

/// Set by the message handler: the SVG reader only warns about, say, a gradient that is not there.
QString readerComplaint;

void noteComplaint(QtMsgType, const QMessageLogContext &, const QString &message)
{
    readerComplaint = message;
}

/// A picture side in pixels from the command line; no sensible icon is larger than 4096.
int pixels(const char *argument)
{
    bool ok = false;
    const int value = QString::fromLocal8Bit(argument).toInt(&ok);
    if (!ok || value < 1 || value > 4096)
        fail(QString::fromLocal8Bit(argument), QStringLiteral("not a size from 1 to 4096 pixels"));
    return value;
}

/// Draws the SVG `file` over the whole of `image`. A file that is no valid SVG, that the reader
/// complains about, that draws nothing, or whose proportions are not those of the image ends the
/// tool.
void drawLayer(const QString &file, QImage *image)
{
    readerComplaint.clear();
    QSvgRenderer renderer;
    const bool loaded = renderer.load(file);
    if (!readerComplaint.isEmpty())
        fail(file, readerComplaint);
    if (!loaded)
        fail(file, QStringLiteral("cannot be read as SVG"));

    const QSizeF box = renderer.viewBoxF().size();
    if (std::abs(box.width() * image->height() - box.height() * image->width()) > 1e-3)
        fail(file, QStringLiteral("the view box has other proportions than the picture"));

    const QImage before = *image;
    QPainter painter(image);
    renderer.render(&painter);
    painter.end();
    if (*image == before)
        fail(file, QStringLiteral("draws nothing"));
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 5) {
        std::fputs("usage: rendericons WIDTH HEIGHT IN.svg [IN.svg ...] OUT.png\n", stderr);
        return 1;
    }
    qInstallMessageHandler(noteComplaint);

    QImage image(pixels(argv[1]), pixels(argv[2]), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int i = 3; i < argc - 1; ++i)
        drawLayer(QFile::decodeName(argv[i]), &image);
    // The panel reads the large ones at its start, sooner without an alpha channel that says
    // nothing.
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    if (opaque.convertToFormat(image.format()) == image)
        image = opaque;

    const QString output = QFile::decodeName(argv[argc - 1]);
    if (!image.save(output, "PNG"))
        fail(output, QStringLiteral("cannot be written"));
    return 0;
}
