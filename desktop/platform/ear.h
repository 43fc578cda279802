// A socket in the user's temporary folder by which a second program can call the first one. It is the
// plain socket of the system: the toolkit's own comes with a network library that nothing else needs.
#pragma once

#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>

namespace hustle::desktop {

struct open_ear {
    open_ear() = default;
    open_ear(const open_ear&) = delete;
    open_ear& operator=(const open_ear&) = delete;
    ~open_ear(); // gives the place back

    int end = -1; // of the socket; -1: not open
    QByteArray place;
    std::unique_ptr<QSocketNotifier> wakes;
};

// Listens under a name, for this user alone, and calls back at each call with its word, a character. What a
// killed program left at the name is swept away. Nothing happens where no socket can be made.
void listen_at(open_ear&, const QString& name, const std::function<void(char word)>& called);
// Calls whoever listens under the name; false where nobody answers within so many ms.
bool call_at(const QString& name, char word, int ms);

} // namespace hustle::desktop
