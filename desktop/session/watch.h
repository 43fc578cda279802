// A panel script played in the window, to be watched: at any speed from still to twenty times, or
// step by step. The script runs its own machine on a thread of its own and waits there at each new
// time until it is let on; the window shows a copy of what stands.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <streambuf>
#include <string>
#include <thread>

class QLabel;

namespace hustle {
struct game;
}

namespace hustle::desktop {

struct session;

// Keeps the beginning of what is printed: a script may print without an end.
struct beginning : std::streambuf {
    static constexpr std::size_t most = 64 << 10; // bytes
    std::string text;

    std::streamsize xsputn(const char* from, std::streamsize count) override {
        text.append(from, std::min(static_cast<std::size_t>(count), most - text.size()));
        return count;
    }
    int_type overflow(int_type c) override {
        const char one = traits_type::to_char_type(c);
        if (!traits_type::eq_int_type(c, traits_type::eof()))
            xsputn(&one, 1);
        return traits_type::not_eof(c);
    }
};

struct watching {
    std::string text, name; // of the script
    double speed = 1;       // 0 is still
    double reach = 0;       // ms on the machine's clock that the script may come to
    QElapsedTimer real;
    QTimer look; // the next picture
    QLabel* told = nullptr;

    std::mutex lock; // of what follows
    std::condition_variable changed;
    std::int64_t allowed = 0; // `reach` as the script sees it
    game* waits = nullptr;    // the script's machine while it waits; null while it runs
    bool ended = false;
    bool stopped = false;
    beginning printed, failed; // read once it has ended
    int status = 0;            // the script's own, once it has ended; see script/commands.h
    std::jthread worker;
};

// Starts to play a script in the session's windows, which then take no input of the player's.
void start_watching(session&, watching&);
void stop_watching(watching&);
// On by one: to the next time at which something happens.
void step_watched(watching&);

} // namespace hustle::desktop
