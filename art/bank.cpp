#include "art/bank.h"

#include "art/art.h"
#include "art/buttons.h"
#include "panel/strip.h"

#include <array>

namespace hustle {

namespace {

struct picture {
    int width = 0, height = 0;
    artist draw = nullptr;
    int which = 0;
};
using bank_table = std::array<picture, art_count>;

constexpr void put(bank_table& bank, art name, int width, int height, artist draw, int which = 0) {
    bank[static_cast<std::size_t>(name)] = {width, height, draw, which};
}

struct named {
    art name;
    int which;
};

using enum art;

constexpr void put_reels(bank_table& bank) {
    for (int stop = 1; stop <= 16; ++stop)
        put(bank, strip[static_cast<std::size_t>(stop - 1)].picture, 144, 312, draw_reel, stop);
    constexpr named dollars[] = {{cbp1, 1}, {bps1, 2},  {psb1, 3},  {cmp1, 6},  {mps1, 7},  {psc1, 8},
                                 {scp1, 9}, {cpb1, 10}, {pbs1, 11}, {msp1, 14}, {spc1, 15}, {pcb1, 16}};
    for (const auto& [name, stop] : dollars)
        put(bank, name, 144, 312, draw_reel, stop + lit);
    for (int phase = 1; phase <= 4; ++phase) {
        put(bank, nth(effect1, phase), 144, 312, draw_spinning_reel, phase);
        put(bank, nth(spineffect1, phase), 97, 97, draw_spinning_die, phase);
    }
    for (int face = 1; face <= 6; ++face)
        put(bank, nth(dice1pic, face), face == 3 ? 98 : 97, face == 3 ? 98 : 97, draw_die, face);
    put(bank, reelpaper, 144, 312, draw_reelpaper);
    put(bank, reelglass, 144, 312, draw_reelglass);
    put(bank, reelstrip, 144, 1664, draw_reelstrip);
    put(bank, reelstrip1, 144, 1664, draw_reelstrip, lit);
    put(bank, coinpic, 30, 30, draw_coin);
    put(bank, coinpic1, 30, 30, draw_coin, lit);
    put(bank, strippic, 50, 541, draw_strip);
    put(bank, stripframe, 65, 41, draw_strip_marker);
}

constexpr void put_keys(bank_table& bank) {
    struct key_row {
        art dark, light;
        int width, height, which;
    };
    constexpr key_row rows[] = {
        {holdpicdark, holdpiclight, 80, 68, key::hold},
        {nudgepicdark, nudgepiclight, 80, 68, key::nudge},
        {stoppicdark, stoppiclight, 80, 68, key::stop},
        {cancelpicdark, cancelpiclight, 80, 68, key::cancel},
        {gambledark, gamblelight, 80, 68, key::gamble},
        {startpicdark, startpiclight, 91, 78, key::start},
        {fstoppicdark, fstoppiclight, 72, 61, key::fstop},
        {fstartpicdark, fstartpiclight, 72, 61, key::fstart},
        {shotspicdark, shotspiclight, 72, 61, key::shots},
        {collectpicdark, collectpiclight, 72, 61, key::collect},
        {cashpicdark, cashpiclight, 72, 61, key::cash},
        {featurepicdark, featurepiclight, 72, 61, key::feature},
        {exchangepicdark, exchangepiclight, 72, 61, key::exchange},
        {hipicdark, hipiclight, 47, 47, key::hi},
        {lopicdark, lopiclight, 47, 47, key::lo},
        {exitdark, exitlight, 98, 33, key::exit},
        {returndark, returnlight, 97, 35, key::back_to_game},
        {backdark, backlight, 97, 35, key::back},
        {resetdark, resetlight, 97, 35, key::reset},
        {scoredark, scorelight, 168, 40, key::score},
    };
    for (const key_row& k : rows) {
        put(bank, k.dark, k.width, k.height, draw_button, k.which);
        put(bank, k.light, k.width, k.height, draw_button, k.which + lit);
    }
}

constexpr void put_lamps(bank_table& bank) {
    for (int rung = 0; rung <= 5; ++rung)
        put(bank, nth(nudge0, rung + 1), 101, 180, draw_nudge_ladder, rung);
    for (int rung = 2; rung <= 5; ++rung)
        put(bank, nth(nudge12, rung - 1), 101, 180, draw_nudge_ladder, 10 + rung);
    put(bank, nudgenowpicdark, 101, 79, draw_nudge_lamp);
    put(bank, nudgenowpiclight, 101, 79, draw_nudge_lamp, lit);
    put(bank, bombicondark, 41, 49, draw_bomb);
    put(bank, bombiconlight, 41, 49, draw_bomb, lit);
    for (int square = 1; square <= 24; ++square) {
        put(bank, nth(boxdark1, square), 64, 59, draw_square, square);
        put(bank, nth(boxlight1, square), 64, 59, draw_square, square + lit);
    }
    put(bank, trailheldpic, 70, 55, draw_trailheld);
    put(bank, elpic, 121, 33, draw_extralife);
    put(bank, losepic, 121, 33, draw_lose);
}

constexpr void put_stills(bank_table& bank) {
    put(bank, title, 795, 58, draw_title, 1);
    put(bank, title2, 795, 58, draw_title, 2);
    put(bank, art::back, 800, 521, draw_back);
    put(bank, buttonbarpic, 800, 98, draw_buttonbar);
    put(bank, reelframepic, 465, 328, draw_reelframe);
    put(bank, lineframepic, 474, 50, draw_lineframe);
    for (int n = 1; n <= 3; ++n)
        put(bank, nth(still1pic, n), 70, 55, draw_still, n);
    put(bank, transferpic, 19, 40, draw_transfer);
    put(bank, trtpic, 320, 279, draw_ring_centre);
    put(bank, shotspanel, 123, 100, draw_shotspanel);
    put(bank, dicepanel, 121, 161, draw_dicepanel);
    put(bank, startscreen, 480, 320, draw_startscreen);
    put(bank, wins_uk, 309, 406, draw_wins, 0);
    put(bank, wins_us, 309, 406, draw_wins, 1);
    put(bank, statisticsback, 368, 283, draw_statisticsback);
    put(bank, highscoreback, 519, 420, draw_highscoreback);
    put(bank, iconpic, 64, 64, draw_icon);
}

constexpr bank_table pictures = [] {
    bank_table bank{};
    put_reels(bank);
    put_keys(bank);
    put_lamps(bank);
    put_stills(bank);
    return bank;
}();

} // namespace

art_size svg_size(art name) {
    const picture& shown = pictures[static_cast<std::size_t>(name)];
    return {shown.width, shown.height};
}

std::string svg(art name, bool dollars) {
    const picture& wanted = pictures[static_cast<std::size_t>(name)];
    if (wanted.draw == nullptr)
        return {};
    pen p{wanted.width, wanted.height};
    p.dollars = dollars;
    wanted.draw(p, wanted.which);
    return finish(p);
}

} // namespace hustle
