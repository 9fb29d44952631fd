#include <exception>
#include <iostream>

#include "apps/kelforms/Commands.h"

int main(int argc, char** argv) {
    using namespace kel::app;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (!arguments.empty() && (arguments[0] == "--help" || arguments[0] == "-h" || arguments[0] == "help")) {
        std::cout << Usage;
        return std::cout.flush() ? Done : Wrong;
    }
    try {
        const ExitStatus status = runCommand(readOptions(arguments));
        if (!std::cout.flush()) throw std::runtime_error("kelforms: the standard output cannot be written");
        return status;
    } catch (const UsageError& error) {
        std::cerr << "kelforms: " << error.what() << "\n\n" << Usage;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
    }
    return Wrong;
}
