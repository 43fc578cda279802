// A program of its own in the tests: its folder, its session on no screen, a hand that answers its boxes.
#pragma once

#include "desktop/platform/stablefile.h"
#include "desktop/session/session.h"
#include "desktop/window/mainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>

namespace hustle::desktop {

// A program of its own: its folder, its session, started until main is on the screen.
struct program {
    QTemporaryDir folder;
    session s;
    QStringList told;  // the boxes so far
    QStringList costs; // what a Yes in them costs
    Qt::TextFormat costs_format = Qt::AutoText;
    std::string recorded;   // the session's file while the last one stood
    QString button = "&OK"; // what is clicked in the next ones
    QTimer hand;            // of a player who answers every box

    program() {
        qputenv("HUSTLE_DATA", folder.path().toUtf8());
        s.view.flashing_asked = true;
        QObject::connect(&hand, &QTimer::timeout, &hand, [this] { answer(); });
        hand.start(20);
    }
    ~program() { end_session(s); }

    void answer() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        told << box->text();
        costs << box->informativeText();
        if (const auto* more = box->findChild<QLabel*>("qt_msgbox_informativelabel"))
            costs_format = more->textFormat();
        recorded = stored("session.txt");
        for (QAbstractButton* b : box->buttons())
            if (b->text() == button)
                return b->click();
        box->reject();
    }
    void start() {
        start_session(s);
        until([this] {
            return s.window != nullptr && s.window->isVisible() && s.started &&
                   is_loaded(s.g.p, screen::main);
        });
    }
    // Runs the windows until it is so, or the program has ended.
    template <class Test> void until(const Test& so) {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            if (so())
                QCoreApplication::exit();
        });
        look.start(5);
        QApplication::exec();
    }
    void until_over() {
        until([this] { return s.g.p.over; });
    }
    std::string stored(const char* name) const { return read_stored(folder.path().toStdString(), name).text; }
};

} // namespace hustle::desktop
