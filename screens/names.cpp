// The form that asks for the name of a good score.

#include "core/upward.h"
#include "panel/text.h"
#include "screens/sidescreens.h"

namespace hustle {

namespace {

using enum element;

constexpr int name_length = 15; // characters; a longer name is kept as it is

// Characters, not bytes: the bytes that go on with a character are passed over.
int characters(std::string_view text) {
    int n = 0;
    for (const char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U)
            ++n;
    return n;
}

} // namespace

void Entername_load(game& g) {
    play(g, sound::clap);
    set_picture(g.p, Entername_background, art::back);
    short_text won("You Won ");
    set_caption(g.p, Entername_Label3, won.add(fixed(g.m.newscore)));
}

void Entername_submit(game& g) {
    machine& m = g.m;
    panel& p = g.p;
    table_fields& t = g.t;
    t.entrytext = caption(p, Entername_Text1);
    const int blanks = name_length - characters(t.entrytext);
    for (t.entrycount = 0; t.entrycount < blanks; ++t.entrycount)
        t.entrytext.insert(t.entrytext.begin(), ' ');

    m.hiscore[9] = m.newscore;
    m.hiname[9] = t.entrytext;
    m.newscore = 0;

    disable(p, start);
    short_text empty = fixed(m.bank);
    line(g, empty.blanks(16));

    // A table left open for viewing would have no way out and keep the score unsorted.
    unload_screen(g, screen::Highscore);
    load_screen(g, screen::Highscore);
    unload_screen(g, screen::Entername);
}

void Entername_Timer1(game& g) {
    set_picture(g.p, Entername_image1, g.t.submitflash == 0 ? art::scoredark : art::scorelight);
    g.t.submitflash = g.t.submitflash == 0 ? 1 : 0;
}

} // namespace hustle
