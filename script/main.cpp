// hustlescript [FILE]: runs a panel script from a file or from standard input.
// hustlescript --signature: prints one number for the behaviour of the whole machine.
#include "script/commands.h"
#include "script/monkey.h"
#include "script/reading.h"

#include <iostream>
#include <string>

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
    const std::string wrong = argc == 2 ? hustle::script::read_script_file(name, text)
                                        : hustle::script::read_script(std::cin, text);
    if (!wrong.empty()) {
        std::cerr << hustle::script::printable(name) << ": " << wrong << '\n';
        return 2;
    }
    const int status = hustle::script::run_script(text, name, std::cout, std::cerr);
    if (!std::cout.flush()) {
        std::cerr << "standard output cannot be written\n";
        return 2;
    }
    return status;
}
