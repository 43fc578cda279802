#include "core/files.h"

#include "panel/sheet.h"
#include "panel/text.h"

#include <charconv>
#include <cmath>
#include <string>
#include <utility>

namespace hustle {

namespace {

// Takes a text apart line by line; a line that does not hold what it should makes it damaged.
struct line_reader {
    std::string_view rest;
    bool damaged = false;

    std::string_view line() {
        if (rest.empty()) {
            damaged = true;
            return {};
        }
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view text = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (text.ends_with('\r'))
            text.remove_suffix(1);
        return text;
    }

    std::string_view figures() {
        std::string_view text = line();
        while (text.starts_with(' '))
            text.remove_prefix(1);
        while (text.ends_with(' '))
            text.remove_suffix(1);
        return text;
    }

    count number() {
        const std::string_view text = figures();
        count value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc{} || end != text.data() + text.size())
            damaged = true;
        return value;
    }

    single amount() {
        std::string_view behind;
        const std::optional<single> value = number_at(figures(), behind);
        if (!value || !behind.empty() || !std::isfinite(*value))
            damaged = true;
        return value.value_or(0);
    }

    count position() {
        const count value = number();
        if (value < 1 || value > 16)
            damaged = true;
        return value;
    }

    // What stands between the first and the last double quote.
    std::string word() {
        const std::string_view text = line();
        const std::size_t first = text.find('"');
        const std::size_t last = text.rfind('"');
        if (first == last) {
            damaged = true;
            return {};
        }
        return std::string(text.substr(first + 1, last - first - 1));
    }
};

struct line_writer {
    std::string text;

    void line(std::string_view value) { (text += value) += "\r\n"; }
    void number(single value) { line(plain(value)); }
    void number(int value) { line(plain(value)); }
    void word(std::string_view value) {
        text += '"';
        for (const char c : value) // a line break would put the reader out of step
            text += c == '\r' || c == '\n' ? ' ' : c;
        line("\"");
    }
};

// The amounts that game.dat begins with, in its order.
constexpr single machine::*amounts[] = {
    &machine::moneyin, &machine::moneyout,   &machine::lastwin, &machine::hopper,
    &machine::cashbox, &machine::streakbank, &machine::winbank, &machine::housecut,
};

void first_game(machine& m) {
    m.moneyin = 100;
    m.moneyout = 80;
    m.lastwin = 0;
    m.hopper = 125;
    m.cashbox = m.streakbank = m.winbank = m.housecut = 0;
    m.reels[0].pos = 16;
    m.reels[1].pos = 13;
    m.reels[2].pos = 11;
    m.reelspeed = 1;
    m.soundstate = setting::on;
    m.flashlogo = flag::yes;
    m.ledcolour = 1;
    m.currency = setting::gbp;
}

void first_table(machine& m) {
    m.hiscore.fill(0);
    m.hiname.fill(std::string(15, ' '));
}

void read_one(game& g, store file, bool (*read)(machine&, std::string_view), void (*first)(machine&)) {
    const std::optional<std::string> text = g.w.read(file);
    if (text && read(g.m, *text))
        return;
    first(g.m);
    if (!text)
        return;
    const std::string kept = g.w.set_aside(file);
    std::string told(name(file));
    if (kept.empty())
        told += " is damaged and could not be set aside. It is left as it is, and the machine starts without "
                "it.";
    else
        told += " is damaged. It is kept as " + kept + ", and the machine starts without it.";
    g.w.box({"Hoard Hustle", told, message::mark::warning});
}

void write_one(game& g, store file, std::string_view text) {
    if (g.w.write(file, text))
        return;
    g.w.box({"Hoard Hustle", short_text(name(file)).add(" could not be saved."), message::mark::warning});
}

} // namespace

std::string game_text(const machine& m) {
    line_writer out;
    for (single machine::*const amount : amounts)
        out.number(m.*amount);
    out.line("");
    for (const reel_state& r : m.reels)
        out.number(int{r.pos});
    out.number(int{m.reelspeed});
    out.word(m.soundstate);
    out.word(m.flashlogo);
    out.number(int{m.ledcolour});
    out.word(m.currency);
    return out.text;
}

std::string table_text(const machine& m) {
    line_writer out;
    for (const single score : m.hiscore)
        out.number(score);
    for (const std::string& name : m.hiname)
        out.word(name);
    return out.text;
}

bool read_game_text(machine& m, std::string_view text) {
    line_reader in{text};
    machine read = m;
    for (single machine::*const amount : amounts)
        read.*amount = in.amount();
    in.line(); // carries nothing, and counts
    for (reel_state& r : read.reels)
        r.pos = in.position();
    read.reelspeed = in.number();
    read.soundstate = in.word();
    read.flashlogo = in.word();
    read.ledcolour = in.number();
    read.currency = in.word();
    if (in.damaged)
        return false;
    m = std::move(read);
    return true;
}

bool read_table_text(machine& m, std::string_view text) {
    line_reader in{text};
    machine read;
    for (single& score : read.hiscore)
        score = in.amount();
    for (std::string& name : read.hiname)
        name = in.word();
    if (in.damaged)
        return false;
    m.hiscore = read.hiscore;
    m.hiname = read.hiname;
    return true;
}

void readfiles(game& g) {
    read_one(g, store::game_dat, read_game_text, first_game);
    read_one(g, store::hscore_dat, read_table_text, first_table);
}

void savegame(game& g) {
    write_one(g, store::game_dat, game_text(g.m));
    savetable(g);
}

void savetable(game& g) { write_one(g, store::hscore_dat, table_text(g.m)); }

} // namespace hustle
