/* What the page sees of the machine: the exports of hustle.wasm, and what it asks of the page.
 *
 * It mirrors three headers of the machine: panel/sheet.h (what there is), screens/dispatch.h (what
 * reaches the machine) and panel/world.h (what the machine asks for).
 *
 * Texts are UTF-8. A function that gives a text leaves it at hh_text() and returns its length in
 * bytes; it stands there until the next such call. A function that takes a text reads it from
 * hh_room(n), which makes room for n bytes. Elements, screens, arts and sounds are numbers: their
 * places in the lists of hh_sheet(). Times are whole milliseconds; a double carries them.
 *
 * Calls marked * may stand still in a box or a wait (see the imports): the page unwinds the module's
 * stack with the asyncify exports, and calls the same function again to go on. Until then no call
 * marked * may be made; all others may.
 */
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

char* hh_room(int bytes);
const char* hh_text(void);

/* --- what there is --- */

/* Every screen, element, menu entry, art and sound by name, as JSON: see web/texts.cpp. Fixed. */
int hh_sheet(void);
/* A picture as SVG text; empty for art 0. Where hh_dollars() is 1 money in it bears a dollar sign. */
int hh_svg(int art);
/* 1 where pictures show dollars; it changes when main is loaded, and then alone. */
int hh_dollars(void);
/* The SVG text of a label that is a lamp, with the look that it has now; its light reaches
 * `glow` panel pixels (hh_sheet) beyond the element on every side. */
int hh_lamp(int element);
/* The dots of a letter: seven rows, one to a byte, the leftmost of five dots the highest bit. */
const unsigned char* hh_glyph(int letter);

/* --- the start --- */

/* A stored file (0 game.dat, 1 hscore.dat) as it was kept, before the boot. Without this call there
 * is none. Text at hh_room. */
void hh_give_file(int store, int bytes);
/* The generator's state. `repeats` not 0: the clock is kept out of the draws, as in a script. */
void hh_seed(unsigned low, unsigned high, int repeats);
/* Starts the machine. `clock`: ms since midnight. `at_once` not 0: the splash is passed over. * */
void hh_boot(double clock, int at_once);

/* --- what reaches the machine: 1 where it was taken, 0 where it was ignored --- */

/* Delivers the ticks due by `until` on the machine's clock. * */
void hh_run(double until);
int hh_press(int element);           /* * */
int hh_key(int screen, int code);    /* * a Windows virtual-key code */
int hh_type(int element, int bytes); /* * text at hh_room */
int hh_close(int screen);            /* * the window's own close */
int hh_show(int screen);             /* * brought to the front by the player */
/* What the next boxes are answered, before the page is asked: 0 no, 1 yes, 2 ok. With `by_itself`
 * not 0 a box with no answer waiting takes ok, or no where it asks, as in a script. */
void hh_answer(int answer);
void hh_answer_by_itself(int by_itself);

/* --- the clock --- */

double hh_now(void);
double hh_next_due(void); /* -1: no timer runs */
/* What the machine's clock reads when the page's own reads `real`, and the reading to deliver ticks
 * by: a stall is not made up for. */
double hh_reading(double real);
double hh_catch_up(double real);
/* The machine's clock goes `ms` further behind the page's. */
void hh_fall_behind(double ms);
int hh_over(void); /* 1: the program has ended */

/* --- what is shown --- */

struct hh_shown_look {
    int art;
    int top;                                       /* twips */
    unsigned back, fore, activecolor;              /* 0xBBGGRR */
    int enabled, visible, checked, lineflash, lit; /* 0 or 1; lit: of a label that is a lamp */
};
/* The elements that look different since the last call, up to 1024 of them; their numbers stand at
 * hh_changed(). */
int hh_take_changed(void);
const unsigned short* hh_changed(void);
const struct hh_shown_look* hh_look(int element);
int hh_caption(int element); /* text of a label, line, text box or entry */
int hh_spoken(int element);  /* its name for reading aloud; empty for decoration */
/* The screens on show, the front one last; their numbers at hh_shown_screens(). */
int hh_shown(void);
const unsigned char* hh_shown_screens(void);
int hh_is_loaded(int screen);
int hh_title(int screen);

/* --- what the eye sees beyond the panel: show/stage.h; `now` in real ms, never going back --- */

/* Before hh_take_changed, after each batch of events. */
void hh_take_in(double now);
/* Before each picture: in how many ms the next one is wanted; 0 at once, -1 not before the next
 * hh_take_in. What looks different is among hh_take_changed's. */
int hh_advance(double now);
/* Numbers of the motion, how many; they stand at hh_numbers(). For each reel: 1 where it stands on
 * the strip, the stop on the win line from 0, the stops that run past while the eye takes a picture.
 * Then the columns that the board's line has run on, the glow of the win line from 0 to 1, the size
 * of its symbols from 1, and for each coin x and y in panel pixels and its opacity. */
int hh_motion(void);
const double* hh_numbers(void);
void hh_reduce(int on); /* Reduced Flashing */
/* What the player can do now, by keys, or with `touched` not 0 by the buttons on the screen; "Bank ...";
 * "Credits ...". */
int hh_hint(int touched);
int hh_bank_label(void);
int hh_credits_label(void);

/* --- files and records --- */

/* game.dat (0) or hscore.dat (1) as they would be saved now. */
int hh_file_text(int store);
/* 1 where the text at hh_room is a whole file of that kind. */
int hh_is_file(int store, int bytes);
/* The session so far as a panel script. */
int hh_record(void);

/* --- for tests and the curious --- */

/* The value of a script's name (at hh_room) as JSON; -1 where there is no such name. */
int hh_get(int bytes);
/* The element of a script's name (at hh_room), the screen of one; -1 where there is none. */
int hh_find_element(int bytes);
int hh_find_screen(int bytes);
/* Sixteen hexadecimal digits: the state to the last lamp, as `hash` of a script prints it. */
int hh_hash(void);

/* --- what asyncify needs: the first word and the end of its stack --- */
void* hh_unwound(void);

/* --- what the module asks of the page: imports of the module "page" --- */

#ifdef HH_IMPORTS
#define HH_IMPORT(name) __attribute__((import_module("page"), import_name(name)))
#else
#define HH_IMPORT(name)
#endif
HH_IMPORT("play") void page_play(int sound);
HH_IMPORT("midi") void page_midi(const char* command, int bytes);
/* 1 for Yes and OK, 0 for No. look: 0 plain, 1 warning, 2 question. May wait for the player. */
HH_IMPORT("box")
int page_box(const char* title, int title_bytes, const char* text, int text_bytes, int look, int yes_or_no);
HH_IMPORT("wait") void page_wait(int ms); /* returns when so many ms have passed */
HH_IMPORT("write") int page_write(int store, const char* text, int bytes); /* 0: could not be kept */
/* A damaged file is kept: 1 as NAME.damaged, 2 and up as NAME.damaged-2; 0: it could not be. */
HH_IMPORT("set_aside") int page_set_aside(int store);
HH_IMPORT("browse") void page_browse(int home); /* 0 help, 1 home */
HH_IMPORT("system_info") int page_system_info(void);
/* An amount of pounds as the system of the player writes money, at hh_room; its bytes. 0: as in the UK. */
HH_IMPORT("currency") int page_currency(double amount);
HH_IMPORT("exit") void page_exit(void);
HH_IMPORT("time_of_day") double page_time_of_day(void); /* ms since midnight */

#ifdef __cplusplus
}
#endif
