// A small file on the disk that is whole at every moment: read with care, replaced by a new one
// that was flushed before it took the old one's name, kept aside without covering another.
// Plain system calls, so that each of them can be made to fail in a test.
#pragma once

#include <string>
#include <string_view>

#include <sys/types.h>

namespace hustle::desktop {

// The calls of a save. As the system's own: below 0 is a failure, told in errno.
struct file_calls {
    int (*open)(int folder, const char* name, int flags, mode_t mode);
    ssize_t (*write)(int file, const void* bytes, size_t size);
    int (*flush)(int file);
    int (*flush_folder)(int folder);
    int (*close)(int file);
    int (*rename)(int folder, const char* from, const char* to);
    int (*move)(int folder, const char* from, const char* to); // where nothing stands: else EEXIST
    int (*remove)(int folder, const char* name);
};
extern const file_calls system_calls;

struct stored_text {
    enum class state { there, missing, unreadable } what = state::missing;
    std::string text; // of a file that is there
    std::string why;  // of one that cannot be read, for the player
};

// A file that is not a plain one (a folder, a pipe, a device) counts as unreadable and is never
// waited for. No more than `most` bytes are read: the machine's files are a thousandth of a mebibyte.
// A name that begins with a slash stands in no folder.
stored_text read_stored(const std::string& folder, const std::string& name, std::size_t most = 1 << 20);

// Replaces a file as a whole: at every moment the old text or the new one is there. Empty where the
// new text is surely on the disk; otherwise why not, for the player. A link is replaced, not
// followed.
std::string save_stored(const std::string& folder, const std::string& name, std::string_view text,
                        const file_calls& = system_calls);

// Keeps a file under a name of its own, NAME.damaged or the first of NAME.damaged-2 to -99 that is
// free; the name, or empty where the file could not be moved and stands where it stood.
std::string keep_aside(const std::string& folder, const std::string& name, const file_calls& = system_calls);

// Removes what a save of this file left behind when it was killed.
void sweep_stored(const std::string& folder, const std::string& name);

// Whether new files can be written in a folder: empty, or why not. It waits for no disk.
std::string why_not_writable(const std::string& folder);

} // namespace hustle::desktop
