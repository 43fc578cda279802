/* What the page's lab sees of the lab's heart: the exports of lab.wasm, which runs in a worker.
 *
 * One run at a time. All its machines stand side by side and are played in turn, so that the return
 * of all of them can be watched as it comes; what a run tells does not depend on that order. Texts
 * are UTF-8: a function that gives one leaves it at hl_text() and returns its length in bytes; it
 * stands there until the next such call.
 */
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

const char* hl_text(void);
/* The players as JSON: [[name, what it does], ...]. Fixed. */
int hl_policies(void);
/* Sits a player of the given place in that list down before each machine. `plays`: on each machine,
 * at least 1. The seed's low and high halves. `reaction`: ms. `rung`: 1 to 10. Any run before is
 * forgotten. 0 where these are no terms of a run. */
int hl_begin(int policy, int machines, double plays, unsigned seed_low, unsigned seed_high, int reaction,
             int rung);
/* Plays on for so many plays, counted over all machines; how many are left. */
double hl_play(double plays);
/* Machines whose player came to a standstill; they are played no further. */
int hl_stuck(void);
/* The result so far as JSON: lab/figures.h. Empty before the first play is counted. */
int hl_result(void);

#ifdef __cplusplus
}
#endif
