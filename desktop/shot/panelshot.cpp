// Paints a screen of the machine as a panel script has left it:
//   panelshot SCRIPT SCREEN PICTURE.png [WIDTH]
// The pictures of the help pages and of the README are made so, and anyone can look at a state of
// the machine without playing up to it.
#include "desktop/shot/still.h"
#include "panel/sheet.h"
#include "script/commands.h"
#include "script/reading.h"

#include <QGuiApplication>
#include <QImage>

#include <cstdio>
#include <iostream>

namespace {

using namespace hustle;

const screen_row* screen_named(std::string_view wanted) {
    for (const screen_row& s : screen_rows())
        if (s.name == wanted)
            return &s;
    return nullptr;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("panelshot SCRIPT SCREEN PICTURE.png [WIDTH]\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const screen_row* const what = screen_named(argv[2]);
    std::string text;
    if (const std::string wrong = script::read_script_file(argv[1], text); !wrong.empty()) {
        std::cerr << script::printable(argv[1]) << ": " << wrong << '\n';
        return 2;
    }
    const int width = argc > 4 ? QString::fromLocal8Bit(argv[4]).toInt() : 800;
    if (what == nullptr || width < 100 || width > 8000) {
        std::fputs("panelshot: no such screen, or a width outside 100 to 8000\n", stderr);
        return 2;
    }
    bool saved = false;
    const int status = script::run_script(text, argv[1], std::cout, std::cerr, [&](const game& g) {
        saved = painted(g, what->id, width).save(QString::fromLocal8Bit(argv[3]));
    });
    if (status == 0 && !saved)
        std::fputs("panelshot: the picture could not be written\n", stderr);
    return status != 0 ? status : !saved;
}
