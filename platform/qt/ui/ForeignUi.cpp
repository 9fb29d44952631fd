#include "platform/qt/ui/ForeignUi.h"

#include <algorithm>

#include "host/focus/Mnemonic.h"
#include "platform/qt/base/TextBridge.h"
#include "values/Text.h"

namespace kel::qt {

namespace {

constexpr std::u16string_view LabelClass = u"VB.Label";
constexpr std::u16string_view FrameClass = u"VB.Frame";

QString name(const char* text) { return QString::fromLatin1(text); }

// ---- Parts that several have

void writeText(BlockReader& block, UiWriter& ui, std::u16string_view from, const char* to) {
    if (const auto text = block.text(from)) ui.property(name(to), toQString(*text));
}

void writeCaption(BlockReader& block, UiWriter& ui) { writeText(block, ui, u"Caption", "text"); }

void writeNumber(BlockReader& block, UiWriter& ui, std::u16string_view from, const char* to) {
    if (const auto number = block.integer(from)) ui.property(name(to), int{*number});
}

void writeAlignment(BlockReader& block, UiWriter& ui, const QString& vertical) {
    constexpr const char* Sides[] = {"Qt::AlignLeading", "Qt::AlignTrailing", "Qt::AlignHCenter"};
    const auto side = static_cast<std::size_t>(std::clamp(block.integer(u"Alignment").value_or(0), 0, 2));
    ui.flags(name("alignment"), name(Sides[side]) + vertical);
}

/// A box that stands around something has none unless it says so.
void writeBorder(BlockReader& block, UiWriter& ui, std::int32_t byDefault) {
    const bool hasBorder = block.integer(u"BorderStyle").value_or(byDefault) != 0;
    ui.enumeration(name("frameShape"), name(hasBorder ? "QFrame::Panel" : "QFrame::NoFrame"));
    if (hasBorder) ui.enumeration(name("frameShadow"), name("QFrame::Sunken"));
}

// ---- Classes

const char* frameClass(BlockReader& block) { return isTitledFrame(block.file(), block.id()) ? "QGroupBox" : "QFrame"; }

void writeFrame(BlockReader& block, UiWriter& ui) {
    if (block.integer(u"BorderStyle").value_or(1) == 0)
        block.pass(u"Caption");
    else
        writeText(block, ui, u"Caption", "title");
}

void writeButton(BlockReader& block, UiWriter& ui) {
    writeCaption(block, ui);
    ui.property(name("autoDefault"), false);
    if (block.boolean(u"Default").value_or(false)) ui.property(name("default"), true);
}

void writeCheck(BlockReader& block, UiWriter& ui) {
    writeCaption(block, ui);
    const std::int32_t value = block.integer(u"Value").value_or(0);
    if (value == 1) ui.property(name("checked"), true);
    if (value == 2) ui.property(name("tristate"), true);
}

void writeOption(BlockReader& block, UiWriter& ui) {
    writeCaption(block, ui);
    if (block.boolean(u"Value").value_or(false)) ui.property(name("checked"), true);
}

const char* textClass(BlockReader& block) {
    return block.file().boolean(block.id(), u"MultiLine", false) ? "QPlainTextEdit" : "QLineEdit";
}

void writeTextBox(BlockReader& block, UiWriter& ui) {
    const bool isPlain = block.boolean(u"MultiLine").value_or(false);
    block.pass(u"ScrollBars");
    writeText(block, ui, u"Text", isPlain ? "plainText" : "text");
    if (block.boolean(u"Locked").value_or(false)) ui.property(name("readOnly"), true);
    if (isPlain) return;
    if (const auto most = block.integer(u"MaxLength").value_or(0); most > 0) ui.property(name("maxLength"), int{most});
    if (!block.text(u"PasswordChar").value_or(u"").empty())
        ui.enumeration(name("echoMode"), name("QLineEdit::Password"));
    writeAlignment(block, ui, QStringLiteral("|Qt::AlignVCenter"));
}

void writeComboBox(BlockReader& block, UiWriter& ui) {
    constexpr std::int32_t ListAlone = 2;
    const bool isEditable = block.integer(u"Style").value_or(0) != ListAlone;
    ui.property(name("editable"), isEditable);
    if (isEditable)
        writeText(block, ui, u"Text", "currentText");
    else
        block.pass(u"Text");
}

template <Qt::Orientation Direction>
void writeScrollBar(BlockReader& block, UiWriter& ui) {
    ui.enumeration(name("orientation"), name(Direction == Qt::Horizontal ? "Qt::Horizontal" : "Qt::Vertical"));
    writeNumber(block, ui, u"Min", "minimum");
    ui.property(name("maximum"), int{block.integer(u"Max").value_or(INT16_MAX)});
    writeNumber(block, ui, u"Value", "value");
    writeNumber(block, ui, u"SmallChange", "singleStep");
    writeNumber(block, ui, u"LargeChange", "pageStep");
}

void writeLine(BlockReader& block, UiWriter& ui) {
    const auto place = [&](std::u16string_view edge) { return block.integer(edge).value_or(0); };
    const std::int32_t width = std::abs(withinReach(place(u"X2")) - withinReach(place(u"X1")));
    const std::int32_t height = std::abs(withinReach(place(u"Y2")) - withinReach(place(u"Y1")));
    ui.enumeration(name("orientation"), name(width >= height ? "Qt::Horizontal" : "Qt::Vertical"));
    if (width != 0 && height != 0) block.leave(u"slope", block.block().line, "the line is level or upright");
}

void writePicture(BlockReader& block, UiWriter& ui) { writeBorder(block, ui, 1); }

void writeUnknown(BlockReader& block, UiWriter& ui) {
    ui.enumeration(name("frameShape"), name("QFrame::StyledPanel"));
    block.leave(block.block().className, block.block().line, "an empty frame stands in its place");
}

template <const char* const& Name>
const char* always(BlockReader& /*block*/) {
    return Name;
}
constexpr const char* PlainLabel = "QLabel";
constexpr const char* Button = "QPushButton";
constexpr const char* Check = "QCheckBox";
constexpr const char* Option = "QRadioButton";
constexpr const char* Combo = "QComboBox";
constexpr const char* ListBox = "QListWidget";
constexpr const char* ScrollBar = "QScrollBar";
constexpr const char* Line = "Line";
constexpr const char* Frame = "QFrame";

void writeNothing(BlockReader& /*block*/, UiWriter& /*ui*/) {}

constexpr ForeignUi Unknown{.formClass = {}, .qtClass = always<Frame>, .write = writeUnknown};

constexpr ForeignUi Known[] = {
    {.formClass = LabelClass, .qtClass = always<PlainLabel>, .write = writeNothing},
    {.formClass = FrameClass, .qtClass = frameClass, .write = writeFrame},
    {.formClass = u"VB.PictureBox", .qtClass = always<Frame>, .write = writePicture},
    {.formClass = u"VB.Line", .qtClass = always<Line>, .write = writeLine},
    {.formClass = u"VB.CommandButton",
     .qtClass = always<Button>,
     .write = writeButton,
     .takesFocus = true,
     .textRole = "ButtonText",
     .groundRole = "Button",
     .mustFill = false},
    {.formClass = u"VB.CheckBox", .qtClass = always<Check>, .write = writeCheck, .takesFocus = true},
    {.formClass = u"VB.OptionButton", .qtClass = always<Option>, .write = writeOption, .takesFocus = true},
    {.formClass = u"VB.TextBox",
     .qtClass = textClass,
     .write = writeTextBox,
     .takesFocus = true,
     .textRole = "Text",
     .groundRole = "Base",
     .mustFill = false},
    {.formClass = u"VB.ComboBox",
     .qtClass = always<Combo>,
     .write = writeComboBox,
     .takesFocus = true,
     .textRole = "Text",
     .groundRole = "Base",
     .mustFill = false},
    {.formClass = u"VB.ListBox",
     .qtClass = always<ListBox>,
     .write = writeNothing,
     .takesFocus = true,
     .textRole = "Text",
     .groundRole = "Base",
     .mustFill = false},
    {.formClass = u"VB.HScrollBar",
     .qtClass = always<ScrollBar>,
     .write = writeScrollBar<Qt::Horizontal>,
     .takesFocus = true},
    {.formClass = u"VB.VScrollBar",
     .qtClass = always<ScrollBar>,
     .write = writeScrollBar<Qt::Vertical>,
     .takesFocus = true},
};

}  // namespace

const ForeignUi& foreignUi(const FormBlock& block) {
    const auto* const found = std::find_if(std::begin(Known), std::end(Known), [&](const ForeignUi& known) {
        return equalsIgnoringCase(known.formClass, block.className);
    });
    return found != std::end(Known) ? *found : Unknown;
}

bool isLabel(const FormBlock& block) { return equalsIgnoringCase(block.className, LabelClass); }

bool isTitledFrame(const FormFile& file, FormBlockId id) {
    return equalsIgnoringCase(file.block(id).className, FrameClass) && file.integer(id, u"BorderStyle", 1) != 0;
}

/// Without something to lead to, a label shows the mark of a mnemonic as it stands.
void writeLabel(BlockReader& block, UiWriter& ui, const QString& buddy) {
    std::u16string caption = block.text(u"Caption").value_or(u"");
    if (block.boolean(u"UseMnemonic").value_or(true)) {
        if (buddy.isEmpty()) caption = readCaption(caption).text;
    } else if (!buddy.isEmpty()) {
        caption = toQString(caption).replace(u'&', QStringLiteral("&&")).toStdU16String();
    }
    ui.property(name("text"), toQString(caption));
    ui.enumeration(name("textFormat"), name("Qt::PlainText"));
    ui.property(name("wordWrap"), true);
    writeAlignment(block, ui, QStringLiteral("|Qt::AlignTop"));
    if (block.integer(u"BorderStyle").value_or(0) != 0) {
        ui.enumeration(name("frameShape"), name("QFrame::Panel"));
        ui.enumeration(name("frameShadow"), name("QFrame::Sunken"));
    }
    for (const std::u16string_view passed : {u"AutoSize", u"WordWrap"}) block.pass(passed);
    if (!buddy.isEmpty()) ui.reference(name("buddy"), buddy);
}

}  // namespace kel::qt
