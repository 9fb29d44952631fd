#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "forms/Home.h"
#include "records/exchange/ListFormat.h"
#include "values/Variant.h"

namespace kel::app {

/// What is wrong with the command line.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A command line taken apart. Options stand anywhere after the command.
struct Options {
    std::string command;
    std::vector<std::string> files;  ///< what is no option, in order
    std::string on;                  ///< the home; which one where it is empty is up to the command
    HomeOptions home;
    std::vector<std::string> ofQt;  ///< options that every program on Qt has, values included
    std::optional<Date> today;
    std::optional<Date> now;
    std::string data;   ///< a database; empty for none
    std::string table;  ///< empty: the form's own
    records::ListFormat list;
    bool allOrNothing = false;  ///< of a list that is taken in
    std::string shot;
    std::string used;
    bool check = false;
    bool force = false;  ///< a file that is there may be replaced
    bool update = false;
    bool json = false;
    bool markdown = false;
    bool commands = false;
};

/// Throws UsageError.
Options readOptions(const std::vector<std::string>& arguments);

extern const char* const Usage;

}  // namespace kel::app
