#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/file/FormEncoding.h"
#include "forms/file/FormFrx.h"
#include "forms/file/FormText.h"
#include "forms/file/FormValue.h"
#include "values/Variant.h"

namespace kel {

/// Blocks count from 0, the outermost one, in the order of the file.
using FormBlockId = std::size_t;
inline constexpr FormBlockId NoFormBlock = std::numeric_limits<FormBlockId>::max();

/// `Begin CLASS NAME` … `End`.
struct FormBlock {
    std::u16string className;  ///< "VB.Frame", "KelControls8.KelText"
    std::u16string name;
    std::optional<std::int32_t> index;  ///< place in a control array, whose members share a name
    std::size_t line = 0;               ///< of its Begin, 1-based
    FormBlockId parent = NoFormBlock;
    std::vector<FormBlockId> children;
};

/// True for the controls of this library: "KelControls8.KelText", case ignored.
bool isLibraryClass(const FormBlock& block);

/// One that a form has without showing it: a menu, a timer.
bool isUnseen(const FormBlock& block);

/// A property that the form keeps for every control, whatever its class.
bool isHostProperty(std::u16string_view name);

/// `Object = "{GUID}#1.4#0"; "FILE.ocx"`.
struct FormObject {
    std::u16string library;
    std::u16string file;
    std::size_t line = 0;
};

/// A property as it stands in a block, a copy.
struct FormProperty {
    std::u16string name;
    FormValue value;
    std::size_t line = 0;  ///< 1-based; of an added property the line it stands after
};

/// Properties that belong together, such as those of a font, a copy. Those of groups inside are among them.
struct FormGroup {
    std::u16string name;
    std::vector<FormProperty> properties;
    std::size_t line = 0;  ///< of its BeginProperty, 1-based
};

/// A form file as its lines, which the file's own bytes back until they are changed. Everything up to the
/// outermost End is in lines; the code after it stays one piece.
struct FormModel {
    using LineId = std::uint32_t;

    /// What a changed or added line holds instead of the file's bytes.
    struct Edit {
        std::u16string head;  ///< all before the value
        std::u16string name;
        Variant value;
        std::string lineEnd;
    };

    struct Line {
        std::uint32_t offset = 0;  ///< into `bytes`, the line end included in the length
        std::uint32_t length = 0;
        std::uint32_t nameOffset = 0;  ///< into `bytes`: the name of a property or group
        std::uint32_t nameLength = 0;
        LineId next = 0;           ///< the line that follows; lines are never moved, only linked
        std::uint32_t number = 0;  ///< 1-based; an added line has the number of the one before it
        std::uint32_t block = 0;   ///< that a Begin begins
        std::int32_t edit = -1;    ///< into `edits`
        FormLine::Kind kind = FormLine::Kind::Blank;
        bool removed = false;
    };

    struct Span {
        LineId begin = 0;
        LineId end = 0;
    };

    std::string path;
    std::shared_ptr<const ResourceFolder> resources;  ///< beside the file
    std::shared_ptr<const std::string> bytes;
    FormEncoding encoding = FormEncoding::Ascii;
    std::size_t markLength = 0;  ///< of a byte order mark
    std::size_t codeStart = 0;
    std::vector<Line> lines;
    std::vector<Edit> edits;
    std::vector<FormBlock> blocks;
    std::vector<Span> spans;  ///< the lines of each block
    std::vector<FormObject> objects;

    /// All lines in front of the code, in order, without the removed ones.
    std::vector<LineId> liveLines() const;

    /// The file's own bytes of a line, with and without its line end.
    std::string_view wholeOf(LineId line) const;
    std::string_view contentOf(LineId line) const;

    std::string_view lineEndOf(LineId line) const;

    const Edit* editOf(LineId line) const;
    std::u16string nameOf(LineId propertyLine) const;
    /// Whether the property or group of that line has this name, case ignored.
    bool isNamed(LineId propertyLine, std::u16string_view name) const;

private:
    std::string_view nameBytesOf(LineId propertyLine) const;
};

/// How many bytes at the end of `line` end it: LF with the CRs before it, or CRs at the end of the file.
std::size_t lineEndLength(std::string_view line);

/// Steps through what a block itself holds: its properties and groups, nested blocks passed over.
class FormEntries {
public:
    FormEntries(const FormModel& model, FormBlockId block);

    /// Moves to the next entry; false when there is none.
    bool next();

    FormModel::LineId first() const { return First_; }
    FormModel::LineId last() const { return Last_; }  ///< of a group its EndProperty
    bool isGroup() const { return First_ != Last_; }
    bool isBehindChild() const { return BehindChild_; }

private:
    FormModel::LineId endOfGroup(FormModel::LineId begin) const;

    const FormModel* Model_;
    FormModel::LineId End_;
    FormModel::LineId First_;
    FormModel::LineId Last_;
    bool BehindChild_ = false;
};

}  // namespace kel
