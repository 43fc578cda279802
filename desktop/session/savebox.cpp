#include "desktop/session/savebox.h"

#include "desktop/window/boxes.h"
#include "panel/sheet.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace hustle::desktop {

namespace {

QString shown(const QString& folder) { return QDir::toNativeSeparators(folder); }

void warn(const QString& text, const QString& more) {
    QMessageBox box(QMessageBox::Warning, {}, text, QMessageBox::Ok, box_parent());
    dress(box, "Hoard Hustle");
    add_plain(box, more);
    box.exec();
}

// Another machine's file may stand in a folder that was chosen.
bool may_replace(const QString& folder, const QString& file) {
    if (!QFileInfo::exists(QDir(folder).filePath(file)))
        return true;
    QMessageBox box(QMessageBox::Warning, {},
                    QString("There is a %1 in that folder already. Replace it?").arg(file),
                    QMessageBox::Yes | QMessageBox::No, box_parent());
    dress(box, "Hoard Hustle");
    add_plain(box, QString("What it holds in %1 will be gone.").arg(shown(folder)));
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace

void tell_unreadable(const QString& folder, const QString& file, const QString& why) {
    warn(QString("%1 is there but cannot be read: %2.").arg(file, why),
         QString("It stands in %1. It is left as it is and not written over; the machine starts without it.")
             .arg(shown(folder)));
}

void tell_no_place(const QString& folder, const QString& why) {
    warn(QString("Nothing can be saved in %1: %2.").arg(shown(folder), why),
         "The machine plays all the same. When it ends you can choose another folder for its two files.");
}

void note_unsaved(const QString& folder, const QString& why) {
    auto* box = new QMessageBox(QMessageBox::Warning, {},
                                QString("What you have won is not on the disk: %1.").arg(why),
                                QMessageBox::Ok, box_parent());
    dress(*box, "Hoard Hustle");
    add_plain(*box, QString("%1 could not be saved in %2. It is tried again after each play, and "
                            "at the end another folder can be chosen.")
                        .arg(QString::fromStdString(std::string(name(store::game_dat))), shown(folder)));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->show();
}

std::string ask_where_to_save(const QString& folder, const QString& file, const QString& why) {
    QMessageBox box(QMessageBox::Warning, {}, QString("%1 is not saved: %2.").arg(file, why),
                    QMessageBox::NoButton, box_parent());
    dress(box, "Hoard Hustle");
    add_plain(box, QString("It belongs in %1.").arg(shown(folder)));
    const QPushButton* const again = box.addButton("&Try Again", QMessageBox::AcceptRole);
    const QPushButton* const elsewhere = box.addButton("Save &Elsewhere...", QMessageBox::ActionRole);
    QPushButton* const without = box.addButton("&Do Without", QMessageBox::RejectRole);
    box.setEscapeButton(without);
    for (;;) {
        box.exec();
        if (box.clickedButton() == again)
            return QFile::encodeName(folder).toStdString();
        if (box.clickedButton() != elsewhere)
            return {};
        const QString chosen =
            QFileDialog::getExistingDirectory(&box, "A folder for " + file, QDir::homePath());
        if (!chosen.isEmpty() && may_replace(chosen, file))
            return QFile::encodeName(chosen).toStdString();
    }
}

} // namespace hustle::desktop
