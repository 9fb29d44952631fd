#include "forms/Form.h"

#include <algorithm>
#include <set>

#include "fuzz/Fuzz.h"
#include "fuzz/Stage.h"
#include "values/Text.h"

namespace kel::fuzz {
namespace {

/// Between the bytes of the form and those of the resource file that stands beside it.
constexpr std::string_view Separator = "\n=== x.frx\n";
constexpr std::size_t MostBlocks = 60;

std::string formPath() { return (folder() / "x.frm").string(); }

/// Puts the resource files of a form that was composed beside it.
FormFile reread(const FormOutput& output) {
    for (const FormResource& resource : output.resources) {
        require(equalsIgnoringCase(*fromUtf8(resource.name), u"x.frx"), "a form has one resource file of its own");
        std::filesystem::remove(folder() / "x.frx");
        writeInFolder(resource.name, resource.bytes);
    }
    return FormFile::parse(output.form, formPath());
}

void requireSame(const FormFile& form, const std::string& bytes, const char* promise) {
    const FormOutput output = form.output(formPath());
    require(output.form == bytes, promise);
}

void checkSetting(FormFile form) {
    constexpr std::pair<std::u16string_view, std::u16string_view> Texts[] = {
        {u"FuzzA", u""}, {u"FuzzB", u"z\u0142 \"quoted\""}, {u"FuzzC", u"two\r\nlines"}, {u"FuzzD", u"half \xD83D"}};
    const std::size_t blocks = std::min<std::size_t>(form.blocks().size(), 5);
    for (FormBlockId block = 0; block < blocks; ++block)
        for (const auto& [name, text] : Texts) form.set(block, name, std::u16string(text));
    const FormOutput output = form.output(formPath());
    const FormFile changed = reread(output);
    for (FormBlockId block = 0; block < blocks; ++block)
        for (const auto& [name, text] : Texts)
            require(changed.text(block, name) == text, "a property that is set reads back", {name, text});
    requireSame(changed, output.form, "what was composed composes to the same");
}

/// Loads every control, and writes into a copy of the file what it saves.
FormFile passedThrough(const FormFile& file) {
    Stage stage(defaultRegion());
    SilentObserver nobody;
    Form form(stage.home(), stage.system(), nobody, file);
    form.show();
    FormFile copy = file;
    for (FormBlockId block = 0; block < file.blocks().size(); ++block) {
        if (!isLibraryClass(file.block(block)) || file.block(block).index) continue;
        PlacedControl* const placed = form.find(file.block(block).name);
        if (placed == nullptr) continue;
        checkControl(*placed);
        ControlBag bag(file, block);
        placed->control().WriteProperties(bag);
        bag.applyTo(copy, block);
        for (const char16_t* const name : {u"Caption", u"List", u"ListTag"})
            require(copy.text(block, name) == file.text(block, name), "a text or a list is saved as it was loaded",
                    {file.block(block).name, name});
    }
    return copy;
}

bool namesAreUnique(const FormFile& file) {
    std::set<std::u16string> names;
    return std::all_of(file.blocks().begin(), file.blocks().end(), [&](const FormBlock& block) {
        std::u16string name = block.name;
        std::transform(name.begin(), name.end(), name.begin(), toLowerAscii);
        return names.insert(name).second;
    });
}

void readAll(const FormFile& form) {
    for (FormBlockId block = 0; block < form.blocks().size(); ++block)
        for (const FormProperty& property : form.properties(block)) {
            require(property.line > 1, "a property stands in a line of its block");
            try {
                form.valueAs(property, TypeTag::Any);
            } catch (const FormError& error) {
                require(error.line() == property.line, "a value that cannot be read is told by its line");
            }
        }
}

FormFile parsed(const std::string& bytes) {
    try {
        return FormFile::parse(bytes, formPath());
    } catch (const FormError& error) {
        require(error.line() > 0, "what is wrong with a form is told by its line");
        throw;
    }
}

void check(const std::string& bytes) {
    const FormFile form = parsed(bytes);
    readAll(form);
    requireSame(form, bytes, "a form that is not changed is written back to the byte");
    if (form.blocks().size() <= MostBlocks && namesAreUnique(form)) {
        const FormOutput saved = passedThrough(form).output(formPath());
        const FormFile loaded = reread(saved);
        requireSame(passedThrough(loaded), saved.form, "a form that was saved is saved the same again");
    }
    checkSetting(form);
}

}  // namespace
}  // namespace kel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t end = input.find(Separator);
    std::filesystem::remove(folder() / "x.frx");
    std::filesystem::remove(folder() / "X.FRX");
    if (end != std::string_view::npos) writeInFolder("x.frx", input.substr(end + Separator.size()));
    try {
        check(std::string(input.substr(0, end)));
    } catch (const kel::FormError&) {  // It is refused, and told why.
    }
    return 0;
}
