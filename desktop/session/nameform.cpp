#include "desktop/session/nameform.h"

#include "desktop/session/session.h"

namespace hustle::desktop {

namespace {

constexpr element name_box = element::Entername_Text1;

} // namespace

void fill_in_name(session& s) {
    const bool open = is_loaded(s.g.p, screen::Entername);
    const bool fresh = open && !s.name.open;
    s.name.open = open;
    if (fresh && !s.view.player.isEmpty()) {
        const std::string name = s.view.player.toStdString();
        feed(s, {input::kind::type, screen::Entername, name_box, 0, name});
    } else if (open && !fresh) {
        const QString name = QString::fromStdString(at(s.g.p, name_box).text);
        if (!name.trimmed().isEmpty())
            s.view.player = name;
    }
}

} // namespace hustle::desktop
