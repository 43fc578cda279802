// A program of its own in the tests: its folder, its session on no screen, a hand that answers its boxes.
#pragma once

#include "desktop/platform/stablefile.h"
#include "desktop/session/session.h"
#include "desktop/window/mainwindow.h"
#include "panel/sheet.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

namespace hustle::desktop {

// How often what it is installed on was painted.
struct paint_counter : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        return count += event->type() == QEvent::Paint, false;
    }
};

// A program of its own: its folder, its session, started until main is on the screen.
struct program {
    QTemporaryDir folder;
    session s;
    QStringList told;       // the boxes so far
    QStringList costs;      // what a Yes in them costs
    std::string recorded;   // the session's file while the last one stood
    QString button = "&OK"; // what is clicked in the next ones
    QString otherwise;      // in one that has no such button; empty: it is closed
    QTimer hand;            // of a player who answers every box

    program() {
        qputenv("HUSTLE_DATA", folder.path().toUtf8());
        s.view.flashing_asked = true;
        QObject::connect(&hand, &QTimer::timeout, &hand, [this] { answer(); });
        hand.start(20);
    }
    ~program() { end_session(s); }

    // A box is dressed, takes no text for markup, and leads back to the safe answer.
    static void is_fit_for_all(const QMessageBox& box) {
        EXPECT_FALSE(box.windowTitle().isEmpty() || box.styleSheet().isEmpty()) << box.text().toStdString();
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        if (const auto* const more = box.findChild<QLabel*>("qt_msgbox_informativelabel")) {
            EXPECT_EQ(more->textFormat(), Qt::PlainText) << more->text().toStdString();
        }
        EXPECT_TRUE(box.buttons().size() == 1 || box.escapeButton() != nullptr) << box.text().toStdString();
        const QAbstractButton* const no = box.button(QMessageBox::No);
        const QAbstractButton* const preferred = box.defaultButton();
        EXPECT_TRUE(no == nullptr || (box.escapeButton() == no && preferred == no));
    }
    void is_painted_behind(const QMessageBox& box) const {
        for (const element_row& r : elements_of(screen::main))
            EXPECT_TRUE(r.what == kind::entry || !at(s.g.p, r.id).touched)
                << box.text().toStdString() << " stands before an old look of " << r.name;
    }
    void answer() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        is_fit_for_all(*box);
        if (s.window != nullptr && s.window->main_view().isVisible())
            is_painted_behind(*box);
        told << box->text();
        costs << box->informativeText();
        recorded = stored("session.txt");
        for (QAbstractButton* b : box->buttons())
            if (b->text() == button)
                return b->click();
        for (QAbstractButton* b : box->buttons())
            if (b->text() == otherwise)
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
