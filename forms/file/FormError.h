#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace kel {

/// What is wrong with a form file or with a file that belongs to it: "FILE:LINE: what is wrong", in UTF-8.
/// Line 0 is the file as a whole and is left out.
class FormError : public std::runtime_error {
public:
    FormError(const std::string& file, std::size_t line, const std::string& message)
        : std::runtime_error(file + (line == 0 ? "" : ":" + std::to_string(line)) + ": " + message),
          File_(file),
          Message_(message),
          Line_(line) {}

    const std::string& file() const { return File_; }
    std::size_t line() const { return Line_; }  ///< 1-based
    const std::string& message() const { return Message_; }

private:
    std::string File_;
    std::string Message_;
    std::size_t Line_;
};

/// What is wrong, said by a function that knows neither file nor line; its caller makes a FormError of it.
struct FormFault {
    std::string message;
};

}  // namespace kel
