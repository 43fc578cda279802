#include "desktop/session/qtworld.h"

#include "desktop/platform/places.h"
#include "desktop/platform/sound.h"
#include "desktop/platform/stablefile.h"
#include "desktop/platform/systeminfo.h"
#include "desktop/session/savebox.h"
#include "desktop/session/session.h"
#include "desktop/window/boxes.h"
#include "desktop/window/mainwindow.h"
#include "panel/sheet.h"
#include "panel/splitmix.h"
#include "panel/text.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTime>
#include <QUrl>

#include <cstdio>
#include <random>

namespace hustle::desktop {

namespace {

QString text_of(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string folder_of(const qtworld& w) { return QFile::encodeName(w.data).toStdString(); }
std::string name_of(store file) { return std::string(name(file)); }
// A stored file is lines of text. What no line holds can only have been put there by hand; a blank stands
// for it, as the machine itself stores it, so that a script can tell the file.
std::string as_lines(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\0' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n')))
            text[i] = ' ';
    return text;
}
std::string& reason_not_to_touch(qtworld& w, store file) {
    return w.untouchable[static_cast<std::size_t>(file)];
}

// What a Yes to one of the machine's questions costs, in the window's own words under the machine's.
struct cost_row {
    std::string_view title;
    const char* cost;
};
constexpr cost_row costs[] = {
    {"Begin New Game",
     "The money in the bank and the plays in hand will go, and no score is noted for them."},
    {"Reset Machine Statistics", "All ledgers begin anew at £100 in and £80 out. The table of scores stays."},
};

QMessageBox::Icon icon_of(message::mark look) {
    switch (look) {
    case message::mark::plain: return QMessageBox::NoIcon;
    case message::mark::warning: return QMessageBox::Warning;
    case message::mark::question: return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

} // namespace

// The clock is folded into the state, not put in its place: draws within one millisecond differ,
// and one that is made again until it differs comes to an end.
int qtworld::draw(int n) {
    if (!repeats)
        state += static_cast<std::uint64_t>(QTime::currentTime().msecsSinceStartOfDay());
    const int result = splitmix_draw(state, n);
    record_draw(s->record, result);
    return result;
}

void qtworld::play(sound wave) {
    if (heard)
        play_wave(wave);
}

void qtworld::midi(tune what) {
    if (heard)
        tune_command(what);
    else if (what == tune::open)
        tune_waits = true;
}

bool qtworld::box(const message& m) {
    const bool told_of_save = std::exchange(unsaved, false); // a replay's files never fail
    if (s->leaving) {
        if (!told_of_save)
            record_answer(s->record, m, false);
        return !m.yes_or_no;
    }
    hold_machine hold(*s);
    record_box(s->record);
    QMessageBox box(box_parent());
    dress(box, text_of(m.title));
    box.setText(text_of(m.text));
    box.setIcon(icon_of(m.look));
    for (const cost_row& r : costs)
        if (r.title == m.title && m.yes_or_no)
            add_plain(box, QString::fromUtf8(r.cost));
    if (m.yes_or_no) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
    }
    const int answer = box.exec();
    hold.release(0);
    const bool yes = answer == QMessageBox::Yes;
    if (!told_of_save)
        record_answer(s->record, m, yes);
    return !m.yes_or_no || yes;
}

void qtworld::wait(int ms) {
    hold_machine hold(*s);
    record_box(s->record); // nothing is written while the machine is held
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    hold.release(ms);
}

std::optional<std::string> qtworld::read(store file) {
    stored_text found = read_stored(folder_of(*this), name_of(file));
    switch (found.what) {
    case stored_text::state::there: return as_lines(std::move(found.text));
    case stored_text::state::missing: return {};
    case stored_text::state::unreadable: break;
    }
    reason_not_to_touch(*this, file) = "it is there but cannot be read (" + found.why + ")";
    if (s->leaving)
        return {};
    hold_machine hold(*s);
    tell_unreadable(data, text_of(name(file)), text_of(found.why));
    hold.release(0);
    return {};
}

// A save that fails can be tried again, and elsewhere, as long as the player wants.
bool qtworld::write(store file, std::string_view text) {
    if (!saving)
        return true;
    finish(s->saving); // what is being saved beside the game comes first
    std::string folder = folder_of(*this);
    std::string why = reason_not_to_touch(*this, file);
    for (;;) {
        if (why.empty())
            why = save_stored(folder, name_of(file), text);
        if (why.empty())
            return true;
        if (s->leaving) {
            std::fprintf(stderr, "hoardhustle: %s is not saved: %s\n", name(file).data(), why.c_str());
            lost = true;
            return !(unsaved = true);
        }
        hold_machine hold(*s);
        const auto next = ask_where_to_save(text_of(folder), text_of(name(file)), text_of(why));
        hold.release(0);
        if (next.empty())
            return !(unsaved = true);
        // The place that must not be touched may be chosen again, by whatever name: it is refused again.
        const bool same = QFileInfo(QFile::decodeName(next.c_str())).canonicalFilePath() ==
                          QFileInfo(data).canonicalFilePath();
        why = same ? reason_not_to_touch(*this, file) : std::string();
        folder = next;
    }
}

std::string qtworld::set_aside(store file) {
    std::string kept = keep_aside(folder_of(*this), name_of(file));
    if (kept.empty())
        reason_not_to_touch(*this, file) = "it is damaged and could not be set aside";
    return kept;
}

void qtworld::browse(page which) {
    const QString file = shipped_folder("help") + (which == page::help ? "/index.html" : "/home.html");
    if (QFileInfo::exists(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        return;
    auto* note = new QMessageBox(QMessageBox::Information, "Hoard Hustle",
                                 "No browser could be started. The page is here:\n" + file, QMessageBox::Ok,
                                 box_parent());
    dress(*note, "Hoard Hustle");
    note->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    note->setAttribute(Qt::WA_DeleteOnClose);
    note->setModal(false);
    note->show();
}

bool qtworld::system_info() { return show_system_info(data); }

std::string qtworld::currency(float amount) {
    const QLocale system = QLocale::system();
    std::string told = amount_as_told(system, amount);
    if (!plays_in_pounds(system))
        record_amount(s->record, told);
    return told;
}

bool plays_in_pounds(const QLocale& place) {
    return place.language() == QLocale::C ||
           (place.language() == QLocale::English && place.territory() == QLocale::UnitedKingdom);
}

std::string amount_as_told(const QLocale& place, float amount) {
    if (plays_in_pounds(place)) // as a panel script tells it, which a replay of this session must
        return std::string(std::string_view(uk_currency(amount)));
    return place.toCurrencyString(static_cast<double>(amount), {}, 2).toStdString();
}

void qtworld::exit() { QCoreApplication::exit(0); }

void prepare_world(qtworld& w) {
    w.data = data_folder();
    if (w.saving)
        for (const store file : {store::game_dat, store::hscore_dat})
            sweep_stored(folder_of(w), name_of(file));
    w.sounds = shipped_folder("sounds");
    w.state = qEnvironmentVariable("HUSTLE_SEED").toULongLong(&w.repeats);
    if (!w.repeats) {
        std::random_device chance;
        w.state = (static_cast<std::uint64_t>(chance()) << 32) | chance();
    }
}

bool may_write(const qtworld& w, store file) {
    return w.saving && w.untouchable[static_cast<std::size_t>(file)].empty();
}

void tell_if_unwritable(qtworld& w) {
    const std::string why = w.saving ? why_not_writable(folder_of(w)) : std::string();
    if (why.empty())
        return;
    hold_machine hold(*w.s);
    tell_no_place(w.data, text_of(why));
    hold.release(0);
}

void open_ears(qtworld& w) {
    if (w.heard)
        return;
    w.heard =
        open_sound(w.sounds.toStdString(), QFile::encodeName(shipped_module("hustlemixer")).toStdString());
    if (w.heard && w.tune_waits)
        tune_command(tune::open);
}

} // namespace hustle::desktop
