#include "desktop/platform/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace hustle::desktop {

namespace {

// The rename of a save is sure only once the folder itself is on the disk.
void flush_folder([[maybe_unused]] const QString& folder) {
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
#endif
}

} // namespace

QString data_folder() {
    QString folder = qEnvironmentVariable("HUSTLE_DATA");
    if (folder.isEmpty()) {
        QString beside = QCoreApplication::applicationDirPath();
        if (QFileInfo(beside).isWritable())
            return beside;
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/hoardhustle";
    }
    QDir().mkpath(folder);
    return QDir(folder).absolutePath();
}

QString shipped_folder(const QString& name) {
    const QString beside = QCoreApplication::applicationDirPath() + "/";
    for (const QString& place : {beside + name, beside + "../share/hoardhustle/" + name})
        if (QFileInfo(place).isDir())
            return QDir::cleanPath(place);
    return beside + name;
}

std::optional<std::string> read_file(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll().toStdString();
}

bool write_file(const QString& path, std::string_view text) {
    QSaveFile file(path); // a new file beside the old one, flushed, then renamed over it
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const auto size = static_cast<qint64>(text.size());
    if (file.write(text.data(), size) != size || !file.commit())
        return false;
    flush_folder(QFileInfo(path).absolutePath());
    return true;
}

void set_file_aside(const QString& path) {
    const QString kept = path + ".damaged";
    QFile::remove(kept);
    QFile::rename(path, kept);
}

} // namespace hustle::desktop
