#include "forms/file/FormResources.h"

#include "forms/file/FormError.h"
#include "forms/file/FormFrx.h"
#include "forms/file/FormReading.h"
#include "forms/file/FormStore.h"
#include "values/Text.h"

namespace kel {

namespace {

std::u16string ownNameFor(const std::filesystem::path& form) {
    return fromUtf8(utf8Of(form.stem())).value_or(std::u16string()) + u".frx";
}

}  // namespace

FormResources::FormResources(const FormModel& model, const std::string& path)
    : Model_(model),
      SourceFolder_(pathOf(model.path).parent_path()),
      Folder_(pathOf(path).parent_path()),
      SameFolder_(isSameFolder(SourceFolder_, Folder_)),
      OwnName_(ownNameFor(pathOf(path))) {
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
    const auto& folder = isNamed ? SourceFolder_ : Folder_;
    const auto file = findResource(folder, toUtf8(OwnName_));
    if (file) return readWholeFile(*file);
    if (!isNamed) return {};
    throw FormError(utf8Of(folder / pathOf(toUtf8(OwnName_))), 0, "is not there, so no text can be added to it");
}

std::vector<FormResource> FormResources::take() {
    std::vector<FormResource> resources;
    for (const std::u16string& name : Names_) {
        if (SameFolder_ || (Own_ && name == OwnName_)) continue;
        if (auto copy = copyOf(name)) resources.push_back(*std::move(copy));
    }
    if (Own_) resources.push_back({toUtf8(OwnName_), *std::move(Own_)});
    return resources;
}

std::optional<FormResource> FormResources::copyOf(const std::u16string& name) const {
    const auto file = findResource(SourceFolder_, toUtf8(name));
    if (!file) return std::nullopt;
    return FormResource{toUtf8(name), readWholeFile(*file)};
}

}  // namespace kel
