#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kel {

class Form;

/// What a script's record commands are for: a form with a database behind it.
class RecordCommands {
public:
    /// What is wrong with a command.
    class Error : public std::runtime_error {
    public:
        using std::runtime_error::runtime_error;
    };

    /// A form is open, or is about to be closed. It outlives the time between.
    virtual void formOpened(Form& form) = 0;
    virtual void formCloses() = 0;

    using Print = std::function<void(const std::u16string& line)>;

    /// Runs "next", "find smith", "show record". Throws Error.
    virtual void run(std::u16string_view command, const Print& print) = 0;

protected:
    ~RecordCommands() = default;
};

}  // namespace kel
