#include "desktop/platform/stablefile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace hustle::desktop {

namespace {

constexpr const char* coming = ".new"; // behind the name of a file that is being written
constexpr const char* trial = "hoardhustle.trial";
constexpr int most_kept = 99;

int system_open(int folder, const char* name, int flags, mode_t mode) {
    return ::openat(folder, name, flags, mode);
}
int system_rename(int folder, const char* from, const char* to) {
    return ::renameat(folder, from, folder, to);
}
int system_move(int folder, const char* from, const char* to) {
    return ::renameat2(folder, from, folder, to, RENAME_NOREPLACE);
}
int system_remove(int folder, const char* name) { return ::unlinkat(folder, name, 0); }

std::string reason() { return std::strerror(errno); }

// A file or a folder that is closed at the end of its scope, whatever happened.
struct handle {
    const file_calls& calls;
    int number = -1;

    handle(const file_calls& by, int opened) : calls(by), number(opened) {}
    handle(const handle&) = delete;
    handle& operator=(const handle&) = delete;
    ~handle() {
        const int kept = errno; // of what went wrong before
        if (number >= 0)
            calls.close(number);
        errno = kept;
    }
    bool is_open() const { return number >= 0; }
    bool close() { return calls.close(std::exchange(number, -1)) == 0; }
};

bool write_all(const file_calls& calls, int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = calls.write(file, text.data(), text.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written == 0)
            errno = ENOSPC;
        if (written <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// The new file under its own name, complete and on the disk.
bool write_new(const file_calls& calls, int folder, const std::string& name, std::string_view text,
               bool flush = true) {
    handle file(calls,
                calls.open(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
    return file.is_open() && write_all(calls, file.number, text) &&
           (!flush || calls.flush(file.number) == 0) && file.close();
}

int open_folder(const file_calls& calls, const std::string& folder) {
    return calls.open(AT_FDCWD, folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
}

// A rename is sure once the folder is on the disk. Some file systems know no such flush.
bool flush_folder(const file_calls& calls, int folder) {
    return calls.flush_folder(folder) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool is_free(int folder, const std::string& name) {
    struct stat unused {};
    return ::fstatat(folder, name.c_str(), &unused, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOENT;
}

// Moves a file where nothing stands yet; EEXIST where something does.
bool move_to_free(const file_calls& calls, int folder, const std::string& from, const std::string& to) {
    if (calls.move(folder, from.c_str(), to.c_str()) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (!is_free(folder, to)) { // a file system without the flag
        errno = EEXIST;
        return false;
    }
    return calls.rename(folder, from.c_str(), to.c_str()) == 0;
}

std::string unreadable_kind(const struct stat& what) {
    if (S_ISDIR(what.st_mode))
        return "it is a folder";
    return "it is not a plain file";
}

bool read_all(int file, std::string& text, std::size_t most) {
    char bytes[16384];
    while (text.size() < most) {
        const ssize_t got = ::read(file, bytes, sizeof bytes);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return got == 0;
        text.append(bytes, static_cast<std::size_t>(got));
    }
    return true;
}

} // namespace

const file_calls system_calls = {system_open, ::write,       ::fdatasync, ::fsync,
                                 ::close,     system_rename, system_move, system_remove};

stored_text read_stored(const std::string& folder, const std::string& name, std::size_t most) {
    using enum stored_text::state;
    const std::string path = name.starts_with("/") ? name : folder + "/" + name;
    // Without waiting: a pipe would hold the program until somebody writes to it.
    const handle file(system_calls, ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.is_open())
        return errno == ENOENT || errno == ENOTDIR ? stored_text{} : stored_text{unreadable, {}, reason()};
    struct stat what {};
    if (::fstat(file.number, &what) != 0)
        return {unreadable, {}, reason()};
    if (!S_ISREG(what.st_mode))
        return {unreadable, {}, unreadable_kind(what)};
    stored_text found{there, {}, {}};
    if (!read_all(file.number, found.text, most))
        return {unreadable, {}, reason()};
    return found;
}

std::string save_stored(const std::string& folder, const std::string& name, std::string_view text,
                        const file_calls& calls) {
    handle place(calls, open_folder(calls, folder));
    if (!place.is_open())
        return reason();
    const std::string fresh = name + coming;
    calls.remove(place.number, fresh.c_str()); // of a save that was killed; mostly there is none
    if (!write_new(calls, place.number, fresh, text) ||
        calls.rename(place.number, fresh.c_str(), name.c_str()) != 0) {
        std::string why = reason();
        calls.remove(place.number, fresh.c_str());
        return why;
    }
    return flush_folder(calls, place.number) ? std::string() : reason();
}

std::string keep_aside(const std::string& folder, const std::string& name, const file_calls& calls) {
    const handle place(calls, open_folder(calls, folder));
    for (int n = 1; place.is_open() && n <= most_kept; ++n) {
        std::string kept = name + ".damaged";
        if (n > 1)
            kept.append("-").append(std::to_string(n));
        if (move_to_free(calls, place.number, name, kept))
            return kept;
        if (errno != EEXIST)
            break;
    }
    return {};
}

void sweep_stored(const std::string& folder, const std::string& name) {
    ::unlink((folder + "/" + name + coming).c_str());
}

std::string why_not_writable(const std::string& folder) {
    const handle place(system_calls, open_folder(system_calls, folder));
    if (!place.is_open())
        return reason();
    system_calls.remove(place.number, trial); // of a start that was killed
    std::string why;
    if (!write_new(system_calls, place.number, trial, "can this folder be written to?\n", false))
        why = reason();
    system_calls.remove(place.number, trial);
    return why;
}

} // namespace hustle::desktop
