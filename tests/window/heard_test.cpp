// What the sound thread and the session ask of the mixer, told by one that only notes it.
#include "desktop/platform/sound.h"
#include "desktop/session/watch.h"
#include "tests/window/program.h"

#include <gtest/gtest.h>

#include <QThread>

namespace hustle::desktop {

namespace {

struct ear {
    QTemporaryDir folder;
    ear() { open_sound(folder.path().toStdString(), HEARING); }
    ~ear() {
        close_sound();
        set_volume(100);
    }
    std::string heard() const { return read_stored(folder.path().toStdString(), "heard").text; }
    bool hears(const std::string& line) const { return heard().find(line + "\n") != std::string::npos; }
};

std::string state_when_open() {
    std::string state = sound_state();
    for (int tries = 0; tries < 15 && state == "no sound device"; ++tries)
        state = sound_state(); // it waits two seconds
    return state;
}

TEST(Sound, ReachesTheMixerInItsOrder) {
    EXPECT_EQ(sound_state(), "no sound device");
    const QTemporaryDir nowhere;
    const std::pair<std::string, std::string> silent[] = {
        {nowhere.path().toStdString(), "no-module.so"},
        {nowhere.path().toStdString() + "/no-folder", HEARING},
    };
    for (const auto& [folder, module] : silent) {
        play_wave(sound{});
        ASSERT_TRUE(open_sound(folder, module));
        while (sound_state() != "no sound device")
            QThread::msleep(1);
        play_wave(sound{});
        set_volume(40);
        close_sound();
    }
    ear e;
    EXPECT_EQ(state_when_open(), "an ear");
    EXPECT_TRUE(open_sound("/", "another")) << "it is open";
    play_wave(nth(sound{}, 4));
    tune_command(tune::play);
    for (const int percent : {70, 70, 0})
        set_volume(percent);
    play_wave(nth(sound{}, 3));
    while (!e.hears("wave 2"))
        QThread::msleep(1);
    close_sound();
    play_wave(sound{});
    EXPECT_EQ(e.heard(), "volume 40\nwave 3\ntune 1\nvolume 70\nvolume 0\nwave 2\nclose 0\n");
    EXPECT_EQ(sound_state(), "no sound device");
}

TEST(Sound, OfASessionIsTheMachinesAtThePlayersVolume) {
    const ear e;
    program p;
    p.s.view.volume = 75;
    p.start();
    p.until([&] { return e.hears("tune 0"); }); // opened while the splash stood
    EXPECT_TRUE(e.hears("volume 75"));
    p.s.world.midi(tune::stop);
    p.s.world.play(nth(sound{}, 6));
    p.until([&] { return e.hears("tune 2") && e.hears("wave 5"); });
    p.s.view.volume = 25;
    p.until([&] { return e.hears("volume 25"); }); // with the next tick
    send(p.s, {input::kind::press, screen::main, element::soundoff});
    p.until([&] { return e.hears("volume 0"); });
    end_session(p.s);
    EXPECT_TRUE(e.hears("close 0"));
}

TEST(Sound, OfAWatchedScriptIsHeard) {
    const ear e;
    program p;
    p.s.world.saving = false;
    open_session(p.s);
    watching w;
    w.text = "seed 1\npress main.start\nrun 3000\n";
    w.reach = 1e9; // at once: the last of its sounds is heard
    start_watching(p.s, w);
    const std::string wave = "wave " + std::to_string(static_cast<int>(sound::reelstop));
    p.until([&] { return e.hears(wave) || p.s.real.elapsed() > 10'000; });
    EXPECT_TRUE(e.hears(wave)) << e.heard();
    stop_watching(w);
}

} // namespace

} // namespace hustle::desktop
