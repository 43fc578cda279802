#include "script/names.h"

#include <algorithm>
#include <climits>

namespace hustle::script {

namespace {

constexpr unsigned bit(kind k) { return 1U << static_cast<unsigned>(k); }
constexpr int farthest = 100'000; // twips from the top: a dozen screens
constexpr unsigned pictures = bit(kind::picture) | bit(kind::button) | bit(kind::clicked);
constexpr unsigned boxes = bit(kind::textbox);
constexpr unsigned placed = ~bit(kind::entry);
constexpr unsigned captioned = bit(kind::label) | bit(kind::line) | bit(kind::push) | bit(kind::entry);

// A property of the elements of some kinds: where it stands and how the panel is told of it.
struct property_row {
    std::string_view name;
    unsigned kinds;
    slot (*where)(element_state&);
    void (*store)(panel&, element, const value&);
};
#define AT(member) [](element_state& s) -> slot { return &s.member; }
#define TELL(operation, what) [](panel& p, element e, const value& v) { operation(p, e, what); }
const property_row properties[] = {
    {"art", pictures, AT(picture), TELL(set_picture, v.picture)},
    {"caption", captioned, AT(text), TELL(set_caption, v.text)},
    {"text", boxes, AT(text), TELL(set_caption, v.text)},
    {"back", bit(kind::label), AT(back), TELL(set_back, static_cast<colour>(v.number))},
    {"fore", bit(kind::label), AT(fore), TELL(set_fore, static_cast<colour>(v.number))},
    {"activecolor", bit(kind::line), AT(activecolor), TELL(set_activecolor, static_cast<colour>(v.number))},
    {"lineflash", bit(kind::line), AT(lineflash), TELL(set_lineflash, v.yes)},
    {"checked", bit(kind::entry), AT(checked), TELL(set_checked, v.yes)},
    {"enabled", ~0U, AT(enabled), TELL(set_enabled, v.yes)},
    {"visible", ~0U, AT(visible), TELL(set_visible, v.yes)},
    {"top", placed, AT(top), TELL(set_top, static_cast<int>(v.number))},
};

std::string joined(screen s, std::string_view name) {
    return std::string(row(s).name) + "." + std::string(name);
}

void set_running(panel& p, timer t, bool on) {
    if (on)
        start_timer(p, t);
    else
        stop_timer(p, t);
}

} // namespace

names::names(game& g) {
    add_fields(g);
    add_elements(g.p);
    add_timers(g.p);
    add_screens(g.p);
    sort();
}

names::names(game& g, scriptworld& w) : names(g) {
    add_logs(w);
    sort();
}

void names::sort() {
    std::sort(cells.begin(), cells.end(), [](const cell& a, const cell& b) { return a.name < b.name; });
}

void names::add_fields(game& g) {
    struct {
        game& g;
        slot operator()(const reel_place& f) const {
            return std::visit([&](auto what) -> slot { return &(reel(g.m, f.which).*what); }, f.what);
        }
        slot operator()(single machine::*f) const { return &(g.m.*f); }
        slot operator()(count machine::*f) const { return &(g.m.*f); }
        slot operator()(word machine::*f) const { return &(g.m.*f); }
        slot operator()(std::string machine::*f) const { return &(g.m.*f); }
        slot operator()(single board::*f) const { return &(g.b.*f); }
        slot operator()(count board::*f) const { return &(g.b.*f); }
        slot operator()(word board::*f) const { return &(g.b.*f); }
        slot operator()(single table_fields::*f) const { return &(g.t.*f); }
        slot operator()(count table_fields::*f) const { return &(g.t.*f); }
        slot operator()(std::string table_fields::*f) const { return &(g.t.*f); }
    } const place{g};
    for (const field_row& f : field_rows())
        add_field(std::string(f.name), std::visit(place, f.where), f.bears);
    for (std::size_t i = 0; i < g.m.hiscore.size(); ++i) {
        add_field("hiscore" + std::to_string(i + 1), &g.m.hiscore[i], {});
        add_field("hiname" + std::to_string(i + 1), &g.m.hiname[i], {});
    }
}

void names::add_field(std::string name, slot where, std::optional<range> bears) {
    std::function<void(const value&)> store;
    if (const auto* number = std::get_if<single*>(&where))
        store = [v = *number](const value& to) { *v = static_cast<single>(to.number); };
    else if (const auto* whole = std::get_if<count*>(&where))
        store = [v = *whole](const value& to) { *v = static_cast<count>(to.number); };
    else if (const auto* text = std::get_if<std::string*>(&where))
        store = [v = *text](const value& to) { *v = to.text; };
    else if (const auto* flag = std::get_if<word*>(&where))
        store = [this, v = *flag](const value& to) { *v = kept.emplace_back(to.text); };
    cells.push_back({std::move(name), where, std::move(store), true, bears});
    places.push_back(where);
}

void names::add_elements(panel& p) {
    for (std::size_t i = 0; i < element_count; ++i) {
        const auto e = static_cast<element>(i);
        for (const property_row& property : properties)
            if ((property.kinds & bit(row(e).what)) != 0) {
                cells.push_back({full_name(e) + "." + std::string(property.name), property.where(at(p, e)),
                                 [&p, e, store = property.store](const value& v) { store(p, e, v); }});
                if (property.name == "top")
                    cells.back().bears = {-farthest, farthest};
            }
    }
}

void names::add_timers(panel& p) {
    for (std::size_t i = 0; i < timer_count; ++i) {
        const auto t = static_cast<timer>(i);
        cells.push_back({full_name(t) + ".running", &p.running[i],
                         [&p, t](const value& v) { set_running(p, t, v.yes); }});
        cells.push_back({full_name(t) + ".interval", &p.intervals[i],
                         [&p, t](const value& v) { set_interval(p, t, static_cast<int>(v.number)); }});
        cells.back().bears = {1, INT_MAX};
    }
}

void names::add_screens(panel& p) {
    for (const screen_row& s : screen_rows()) {
        const auto i = static_cast<std::size_t>(s.id);
        cells.push_back({joined(s.id, "loaded"), &p.loaded[i]});
        cells.push_back({joined(s.id, "title"), &p.titles[i]});
    }
    cells.push_back({"front", static_cast<const panel*>(&p)});
}

void names::add_logs(scriptworld& w) {
    cells.push_back({"sounds", &w.sounds, {}, false});
    cells.push_back({"midi", &w.commands, {}, false});
    cells.push_back({"boxes", &w.boxes, {}, false});
    cells.push_back({"drawn", &w.drawn, {}, false});
    for (const store s : {store::game_dat, store::hscore_dat})
        cells.push_back({"file." + std::string(name(s)), &w.file(s).text, {}, false});
}

std::string full_name(element e) { return joined(row(e).where, row(e).name); }
std::string full_name(timer t) { return joined(row(t).where, row(t).name); }

} // namespace hustle::script
