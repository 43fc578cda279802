// Two texts are typed out behind a turning bar and then flash, and one grows from the middle.
#include "core/typedtexts.h"

#include "core/bank.h"
#include "core/ticks.h"
#include "panel/text.h"

#include <array>

namespace hustle {

namespace {

struct typed_text {
    timer chain;
    std::string_view whole;     // with its seven leading blanks
    std::string_view last_bars; // the bars that lead in the last letter
    int flash_from, flash_to;   // steps: odd ones empty, even ones the whole text
    int figures;                // step of the figures line; the next one ends the chain
};
constexpr int leading = 7;
constexpr std::string_view bars = "\\-/-"; // they lead in every other letter

constexpr typed_text dont_hold_any = {timer::dontholdany, "       DONT HOLD ANY", "-", 55, 70, 72};
constexpr typed_text let_em_spin = {timer::letemspin, "       LET 'EM SPIN", "\\-/", 53, 68, 70};

// What the line shows while the text is typed: the letters up to here, and the bar in the place
// of the next one. Five steps for a letter, one for a blank; the last letter ends the typing.
struct typed_frame {
    std::size_t letters;
    char bar; // 0: none
    bool whole;
};

typed_frame frame_at(const typed_text& text, int step) {
    std::size_t at = leading;
    for (; at + 1 < text.whole.size(); ++at) {
        const int steps = text.whole[at] == ' ' ? 1 : 5;
        if (step < steps)
            return {at, bars[static_cast<std::size_t>(step - 1)], false};
        if (step == steps)
            return {at + 1, 0, false};
        step -= steps;
    }
    const int led_in = static_cast<int>(text.last_bars.size());
    if (step <= led_in)
        return {at, text.last_bars[static_cast<std::size_t>(step - 1)], false};
    return {at + 1, 0, step == led_in + 1};
}

void type_frame(game& g, const typed_text& text, int step) {
    const typed_frame frame = frame_at(text, step);
    short_text shown(text.whole.substr(0, frame.letters));
    if (frame.bar != 0)
        shown.add({&frame.bar, 1});
    if (frame.letters < text.whole.size() || frame.whole)
        line(g, shown);
    if (frame.whole)
        set_interval(g.p, text.chain, 100);
}

void end_typing(game& g, const typed_text& text) {
    stop_timer(g.p, text.chain);
    set_interval(g.p, text.chain, 10);
}

void typed_tick(game& g, const typed_text& text) {
    count& step = g.m.textstep;
    if (step == text.figures + 1) {
        end_typing(g, text);
        step = 1;
        return;
    }
    if (step == text.figures)
        figuresline(g);
    else if (step >= text.flash_from && step <= text.flash_to)
        line(g, step % 2 == 1 ? "" : text.whole);
    else if (step >= 1 && step < text.flash_from)
        type_frame(g, text, step);
    ++step;
}

constexpr std::array<std::string_view, 8> growing = {
    "            K",     "           IKE",     "          LIKE ",     "        I LIKE I",
    "        I LIKE IT", "        I LIKE IT ", "      * I LIKE IT *", "     ** I LIKE IT **",
};

void like_it_frame(game& g, int step) {
    const bool odd = step % 2 == 1;
    if (step >= 1 && step <= 8)
        line(g, growing[static_cast<std::size_t>(step - 1)]);
    else if (step >= 9 && step <= 22)
        line(g, odd ? "    +++ I LIKE IT +++" : "    xxx I LIKE IT xxx");
    else if (step == 23 || step == 24)
        line(g, "    *** I LIKE IT ***");
    else if (step >= 29 && step <= 50)
        line(g, odd ? "" : "    *** I LIKE IT ***");
}

} // namespace

void cut_typed_texts(game& g) {
    end_typing(g, let_em_spin);
    end_typing(g, dont_hold_any);
    g.m.textstep = 0;
}

void dontholdany(game& g) { typed_tick(g, dont_hold_any); }
void letemspin(game& g) { typed_tick(g, let_em_spin); }

void ilikeit(game& g) {
    count& step = g.m.textstep;
    if (step == 51) {
        stop_timer(g.p, timer::ilikeit);
        set_interval(g.p, timer::ilikeit, 40);
        step = 0;
        return;
    }
    like_it_frame(g, step);
    ++step;
}

} // namespace hustle
