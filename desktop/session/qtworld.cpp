#include "desktop/session/qtworld.h"

#include "desktop/platform/places.h"
#include "desktop/platform/sound.h"
#include "desktop/platform/systeminfo.h"
#include "desktop/session/session.h"
#include "desktop/window/mainwindow.h"
#include "panel/sheet.h"
#include "panel/splitmix.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTime>
#include <QUrl>

#include <random>

namespace hustle::desktop {

namespace {

QString text_of(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString path_of(const qtworld& w, store file) { return w.data + "/" + text_of(name(file)); }

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
    return splitmix_draw(state, n);
}

void qtworld::play(sound wave) {
    if (heard)
        play_wave(wave);
}

void qtworld::midi(std::string_view command) {
    if (heard)
        tune_command(command);
    else if (command.starts_with("open "))
        tune_opening = command;
}

std::string qtworld::tune_path() { return (sounds + "/hustle.mid").toStdString(); }

bool qtworld::box(const message& m) {
    hold_machine hold(*s);
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(text_of(m.title));
    box.setText(text_of(m.text));
    box.setIcon(icon_of(m.look));
    if (m.yes_or_no) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
    }
    const int answer = box.exec();
    hold.release(0);
    return m.yes_or_no ? answer == QMessageBox::Yes : true;
}

void qtworld::wait(int ms) {
    hold_machine hold(*s);
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    hold.release(ms);
}

std::optional<std::string> qtworld::read(store file) { return read_file(path_of(*this, file)); }

bool qtworld::write(store file, std::string_view text) { return write_file(path_of(*this, file), text); }

void qtworld::set_aside(store file) { set_file_aside(path_of(*this, file)); }

void qtworld::browse(page which) {
    const QString file = shipped_folder("help") + (which == page::help ? "/index.html" : "/home.html");
    if (QFileInfo::exists(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        return;
    auto* note = new QMessageBox(QMessageBox::Information, "Hoard Hustle",
                                 "No browser could be started. The page is here:\n" + file, QMessageBox::Ok,
                                 QApplication::activeWindow());
    note->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    note->setAttribute(Qt::WA_DeleteOnClose);
    note->setModal(false);
    note->show();
}

bool qtworld::system_info() { return show_system_info(data); }

std::string qtworld::currency(float amount) {
    return QLocale::system().toCurrencyString(static_cast<double>(amount), {}, 2).toStdString();
}

void qtworld::exit() { QCoreApplication::exit(0); }

void prepare_world(qtworld& w) {
    w.data = data_folder();
    w.sounds = shipped_folder("sounds");
    w.state = qEnvironmentVariable("HUSTLE_SEED").toULongLong(&w.repeats);
    if (!w.repeats) {
        std::random_device chance;
        w.state = (static_cast<std::uint64_t>(chance()) << 32) | chance();
    }
}

void open_ears(qtworld& w) {
    if (w.heard)
        return;
    w.heard = open_sound(w.sounds.toStdString());
    if (w.heard && !w.tune_opening.empty())
        tune_command(w.tune_opening);
}

} // namespace hustle::desktop
