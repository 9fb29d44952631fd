#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QUiLoader>

#include "controls/Classes.h"
#include "forms/Form.h"
#include "library/Control.h"
#include "platform/qt/control/KelControlWidget.h"
#include "platform/qt/designer/FormatDialog.h"
#include "platform/qt/designer/ListDialog.h"
#include "platform/qt/designer/WidgetFacts.h"
#include "platform/qt/ui/FormToUi.h"
#include "platform/qt/ui/UiNames.h"
#include "values/Text.h"

/// Classic forms as forms of Qt's designer.
namespace kel::test {
namespace {

/// As a program does that has the library and no plugin.
class Loader final : public QUiLoader {
public:
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        for (const qt::designer::WidgetFacts& facts : qt::designer::widgetFacts()) {
            if (className != QString::fromLatin1(facts.className)) continue;
            QWidget* const made = facts.make(parent);
            made->setObjectName(name);
            return made;
        }
        return QUiLoader::createWidget(className, parent, name);
    }
};

std::unique_ptr<QWidget> load(const QByteArray& xml) {
    QBuffer buffer;
    buffer.setData(xml);
    Loader loader;
    std::unique_ptr<QWidget> window(loader.load(&buffer));
    EXPECT_NE(window, nullptr) << qPrintable(loader.errorString());
    return window;
}

/// In pixels of the window.
QPoint placeOf(const FormFile& file, FormBlockId id) {
    QPoint twips;
    for (; id != 0; id = file.block(id).parent) twips += QPoint(file.bounds(id).left, file.bounds(id).top);
    return {TwipScale(15).pixel(twips.x()), TwipScale(15).pixel(twips.y())};
}

/// 0 for a control without a caption beside its field.
Color captionColor(const qt::KelControlWidget& widget) {
    const Label* const label = widget.control().widgets().label;
    return label != nullptr ? label->foreColor() : Color{};
}

qt::UiForm converted(const FormFile& file) { return qt::convertForm(file, TwipScale(15)); }

/// A form with the blocks of `body` in it.
FormFile formOf(const std::string& body) {
    return FormFile::parse(
        "VERSION 5.00\nBegin VB.Form frmTried\n   ClientWidth = 6000\n   ClientHeight = 3000\n" + body + "End\n",
        "tried.frm");
}

class ConvertedForm : public testing::TestWithParam<std::filesystem::path> {};

/// All that a form keeps of a control is in the one that is loaded.
TEST_P(ConvertedForm, HoldsWhatTheFormHeld) {
    const FormFile file = readFormFile(GetParam().string());
    const auto window = load(converted(file).xml);
    ASSERT_NE(window, nullptr);
    qt::UiNames names;
    std::map<std::int32_t, QWidget*> stops;
    for (FormBlockId id = 0; id < file.blocks().size(); ++id) {
        const QString name = names.of(id, file.block(id));
        if (!isLibraryClass(file.block(id))) continue;
        auto* const shown = window->findChild<qt::KelControlWidget*>(name);
        ASSERT_NE(shown, nullptr) << qPrintable(name);
        const ClassModel& model = shown->control().model();
        const std::unique_ptr<qt::KelControlWidget> meant(static_cast<qt::KelControlWidget*>(
            Loader().createWidget(QString::fromLatin1(shown->metaObject()->className()), nullptr, name)));
        ControlBag bag(file, id);
        meant->control().ReadProperties(bag);
        for (const PersistedRow& row : model.saved)
            EXPECT_EQ(row.save(shown->control()), row.save(meant->control()))
                << qPrintable(name) << '.' << toUtf8(row.name);
        EXPECT_EQ(captionColor(*shown), captionColor(*meant)) << qPrintable(name);
        const QPoint off = shown->mapTo(window.get(), QPoint()) - placeOf(file, id);
        EXPECT_LE(off.manhattanLength(), 1) << qPrintable(name);
        EXPECT_EQ(shown->toolTip(), QString::fromStdU16String(file.text(id, u"ToolTipText"))) << qPrintable(name);
        if (model.takesFocus && file.boolean(id, u"TabStop", true)) stops[file.integer(id, u"TabIndex")] = shown;
    }
    // Each comes behind the one before it.
    const QWidget* before = nullptr;
    for (const auto& [index, stop] : stops) {
        const QWidget* next = before != nullptr ? before->nextInFocusChain() : stop;
        while (next != stop && next != before && !(next->focusPolicy() & Qt::TabFocus && next->focusProxy() != nullptr))
            next = next->nextInFocusChain();
        EXPECT_EQ(next, stop) << qPrintable(next->objectName()) << " for " << qPrintable(stop->objectName());
        before = stop;
    }
}

std::vector<std::filesystem::path> forms() {
    std::vector<std::filesystem::path> found;
    for (const char* const folder : {"examples/forms", "examples/controls", "examples/existing", "tests/forms/files"})
        for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(KEL_SOURCE_DIR) / folder))
            if (entry.path().extension() == ".frm") found.push_back(entry.path());
    return found;
}

INSTANTIATE_TEST_SUITE_P(Ui, ConvertedForm, testing::ValuesIn(forms()),
                         [](const testing::TestParamInfo<std::filesystem::path>& tried) {
                             std::string name = tried.param.stem().string();
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

struct Block {
    const char* what;
    std::string body;
    const char* name;      ///< of the widget
    const char* property;  ///< of it, that is
    QVariant value;
    std::vector<std::string> notes{};
};

/// A block of a class that is Qt's as well, and what comes of a property of it.
class ConvertedBlock : public testing::TestWithParam<Block> {};

TEST_P(ConvertedBlock, IsAWidgetOfQt) {
    const Block& tried = GetParam();
    const qt::UiForm form = converted(formOf(tried.body));
    std::vector<std::string> notes;
    for (const qt::UiNote& note : form.notes) notes.push_back(std::to_string(note.line) + ": " + note.text);
    EXPECT_EQ(notes, tried.notes);
    const auto window = load(form.xml);
    ASSERT_NE(window, nullptr);
    const QString name = QString::fromUtf8(tried.name);
    const auto* const widget = window->objectName() == name ? window.get() : window->findChild<QWidget*>(name);
    ASSERT_NE(widget, nullptr) << form.xml.constData();
    const QVariant value = widget->property(tried.property);
    // An enumeration is asked for by its number.
    EXPECT_EQ(tried.value.typeId() == QMetaType::Int ? QVariant(value.toInt()) : value, tried.value)
        << form.xml.constData();
}

std::string block(const std::string& head, const std::string& lines) {
    return "Begin " + head + "\n" + lines + "End\n";
}

const std::string Field =
    block("KelControls8.KelText txtTown", "TabIndex = 2\nLeft = 1500\nTop = 0\nWidth = 3000\nHeight = 300\n");
const std::string Font = "BeginProperty Font\nName = \"Courier\"\nSize = 12\nWeight = 700\nEndProperty\n";

const Block Blocks[] = {
    {"Title", "Caption = \"Bill of \"\"A&B\"\"\"\n", "frmTried", "windowTitle", "Bill of \"A&B\""},
    {"FixedSize", "BorderStyle = 1\n", "frmTried", "maximumSize", QSize(400, 200)},
    {"NameOfTheLanguage", block("VB.CommandButton New", "Caption = \"&New\"\n"), "New", "text", "&New"},
    {"Reserved", block("VB.CommandButton switch", "Caption = \"S\"\n"), "switch_", "text", "S"},
    {"ControlArray", block("VB.OptionButton optKind", "Index = 1\nValue = -1\n"), "optKind_1", "checked", true},
    {"FrameAndInside",
     block("VB.Frame fra", "Caption = \"Who\"\n" + block("VB.CheckBox chk", "Value = 1\nTop = 300\n")), "chk",
     "geometry", QRect(0, 20, 0, 0)},
    {"FrameTitle", block("VB.Frame fra", "Caption = \"Who\"\n"), "fra", "title", "Who"},
    {"PlainLabel", block("VB.Label lbl", "Caption = \"Salt && Pepper\"\nTabIndex = 9\n"), "lbl", "text",
     "Salt & Pepper"},
    {"LabelOfField", Field + block("VB.Label lbl", "Caption = \"&Town\"\nTabIndex = 1\n"), "lbl", "text", "&Town"},
    {"LabelAlignment", block("VB.Label lbl", "Alignment = 1\n"), "lbl", "alignment",
     QVariant::fromValue(Qt::AlignTrailing | Qt::AlignTop)},
    {"SeveralLines", block("VB.TextBox txt", "MultiLine = -1\nText = \"one\"\n"), "txt", "plainText", "one"},
    {"OneLine", block("VB.TextBox txt", "MaxLength = 8\nText = \"one\"\n"), "txt", "maxLength", 8},
    {"Bar", block("VB.HScrollBar hsb", "Max = 40\nValue = 7\n"), "hsb", "value", 7},
    {"Hidden", block("VB.CommandButton cmd", "Visible = 0\n"), "cmd", "visible", false},
    {"Tag", block("VB.CommandButton cmd", "Tag = \"x\"\n"), "cmd", "tag", "x"},
    {"FieldOfData", block("KelControls8.KelText txt", "DataField = \"town\"\n"), "txt", "dataField", "town"},
    {"NoTab", block("KelControls8.KelText txt", "TabStop = 0\n"), "txt", "focusPolicy", int{Qt::ClickFocus}},
    {"Bold", block("VB.Label lbl", Font), "lbl", "font", QFont(QStringLiteral("Courier"), 12, QFont::Bold)},
    {"Unseen",
     block("VB.Timer tmr", "Interval = 100\n") + block("VB.CommandButton cmd", ""),
     "cmd",
     "enabled",
     true,
     {"5: VB.Timer tmr is not carried over"}},
    {"Unknown",
     block("MSComctlLib.TreeView tvw", "Indentation = 1\n"),
     "tvw",
     "enabled",
     true,
     {"5: tvw.MSComctlLib.TreeView is not carried over: an empty frame stands in its place",
      "6: tvw.Indentation is not carried over"}},
    {"DesktopsColor",
     block("VB.Label lbl", "BackColor = &H80000005&\n"),
     "lbl",
     "autoFillBackground",
     false,
     {"6: lbl.BackColor is not carried over: it is another colour of the desktop"}},
    {"Today",
     block("KelControls8.KelDate dat", "Value = \"Now\"\n"),
     "dat",
     "enabled",
     true,
     {"6: dat.Value is not carried over: a program puts today's date"}},
};

INSTANTIATE_TEST_SUITE_P(Ui, ConvertedBlock, testing::ValuesIn(Blocks),
                         [](const auto& tried) { return std::string(tried.param.what); });

TEST(ConvertedForms, LeadFromALabelToTheFieldBehindIt) {
    const auto window =
        load(converted(formOf(Field + block("VB.Label lbl", "Caption = \"&Town\"\nTabIndex = 1\n"))).xml);
    const auto* const label = window->findChild<QLabel*>(QStringLiteral("lbl"));
    EXPECT_EQ(label->buddy(), window->findChild<QWidget*>(QStringLiteral("txtTown")));
}

TEST(ConvertedForms, KeepAColor) {
    const auto window = load(converted(formOf(block("VB.Label lbl", "BackColor = &H000080FF&\n"))).xml);
    const auto* const label = window->findChild<QLabel*>(QStringLiteral("lbl"));
    EXPECT_EQ(label->palette().color(QPalette::Window), QColor(0xFF, 0x80, 0));
}

// ---- The windows in which Qt's designer edits what has no line

QAction* actionOf(const QWidget& dialog, const char* title) {
    for (QAction* const action : dialog.findChildren<QAction*>())
        if (action->text().remove(u'&') == QString::fromUtf8(title)) return action;
    return nullptr;
}

TEST(ListDialog, KeepsItemsAndTagsTogether) {
    struct {
        const char* action;
        const char* items;
        const char* tags;
    } const steps[] = {
        {"Move Down", "\"Road, express\",Post", "X,P"},         {"Paste", "\"Road, express\",Post,Air,Sea", "X,P,A"},
        {"Move Up", "Post,\"Road, express\",Air,Sea", "P,X,A"}, {"Remove", "\"Road, express\",Air,Sea", "X,A"},
        {"Add", "\"Road, express\",,Air,Sea", "X,,A"},
    };
    QGuiApplication::clipboard()->setText(QStringLiteral("Air\tA\nSea\n"));
    qt::designer::ListDialog dialog(QStringLiteral("Post,\"Road, express\""), QStringLiteral("P,X"), nullptr);
    for (const auto& step : steps) {
        actionOf(dialog, step.action)->trigger();
        EXPECT_EQ(dialog.items(), QString::fromUtf8(step.items)) << step.action;
        EXPECT_EQ(dialog.tags(), QString::fromUtf8(step.tags)) << step.action;
    }
}

TEST(FormatDialog, ShowsWhatAFormatMakesOfAValue) {
    for (const qt::designer::WidgetFacts& facts : qt::designer::widgetFacts()) {
        const auto format = std::find_if(facts.properties.begin(), facts.properties.end(),
                                         [](const auto& property) { return !property.usual.empty(); });
        if (format == facts.properties.end()) continue;
        const bool isDate = std::string_view(facts.className) == "KelDateWidget";
        qt::designer::FormatDialog dialog(facts, *format, isDate ? "dd.mm.yy" : "hh:nn", nullptr);
        const auto* const sample = dialog.findChild<qt::KelControlWidget*>();
        const auto shown = [sample] { return toUtf8(sample->control().widgets().entry->text()); };
        EXPECT_EQ(shown(), isDate ? "25.04.99" : "18:07");
        dialog.findChild<QComboBox*>()->setEditText(isDate ? "yyyy" : "h am/pm");
        EXPECT_EQ(shown(), isDate ? "1999" : "6 pm");
        EXPECT_EQ(dialog.format(), isDate ? "yyyy" : "h am/pm");
    }
}

}  // namespace
}  // namespace kel::test
