#include "forms/file/FormSave.h"

#include "forms/file/FileWriter.h"
#include "forms/file/FormComposer.h"
#include "forms/file/FormError.h"
#include "forms/file/FormFrx.h"
#include "forms/file/FormStore.h"
#include "forms/file/FormText.h"
#include "values/Text.h"

namespace kel {

namespace {

namespace fs = std::filesystem;

/// Where a resource goes; nothing when what stands there already will do. Records are only ever added, so a
/// file that begins as the other ends is the same file at another time.
std::optional<FileToWrite> placeResource(const ResourceFolder& folder, const std::string& ownName,
                                         const FormResource& resource) {
    const auto existing = folder.find(resource.name);
    if (!existing) return FileToWrite{folder.path() / pathOf(resource.name), resource.bytes};
    const std::string held = readWholeFile(*existing);
    if (held.starts_with(resource.bytes)) return std::nullopt;
    const bool belongsToForm =
        equalsIgnoringAsciiCase(utf8Of(pathOf(resource.name).stem()), utf8Of(pathOf(ownName).stem()));
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
    const ResourceFolder folder(pathOf(path).parent_path());
    const std::string ownName = toUtf8(resourceNameOf(pathOf(path)));
    std::vector<FileToWrite> files;
    for (const FormResource& resource : output.resources) {
        if (auto file = placeResource(folder, ownName, resource)) files.push_back(*std::move(file));
    }
    files.push_back({pathOf(path), std::move(output.form)});
    writeTogether(files);
}

}  // namespace kel
