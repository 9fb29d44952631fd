#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "forms/file/FormModel.h"

namespace kel {

/// A file that belongs beside a form file: its name there, and what it must hold.
struct FormResource {
    std::string name;  ///< UTF-8
    std::string bytes;
};

/// The name of a form's own resource file: "orders.frx" for "orders.frm".
std::u16string resourceNameOf(const std::filesystem::path& form);

/// The resource files of a form that is being written to some place: those it names, which go where it goes,
/// and its own, NAME.frx, which takes the texts that the form cannot hold. Existing records stay where they
/// are, so that no reference to them breaks.
class FormResources {
public:
    /// `path` is that of the form to be written.
    FormResources(const FormModel& model, const std::string& path);

    /// Name of the form's own resource file, spelt as its references spell it.
    const std::u16string& ownName() const { return OwnName_; }

    /// Adds a text to the form's own file and gives its offset there. Throws FormError when the file is named by
    /// the form and is not there, since old references would then point into the wrong file, and when the form goes
    /// where no file can stand beside it.
    std::uint32_t addText(std::string_view bytes);

    /// The files that must stand beside the written form and may not yet. Throws FormError.
    std::vector<FormResource> take();

private:
    void collectNames();
    std::string readOwn() const;
    std::optional<FormResource> copyOf(const std::u16string& name) const;

    const FormModel& Model_;
    std::string Path_;
    ResourceFolder Folder_;
    bool PassedOn_;  ///< to a device or a pipe
    bool SameFolder_;
    std::set<std::u16string, NameOrder> Names_;  ///< as the form spells them
    std::u16string OwnName_;
    std::optional<std::string> Own_;  ///< once a text has been added
};

}  // namespace kel
