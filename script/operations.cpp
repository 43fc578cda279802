#include "script/operations.h"

#include "board/board.h"
#include "board/reelawards.h"
#include "core/bank.h"
#include "core/files.h"
#include "core/holds.h"
#include "core/nudges.h"
#include "core/play.h"
#include "core/reels.h"
#include "core/start.h"
#include "core/wins.h"
#include "script/names.h"
#include "subgames/subgames.h"
#include "trail/bonus.h"
#include "trail/stopper.h"
#include "trail/trail.h"

namespace hustle::script {

namespace {

#define ON_MAIN(name)                                                                                        \
    { screen::main, #name, hustle::name }
#define ON_BOARD(name)                                                                                       \
    { screen::feature, #name, hustle::name }
// clang-format off
constexpr operation_row rows[] = {
    ON_MAIN(startpress), ON_MAIN(afterreels), ON_MAIN(clearholds), ON_MAIN(resetplay), ON_MAIN(darkbuttons),
    ON_MAIN(drawreel1), ON_MAIN(drawreel2), ON_MAIN(drawreel3), ON_MAIN(checkline), ON_MAIN(offerholds),
    ON_MAIN(offernudges), ON_MAIN(offerdontholdany), ON_MAIN(spinforcedline),
    ON_MAIN(holdpress1), ON_MAIN(holdpress2), ON_MAIN(holdpress3), ON_MAIN(cancelpress), ON_MAIN(pairhold),
    ON_MAIN(nudgereel1), ON_MAIN(nudgereel2), ON_MAIN(nudgereel3), ON_MAIN(figuresline),
    ON_MAIN(transferpress), ON_MAIN(newgamepress), ON_MAIN(startnewgame), ON_MAIN(savegame),
    ON_MAIN(exitroutine), ON_MAIN(starttrailrun), ON_MAIN(traildark), ON_MAIN(traillit),
    ON_MAIN(trailholdchance), ON_MAIN(stopperpress), ON_MAIN(bonuschance), ON_MAIN(sevenspin),
    ON_MAIN(pickspin), ON_MAIN(winspin), ON_MAIN(streakspin),

    ON_BOARD(enterfeature), ON_BOARD(lightcashvalue), ON_BOARD(fillcashladder), ON_BOARD(clearcashladder),
    ON_BOARD(clearfeatureladder), ON_BOARD(lightallsquares), ON_BOARD(darkallsquares),
    ON_BOARD(resetboardlabels), {screen::feature, "startpress", feature_startpress}, ON_BOARD(beginmove),
    ON_BOARD(rolldice), ON_BOARD(landsquare), ON_BOARD(playgameover), ON_BOARD(mysterysquare),
    ON_BOARD(takecash), ON_BOARD(takefeature), ON_BOARD(takeshots), ON_BOARD(judgegamble),
    ON_BOARD(gamblewin), ON_BOARD(jackpotrepeater), ON_BOARD(stoppress),
    {screen::feature, "darkbuttons", feature_darkbuttons},
    {screen::feature, "enablebuttons", feature_enablebuttons}, ON_BOARD(lostboard), ON_BOARD(drawshotprize),
};
// clang-format on

} // namespace

std::span<const operation_row> operation_rows() { return rows; }

const operation_row& find_operation(std::string_view name) {
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos)
        throw script_error("an operation is SCREEN.OPERATION, not " + std::string(name));
    const screen where = find_screen(name.substr(0, dot));
    for (const operation_row& r : rows)
        if (r.where == where && r.name == name.substr(dot + 1))
            return r;
    throw script_error("unknown operation " + std::string(name));
}

} // namespace hustle::script
