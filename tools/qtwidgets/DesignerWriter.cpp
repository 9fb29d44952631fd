#include "tools/qtwidgets/DesignerWriter.h"

#include <algorithm>
#include <ostream>
#include <sstream>

#include "tools/qtwidgets/QtType.h"
#include "tools/qtwidgets/TypedWriter.h"
#include "tools/qtwidgets/WidgetWriter.h"
#include "tools/toolbox/ToolboxPictures.h"
#include "values/Text.h"

namespace kel::qtwidgets {

namespace {

std::string literal(std::string_view text) {
    std::string out = "\"";
    for (const char unit : text) {
        if (unit == '"' || unit == '\\') out += '\\';
        out += unit;
    }
    return out + '"';
}

/// "Progress Bar".
std::string titleOf(const ClassModel& model) {
    constexpr std::size_t Prefix = 3;  // Kel
    std::string title;
    for (const char letter : toUtf8(model.name.substr(Prefix))) {
        if (letter >= 'A' && letter <= 'Z' && !title.empty()) title += ' ';
        title += letter;
    }
    return title;
}

/// "progressBar", and "textField" for what a person fills in.
std::string objectNameOf(const ClassModel& model) {
    constexpr std::size_t Prefix = 3;
    return lowerName(model.name.substr(Prefix)) + (model.takesFocus ? "Field" : "");
}

/// Texts that mean the same in every language.
bool isForPeople(const MemberRow& member) {
    constexpr std::u16string_view Marks[] = {u"Format", u"ListTag", u"PasswordChar"};
    return std::find(std::begin(Marks), std::end(Marks), member.name) == std::end(Marks);
}

bool isText(const ClassModel& model, const MemberRow& member) {
    const TypedProperty* const typed = typedProperty(model, member);
    return typed != nullptr ? typed->kind.type == "QString" : member.type == TypeTag::String;
}

std::string usualName(const ClassModel& model, const MemberRow& member) {
    return member.type == TypeTag::String && !member.design.choices.empty()
               ? widgetName(model) + "Usual" + toUtf8(member.name)
               : std::string();
}

void writeUsual(std::ostream& out, const ClassModel& model, const MemberRow& member) {
    out << "\nconstexpr const char* " << usualName(model, member) << "[] = {";
    for (const std::u16string_view choice : member.design.choices) out << "\n    " << literal(toUtf8(choice)) << ',';
    out << "\n};\n";
}

void writeProperty(std::ostream& out, const ClassModel& model, const MemberRow& member) {
    const std::string editor = member.design.linesWhere.empty() ? "\"singleline\"" : "\"multiline\"";
    out << "    {" << literal(qtNameOf(model, member)) << ",\n     " << literal(helpOf(model, member)) << ",\n     "
        << (isText(model, member) ? editor : "nullptr") << ", " << (isForPeople(member) ? "true" : "false") << ", {"
        << usualName(model, member) << "}},\n";
}

std::vector<const MemberRow*> designedMembers(const ClassModel& model) {
    std::vector<const MemberRow*> designed;
    for (const MemberRow& member : model.members)
        if (member.isDesigned() && !isLeftOut(member) && !isWidgetsOwn(member)) designed.push_back(&member);
    return designed;
}

void writeProperties(std::ostream& out, const ClassModel& model) {
    const std::vector<const MemberRow*> members = designedMembers(model);
    for (const MemberRow* const member : members)
        if (!usualName(model, *member).empty()) writeUsual(out, model, *member);
    out << "\nconstexpr PropertyFacts " << widgetName(model) << "Properties[] = {\n";
    for (const MemberRow* const member : members) writeProperty(out, model, *member);
    out << "};\n";
}

/// An XPM of the sketch, whose marks it takes over.
void writePicture(std::ostream& out, const ClassModel& model) {
    constexpr std::string_view Colors[] = {". c None",    "k c #000000", "w c #FFFFFF",
                                           "g c #C0C0C0", "b c #000080", "r c #FF0000"};
    out << "\nconstexpr const char* " << widgetName(model) << "Picture[] = {\n    \"" << toolbox::Columns << ' '
        << toolbox::Rows << ' ' << std::size(Colors) << " 1\",\n";
    for (const std::string_view color : Colors) out << "    \"" << color << "\",\n";
    for (const std::string_view row : toolbox::sketchOf(model)) out << "    \"" << row << "\",\n";
    out << "};\n";
}

void writeWidget(std::ostream& out, const ClassModel& model) {
    const std::string name = widgetName(model);
    out << "        {" << literal(name) << ", " << literal(titleOf(model)) << ", " << literal(objectNameOf(model))
        << ",\n         " << literal(toUtf8(model.help)) << ",\n         " << name
        << "Picture, [](QWidget* parent) -> QWidget* { return new " << name << "(parent); }, " << name
        << "Properties},\n";
}

}  // namespace

std::string designerFacts(const std::vector<const ClassModel*>& controls) {
    std::ostringstream out;
    out << Notice;
    for (const ClassModel* const model : controls) out << "#include \"" << widgetName(*model) << ".h\"\n";
    out << "#include \"platform/qt/designer/WidgetFacts.h\"\n\nnamespace kel::qt::designer {\n\nnamespace {\n";
    for (const ClassModel* const model : controls) {
        writeProperties(out, *model);
        writePicture(out, *model);
    }
    out << "\n}  // namespace\n\nstd::span<const WidgetFacts> widgetFacts() {\n    static const WidgetFacts Facts[] = "
           "{\n";
    for (const ClassModel* const model : controls) writeWidget(out, *model);
    out << "    };\n    return Facts;\n}\n\n}  // namespace kel::qt::designer\n";
    return out.str();
}

}  // namespace kel::qtwidgets
