// demo FOLDER [SEED]: a player at the machine, in virtual time, for those who have no display. The
// story is told line by line as the player sees it, and its turns are painted into FOLDER.
#include "core/start.h"
#include "desktop/shot/still.h"
#include "lab/policies.h"
#include "panel/stillworld.h"
#include "screens/dispatch.h"

#include <QDir>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>

namespace {

using namespace hustle;

constexpr std::uint64_t usual_seed = 5; // its session has all that there is to see
constexpr std::int64_t longest = 20 * std::int64_t{60'000};
constexpr int reaction = 300;

struct sights {
    bool hold = false, trail = false, gamble = false, board = false;
    bool all() const { return hold && trail && gamble && board; }
};

struct story {
    stillworld w;
    game g{w};
    lab::memory player;
    sights seen;
    std::string line;
    QDir folder;
    int pictures = 0;
    bool failed = false;
};

void tell(const story& s, const std::string& what) {
    std::printf("%5.1f s  %s\n", static_cast<double>(s.g.p.now) / 1000, what.c_str());
}

void paint(story& s, const char* name) {
    char file[64];
    std::snprintf(file, sizeof file, "%02d-%s.png", ++s.pictures, name);
    const QString path = s.folder.filePath(file);
    const screen front = is_loaded(s.g.p, screen::feature) ? screen::feature : screen::main;
    if (painted(s.g, front, 800).save(path))
        std::printf("         [picture: %s]\n", qPrintable(path));
    else
        s.failed = true;
}

void first_time(story& s, bool& seen, bool now, const char* what, const char* name) {
    if (seen || !now)
        return;
    seen = true;
    tell(s, what);
    paint(s, name);
}

void look_around(story& s) {
    const lab::sight sight(s.g);
    const std::string now(sight.on_board() ? sight.board_line() : sight.line());
    if (now != s.line && !now.empty())
        tell(s, "the line says: " + now);
    s.line = now;
    bool lamp = false;
    for (int n = 1; n <= 9; ++n)
        lamp = lamp || sight.trail_lamp(n);
    first_time(s, s.seen.trail, lamp && !sight.reels_turn(), "lamps of the trail are lit", "trail");
    first_time(s, s.seen.gamble, sight.on_board() && lab::in_gamble(sight),
               "the gamble waits: higher or lower?", "gamble");
    first_time(s, s.seen.board, sight.on_board() && !lab::in_gamble(sight) && sight.die() != 0,
               "the game on the ring is on, and the die lies still", "board");
}

void press(story& s, element e) {
    const element_row& r = row(e);
    const lab::sight sight(s.g);
    for (int reel = 1; reel <= 3 && !sight.nudge_lamps(); ++reel)
        s.seen.hold = s.seen.hold || e == nth(element::hold1, reel);
    tell(s, "press " + std::string(row(r.where).name) + "." + std::string(r.name));
    s.player.last = e;
    s.player.pressed_at = s.g.p.now;
    apply(s.g, {.what = input::kind::press, .on = e});
}

// Plays until all has been seen and the machine is back on main; false when the time ran out.
bool play(story& s, std::uint64_t seed) {
    s.w.state = seed;
    reset_game(s.g, 43'200'000);
    boot(s.g);
    timer tick{};
    while (!is_loaded(s.g.p, screen::main) && deliver_one(s.g, 60'000 + s.g.p.now, tick)) {
    }
    tell(s, "the machine lights up, with 20 credits");
    paint(s, "start");
    while (s.g.p.now < longest && !s.g.p.over) {
        const std::int64_t begin = s.g.p.now;
        const lab::move next = lab::expert(lab::sight(s.g), s.player);
        const std::int64_t until = next.press == lab::no_press ? begin + 50 : begin + next.after + reaction;
        while (deliver_one(s.g, until, tick))
            look_around(s);
        s.g.p.now = std::max(s.g.p.now, until);
        if (next.press != lab::no_press)
            press(s, next.press);
        look_around(s);
        if (s.seen.all() && !is_loaded(s.g.p, screen::feature) && !lab::sight(s.g).reels_turn()) {
            paint(s, "end");
            return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fputs("usage: demo FOLDER [SEED]\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto s = std::make_unique<story>();
    s->folder.setPath(QString::fromLocal8Bit(argv[1]));
    if (!s->folder.mkpath(".")) {
        std::fprintf(stderr, "demo: %s cannot be made\n", argv[1]);
        return 1;
    }
    const std::uint64_t seed = argc == 3 ? QString::fromLocal8Bit(argv[2]).toULongLong() : usual_seed;
    const bool complete = play(*s, seed);
    const sights& seen = s->seen;
    std::printf("\nSeen: hold %s, trail %s, gamble %s, board %s; %d pictures.\n", seen.hold ? "yes" : "no",
                seen.trail ? "yes" : "no", seen.gamble ? "yes" : "no", seen.board ? "yes" : "no",
                s->pictures);
    return complete && !s->failed ? 0 : 1;
}
