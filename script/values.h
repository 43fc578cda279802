// The values behind a script's names: how they are printed, read and compared.
#pragma once

#include "core/game.h"
#include "script/lexer.h"

#include <string>
#include <variant>

namespace hustle::script {

// Where a named value lives. `panel` stands for the screen in front, which has no place of its own.
using slot = std::variant<single*, count*, word*, std::string*, bool*, int*, colour*, art*, const panel*>;

// A visitor of a slot, from one function for each kind of value.
template <class... Readers> struct each : Readers... { using Readers::operator()...; };
template <class... Readers> each(Readers...) -> each<Readers...>;

// A value as a script wrote it, read as the kind of one name.
struct value {
    double number = 0; // a single or a whole number
    bool near = false; // written with ~: holds within 0.005
    bool yes = false;
    art picture = art::none;
    std::string text; // of a text; the name of a screen
};

// As `get`, `dump` and the trace print it.
std::string shown(const slot&);

// Throws script_error where the word is of another kind. `near` allows a ~ before a number.
value read_value(const slot& as, std::string_view name, const token&, bool may_be_near);
bool holds(const slot&, const value& wanted);

// A whole number within bounds; throws script_error that begins with `what`.
long long read_whole(const token&, std::string_view what, long long least, long long most);
std::uint64_t read_seed(const token&, std::string_view what); // any 64 bits
// A plain decimal number.
double read_decimal(const token&, std::string_view what);

} // namespace hustle::script
