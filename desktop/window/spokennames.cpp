#include "desktop/window/spokennames.h"

#include "art/lamplooks.h"
#include "panel/sheet.h"

#include <QStringList>

namespace hustle::desktop {

namespace {

using enum element;

QString words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

struct fixed_name {
    element id;
    const char* name;
};
constexpr fixed_name names[] = {
    {cancelbutton, "Cancel"},
    {stopper, "Stop"},
    {start, "Start"},
    {transfer, "Transfer a pound from the bank to credits"},
    {feature_hibutton, "Higher"},
    {feature_lobutton, "Lower"},
    {feature_collect, "Collect"},
    {feature_featurebutton, "Take the features ladder"},
    {feature_cashbutton, "Take the cash ladder"},
    {feature_shotbutton, "Take the shots"},
    {feature_exchangebutton, "Exchange"},
    {feature_stopfeature, "Stop"},
    {feature_startbutton, "Start"},
    {feature_el, "Extra life"},
    {feature_losegamble, "Lose"},
    {statistics_Picture1, "Back"},
    {statistics_Picture2, "Reset"},
    {Highscore_Picture1, "Exit"},
    {Highscore_Picture2, "Return"},
    {Highscore_Picture3, "Reset"},
    {Entername_image1, "Enter score"},
    {reelguide_Image1, "Strip of reel 1"},
    {reelguide_Image2, "Strip of reel 2"},
    {reelguide_Image3, "Strip of reel 3"},
    {wintable_Picture1, "Table of wins"},
};

// A member of a family that stands in a row, counted from 1; 0 for any other element.
int place_in(element first, element last, element e) {
    return e >= first && e <= last ? static_cast<int>(e) - static_cast<int>(first) + 1 : 0;
}

QString symbol(const machine& m, int reel) {
    const word sym = reel == 1 ? m.reel1sym : reel == 2 ? m.reel2sym : m.reel3sym;
    if (sym == "rseven")
        return "red seven";
    return sym == "bseven" ? "blue seven" : words(sym);
}

QString lamp(const QString& name, bool lit) { return lit ? name + ", lit" : name; }

QString hold_name(const panel& p, element e, int n) {
    const art a = at(p, e).picture;
    const bool nudging = a == art::nudgepicdark || a == art::nudgepiclight;
    return QString(nudging ? "Nudge reel %1" : "Hold reel %1").arg(n);
}

// The marks round a flashing text are not read out.
QString line_text(const std::string& text) {
    QString said;
    for (const QString& part : QString::fromStdString(text).split(' ', Qt::SkipEmptyParts)) {
        bool spoken = false;
        for (const QChar letter : part)
            spoken = spoken || (letter.isLetterOrNumber() && part != "xxx");
        if (spoken)
            said += (said.isEmpty() ? "" : " ") + part;
    }
    return said;
}

QString family_name(const game& g, element e) {
    const panel& p = g.p;
    const art a = at(p, e).picture;
    if (const int n = place_in(reel1, reel3, e))
        return QString("Reel %1: %2").arg(n).arg(symbol(g.m, n));
    if (const int n = place_in(hold1, hold3, e))
        return hold_name(p, e, n);
    if (const int n = place_in(feature_square1, feature_square24, e))
        return lamp(QString("Square %1").arg(n), a >= art::boxlight1 && a <= art::boxlight24);
    if (const int n = place_in(feature_bomb1, feature_bomb3, e))
        return lamp(QString("Bomb %1").arg(n), a == art::bombiconlight);
    if (const int n = place_in(numberone, numbernine, e))
        return lamp(QString("Trail %1: %2").arg(n).arg(words(caption(p, e))), is_lit(row(e), at(p, e)));
    if (e == picture1)
        return QString("Nudges: %1").arg(g.m.nudges);
    if (e == nudgenow)
        return a == art::nudgenowpiclight ? "Nudge now" : "Nudge lamp, dark";
    if (e == feature_dicepic && a >= art::dice1pic && a <= art::dice6pic)
        return QString("Die: %1").arg(static_cast<int>(a) - static_cast<int>(art::dice1pic) + 1);
    return {};
}

} // namespace

QString spoken_name(const game& g, element e) {
    for (const fixed_name& f : names)
        if (f.id == e)
            return f.name;
    if (e == trailheld)
        return "Trail held";
    QString family = family_name(g, e);
    if (!family.isEmpty())
        return family;
    const element_row& r = row(e);
    const element_state& state = at(g.p, e);
    switch (r.what) {
    case kind::label: return lamp(words(state.text), is_lamp(r) && is_lit(r, state));
    case kind::line: return e == feature_shotbox ? "Shots: " + line_text(state.text) : line_text(state.text);
    case kind::textbox: return words(state.text).trimmed();
    case kind::push: return words(state.text).remove('&');
    default: return {};
    }
}

} // namespace hustle::desktop
