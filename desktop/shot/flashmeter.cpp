// Measures how the window flashes in the states that panel scripts reach:
//   flashmeter [--reduced] SCRIPT ...
// Each script is painted in virtual time, sixty pictures a second, in a window of 1024 by 768. A row
// for each says what share of the window, and of its fullest block of 341 by 256, flashes more than
// three times within a second, by light and by saturated red. More than a quarter of a block is a
// danger: the exit status is then 1.
#include "desktop/shot/eye.h"
#include "desktop/shot/flashes.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace hustle::desktop;

constexpr int scale = 2; // pixels of the window to a measured point, in both directions
constexpr double limit = 0.25;

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
    const flash_share light = meter.worst_light, red = meter.worst_red;
    const bool safe = std::max(light.block, red.block) <= limit;
    std::printf("| %-22s | %5.1f %% | %5.1f %% | %5.1f %% | %-4s |\n",
                QFileInfo(QString::fromStdString(script)).baseName().toStdString().c_str(),
                100 * light.window, 100 * light.block, 100 * red.block, safe ? "safe" : "over");
    return safe;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const bool reduced = argc > 1 && std::string(argv[1]) == "--reduced";
    const std::vector<std::string> scripts(argv + (reduced ? 2 : 1), argv + argc);
    if (scripts.empty()) {
        std::fputs("flashmeter [--reduced] SCRIPT ...\n", stderr);
        return 2;
    }
    std::printf("| State                  | Window  | Block   | Red     | Rule |\n|---|---|---|---|---|\n");
    bool safe = true, readable = true;
    for (const std::string& script : scripts) {
        bool read = false;
        safe = row_is_safe(script, reduced, read) && safe;
        readable = readable && read;
    }
    return !readable ? 2 : !safe;
}
