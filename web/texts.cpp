// The sheet as JSON, and what the script's names tell.
#include "art/lamplooks.h"
#include "core/files.h"
#include "panel/sheet.h"
#include "script/dump.h"
#include "show/places.h"
#include "web/here.h"
#include "web/surface.h"

#include <cstdio>
#include <memory>

using namespace hustle;
using namespace hustle::web;

namespace {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            (result += '\\') += c;
        else if (static_cast<unsigned char>(c) >= 0x20) {
            result += c;
        } else {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(c));
            result += code.data();
        }
    }
    return result += '"';
}

std::string figure(int value) { return std::to_string(value); }

constexpr std::string_view kinds[] = {"picture", "button", "clicked", "label", "line",
                                      "textbox", "push",   "frame",   "entry"};

std::string element_json(element e) {
    const element_row& r = row(e);
    const rect place = seen_place(e);
    return "[" + quoted(r.name) + "," + figure(static_cast<int>(r.where)) + "," +
           quoted(kinds[static_cast<std::size_t>(r.what)]) + "," + figure(place.left) + "," +
           figure(place.top) + "," + figure(place.width) + "," + figure(place.height) + "," +
           (is_lamp(r) ? "1" : "0") + "]";
}

template <class Count, class Tell> std::string list(Count count, const Tell& tell) {
    std::string json = "[";
    for (Count i = 0; i < count; ++i)
        (json += i > 0 ? "," : "") += tell(i);
    return json += "]";
}

script::names& names_here() {
    static const auto known = std::make_unique<script::names>(machine_here().g, machine_here().world.said);
    return *known;
}

const script::cell* find_cell(std::string_view name) {
    const auto cells = names_here().all();
    const auto found = std::lower_bound(cells.begin(), cells.end(), name,
                                        [](const script::cell& c, std::string_view n) { return c.name < n; });
    return found != cells.end() && found->name == name ? &*found : nullptr;
}

} // namespace

// {"screens": [[name, width, height]], "elements": [[name, screen, kind, left, top, width, height,
// lamp]], "menus": [[menu, entry or -1 for a separator]], "arts": [name], "sounds": [name], "files":
// [name], "winLine": [left, top, width, height], "coinSize" and "glow": panel pixels, "version": text};
// lengths in twips, 15 to a pixel of the panel.
int hh_sheet(void) {
    std::string json = "{\"screens\":" + list(screen_count, [](std::size_t i) {
                           const screen_row& s = row(static_cast<screen>(i));
                           return "[" + quoted(s.name) + "," + figure(s.width) + "," + figure(s.height) + "]";
                       });
    json += ",\"elements\":" +
            list(element_count, [](std::size_t i) { return element_json(static_cast<element>(i)); });
    const auto menus = menu_rows();
    json += ",\"menus\":" + list(menus.size(), [&](std::size_t i) {
                const element e = menus[i].entry;
                return "[" + quoted(menus[i].menu) + "," +
                       figure(e == element::total ? -1 : static_cast<int>(e)) + "]";
            });
    json += ",\"arts\":" + list(art_count, [](std::size_t i) { return quoted(name(static_cast<art>(i))); });
    json +=
        ",\"sounds\":" + list(sound_count, [](std::size_t i) { return quoted(name(static_cast<sound>(i))); });
    json += ",\"files\":[" + quoted(name(store::game_dat)) + "," + quoted(name(store::hscore_dat)) + "]";
    const rect line = win_line_area();
    json += ",\"winLine\":[" + figure(line.left) + "," + figure(line.top) + "," + figure(line.width) + "," +
            figure(line.height) + "],\"coinSize\":" + figure(coin_size);
    json += ",\"glow\":" + figure(glow_reach) + ",\"version\":" + quoted(version_text) + "}";
    return give(json);
}

int hh_file_text(int which) {
    const machine& m = machine_here().g.m;
    return give(which == 0 ? game_text(m) : table_text(m));
}

int hh_is_file(int which, int bytes) {
    machine read;
    return (which == 0 ? read_game_text(read, taken(bytes)) : read_table_text(read, taken(bytes))) ? 1 : 0;
}

int hh_record(void) { return give(recorded(machine_here().world.past)); }

int hh_get(int bytes) {
    const script::cell* cell = find_cell(taken(bytes));
    if (cell == nullptr)
        return -1;
    const bool is_text =
        std::holds_alternative<word*>(cell->where) || std::holds_alternative<std::string*>(cell->where);
    if (const auto* flag = std::get_if<word*>(&cell->where))
        return give(quoted(**flag));
    if (const auto* own = std::get_if<std::string*>(&cell->where))
        return give(quoted(**own));
    const std::string value = script::shown(cell->where);
    const bool bare = std::holds_alternative<art*>(cell->where);
    return give(bare && !is_text ? quoted(value) : value);
}

int hh_find_element(int bytes) {
    const std::string_view wanted = taken(bytes);
    for (std::size_t i = 0; i < element_count; ++i)
        if (script::full_name(static_cast<element>(i)) == wanted)
            return static_cast<int>(i);
    return -1;
}

int hh_find_screen(int bytes) {
    const std::string_view wanted = taken(bytes);
    for (const screen_row& s : screen_rows())
        if (s.name == wanted)
            return static_cast<int>(s.id);
    return -1;
}

int hh_hash(void) { return give(script::hash_text(names_here())); }
