#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/file/FormFile.h"

namespace kel::qt {

/// That something of a form stays behind.
struct UiNote {
    std::size_t line = 0;  ///< of the form file
    std::string text;
    friend bool operator==(const UiNote&, const UiNote&) = default;
};

/// The properties of a block, each taken once by whoever carries it over. What nobody takes is told.
class BlockReader {
public:
    /// `file` outlives this.
    BlockReader(const FormFile& file, FormBlockId id);

    FormBlockId id() const { return Id_; }
    const FormBlock& block() const { return File_.block(Id_); }
    const FormFile& file() const { return File_; }

    /// Nothing where the block says nothing of it. Throws FormError for a value of another type.
    std::optional<std::u16string> text(std::u16string_view name);
    std::optional<std::int32_t> integer(std::u16string_view name);
    std::optional<bool> boolean(std::u16string_view name);
    std::optional<FormGroup> group(std::u16string_view name);
    /// Carried over by other means, or of no meaning elsewhere.
    void pass(std::u16string_view name);

    /// "numPrice.Icon is not carried over", with a reason after it if there is one.
    void leave(std::u16string_view name, std::size_t line, std::string_view reason);
    /// "numPrice.MinValue comes in otherwise: .5"
    void alter(std::u16string_view name, std::size_t line, std::u16string_view value);
    /// What has been left, and all that has not been asked for.
    std::vector<UiNote> notes() const;

private:
    std::optional<FormProperty> take(std::u16string_view name);

    const FormFile& File_;
    FormBlockId Id_;
    std::vector<FormProperty> Properties_;
    std::vector<FormGroup> Groups_;
    std::vector<UiNote> Notes_;
};

}  // namespace kel::qt
