#include "desktop/platform/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace hustle::desktop {

QString data_folder() {
    QString folder = qEnvironmentVariable("HUSTLE_DATA");
    if (folder.isEmpty()) {
        QString beside = QCoreApplication::applicationDirPath();
        // An installed program keeps its player's files out of the system's folders, for root too.
        const bool installed = QFileInfo(beside + "/../share/hoardhustle").isDir();
        if (!installed && QFileInfo(beside).isWritable())
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

QString shipped_module(const QString& name) {
    const QString beside = QCoreApplication::applicationDirPath() + "/";
    const QString installed = beside + "../lib/hoardhustle/modules/" + name + ".so";
    return QDir::cleanPath(QFileInfo::exists(installed) ? installed : beside + name + ".so");
}

} // namespace hustle::desktop
