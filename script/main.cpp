// hustlescript [--long] [FILE]: runs a panel script from a file or from standard input.
// hustlescript --signature: prints one number for the behaviour of the whole machine.
#include "script/commands.h"
#include "script/monkey.h"
#include "script/reading.h"

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

int main(int argc, char** argv) {
    std::vector<std::string_view> told(argv + 1, argv + argc);
    const bool of_lab = !told.empty() && told[0] == "--long";
    if (of_lab)
        told.erase(told.begin());
    if (told.size() > 1) {
        std::cerr << "usage: hustlescript [[--long] FILE | --signature]\n";
        return 2;
    }
    std::ios::sync_with_stdio(false);
    if (!of_lab && !told.empty() && told[0] == "--signature") {
        std::cout << hustle::script::signature() << '\n';
        return 0;
    }
    const std::string name(told.empty() ? "stdin" : told[0]);
    const std::size_t most = of_lab ? hustle::script::longest_of_lab : hustle::script::longest_script;
    std::string text;
    const std::string wrong = told.empty() ? hustle::script::read_script(std::cin, text, most)
                                           : hustle::script::read_script_file(name, text, most);
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
