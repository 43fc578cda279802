#include "desktop/session/ledgers.h"

#include "core/files.h"
#include "core/play.h"
#include "desktop/session/savebox.h"
#include "desktop/session/session.h"

#include <QFile>

#include <utility>

namespace hustle::desktop {

namespace {

std::string options_of(const machine& m) {
    std::string text = std::to_string(m.reelspeed) + ' ' + std::to_string(m.ledcolour);
    for (const std::string& word : {m.soundstate, m.flashlogo, m.currency})
        text.append(" ").append(word);
    return text;
}

void told(session& s, const QString& why) {
    const bool before = std::exchange(s.ledgers.failing, !why.isEmpty());
    if (s.ledgers.failing && !before && !s.leaving) // it is tried again after each play, which changes them
        note_unsaved(s.world.data, why);
}

} // namespace

void begin_ledgers(session& s) {
    s.ledgers.text = game_text(s.g.m);
    s.ledgers.options = options_of(s.g.m);
    s.saving.folder = QFile::encodeName(s.world.data).toStdString();
    s.saving.name = name(store::game_dat);
    s.saving.saved = [&s](const std::string& why) {
        QMetaObject::invokeMethod(
            &s.wake, [&s, why = QString::fromStdString(why)] { told(s, why); }, Qt::QueuedConnection);
    };
}

void keep_ledgers(session& s) {
    if (!s.started || s.g.p.over || !may_write(s.world, store::game_dat))
        return;
    std::string options = options_of(s.g.m);
    const bool chosen = options != s.ledgers.options;
    if (!chosen && machine_busy(s.g))
        return;
    std::string text = game_text(s.g.m);
    if (text == s.ledgers.text)
        return;
    s.ledgers.options = std::move(options);
    s.ledgers.text = text;
    save_soon(s.saving, std::move(text));
}

} // namespace hustle::desktop
