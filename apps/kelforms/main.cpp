#include <exception>
#include <iostream>

#include "apps/kelforms/Commands.h"

int main(int argc, char** argv) {
    using namespace kel::app;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (!arguments.empty() && (arguments[0] == "--help" || arguments[0] == "-h" || arguments[0] == "help")) {
        std::cout << Usage;
        return Done;
    }
    try {
        return runCommand(readOptions(arguments));
    } catch (const UsageError& error) {
        std::cerr << "kelforms: " << error.what() << "\n\n" << Usage;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
    }
    return Wrong;
}
