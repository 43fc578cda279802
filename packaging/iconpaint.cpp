// iconpaint DRAWING.svg SIZE PICTURE.png: one size of the program's icon.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int size = argc == 4 ? QString::fromLocal8Bit(argv[2]).toInt() : 0;
    if (size < 8 || size > 1024) {
        std::fputs("usage: iconpaint DRAWING.svg SIZE PICTURE.png, with a size of 8 to 1024\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    if (drawing.isValid() && image.save(QString::fromLocal8Bit(argv[3])))
        return 0;
    std::fputs("iconpaint: the drawing cannot be read or the picture cannot be written\n", stderr);
    return 1;
}
