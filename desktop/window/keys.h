// The player's keyboard in the machine's own key codes.
#pragma once

class QKeyEvent;

namespace hustle::desktop {

// The Windows virtual-key code of a key that means something to the machine; 0 for any other, and
// for one pressed together with Ctrl, Alt or Meta.
int machine_key(const QKeyEvent&);

} // namespace hustle::desktop
