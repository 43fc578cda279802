// Measures how the window flashes in the states that panel scripts reach:
//   flashmeter [--reduced] SCRIPT ...
//   flashmeter --pictures MS FOLDER ...      the same of pictures from elsewhere, MS apart, in the order of
//                                            their names, half as wide and high as the window
// Each script is painted in virtual time, sixty pictures a second, in a window of 1024 by 768. A row
// for each says what share of the window, and of its fullest block of 341 by 256, flashes more than
// three times within a second, by light and by saturated red. More than a quarter of a block is a
// danger: the exit status is then 1.
#include "desktop/shot/eye.h"
#include "desktop/shot/flashes.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace hustle::desktop;

constexpr int scale = 2; // pixels of the window to a measured point, in both directions
constexpr double limit = 0.25;

// A row of the table; true where it is no danger.
bool tell(const std::string& name, const flash_meter& meter) {
    const flash_share light = meter.worst_light, red = meter.worst_red;
    const bool safe = std::max(light.block, red.block) <= limit;
    std::printf("| %-22s | %5.1f %% | %5.1f %% | %5.1f %% | %-4s |\n", name.c_str(), 100 * light.window,
                100 * light.block, 100 * red.block, safe ? "safe" : "over");
    return safe;
}

bool pictures_are_safe(const std::string& folder, int apart, bool& readable) {
    flash_meter meter;
    const QFileInfoList files = QDir(QString::fromStdString(folder)).entryInfoList(QDir::Files, QDir::Name);
    std::int64_t ms = 0;
    readable = !files.isEmpty();
    for (const QFileInfo& file : files) {
        const QImage picture = QImage(file.filePath()).convertToFormat(QImage::Format_RGB32);
        if (picture.isNull() || (ms > 0 && picture.size() != meter.size)) {
            std::fprintf(stderr, "%s: no picture, or one of another size\n", qPrintable(file.filePath()));
            readable = false;
            return false;
        }
        measure(meter, picture, picture.rect(), ms += apart);
    }
    return tell(QFileInfo(QString::fromStdString(folder)).baseName().toStdString(), meter);
}

bool row_is_safe(const std::string& script, bool reduced, bool& readable) {
    flash_meter meter;
    eye watcher;
    watcher.width = 1024 / scale;
    watcher.window = {1024 / scale, 768 / scale};
    watcher.picture_ms = 1000.0 / 60;
    watcher.show.reduced = reduced;
    watcher.sees = [&](const QImage& picture, const QRegion& changed, std::int64_t ms) {
        measure(meter, picture, changed, ms);
    };
    readable = watch_file(watcher, script) == 0;
    return readable && tell(QFileInfo(QString::fromStdString(script)).baseName().toStdString(), meter);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const bool reduced = argc > 1 && std::string(argv[1]) == "--reduced";
    const bool pictures = argc > 2 && std::string(argv[1]) == "--pictures";
    const int apart = pictures ? std::atoi(argv[2]) : 0;
    const std::vector<std::string> names(argv + (pictures ? 3 : reduced ? 2 : 1), argv + argc);
    if (names.empty() || (pictures && apart < 1)) {
        std::fputs("flashmeter [--reduced] SCRIPT ...\nflashmeter --pictures MS FOLDER ...\n", stderr);
        return 2;
    }
    std::printf("| State                  | Window  | Block   | Red     | Rule |\n|---|---|---|---|---|\n");
    bool safe = true, readable = true;
    for (const std::string& name : names) {
        bool read = false;
        safe = (pictures ? pictures_are_safe(name, apart, read) : row_is_safe(name, reduced, read)) && safe;
        readable = readable && read;
    }
    return !readable ? 2 : !safe;
}
