#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/file/FormError.h"
#include "forms/file/FormModel.h"
#include "forms/file/FormSave.h"
#include "host/Geometry.h"

namespace kel {

/// A classic Basic form file, kept line by line: what is not changed is written back byte for byte. A plain
/// value; a copy stands for itself. Names of properties match without regard to ASCII case. Every mistake in
/// the file is thrown as FormError with its line.
class FormFile {
public:
    /// `path` is UTF-8; messages name it, and resource files are looked for beside it.
    static FormFile parse(std::string bytes, const std::string& path);

    const std::string& path() const { return Model_.path; }
    const std::vector<FormObject>& objects() const { return Model_.objects; }
    const std::vector<FormBlock>& blocks() const { return Model_.blocks; }

    /// The outermost block is 0.
    const FormBlock& block(FormBlockId block) const { return Model_.blocks[block]; }

    /// The properties of a block itself, those in its groups and in nested blocks left out, as in the file.
    std::vector<FormProperty> properties(FormBlockId block) const;
    std::optional<FormProperty> find(FormBlockId block, std::u16string_view name) const;
    /// `BeginProperty` ... `EndProperty` in a block itself.
    std::vector<FormGroup> groups(FormBlockId block) const;
    /// The line on which the code behind the form begins, its attributes left out; 0 where there is none.
    std::size_t codeLine() const;

    /// The value as exactly `type`, a text read from its resource file if it stands in one. Throws FormError
    /// when it is no such value or cannot be read.
    Variant valueAs(const FormProperty& property, TypeTag type) const;
    std::u16string stringValue(const FormProperty& property) const;

    /// The property's value, or `byDefault` when the block has none of this name. Throws as valueAs does.
    std::int32_t integer(FormBlockId block, std::u16string_view name, std::int32_t byDefault = 0) const;
    bool boolean(FormBlockId block, std::u16string_view name, bool byDefault) const;
    std::u16string text(FormBlockId block, std::u16string_view name, std::u16string_view byDefault = {}) const;

    /// `Left`, `Top`, `Width`, `Height`, in twips within reach; 0 where one is missing.
    Rect bounds(FormBlockId block) const;
    /// `ClientWidth` and `ClientHeight`, in twips within reach.
    Size clientSize(FormBlockId block) const;

    /// Replaces the value of a property in its line, or adds a line where such files have it. Throws FormError
    /// for a value that has no form in a file, such as Null, and for the name of a group.
    void set(FormBlockId block, std::u16string_view name, const Variant& value);

    /// False when there is no such property.
    bool remove(FormBlockId block, std::u16string_view name);

    /// The file as `save` would write it. Reads resource files, writes nothing.
    FormOutput output(const std::string& path) const;

    /// Writes the form and the resource files it needs beside it, all or none. Texts that cannot stand in the
    /// form are added to a copy of its own resource file; other resource files are copied when the folder is a
    /// new one. Throws FormError naming the file that cannot be written, or that belongs to another form there.
    void save(const std::string& path) const;

private:
    explicit FormFile(FormModel model) : Model_(std::move(model)) {}

    FormModel Model_;
};

/// Reads a form file. Throws FormError, also when it cannot be opened.
FormFile readFormFile(const std::string& path);

}  // namespace kel
