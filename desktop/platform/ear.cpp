#include "desktop/platform/ear.h"

#include <QDir>
#include <QFile>

#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace hustle::desktop {

namespace {

constexpr char answer = '!';
constexpr int word_ms = 200; // a caller tells its word at once

QByteArray place_of(const QString& name) { return QFile::encodeName(QDir::tempPath() + "/" + name); }

// False where the place is too long for the system.
bool address_of(const QByteArray& place, sockaddr_un& address) {
    address = {};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(place.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, place.constData(), static_cast<std::size_t>(place.size()));
    return true;
}

int make_socket(int more) { return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | more, 0); }

// The system's calls take the general record of an address.
const sockaddr* general(const sockaddr_un& address) { return reinterpret_cast<const sockaddr*>(&address); }

void answer_all(int ear, const std::function<void(char word)>& called) {
    for (;;) {
        const int caller = ::accept(ear, nullptr, nullptr);
        if (caller < 0)
            return;
        char word = 0;
        pollfd speaks{caller, POLLIN, 0};
        const bool spoken = ::poll(&speaks, 1, word_ms) == 1 && ::recv(caller, &word, 1, 0) == 1;
        if (spoken)
            ::send(caller, &answer, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
        ::close(caller);
        if (spoken)
            called(word);
    }
}

} // namespace

open_ear::~open_ear() {
    wakes.reset();
    if (end < 0)
        return;
    ::close(end);
    ::unlink(place.constData());
}

void listen_at(open_ear& ear, const QString& name, const std::function<void(char word)>& called) {
    const QByteArray place = place_of(name);
    sockaddr_un address;
    const int end = address_of(place, address) ? make_socket(SOCK_NONBLOCK) : -1;
    if (end < 0)
        return;
    ::unlink(place.constData());
    const mode_t before = ::umask(0077);
    const bool bound = ::bind(end, general(address), sizeof address) == 0;
    ::umask(before);
    if (!bound || ::listen(end, 4) != 0) {
        ::close(end);
        return;
    }
    ear.end = end;
    ear.place = place;
    ear.wakes = std::make_unique<QSocketNotifier>(end, QSocketNotifier::Read);
    QObject::connect(ear.wakes.get(), &QSocketNotifier::activated, ear.wakes.get(),
                     [end, called] { answer_all(end, called); });
}

bool call_at(const QString& name, char word, int ms) {
    sockaddr_un address;
    const int voice = address_of(place_of(name), address) ? make_socket(0) : -1;
    if (voice < 0)
        return false;
    char heard = 0;
    pollfd waits{voice, POLLIN, 0};
    const bool answered = ::connect(voice, general(address), sizeof address) == 0 &&
                          ::send(voice, &word, 1, MSG_NOSIGNAL) == 1 && ::poll(&waits, 1, ms) == 1 &&
                          ::recv(voice, &heard, 1, 0) == 1;
    ::close(voice);
    return answered && heard == answer;
}

} // namespace hustle::desktop
