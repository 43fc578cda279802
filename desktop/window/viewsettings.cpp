#include "desktop/window/viewsettings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace hustle::desktop {

namespace {

// A folder that was named for the two files takes the settings as well, so that a run which is told
// where to keep things leaves nothing behind elsewhere.
template <class Act> void with_settings(const Act& act) {
    const QString folder = qEnvironmentVariable("HUSTLE_DATA");
    const QString own = QDir(folder).filePath("view.ini");
    if (folder.isEmpty()) {
        QSettings settings("hoardhustle", "hoardhustle");
        act(settings);
    } else if (!QFileInfo::exists(own) || QFileInfo(own).isFile()) { // a pipe would never open
        QSettings settings(own, QSettings::IniFormat);
        act(settings);
    }
}

} // namespace

view_settings load_view_settings() {
    view_settings view;
    with_settings([&](QSettings& kept) {
        const auto flag = [&](const char* name, bool& value) { value = kept.value(name, value).toBool(); };
        flag("flashing_asked", view.flashing_asked);
        flag("reduced_flashing", view.reduced_flashing);
        flag("hints", view.hints);
        flag("recording", view.recording);
        flag("muted", view.muted);
        flag("full_screen", view.full_screen);
        view.volume = std::clamp(kept.value("volume", view.volume).toInt(), 0, 100);
        view.player = kept.value("player").toString();
        view.place = kept.value("place").toByteArray();
    });
    return view;
}

void save_view_settings(const view_settings& view) {
    with_settings([&](QSettings& kept) {
        kept.setValue("flashing_asked", view.flashing_asked);
        kept.setValue("reduced_flashing", view.reduced_flashing);
        kept.setValue("hints", view.hints);
        kept.setValue("recording", view.recording);
        kept.setValue("muted", view.muted);
        kept.setValue("full_screen", view.full_screen);
        kept.setValue("volume", view.volume);
        kept.setValue("player", view.player);
        kept.setValue("place", view.place);
    });
}

} // namespace hustle::desktop
