// The machine's data sheet: constant rows for every screen, element, timer and menu entry, with
// text names, places and stored states. Front ends, scripts and tests walk these tables.
#pragma once

#include "panel/panel.h"

#include <span>
#include <string_view>

namespace hustle {

struct rect {
    int left, top, width, height; // twips; a pixel is 15 twips
};
constexpr rect twips(int left, int top, int width, int height) { return {left, top, width, height}; }
constexpr rect pixels(int left, int top, int width, int height) {
    return {left * 15, top * 15, width * 15, height * 15};
}

struct screen_row {
    screen id;
    std::string_view name;  // as the machine knows it: "main"
    std::string_view title; // stored caption; empty where the screen's load routine sets it
    int width, height;      // twips of the whole screen
};

enum class kind : std::uint8_t {
    picture, // shows art
    button,  // a picture that acts on the mouse going down
    clicked, // a picture that acts on a click
    label,
    line, // a dot-matrix text line
    textbox,
    push,  // a plain push button with a caption
    frame, // an empty frame
    entry, // a menu entry
};

// The kinds that take a press of the mouse.
constexpr bool takes_press(kind k) { return k == kind::button || k == kind::clicked || k == kind::push; }

struct element_row {
    element id;
    screen where;
    std::string_view name; // without the screen: "start"
    kind what;
    rect place; // {} for a menu entry
    art picture = art::none;
    std::string_view text = {};
    bool enabled = true;
    bool visible = true;
    colour back = 0;
    colour fore = 0; // of a line: the stored colour of its lit dots
};

// What a running timer keeps from a second start.
enum class chain : std::uint8_t { nothing, machine, board };

struct timer_row {
    timer id;
    screen where;
    std::string_view name; // without the screen: "butflash"
    int interval;          // ms
    bool at_start;         // runs from the load of its screen
    chain keeps;
};

struct menu_row {
    std::string_view menu; // "Game", "Options", "Help"
    element entry;         // element::total: a separator
};

std::span<const screen_row, screen_count> screen_rows();
const element_row& row(element);
const timer_row& row(timer);
const screen_row& row(screen);
std::span<const menu_row> menu_rows();
// True while a timer runs that keeps the machine, or the board.
bool chain_runs(const panel&, chain);
// The elements of one screen, from the back to the front.
std::span<const element_row> elements_of(screen);

std::string_view name(art);
std::string_view name(sound); // "like-it.wav"
std::string_view name(store); // "game.dat"
// The dollar version of a reel picture that shows a pound; any other art as it is.
art dollar_version(art);

} // namespace hustle
