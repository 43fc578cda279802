// hustlescript [FILE]: runs a panel script from a file or from standard input.
// hustlescript --signature: prints one number for the behaviour of the whole machine.
#include "script/commands.h"
#include "script/monkey.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

bool read_all(std::istream& from, std::string& text) {
    text.assign(std::istreambuf_iterator<char>(from), {});
    return !from.bad();
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::cerr << "usage: hustlescript [FILE | --signature]\n";
        return 2;
    }
    std::ios::sync_with_stdio(false);
    if (argc == 2 && std::string_view(argv[1]) == "--signature") {
        std::cout << hustle::script::signature() << '\n';
        return 0;
    }
    const std::string name = argc == 2 ? argv[1] : "stdin";
    std::string text;
    bool read = false;
    if (argc == 2) {
        std::ifstream file(name, std::ios::binary);
        read = file && read_all(file, text) && !file.fail();
    } else {
        read = read_all(std::cin, text);
    }
    if (!read) {
        std::cerr << name << ": cannot be read\n";
        return 2;
    }
    const int status = hustle::script::run_script(text, name, std::cout, std::cerr);
    if (!std::cout.flush()) {
        std::cerr << "standard output cannot be written\n";
        return 2;
    }
    return status;
}
