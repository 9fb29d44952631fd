#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the records ask the person who keys in. A window shows it, a script has it answered.
namespace kel::records {

enum class Unsaved : std::uint8_t { Save, Discard, Stay };

/// A field of a record that somebody else has changed while it was on this screen, in words.
struct Difference {
    std::u16string field;   ///< its caption
    std::u16string loaded;  ///< as both found it
    std::u16string mine;
    std::u16string theirs;
    bool isMineChanged = false;  ///< the same field was changed here, too
};

enum class Choice : std::uint8_t { Mine, Theirs };

class Questions {
public:
    /// The record on the screen is changed, and on the way to be left.
    virtual Unsaved aboutUnsaved() = 0;
    virtual bool reallyDelete() = 0;
    /// A choice for each difference; nothing to go back to the record and save nothing.
    virtual std::optional<std::vector<Choice>> aboutDifferences(const std::vector<Difference>& differences) = 0;
    /// The record was deleted by somebody else: true to keep what is on the screen as a new one.
    virtual bool keepDeleted() = 0;
    /// Something went wrong or is to be known. The person goes on when they have read it.
    virtual void say(std::u16string_view message) = 0;

protected:
    ~Questions() = default;
};

}  // namespace kel::records
