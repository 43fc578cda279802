// The form that asks for the name of a good score comes up with the name that was last given.
#pragma once

#include <QString>

namespace hustle::desktop {

struct session;

struct name_form {
    bool open = false;
};

// To be called when something may have changed: fills a form that has just come up, and keeps the
// name of one that is being filled in.
void fill_in_name(session&);

} // namespace hustle::desktop
