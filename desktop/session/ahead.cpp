#include "desktop/session/ahead.h"

#include "desktop/session/session.h"
#include "desktop/window/mainwindow.h"

#include <algorithm>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace hustle::desktop {

namespace {

constexpr int ahead_ms = 8; // between two pictures

// What runs for a second or more before the board closes.
constexpr timer last_of_board[] = {
    timer::feature_exittimer,          timer::feature_bonus_win,       timer::feature_flashing_lights,
    timer::feature_start_sevenspinner, timer::feature_start_pickawin,  timer::feature_start_winspins,
    timer::feature_start_winstreak,    timer::feature_start_reelskill, timer::feature_start_letsspin};

kept_pictures wanted(const panel& p) {
    if (!is_loaded(p, screen::feature))
        return {true, is_running(p, timer::feature_start)}; // the run-up to it
    const auto ends = [&p](timer t) { return is_running(p, t); };
    return {std::any_of(std::begin(last_of_board), std::end(last_of_board), ends), true};
}

void give_back() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

void draw_one(session& s) {
    if (s.window == nullptr) { // while the splash stands: main, so that it comes at once
        open_main(s);
        return;
    }
    if (s.kept.main && s.window->main_view().draw_one_ahead())
        return;
    if (!s.window->isVisible())
        return;
    s.window->main_view().speak();
    if (s.kept.board) {
        screenview& board = s.window->board_view();
        if (board.draw_one_ahead())
            return;
        board.speak();
    }
    s.ahead.stop();
    give_back();
}

} // namespace

void start_drawing_ahead(session& s) {
    s.ahead.setInterval(ahead_ms);
    QObject::connect(&s.ahead, &QTimer::timeout, &s.ahead, [&s] { draw_one(s); });
}

void draw_ahead(session& s) {
    if (s.started)
        s.ahead.start();
}

void choose_pictures(session& s) {
    const kept_pictures now = wanted(s.g.p);
    if (now.main == s.kept.main && now.board == s.kept.board)
        return;
    const kept_pictures before = s.kept;
    s.kept = now;
    if (before.main && !now.main)
        s.window->main_view().let_go();
    if (before.board && !now.board)
        s.window->board_view().let_go();
    draw_ahead(s);
}

} // namespace hustle::desktop
