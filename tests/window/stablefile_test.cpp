// The stored files against a disk that fails: every system call of a save is made to fail, to stop
// half-way, or to be the last one of the program.
#include "desktop/platform/stablefile.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hustle::desktop {

namespace {

namespace fs = std::filesystem;

struct folder {
    std::string path;
    folder() {
        std::string place = fs::temp_directory_path() / "stablefileXXXXXX";
        path = ::mkdtemp(place.data());
    }
    ~folder() { fs::remove_all(path); }
    std::string operator/(const std::string& name) const { return path + "/" + name; }
    int count() const {
        return static_cast<int>(std::distance(fs::directory_iterator(path), fs::directory_iterator()));
    }
};

std::string text_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

enum class harm { fail, half, kill_before, kill_after };

// The call that is harmed, counted from 0, and how; what was done on the way.
struct {
    int at = -1;
    harm how = harm::fail;
    int calls = 0;
    std::string done;
} plan;

// True where this call fails; a kill does not come back.
bool harmed(const char* what) {
    plan.done += what;
    const bool now = plan.calls++ == plan.at;
    if (now && plan.how == harm::kill_before)
        ::_exit(9);
    if (now && plan.how == harm::fail)
        errno = EIO;
    return now && plan.how == harm::fail;
}

template <class Result> Result after(Result result) {
    if (plan.calls - 1 == plan.at && plan.how == harm::kill_after)
        ::_exit(9);
    return result;
}

const file_calls bad_disk = {
    [](int at, const char* name, int flags, mode_t mode) {
        return harmed("o") ? -1 : after(system_calls.open(at, name, flags, mode));
    },
    [](int file, const void* bytes, size_t size) -> ssize_t {
        if (harmed("w"))
            return -1;
        const bool half = plan.calls - 1 == plan.at && plan.how == harm::half;
        return after(system_calls.write(file, bytes, half ? size / 2 : size));
    },
    [](int file) { return harmed("f") ? -1 : after(system_calls.flush(file)); },
    [](int file) { return harmed("F") ? -1 : after(system_calls.flush_folder(file)); },
    [](int file) { // it is closed, whatever is told
        const int closed = system_calls.close(file);
        return harmed("c") ? -1 : after(closed);
    },
    [](int at, const char* from, const char* to) {
        return harmed("m") ? -1 : after(system_calls.rename(at, from, to));
    },
    system_calls.move,
    [](int at, const char* name) { return harmed("r") ? -1 : after(system_calls.remove(at, name)); },
};

const std::string before(3000, 'o');
const std::string now(5000, 'n');

std::string save_harmed(const folder& f, int at, harm how) {
    plan = {at, how, 0, {}};
    return save_stored(f.path, "game.dat", now, bad_disk);
}

TEST(StableFile, IsOldOrNewWholeAndToldExactlyWhateverCallFails) {
    folder clean;
    ASSERT_EQ(save_harmed(clean, -1, harm::fail), "");
    const std::string order = plan.done;
    EXPECT_LT(order.find('f'), order.find('m')) << "on the disk before it takes the old one's name";
    EXPECT_LT(order.find('m'), order.find('F'));
    for (int at = 0; at < static_cast<int>(order.size()); ++at)
        for (const harm how : {harm::fail, harm::half}) {
            const folder f;
            ASSERT_EQ(save_stored(f.path, "game.dat", before), "");
            const std::string why = save_harmed(f, at, how);
            const std::string found = text_of(f / "game.dat");
            const std::string where = order + " at " + std::to_string(at);
            EXPECT_TRUE(found == before || found == now) << where;
            // What is only tidied, and the folder's own close, puts the text in no doubt.
            const bool matters = how == harm::fail && order[static_cast<std::size_t>(at)] != 'r' &&
                                 static_cast<std::size_t>(at) + 1 < order.size();
            EXPECT_EQ(why.empty(), !matters) << where << ": " << why;
            if (why.empty()) {
                EXPECT_EQ(found, now) << where;
            }
            EXPECT_EQ(save_stored(f.path, "game.dat", now), "") << "it can be tried again";
            EXPECT_EQ(text_of(f / "game.dat"), now);
        }
}

TEST(StableFile, OutlivesAKillAtEveryCallAndIsSweptAtTheNextStart) {
    constexpr int more_than_a_save_makes = 12;
    for (int at = 0; at < more_than_a_save_makes; ++at)
        for (const harm how : {harm::kill_before, harm::kill_after}) {
            const folder f;
            ASSERT_EQ(save_stored(f.path, "game.dat", before), "");
            const pid_t child = ::fork();
            if (child == 0) {
                save_harmed(f, at, how);
                ::_exit(0);
            }
            int status = 0;
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            const std::string found = text_of(f / "game.dat");
            EXPECT_TRUE(found == before || found == now) << at;
            if (WEXITSTATUS(status) == 0) {
                EXPECT_EQ(found, now);
            }
            sweep_stored(f.path, "game.dat");
            EXPECT_EQ(f.count(), 1) << at;
        }
}

TEST(StableFile, TellsAFullDisk) {
    if (::access("/dev/full", W_OK) != 0)
        GTEST_SKIP() << "there is no /dev/full";
    const folder f;
    ASSERT_EQ(save_stored(f.path, "game.dat", before), "");
    file_calls full = system_calls;
    full.open = [](int at, const char* name, int flags, mode_t mode) {
        return (flags & O_CREAT) != 0 ? ::open("/dev/full", O_WRONLY | O_CLOEXEC)
                                      : system_calls.open(at, name, flags, mode);
    };
    EXPECT_EQ(save_stored(f.path, "game.dat", now, full), "No space left on device");
    EXPECT_EQ(text_of(f / "game.dat"), before);
}

TEST(StableFile, IsNoLinkNoPipeAndNoFolder) {
    const folder f, elsewhere;
    ASSERT_EQ(save_stored(elsewhere.path, "target", before), "");
    fs::create_symlink(elsewhere / "target", f / "game.dat");
    EXPECT_EQ(read_stored(f.path, "game.dat").text, before);
    EXPECT_EQ(save_stored(f.path, "game.dat", now), "");
    EXPECT_EQ(text_of(elsewhere / "target"), before) << "the link was followed";
    EXPECT_EQ(text_of(f / "game.dat"), now);
    ASSERT_EQ(save_stored(f.path, "longest", std::string(16385, 'x')),
              ""); // a byte behind what is read at once
    errno = EINTR; // of another call
    EXPECT_EQ(read_stored(f.path, "longest").text.size(), 16385);
    fs::remove(f / "longest");

    using enum stored_text::state;
    ASSERT_EQ(::mkfifo((f / "pipe").c_str(), 0600), 0);
    fs::create_directory(f / "folder");
    fs::create_symlink("loop", f / "loop");
    for (const char* name : {"pipe", "folder", "loop"}) {
        EXPECT_EQ(read_stored(f.path, name).what, unreadable) << name;
        EXPECT_NE(read_stored(f.path, name).why, "") << name;
    }
    EXPECT_EQ(read_stored("/dev", "zero").what, unreadable);
    EXPECT_EQ(read_stored(f.path, "nothing").what, missing);
    EXPECT_NE(why_not_writable(f / "nowhere"), "");
    std::ofstream(f / "trial.new") << "the player's own";
    std::ofstream(f / "hoardhustle.trial") << "of a start that was killed";
    EXPECT_EQ(why_not_writable(f.path), "");
    EXPECT_EQ(f.count(), 5) << "the trial is gone, and it alone";
}

TEST(StableFile, KeepsEveryDamagedOne) {
    const folder f;
    file_calls simple = system_calls; // a file system that knows no move without replacing
    simple.move = [](int, const char*, const char*) { return errno = EINVAL, -1; };
    for (const bool knows : {true, false})
        for (const char* kept : {"game.dat.damaged", "game.dat.damaged-2", "game.dat.damaged-3"}) {
            fs::remove(f / kept); // its place is free; the second time those behind it are not
            ASSERT_EQ(save_stored(f.path, "game.dat", kept), "");
            EXPECT_EQ(keep_aside(f.path, "game.dat", knows ? system_calls : simple), kept);
        }
    file_calls refused = system_calls;
    refused.move = [](int, const char*, const char*) { return errno = EACCES, -1; };
    ASSERT_EQ(save_stored(f.path, "game.dat", now), "");
    EXPECT_EQ(keep_aside(f.path, "game.dat", refused), "");
    EXPECT_EQ(text_of(f / "game.dat"), now) << "it stands where it stood";
    fs::remove(f / "game.dat");
    EXPECT_EQ(text_of(f / "game.dat.damaged"), "game.dat.damaged");
    EXPECT_EQ(text_of(f / "game.dat.damaged-2"), "game.dat.damaged-2");
    EXPECT_EQ(keep_aside(f.path, "game.dat"), "") << "what is not there was kept";
}

} // namespace

} // namespace hustle::desktop
