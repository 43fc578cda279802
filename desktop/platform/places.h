// Where things lie on the disk: the folder of the two stored files, and what ships with the
// program (waves, the tune, the help pages).
#pragma once

#include <QString>

namespace hustle::desktop {

// The folder of game.dat and hscore.dat: HUSTLE_DATA where it is set; the program's own folder
// while that can be written to and is not an installed one's; otherwise the user's data folder. It is made if
// it is missing.
QString data_folder();

// A folder that ships with the program ("sounds", "help"): beside the program, or in the share
// folder of an installed one. Where there is none, the place beside the program.
QString shipped_folder(const QString& name);

// The file of a module that is loaded at run time: beside the program, or in the library folder of an
// installed one.
QString shipped_module(const QString& name);

} // namespace hustle::desktop
