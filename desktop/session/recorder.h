// Writes the session down as a panel script while it is played, so that a fault can be had again:
// the files' text at the start, the clock, then each input at its machine time with the draws that
// it made and the answers that it was given. Once a second what is new goes to the file, with the
// hash of the whole state: replayed to that line, a machine must stand in the same state.
#pragma once

#include "screens/dispatch.h"
#include "script/names.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hustle::desktop {

inline constexpr const char* session_name = "session.txt";
inline constexpr const char* session_before = "session-before.txt"; // the one before it
inline constexpr std::size_t longest_session = 8 << 20;             // bytes

struct recorder {
    int file = -1;    // below 0: nothing is written
    std::string text; // not in the file yet
    std::size_t written = 0;
    std::string draws, answers;       // of the event that runs
    int drawn = 0;                    // on the line that `draws` ends with
    std::vector<std::string> amounts; // that were told in another country's form since the last line
    std::string asked;                // the input that runs, as a line; empty in a tick
    std::int64_t since = 0;           // ms on the machine's clock, up to which all is told
    std::int64_t until = 0;           // ticks have been delivered up to here
    bool stands = false;              // main stands: the script's boot is over
    std::unique_ptr<script::names> names;
};

// Begins a new file in a folder, from a game whose two files have been read; the last one is kept as
// well. Where it cannot be kept, or no file can be made, nothing is recorded, and nobody is troubled.
void begin_recording(recorder&, const std::string& folder, game&, std::int64_t clock_ms);
void record_draw(recorder&, int result);
void record_answer(recorder&, const message&, bool yes);
// An amount was told otherwise than a script tells it: the captions that bear it are written down behind
// the event.
void record_amount(recorder&, const std::string& told);
// Main stands: the events from here on are the script's.
void record_boot(recorder&, const game&);
// Ticks are about to be delivered up to a time.
void record_ticks(recorder&, std::int64_t until);
// Round an input: before it is applied, and after.
void record_begun(recorder&, const game&, const input&);
void record_input(recorder&, const game&);
// A box opens in an event, and may stand for long, or the machine waits in it: what was before the event goes
// to the file, and the input that led to the box as a remark.
void record_box(recorder&);
// What is new goes to the file, with the hash. Only between two events.
void flush_recording(recorder&, const game&);
void end_recording(recorder&);

} // namespace hustle::desktop
