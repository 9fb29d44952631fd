#include "FormTesting.h"

namespace kel {

namespace {

constexpr const char16_t* Added = u"z\u0142";

/// Parses, reads, rewrites and changes; an error is fine, a crash or a silent change is not.
void digest(const std::string& bytes) {
    try {
        FormFile form = FormFile::parse(bytes, "test.frm");
        EXPECT_EQ(form.output("test.frm").form, bytes);
        for (FormBlockId block = 0; block < form.blocks().size(); ++block) {
            for (const FormProperty& property : form.properties(block)) EXPECT_GT(property.line, 1U);
            form.set(block, u"Added", std::u16string(Added));
        }
        const FormFile changed = FormFile::parse(form.output("test.frm").form, "test.frm");
        for (FormBlockId block = 0; block < form.blocks().size(); ++block)
            EXPECT_EQ(changed.text(block, u"Added"), Added);
    } catch (const FormError& error) {
        EXPECT_GT(error.line(), 0U) << error.what();
    }
}

TEST(FormMutations, AFormCutAnywhereIsReadOrRefused) {
    const std::string bytes = readBytes(sampleFile("orders.frm"));
    const std::size_t codeStart = bytes.find("Attribute VB_Name");
    ASSERT_NE(codeStart, std::string::npos);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const bool isCut = length + 2 < codeStart;
        EXPECT_EQ(!errorOf([&] { FormFile::parse(bytes.substr(0, length), "test.frm"); }).empty(), isCut) << length;
    }
}

TEST(FormMutations, AFormWithWrongBytesIsReadOrRefused) {
    std::mt19937 random(20130315);
    for (const char* name : {"orders.frm", "stock.frm", "mixed.frm"}) {
        const std::string original = readBytes(sampleFile(name));
        for (int round = 0; round < 1500; ++round) {
            std::string bytes = original;
            for (std::uint32_t flips = random() % 4 + 1; flips > 0; --flips) {
                const std::size_t at = random() % bytes.size();
                switch (random() % 4) {
                    case 0: bytes[at] = static_cast<char>(random()); break;
                    case 1: bytes[at] = "\"=\n\r' $:&{}\t\\0"[random() % 15]; break;
                    case 2: bytes.erase(at, random() % 12); break;
                    default: bytes.insert(at, bytes, random() % bytes.size(), random() % 60);
                }
            }
            digest(bytes);
        }
    }
}

}  // namespace

}  // namespace kel
