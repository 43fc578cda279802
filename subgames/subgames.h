// What the stop button of the board can stop.
#pragma once

#include "core/game.h"

namespace hustle {

void stoppress(game&); // the action of `stopfeature`
void lostboard(game&);

void feature_start_shots(game&); // ticks: shots
void feature_shots_timer(game&);
void shot(game&);
void drawshotprize(game&);

void feature_start_skillstop(game&); // ticks: skill stop
void feature_skillstoptimer(game&);

void feature_start_randomstop(game&); // ticks: random stop
void feature_randomstop(game&);

void feature_moneybelttimer(game&); // tick: money belt

void feature_start_fastcash(game&); // ticks: fast cash
void feature_fastcash(game&);

void feature_start_shock(game&); // ticks: electric shock and the small awards
void feature_shock_timer(game&);
void feature_shock_trueskill(game&);
void feature_start_thin_ice(game&);
void feature_yesorno(game&);
void feature_pickaladder(game&);
void feature_start_boost(game&);
void feature_start_bombfeature(game&);
void feature_savedbyextra(game&);
void feature_invincibletimer(game&);

} // namespace hustle
