// Scripts by chance, many in one process. With clang's fuzzer (tools/fuzz) the bytes are its own; as
// a plain program it draws them by a seed: script_fuzz [SCRIPTS [SEED]].
#include "panel/splitmix.h"
#include "script/commands.h"
#include "tests/fuzz/grammar.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <streambuf>
#include <vector>

namespace {

struct nowhere : std::streambuf {
    int overflow(int c) override { return c == EOF ? 0 : c; }
    std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
};

long commands = 0; // that were run
// Writes down each script before it runs: of an input that does harm, the last one is what did it.
const bool keeps = std::getenv("HUSTLE_FUZZ_KEEP") != nullptr;

// The line that ended a script, by the last message.
long ended_at(const std::string& errors) {
    const std::size_t last = errors.rfind("fuzz:");
    return last == std::string::npos ? 1 : std::atol(errors.c_str() + last + 5);
}

// A script ends at the first line that it cannot take; what stands behind it then runs as the next
// one, so that no command is lost.
void run_all(const std::uint8_t* bytes, std::size_t size) {
    nowhere sink;
    std::ostream out(&sink);
    for (std::string script = hustle::fuzz::script_of(bytes, size); !script.empty();) {
        if (keeps)
            std::ofstream("fuzz-failure.txt") << script;
        std::ostringstream errors;
        const bool ended = hustle::script::run_script(script, "fuzz", out, errors) == 2;
        long lines = ended ? ended_at(errors.str()) : -1;
        std::size_t behind = 0;
        for (; lines != 0 && behind < script.size(); --lines, ++commands)
            behind = std::min(script.find('\n', behind), script.size() - 1) + 1;
        script.erase(0, behind);
    }
}

} // namespace

#ifdef HUSTLE_FUZZER
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    std::atexit([] { std::printf("%ld commands\n", commands); });
    return 0;
}
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    run_all(bytes, size);
    return 0;
}
#else
int main(int argc, char** argv) {
    const long scripts = argc > 1 ? std::atol(argv[1]) : 100;
    const std::uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    for (long n = 0; n < scripts; ++n) {
        std::uint64_t state = (first + static_cast<std::uint64_t>(n)) << 20;
        std::vector<std::uint8_t> bytes(2048);
        for (std::uint8_t& b : bytes)
            b = static_cast<std::uint8_t>(hustle::splitmix_draw(state, 256) - 1);
        run_all(bytes.data(), bytes.size());
    }
    std::printf("%ld scripts, %ld commands\n", scripts, commands);
}
#endif
