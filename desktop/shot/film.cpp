// Paints the run of a panel script to numbered pictures, in virtual time:
//   film SCRIPT FOLDER [WIDTH] [PICTURES A SECOND] [FROM MS] [TO MS] [reduced]
// FROM and TO are of the machine's clock. The movement of the window is looked at with it.
#include "desktop/shot/eye.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <string>

namespace {
constexpr int most_pictures = 99'999; // a script may run for days
} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("film SCRIPT FOLDER [WIDTH] [PICTURES A SECOND] [FROM MS] [TO MS] [reduced]\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto number = [&](int place, int otherwise) {
        return argc > place ? QString::fromLocal8Bit(argv[place]).toInt() : otherwise;
    };
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    const int rate = number(4, 50);
    hustle::desktop::eye eye;
    eye.width = number(3, 800);
    eye.show.reduced = argc > 7 && std::string(argv[7]) == "reduced";
    if (eye.width < 100 || eye.width > 8000 || rate < 1 || rate > 1000 || !folder.mkpath(".")) {
        std::fputs("film: a width outside 100 to 8000, a rate outside 1 to 1000, or no such folder\n",
                   stderr);
        return 2;
    }
    eye.picture_ms = 1000.0 / rate;
    const int from = number(5, 0), to = number(6, 1'000'000'000);
    int count = 0;
    bool written = true;
    eye.sees = [&](const QImage& picture, const QRegion&, std::int64_t ms) {
        if (ms < from || ms > to || count == most_pictures)
            return;
        const QString name = QString("%1.png").arg(++count, 5, 10, QChar('0'));
        written = picture.save(folder.filePath(name), nullptr, 90) && written;
    };
    const int status = hustle::desktop::watch_file(eye, argv[1]);
    std::printf("%d pictures\n", count);
    if (count == most_pictures)
        std::fputs("film: no more than these; FROM MS begins later\n", stderr);
    if (!written)
        std::fputs("film: a picture could not be written\n", stderr);
    return status != 0 ? status : !written;
}
