// What the ticks and presses tell: which chain has begun, and what a payout is for.
#include "lab/seat.h"

#include <algorithm>

namespace hustle::lab {

namespace {

constexpr std::size_t at(timer t) { return static_cast<std::size_t>(t); }

// The chains that are counted at their first tick.
struct chain_row {
    timer what;
    feature counts;
};
constexpr chain_row chains[] = {
    {timer::letemspin, feature::let_em_spin},
    {timer::dontholdany, feature::dont_hold_any},
    {timer::start_spin_in, feature::free_spin},
    {timer::addnudges, feature::add_nudges},
    {timer::pseudo_nudges, feature::random_nudges},
    {timer::skill_nudges, feature::skill_nudges},
    {timer::trail_flash, feature::trail_held},
    {timer::start_bonus, feature::bonus},
    {timer::start_superbonus, feature::true_skill_bonus},
    {timer::feature_start, feature::run_up},
    {timer::feature_exchange_effect, feature::exchanged},
    {timer::feature_invincibletimer, feature::guarded},
    {timer::feature_start_shock, feature::mystery},
    {timer::feature_start_thin_ice, feature::thin_ice},
    {timer::feature_start_skillstop, feature::skill_stop},
    {timer::feature_start_randomstop, feature::random_stop},
    {timer::feature_start_boost, feature::boost},
    {timer::feature_start_bombfeature, feature::bombs},
    {timer::feature_savedbyextra, feature::life_spent},
    {timer::feature_pickaladder, feature::pick_a_ladder},
    {timer::feature_start_shots, feature::took_shots},
    {timer::feature_start_sevenspinner, feature::seven_spinner},
    {timer::feature_moneybelttimer, feature::creepy_cash},
    {timer::feature_start_fastcash, feature::fast_cash},
    {timer::feature_start_reelskill, feature::reel_skill},
    {timer::feature_start_pickawin, feature::on_the_run},
    {timer::feature_start_winspins, feature::win_spins},
    {timer::feature_start_winstreak, feature::run_for_it},
    {timer::feature_start_letsspin, feature::in_a_spin},
    {timer::feature_flashing_lights, feature::jackpot},
    {timer::start_repeatchance, feature::repeat_chance},
};

// What a tick tells of the payout to come.
void line_or_ring(seat& s) {
    if (!is_loaded(s.g.p, screen::feature))
        return;
    const bool ring = s.g.m.featuremode == mode::feature;
    ++s.sum.times[static_cast<std::size_t>(ring ? feature::ring_opened : feature::gamble_opened)];
    watch& w = s.seen;
    w.way = ring          ? source::cash
            : w.skill     ? source::reel_skill
            : w.nudged    ? source::nudged_line
            : w.free_spin ? source::promised_line
                          : source::line;
}
void gamble(seat& s) {
    if (s.g.m.featuremode == mode::hilo)
        s.seen.way = source::gamble;
}
void belt(seat& s) {
    if (s.g.b.beltphase == 0 || s.g.b.beltphase == 1)
        s.seen.way = s.g.m.award == award::moneybelt ? source::creepy_cash : source::super_creepy;
}
void jackpot(seat& s) {
    source& way = s.seen.way;
    if (way <= source::promised_line || way == source::reel_skill || way == source::jackpot_line)
        way = source::jackpot_line;
    else
        way = way == source::gamble || way == source::jackpot_gamble ? source::jackpot_gamble
                                                                     : source::jackpot_board;
}
void streak(seat& s) { s.seen.way = s.g.m.streaktotal == 0 ? source::run_for_it : source::streak; }
void repeat(seat& s) {
    if (s.g.m.award == award::jackpot && is_running(s.g.p, timer::wintobank)) {
        s.seen.way = source::repeat;
        s.play.staked += stake_units; // a repeat takes a credit
    }
}
void skill(seat& s) { s.seen.skill = true; }
void promised(seat& s) { s.seen.free_spin = true; }
template <source way> void is(seat& s) { s.seen.way = way; }

// A step of 20p has gone to the bank where the bank has moved.
void payout(seat& s) {
    const auto way = static_cast<std::size_t>(s.seen.way);
    if (s.g.m.bank != s.was.bank) {
        s.sum.paid[way] += step_units;
        s.play.paid += step_units;
        s.seen.paying = true;
    }
    if (!is_running(s.g.p, timer::wintobank) && s.seen.paying) {
        ++s.sum.payouts[way];
        s.seen.paying = false;
    }
}

using teller = void (*)(seat&);
struct telling {
    feature counts = feature::total; // a chain of that feature; total: of none
    teller tell = nullptr;
    bool interesting = false;
};

std::array<telling, timer_count> make_tellings() {
    std::array<telling, timer_count> rows{};
    for (const chain_row& c : chains)
        rows[at(c.what)].counts = c.counts;
    const auto tell = [&rows](timer t, teller f) { rows[at(t)].tell = f; };
    tell(timer::wintobank, payout);
    tell(timer::feature_start, line_or_ring);
    tell(timer::feature_spin_dice, gamble);
    tell(timer::feature_exchange_effect, is<source::cash>);
    tell(timer::feature_start_shots, is<source::shots>);
    tell(timer::feature_start_sevenspinner, is<source::seven_spinner>);
    tell(timer::feature_moneybelttimer, belt);
    tell(timer::feature_start_fastcash, is<source::fast_cash>);
    tell(timer::feature_start_pickawin, is<source::on_the_run>);
    tell(timer::feature_start_winspins, is<source::win_spins>);
    tell(timer::feature_start_letsspin, is<source::in_a_spin>);
    tell(timer::feature_flashing_lights, jackpot);
    tell(timer::start_winstreak, streak);
    tell(timer::yes_no, repeat);
    tell(timer::start_reelskill, skill);
    tell(timer::start_spin_in, promised);
    for (telling& row : rows)
        row.interesting = row.tell != nullptr || row.counts != feature::total;
    return rows;
}
const std::array<telling, timer_count> tellings = make_tellings();

void forget_ended(seat& s) {
    watch& w = s.seen;
    for (int i = 0; i < w.live_count;) {
        if (is_running(s.g.p, w.live[static_cast<std::size_t>(i)]))
            ++i;
        else
            w.live[static_cast<std::size_t>(i)] = w.live[static_cast<std::size_t>(--w.live_count)];
    }
}

void count_chain(seat& s, timer t, feature f) {
    watch& w = s.seen;
    const auto end = w.live.begin() + w.live_count;
    if (std::find(w.live.begin(), end, t) == end) {
        ++s.sum.times[static_cast<std::size_t>(f)];
        if (w.live_count < static_cast<int>(w.live.size()))
            w.live[static_cast<std::size_t>(w.live_count++)] = t;
    }
    forget_ended(s);
}

} // namespace

void notice_tick(seat& s, timer t) {
    const telling& row = tellings[at(t)];
    if (!row.interesting)
        return;
    if (row.counts != feature::total)
        count_chain(s, t, row.counts);
    if (row.tell != nullptr)
        row.tell(s);
}

void before_press(seat& s) {
    const machine& m = s.g.m;
    s.was = {m.bank,
             m.win,
             m.credits,
             m.nudges,
             is_running(s.g.p, timer::bonus_timer),
             m.holdsoffered == flag::yes};
}

void after_press(seat& s, element e) {
    if (s.seen.live_count > 0)
        forget_ended(s);
    if (s.was.wheel && !is_running(s.g.p, timer::bonus_timer)) {
        const auto pick = static_cast<std::size_t>(s.g.m.bonuspick - 1);
        ++s.sum.times[static_cast<std::size_t>(feature::trail_skill) + pick];
        if (s.g.m.award == award::winspins)
            s.seen.way = source::spin_a_win;
    }
    if (s.was.nudges > 0 && s.was.win < 1 && s.g.m.win >= 1)
        s.seen.nudged = true;
    if (e == element::start && s.g.m.credits < s.was.credits)
        end_play(s);
}

} // namespace hustle::lab
