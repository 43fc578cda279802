#include "desktop/platform/systeminfo.h"

#include "core/game.h"
#include "desktop/platform/sound.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

#ifdef Q_OS_WIN
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#endif

namespace hustle::desktop {

namespace {

QString system_text(const QString& data_folder) {
    const QString version =
        QString::fromUtf8(version_text.data(), static_cast<qsizetype>(version_text.size()));
    return QString("Hoard Hustle %1\nSystem: %2 (%3, kernel %4)\nToolkit: Qt %5, platform %6\n"
                   "Sound: ")
               .arg(version, QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture(),
                    QSysInfo::kernelVersion(), QString::fromLatin1(qVersion()),
                    QGuiApplication::platformName()) +
           QString::fromStdString(sound_state()) + "\nStored files: " + QDir::toNativeSeparators(data_folder);
}

void show_box(const QString& text) {
    auto* box = new QDialog(QApplication::activeWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle("System Info");
    auto* words = new QLabel(text, box);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    words->setAccessibleName(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, box);
    auto* copy = buttons->addButton("&Copy", QDialogButtonBox::ActionRole);
    auto* column = new QVBoxLayout(box);
    column->addWidget(words);
    column->addWidget(buttons);
    QObject::connect(copy, &QPushButton::clicked, box,
                     [text] { QGuiApplication::clipboard()->setText(text); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, box, &QDialog::close);
    box->show();
}

#ifdef Q_OS_WIN
// The place of the system's own program, from the two keys that may hold it.
QString system_program() {
    const QString root = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools";
    const QString path = QSettings(root + "\\MSINFO", QSettings::NativeFormat).value("PATH").toString();
    if (!path.isEmpty())
        return path;
    const QString folder = QSettings(root + " Location", QSettings::NativeFormat).value("MSINFO").toString();
    const QString file = folder + "\\MSINFO32.EXE";
    return !folder.isEmpty() && QFileInfo::exists(file) ? file : QString();
}
#endif

} // namespace

bool show_system_info(const QString& data_folder) {
#ifdef Q_OS_WIN
    const QString program = system_program();
    return !program.isEmpty() && QProcess::startDetached(program, {});
#endif
    show_box(system_text(data_folder));
    return true;
}

} // namespace hustle::desktop
