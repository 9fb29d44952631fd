#include "forms/file/FormResources.h"

#include "forms/file/FileWriter.h"
#include "forms/file/FormError.h"
#include "forms/file/FormFrx.h"
#include "forms/file/FormReading.h"
#include "forms/file/FormStore.h"
#include "values/Text.h"

namespace kel {

namespace {

/// The name of a file as a text. One that is no UTF-8 is taken for one of the older systems.
std::u16string textOf(const std::filesystem::path& name) {
    const std::string bytes = utf8Of(name);
    const auto text = fromUtf8(bytes);
    return text ? *text : fromWindows1252(bytes);
}

}  // namespace

std::u16string resourceNameOf(const std::filesystem::path& form) { return textOf(form.stem()) + u".frx"; }

FormResources::FormResources(const FormModel& model, const std::string& path)
    : Model_(model),
      Path_(path),
      Folder_(pathOf(path).parent_path()),
      PassedOn_(isStream(pathOf(path))),
      SameFolder_(isSameFolder(Model_.resources->path(), Folder_.path())),
      OwnName_(resourceNameOf(pathOf(path))) {
    collectNames();
    const auto named = Names_.find(OwnName_);
    if (named != Names_.end()) OwnName_ = *named;
}

void FormResources::collectNames() {
    for (const FormModel::LineId line : Model_.liveLines()) {
        if (const auto reference = referenceAt(Model_, line)) Names_.insert(reference->file);
    }
}

std::uint32_t FormResources::addText(std::string_view bytes) {
    if (PassedOn_) throw FormError(Path_, 0, "has no place beside it for the file that the form's texts need");
    if (!Own_) Own_ = readOwn();
    const std::string record = makeTextRecord(bytes);
    // A text saved before is found again, so that saving twice adds nothing.
    const std::size_t known = Own_->find(record);
    if (known != std::string::npos) return static_cast<std::uint32_t>(known);
    const std::size_t offset = Own_->size();
    if (offset + record.size() > LargestFile) throw FormError(toUtf8(OwnName_), 0, "would be larger than 2 GB");
    Own_->append(record);
    return static_cast<std::uint32_t>(offset);
}

std::string FormResources::readOwn() const {
    const bool isNamed = Names_.contains(OwnName_);
    const ResourceFolder& folder = isNamed ? *Model_.resources : Folder_;
    const auto file = folder.find(toUtf8(OwnName_));
    if (file) return readWholeFile(*file);
    if (!isNamed) return {};
    throw FormError(utf8Of(folder.path() / pathOf(toUtf8(OwnName_))), 0, "is not there, so no text can be added to it");
}

std::vector<FormResource> FormResources::take() {
    std::vector<FormResource> resources;
    if (PassedOn_) return resources;
    for (const std::u16string& name : Names_) {
        if (SameFolder_ || (Own_ && name == OwnName_)) continue;
        if (auto copy = copyOf(name)) resources.push_back(*std::move(copy));
    }
    if (Own_) resources.push_back({toUtf8(OwnName_), *std::move(Own_)});
    return resources;
}

std::optional<FormResource> FormResources::copyOf(const std::u16string& name) const {
    const auto file = Model_.resources->find(toUtf8(name));
    if (!file) return std::nullopt;
    return FormResource{toUtf8(name), readWholeFile(*file)};
}

}  // namespace kel
