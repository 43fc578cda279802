// Paints the splash at its own size for the program to show at once: splash FILE
#include "desktop/painting/pictures.h"
#include "desktop/platform/readypicture.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("splash FILE\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    using namespace hustle::desktop;
    const QImage image = draw_art(hustle::art::startscreen, splash_size).toImage();
    if (!store_ready(image, QString::fromLocal8Bit(argv[1]))) {
        std::fputs("splash: the file cannot be written\n", stderr);
        return 1;
    }
    return 0;
}
