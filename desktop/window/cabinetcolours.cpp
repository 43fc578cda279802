#include "desktop/window/cabinetcolours.h"

#include "art/palette.h"

namespace hustle::desktop {

namespace {

struct colour_row {
    const char* name;
    std::string_view colour;
};

constexpr colour_row colours[] = {
    {"@ground", "#1e0a24"},         // the room around the cabinet
    {"@cream", ink::cream},         // letters
    {"@ivory", ink::ivory},         // letters of what is chosen
    {"@violet", ink::amethyst.mid}, // what is chosen
    {"@gold", ink::gold},           // a tick
    {"@rim", ink::goldmid},         // a menu's edge
    {"@groove", ink::golddeep},     // between two groups
};

} // namespace

QString in_cabinet_colours(QString sheet) {
    for (const colour_row& c : colours)
        sheet.replace(c.name, QString::fromLatin1(c.colour.data(), static_cast<qsizetype>(c.colour.size())));
    return sheet;
}

} // namespace hustle::desktop
