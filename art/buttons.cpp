#include "art/buttons.h"

#include "art/bank.h"
#include "art/lamps.h"

namespace hustle {

namespace {

struct face_of_key {
    std::string_view words;
    const ink::jewel& glass;
    double height; // of the letters
};
constexpr face_of_key keys[] = {
    {"HOLD", ink::amber, 20},        {"NUDGE", ink::emerald, 20},      {"STOP", ink::ruby, 21},
    {"CANCEL", ink::rose, 19},       {"GAMBLE", ink::amethyst, 19},    {"START", ink::emerald, 24},
    {"STOP", ink::ruby, 19},         {"START", ink::emerald, 19},      {"SHOTS", ink::topaz, 18},
    {"COLLECT", ink::amber, 18},     {"CASH", ink::ruby, 19},          {"FEATURE", ink::sapphire, 18},
    {"EXCHANGE", ink::amethyst, 18}, {"HI", ink::amber, 12},           {"LO", ink::sapphire, 12},
    {"EXIT", ink::ruby, 15},         {"RETURN", ink::emerald, 15},     {"BACK", ink::sapphire, 15},
    {"RESET", ink::ruby, 15},        {"SUBMIT SCORE", ink::amber, 16},
};

// An arrow on (0, 0), 22 wide, upwards.
void arrow(pen& p, double turn, const ink::jewel& j, bool on) {
    const moved here(p, 0, 0, 1, turn);
    const auto d = polygon({{0, -8}, {11, 4}, {4.5, 4}, {4.5, 9}, {-4.5, 9}, {-4.5, 4}, {-11, 4}});
    path(p, d,
         {.fill = on ? ink::white : std::string_view("#d8cbb4"),
          .stroke = on ? j.deep : ink::black,
          .width = 2});
    path(p, d, {.fill = on ? ink::white : std::string_view("#d8cbb4")});
}

} // namespace

void draw_button(pen& p, int which) {
    const bool on = which >= lit;
    const int number_of_key = which % lit;
    const auto& [words, glass, height] = keys[number_of_key];
    const bool flat = p.height < 42;
    const double rim = flat ? 3 : 5;
    const double w = p.width - 2 * rim, h = p.height - 2 * rim;
    cap(p, {rim, rim, w, h}, flat ? 9 : p.width < 50 ? 10 : 14, glass, on, rim);
    const double x = p.width / 2.0;
    if (number_of_key == key::hi || number_of_key == key::lo) {
        const bool up = number_of_key == key::hi;
        {
            const moved here(p, x, up ? 15.5 : 31.5, 0.8);
            arrow(p, up ? 0 : 180, glass, on);
        }
        cap_words(p, words, x, up ? 31 : 15.5, height, w - 14, glass, on);
    } else {
        cap_words(p, words, x, p.height / 2.0, height, w - 16, glass, on);
    }
}

void draw_nudge_ladder(pen& p, int which) {
    const int top = which % 10;
    const bool all = which > 10;
    plate(p, {0, 0, 101, 180}, 9);
    write(p, "NUDGES", 50.5, 8, 13,
          {.fill = gold(p, 8, 21),
           .edge = ink::black,
           .edge_width = 1.6,
           .shape = {.weight = 0.2, .stretch = 1.1, .most = 82}});
    constexpr const ink::jewel* glass[] = {&ink::sapphire, &ink::teal, &ink::emerald, &ink::amber,
                                           &ink::ruby};
    for (int rung = 1; rung <= 5; ++rung) {
        const bool on = rung == top || (all && rung < top);
        const double y = 26 + (5 - rung) * 29.6;
        cap(p, {10, y, 81, 27}, 8, *glass[rung - 1], on, 4);
        cap_words(p, std::to_string(rung), 50.5, y + 13.5, 16, 40, *glass[rung - 1], on);
    }
}

void draw_nudge_lamp(pen& p, int which) {
    const bool on = which >= lit;
    cap(p, {5, 5, 91, 69}, 13, ink::topaz, on, 5);
    cap_words(p, "NUDGE", 50.5, 26, 17, 72, ink::topaz, on);
    cap_words(p, "NOW", 50.5, 51.5, 17, 40, ink::topaz, on);
    for (const double x : {19.0, 82.0}) {
        const moved here(p, x, 52, 0.72);
        arrow(p, 180, ink::topaz, on);
    }
}

} // namespace hustle
