// The system-information button of the about box.
#pragma once

#include <QString>

namespace hustle::desktop {

// Shows what a fault report needs: the versions of the system, the toolkit and the sound, and the
// folder of the stored files, to be copied. On Windows the system's own program is started.
// False where there is nothing to show.
bool show_system_info(const QString& data_folder);

} // namespace hustle::desktop
