#include "desktop/session/onlyone.h"

#include "desktop/window/boxes.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>

namespace hustle::desktop {

namespace {

constexpr int answer_ms = 2000;
constexpr int writing_ms = 500; // that a lock may stand empty while its program writes it

// Whether somebody says in a lock that it is theirs.
bool has_owner(const QLockFile& lock) {
    qint64 process = 0;
    QString host, program;
    for (int waited = 0; waited < writing_ms; waited += 50) {
        if (lock.getLockInfo(&process, &host, &program))
            return true;
        QThread::msleep(50);
    }
    return false;
}

// The same for all who play on one folder, and short enough for a socket.
QString ear_name(const QString& folder) {
    const QByteArray place = QDir(folder).canonicalPath().toUtf8();
    return "hoardhustle-" + QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex().left(16);
}

} // namespace

bool claim_folder(only_one& o, const QString& folder) {
    const QString place = folder + "/hoardhustle.lock";
    if (QFileInfo(place).isSymLink()) // ours is none
        QFile::remove(place);
    if (QFileInfo::exists(place) && !QFileInfo(place).isFile())
        return true; // a pipe would never open
    o.lock = std::make_unique<QLockFile>(place);
    o.lock->setStaleLockTime(0); // never by its age: only with its process
    if (o.lock->tryLock(0) || o.lock->error() != QLockFile::LockFailedError)
        return true;
    // A power cut can leave an empty one, which no process ever gives back.
    return !has_owner(*o.lock) && QFile::remove(place) && o.lock->tryLock(0);
}

void listen_for_calls(only_one& o, const QString& folder, const std::function<void(wish)>& called) {
    listen_at(o.ear, ear_name(folder), [called](char word) {
        called(static_cast<wish>(word));
    }); // what stands there is dead: the lock is ours
}

bool call_to_front(const QString& folder, wish with) {
    return call_at(ear_name(folder), static_cast<char>(with), answer_ms);
}

second ask_second(bool first_is_deaf) {
    QMessageBox box(QMessageBox::Question, {}, "Hoard Hustle is open already.");
    dress(box, "Hoard Hustle");
    if (first_is_deaf)
        box.setText("Hoard Hustle is open already, and does not answer.");
    add_plain(box, "Two machines cannot save into the same files. You can go to the one that is open, or "
                   "play here without saving anything.");
    const QPushButton* const front = box.addButton("&Go to It", QMessageBox::AcceptRole);
    const QPushButton* const unsaved = box.addButton("&Play without Saving", QMessageBox::ActionRole);
    box.setEscapeButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    if (box.clickedButton() == front)
        return second::to_front;
    return box.clickedButton() == unsaved ? second::play_unsaved : second::leave;
}

} // namespace hustle::desktop
