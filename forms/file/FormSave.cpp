#include "forms/file/FormSave.h"

#include "forms/file/FormComposer.h"
#include "forms/file/FormError.h"
#include "forms/file/FormFrx.h"
#include "forms/file/FormStore.h"
#include "forms/file/FormText.h"

namespace kel {

namespace {

namespace fs = std::filesystem;

/// Where a resource goes; nothing when what stands there already will do. Records are only ever added, so a
/// file that begins as the other ends is the same file at another time.
std::optional<FileToWrite> placeResource(const fs::path& form, const FormResource& resource) {
    const fs::path folder = form.parent_path();
    const auto existing = findResource(folder, resource.name);
    if (!existing) return FileToWrite{folder / pathOf(resource.name), resource.bytes};
    const std::string held = readWholeFile(*existing);
    if (held.starts_with(resource.bytes)) return std::nullopt;
    const bool belongsToForm = equalsIgnoringAsciiCase(utf8Of(existing->stem()), utf8Of(form.stem()));
    if (!belongsToForm && !resource.bytes.starts_with(held))
        throw FormError(utf8Of(*existing), 0, "would be replaced by another file of that name");
    return FileToWrite{*existing, resource.bytes};
}

}  // namespace

FormOutput composeForm(const FormModel& model, const std::string& path) {
    FormResources resources(model, path);
    FormOutput output;
    output.form = FormComposer(model, resources).compose();
    output.resources = resources.take();
    return output;
}

void saveForm(const FormModel& model, const std::string& path) {
    FormOutput output = composeForm(model, path);
    std::vector<FileToWrite> files;
    for (const FormResource& resource : output.resources) {
        if (auto file = placeResource(pathOf(path), resource)) files.push_back(*std::move(file));
    }
    files.push_back({pathOf(path), std::move(output.form)});
    writeTogether(files);
}

}  // namespace kel
