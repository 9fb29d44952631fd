#include "tools/idl/ResourceWriter.h"

#include <array>
#include <fstream>
#include <stdexcept>

#include "library/Registration.h"
#include "tools/idl/TypeNames.h"
#include "tools/toolbox/ToolboxPictures.h"

namespace kel::idl {

namespace {

constexpr std::size_t Palette = 16;

/// Index into the usual sixteen colours.
std::uint8_t colorOf(char mark) {
    switch (mark) {
        case 'k': return 0;
        case 'r': return 9;
        case 'b': return 4;
        case 'g': return 7;
        case 'w': return 15;
        default: return 7;
    }
}

constexpr std::array<std::uint32_t, Palette> SystemColors{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                                          0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                                          0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

class BitmapFile {
public:
    explicit BitmapFile(const std::filesystem::path& path) : Out_(path, std::ios::binary) {}

    void write(const toolbox::Sketch& sketch) {
        constexpr std::uint32_t Bits = 14 + 40 + Palette * 4;
        constexpr std::uint32_t Size = Bits + toolbox::Rows * toolbox::Columns / 2;
        Out_ << "BM";
        for (const std::uint32_t word :
             {Size, 0U, Bits, 40U, std::uint32_t{toolbox::Columns}, std::uint32_t{toolbox::Rows}})
            number(word, 4);
        number(1, 2);  // planes
        number(4, 2);  // bits a pixel
        for (const std::uint32_t word : {0U, 0U, 0U, 0U, 0U, 0U}) number(word, 4);
        for (const std::uint32_t color : SystemColors) number(color, 4);
        for (std::size_t row = toolbox::Rows; row-- > 0;) writeRow(sketch[row]);
    }

private:
    void number(std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) Out_.put(static_cast<char>(value >> (8 * i) & 0xFFU));
    }

    void writeRow(std::string_view marks) {
        for (std::size_t column = 0; column < toolbox::Columns; column += 2)
            Out_.put(static_cast<char>(colorOf(marks.at(column)) << 4U | colorOf(marks.at(column + 1))));
    }

    std::ofstream Out_;
};

}  // namespace

void writeResources(const std::filesystem::path& script, const ClassRegistry& classes) {
    std::ofstream out(script);
    out << "1 TYPELIB \"" << narrow(LibraryName) << ".tlb\"\n";
    for (const ClassModel* model : classes.all()) {
        if (!model->isControl()) continue;
        const std::string file = narrow(model->name) + ".bmp";
        BitmapFile(script.parent_path() / file).write(toolbox::sketchOf(*model));
        out << registered(*model).toolboxPicture << " BITMAP \"" << file << "\"\n";
    }
    if (!out.flush()) throw std::runtime_error("cannot write " + script.string());
}

}  // namespace kel::idl
