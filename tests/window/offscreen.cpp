// Runs the tests of a session on no screen, with no sound to be heard, the same everywhere.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SDL_AUDIODRIVER", "dummy");
    qputenv("HUSTLE_SEED", "1");
    qputenv("LC_ALL", "C.UTF-8");
    const QApplication application(argc, argv);
    QApplication::setApplicationName("hoardhustle");
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
