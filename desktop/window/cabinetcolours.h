// Menus, bars and boxes in the colours of the cabinet.
#pragma once

#include <QString>

namespace hustle::desktop {

// A style sheet of the toolkit's, in which @ground, @cream, @ivory, @violet, @gold, @rim and @groove stand
// for the cabinet's colours.
QString in_cabinet_colours(QString sheet);

} // namespace hustle::desktop
