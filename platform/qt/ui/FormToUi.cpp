#include "platform/qt/ui/FormToUi.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <QMetaProperty>

#include "forms/Form.h"
#include "host/focus/Mnemonic.h"
#include "library/Control.h"
#include "platform/qt/base/TextBridge.h"
#include "platform/qt/base/TwipGrid.h"
#include "platform/qt/control/KelControlWidget.h"
#include "platform/qt/designer/WidgetFacts.h"
#include "platform/qt/ui/ForeignUi.h"
#include "platform/qt/ui/UiLooks.h"
#include "platform/qt/ui/UiNames.h"
#include "platform/qt/ui/UiWriter.h"
#include "values/Text.h"

namespace kel::qt {

namespace {

using designer::PropertyFacts;
using designer::WidgetFacts;

constexpr std::int32_t TwipsOfFont = 120;  ///< 8 pixels on the classic scale, whose font has 8 points

const WidgetFacts& factsOf(const ClassModel& model) {
    const std::span<const WidgetFacts> all = designer::widgetFacts();
    const std::string name = toUtf8(model.name) + "Widget";
    return *std::find_if(all.begin(), all.end(), [&](const WidgetFacts& facts) { return facts.className == name; });
}

const PropertyFacts* findProperty(const WidgetFacts& facts, std::string_view name) {
    const auto found = std::find_if(facts.properties.begin(), facts.properties.end(),
                                    [name](const PropertyFacts& property) { return property.name == name; });
    return found != facts.properties.end() ? &*found : nullptr;
}

std::unique_ptr<KelControlWidget> make(const WidgetFacts& facts) {
    return std::unique_ptr<KelControlWidget>(static_cast<KelControlWidget*>(facts.make(nullptr)));
}

/// As the form keeps it: the widget of a locked control is disabled as well, and that of some disabled ones is not.
bool isEnabled(const Control& control) {
    const MemberRow* const enabled = findMember(control.model(), u"Enabled");
    return !enabled->isPersisted() || std::get<bool>(enabled->persisted.save(control));
}

QString enumText(const QMetaProperty& property, const QVariant& value) {
    const QMetaEnum type = property.enumerator();
    return QString::fromLatin1(type.scope()) + QStringLiteral("::") +
           QString::fromLatin1(type.valueToKey(value.toInt()));
}

/// A new field makes its caption as wide as that needs, and marks it as mandatory only when it is told that it is: both
/// are written though they are a new one's.
bool isTold(const QString& property) { return property == u"captionWidth" || property == u"mandatory"; }

class Conversion {
public:
    Conversion(const FormFile& file, const TwipScale& scale)
        : File_(file), Grid_(scale), BasePoints_(static_cast<int>(std::lround(scale.exactPixels(TwipsOfFont)))) {}

    UiForm run();

private:
    struct Stop {
        std::int32_t tabIndex;
        FormBlockId id;
    };

    void findStops();
    QString nameOf(FormBlockId id) { return Names_.of(id, File_.block(id)); }

    void window(UiWriter& ui);
    void block(FormBlockId id, UiWriter& ui);
    void control(FormBlockId id, UiWriter& ui);
    void foreign(FormBlockId id, UiWriter& ui);

    std::int32_t liftOf(FormBlockId id) const;
    Rect boundsOf(FormBlockId id) const;
    void place(BlockReader& block, UiWriter& ui);
    void controlValues(BlockReader& block, const ClassModel& model, UiWriter& ui);
    bool leaveToday(const Control& control, BlockReader& block);
    void tellDeviations(const Control& control, BlockReader& block);
    QString buddyOf(FormBlockId label);
    QStringList tabStops();
    void keep(const BlockReader& block);

    const FormFile& File_;
    TwipGrid Grid_;
    int BasePoints_;
    UiNames Names_;
    std::vector<Stop> Stops_;  ///< what takes the focus, as Tab comes to it
    QSet<QString> Classes_;
    std::vector<UiNote> Notes_;
};

UiForm Conversion::run() {
    findStops();
    UiWriter ui(nameOf(0));
    window(ui);
    QList<UiWriter::CustomClass> classes;
    for (const WidgetFacts& facts : designer::widgetFacts()) {
        const QString name = QString::fromLatin1(facts.className);
        if (Classes_.contains(name))
            classes.append({name, QStringLiteral("QWidget"), QStringLiteral("KelControls8/%1.h").arg(name)});
    }
    ui.customClasses(classes);
    ui.tabStops(tabStops());
    if (const std::size_t line = File_.codeLine(); line != 0)
        Notes_.push_back({line, "the code from here on is not carried over"});
    std::stable_sort(Notes_.begin(), Notes_.end(),
                     [](const UiNote& left, const UiNote& right) { return left.line < right.line; });
    return {ui.finish(), Notes_};
}

void Conversion::keep(const BlockReader& block) {
    const std::vector<UiNote> notes = block.notes();
    Notes_.insert(Notes_.end(), notes.begin(), notes.end());
}

// ---- The focus

void Conversion::findStops() {
    for (FormBlockId id = 1; id < File_.blocks().size(); ++id) {
        const FormBlock& block = File_.block(id);
        if (isUnseen(block)) continue;
        const bool takesFocus =
            isLibraryClass(block) ? controlModelOf(File_, block).takesFocus : foreignUi(block).takesFocus;
        if (takesFocus) Stops_.push_back({File_.integer(id, u"TabIndex", INT32_MAX), id});
    }
    std::stable_sort(Stops_.begin(), Stops_.end(),
                     [](const Stop& left, const Stop& right) { return left.tabIndex < right.tabIndex; });
}

QStringList Conversion::tabStops() {
    QStringList names;
    for (const Stop& stop : Stops_)
        if (File_.boolean(stop.id, u"TabStop", true)) names.append(nameOf(stop.id));
    return names;
}

/// What comes next after a label, where the label has a mnemonic for it or is all that names it.
QString Conversion::buddyOf(FormBlockId label) {
    const std::int32_t index = File_.integer(label, u"TabIndex", INT32_MAX);
    const auto named =
        std::find_if(Stops_.begin(), Stops_.end(), [index](const Stop& stop) { return stop.tabIndex > index; });
    if (named == Stops_.end()) return {};
    const bool hasMnemonic =
        File_.boolean(label, u"UseMnemonic", true) && mnemonicIn(File_.text(label, u"Caption")) != 0;
    return hasMnemonic || File_.text(named->id, u"Caption").empty() ? nameOf(named->id) : QString();
}

// ---- Widgets

void Conversion::window(UiWriter& ui) {
    BlockReader form(File_, 0);
    const std::int32_t border = form.integer(u"BorderStyle").value_or(2);
    constexpr std::int32_t FixedDialog = 3;
    const bool isSizable = border == 2 || border == 5;
    ui.beginWidget(border == FixedDialog ? QStringLiteral("QDialog") : QStringLiteral("QWidget"), nameOf(0));
    const Size client = File_.clientSize(0);
    const QRect area = Grid_.pixels({0, 0, client.width, client.height});
    ui.property(QStringLiteral("geometry"), area);
    if (!isSizable)
        for (const char* const limit : {"minimumSize", "maximumSize"})
            ui.property(QString::fromLatin1(limit), area.size());
    ui.property(QStringLiteral("windowTitle"), toQString(form.text(u"Caption").value_or(u"")));
    if (form.boolean(u"RightToLeft").value_or(false))
        ui.enumeration(QStringLiteral("layoutDirection"), QStringLiteral("Qt::RightToLeft"));
    if (!form.boolean(u"Enabled").value_or(true)) ui.property(QStringLiteral("enabled"), false);
    writeFont(form, ui, BasePoints_, true);
    writeColors(form, ui, "WindowText", "Window", false);
    for (const std::u16string_view passed : {u"ClientWidth", u"ClientHeight", u"Left", u"Top", u"Width", u"Height"})
        form.pass(passed);
    for (const FormBlockId child : File_.block(0).children) block(child, ui);
    ui.endWidget();
    keep(form);
}

void Conversion::block(FormBlockId id, UiWriter& ui) {
    const FormBlock& block = File_.block(id);
    if (isUnseen(block))
        Notes_.push_back({block.line, toUtf8(block.className) + " " + toUtf8(block.name) + " is not carried over"});
    else if (isLibraryClass(block))
        control(id, ui);
    else
        foreign(id, ui);
}

void Conversion::control(FormBlockId id, UiWriter& ui) {
    const ClassModel& model = controlModelOf(File_, File_.block(id));
    BlockReader block(File_, id);
    const QString className = QString::fromLatin1(factsOf(model).className);
    Classes_.insert(className);
    ui.beginWidget(className, nameOf(id));
    place(block, ui);
    controlValues(block, model, ui);
    ui.endWidget();
    keep(block);
}

void Conversion::foreign(FormBlockId id, UiWriter& ui) {
    BlockReader block(File_, id);
    const ForeignUi& kind = foreignUi(block.block());
    ui.beginWidget(QString::fromLatin1(kind.qtClass(block)), nameOf(id));
    place(block, ui);
    if (!block.boolean(u"Enabled").value_or(true)) ui.property(QStringLiteral("enabled"), false);
    writeFont(block, ui, BasePoints_, false);
    const bool isClear = block.integer(u"BackStyle").value_or(1) == 0;
    writeColors(block, ui, kind.textRole, kind.groundRole, kind.mustFill && !isClear);
    if (isLabel(block.block()))
        writeLabel(block, ui, buddyOf(id));
    else
        kind.write(block, ui);
    for (const FormBlockId child : block.block().children) this->block(child, ui);
    ui.endWidget();
    keep(block);
}

/// Of a frame that has a title. Qt's stands above the line around the rest and not in it, so that the box begins
/// higher, while all that is in it stays where it was.
std::int32_t Conversion::liftOf(FormBlockId id) const {
    constexpr std::int32_t MostTwips = 120;
    if (!isTitledFrame(File_, id)) return 0;
    return std::clamp(File_.bounds(id).top, 0, MostTwips);
}

/// Twips, inside the widget around it.
Rect Conversion::boundsOf(FormBlockId id) const {
    Rect bounds = File_.bounds(id);
    if (File_.find(id, u"X2")) {
        const auto edge = [&](std::u16string_view name) { return withinReach(File_.integer(id, name)); };
        constexpr std::int32_t Thickness = 45;
        bounds = {std::min(edge(u"X1"), edge(u"X2")), std::min(edge(u"Y1"), edge(u"Y2")),
                  std::max(std::abs(edge(u"X2") - edge(u"X1")), Thickness),
                  std::max(std::abs(edge(u"Y2") - edge(u"Y1")), Thickness)};
    }
    bounds.top += liftOf(File_.block(id).parent) - liftOf(id);
    bounds.height += liftOf(id);
    return bounds;
}

/// What every widget has that stands on a form.
void Conversion::place(BlockReader& block, UiWriter& ui) {
    ui.property(QStringLiteral("geometry"), Grid_.pixels(boundsOf(block.id())));
    if (const auto tip = block.text(u"ToolTipText")) ui.property(QStringLiteral("toolTip"), toQString(*tip));
    if (!block.boolean(u"Visible").value_or(true)) ui.property(QStringLiteral("visible"), false);
    if (!block.boolean(u"TabStop").value_or(true))
        ui.enumeration(QStringLiteral("focusPolicy"), QStringLiteral("Qt::ClickFocus"));
    for (const auto& [from, to] : {std::pair(u"Tag", "tag"), std::pair(u"DataField", "dataField")})
        if (const auto text = block.text(from)) ui.dynamicProperty(QString::fromLatin1(to), toQString(*text));
    for (const std::u16string_view passed : {u"Left", u"Top", u"Width", u"Height", u"TabIndex"}) block.pass(passed);
}

/// All in which the control, once it is loaded from the form, differs from one that is new; in the order in which a new
/// one takes them.
void Conversion::controlValues(BlockReader& block, const ClassModel& model, UiWriter& ui) {
    const WidgetFacts& facts = factsOf(model);
    const auto fresh = make(facts);
    const auto loaded = make(facts);
    ControlBag bag(File_, block.id());
    loaded->control().ReadProperties(bag);
    tellDeviations(loaded->control(), block);
    const char* const today = leaveToday(loaded->control(), block) ? "date" : "";
    if (!isEnabled(loaded->control())) ui.property(QStringLiteral("enabled"), false);
    const QMetaObject& meta = *loaded->metaObject();
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const PropertyFacts* const known = findProperty(facts, property.name());
        if (known == nullptr || qstrcmp(property.name(), today) == 0) continue;
        const QVariant value = property.read(loaded.get());
        const QString name = QString::fromLatin1(property.name());
        if (!isTold(name) && value == property.read(fresh.get())) continue;
        if (property.isEnumType())
            ui.enumeration(name, enumText(property, value));
        else
            ui.property(name, value, known->isTranslated ? UiWriter::Text::Translated : UiWriter::Text::Same);
    }
}

/// A field that opens with the day on which it is opened; a form of Qt's would keep that of today for good.
bool Conversion::leaveToday(const Control& control, BlockReader& block) {
    const std::span<const MemberRow> members = control.model().members;
    const auto value = std::find_if(members.begin(), members.end(), [](const MemberRow& row) {
        return row.id == DefaultMemberId && row.isPersisted();
    });
    if (value == members.end() || value->persisted.save(control) != Variant(std::u16string(u"Now"))) return false;
    const auto said = File_.find(block.id(), u"Value");
    block.leave(u"Value", said ? said->line : block.block().line, "a program puts today's date");
    return true;
}

/// What the control takes otherwise than it stands in the form, and properties that it does not have.
void Conversion::tellDeviations(const Control& control, BlockReader& block) {
    ControlBag written(File_, block.id());
    control.WriteProperties(written);
    for (const ControlBag::Deviation& deviation : written.deviations())
        block.alter(deviation.name, deviation.line, deviation.value);
    for (const PersistedRow& row : control.model().loaded) {
        block.pass(row.name);
        block.pass(row.readName);
    }
}

}  // namespace

UiForm convertForm(const FormFile& file, const TwipScale& scale) { return Conversion(file, scale).run(); }

}  // namespace kel::qt
