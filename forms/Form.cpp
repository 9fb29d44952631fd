#include "forms/Form.h"

#include <algorithm>
#include <utility>

#include "controls/Classes.h"
#include "values/Text.h"

namespace kel {

namespace {

/// Of a block that says nothing of its size.
constexpr Size UnsizedControl{3000, 300};

constexpr struct {
    std::u16string_view className;
    ForeignBlock::Kind kind;
} ForeignKinds[] = {
    {u"VB.Label", ForeignBlock::Kind::Label}, {u"VB.CommandButton", ForeignBlock::Kind::Button},
    {u"VB.Frame", ForeignBlock::Kind::Panel}, {u"VB.PictureBox", ForeignBlock::Kind::Panel},
    {u"VB.Line", ForeignBlock::Kind::Line},
};

ForeignBlock::Kind foreignKind(const FormBlock& block) {
    for (const auto& row : ForeignKinds)
        if (equalsIgnoringCase(block.className, row.className)) return row.kind;
    return block.children.empty() ? ForeignBlock::Kind::Other : ForeignBlock::Kind::Panel;
}

std::u16string hostName(const FormBlock& block) {
    if (!block.index) return block.name;
    return block.name + u"(" + widen(std::to_string(*block.index)) + u")";
}

std::int32_t tabIndexOf(const FormFile& file, FormBlockId id) { return file.integer(id, u"TabIndex", INT32_MAX); }

Placement placementOf(const FormFile& file, FormBlockId id, PlacedPanel* parent) {
    Placement placement;
    placement.name = hostName(file.block(id));
    placement.bounds = file.bounds(id);
    placement.parent = parent;
    placement.tabIndex = tabIndexOf(file, id);
    placement.tabStop = file.boolean(id, u"TabStop", true);
    placement.visible = file.boolean(id, u"Visible", true);
    return placement;
}

/// It may be drawn from either end.
Rect lineOf(const FormFile& file, FormBlockId id) {
    const auto place = [&](std::u16string_view name) { return withinReach(file.integer(id, name)); };
    const auto [left, right] = std::minmax({place(u"X1"), place(u"X2")});
    const auto [top, bottom] = std::minmax({place(u"Y1"), place(u"Y2")});
    return {left, top, right - left, bottom - top};
}

ForeignBlock foreignBlock(const FormFile& file, FormBlockId id, PlacedPanel* parent) {
    ForeignBlock foreign;
    foreign.kind = foreignKind(file.block(id));
    foreign.placement = placementOf(file, id, parent);
    foreign.className = file.block(id).className;
    const auto caption = file.find(id, u"Caption");
    if (caption && std::holds_alternative<std::u16string>(caption->value)) foreign.caption = file.stringValue(*caption);
    if (foreign.kind == ForeignBlock::Kind::Line) foreign.placement.bounds = lineOf(file, id);
    return foreign;
}

WindowSpec windowOf(const FormFile& file) {
    return {file.text(0, u"Caption"), file.clientSize(0), file.boolean(0, u"RightToLeft", false)};
}

void setIfDifferent(FormFile& file, FormBlockId block, std::u16string_view name, std::int32_t before,
                    std::int32_t now) {
    if (now != before) file.set(block, name, now);
}

}  // namespace

const ClassModel& controlModelOf(const FormFile& file, const FormBlock& block) {
    const ClassModel* model = libraryClasses().find(block.className);
    if (model == nullptr || !model->isControl())
        throw FormError(file.path(), block.line, "the library has no control " + toUtf8(block.className));
    return *model;
}

bool isPropertyOf(const ClassModel& model, std::u16string_view name) {
    constexpr std::u16string_view OfObject = u"Object.";
    const bool qualified = equalsIgnoringCase(name.substr(0, OfObject.size()), OfObject);
    if (name.starts_with(u'_') || isHostProperty(qualified ? name.substr(OfObject.size()) : name)) return true;
    return std::any_of(model.loaded.begin(), model.loaded.end(), [name](const PersistedRow& row) {
        return equalsIgnoringCase(row.name, name) || equalsIgnoringCase(row.readName, name);
    });
}

Form::Form(Home& home, System& system, ControlObserver& observer, FormFile file)
    : File_(std::move(file)), Window_(home.makeWindow(windowOf(File_), system)) {
    // Blocks stand in the file's order, so a panel is there before what it holds.
    std::vector<PlacedPanel*> panels(File_.blocks().size(), nullptr);
    for (FormBlockId id = 1; id < File_.blocks().size(); ++id) {
        const FormBlock& block = File_.block(id);
        PlacedPanel* parent = panels[block.parent];
        panels[id] = parent;
        if (isUnseen(block)) continue;
        if (isLibraryClass(block)) {
            placeControl(id, controlModelOf(File_, block), placementOf(File_, id, parent), observer);
        } else if (PlacedPanel* panel = Window_->placeForeign(foreignBlock(File_, id, parent))) {
            panels[id] = panel;
        }
    }
}

void Form::placeControl(FormBlockId block, const ClassModel& model, const Placement& placement,
                        ControlObserver& observer) {
    PlacedControl& placed = Window_->place(model, placement, observer);
    Entry entry{block, placement.bounds, File_.text(block, u"ToolTipText"), &placed};
    if (entry.bounds.width == 0 && !File_.find(block, u"Width")) entry.bounds.width = UnsizedControl.width;
    if (entry.bounds.height == 0 && !File_.find(block, u"Height")) entry.bounds.height = UnsizedControl.height;
    if (!entry.toolTipText.empty()) placed.setToolTipText(entry.toolTipText);
    ControlBag bag(File_, block);
    placed.control().ReadProperties(bag);
    placed.setBounds(entry.bounds);
    Entries_.push_back(std::move(entry));
}

std::vector<PlacedControl*> Form::controls() const {
    std::vector<PlacedControl*> controls;
    for (const Entry& entry : Entries_) controls.push_back(entry.control);
    return controls;
}

PlacedControl* Form::find(std::u16string_view name) const {
    for (const Entry& entry : Entries_)
        if (equalsIgnoringCase(entry.control->name(), name)) return entry.control;
    return nullptr;
}

std::vector<Form::Placed> Form::inTabOrder() const {
    std::vector<Placed> order;
    for (const Entry& entry : Entries_) order.push_back({entry.block, entry.control});
    const auto place = [&](const Placed& placed) { return tabIndexOf(File_, placed.block); };
    std::stable_sort(order.begin(), order.end(),
                     [&](const Placed& left, const Placed& right) { return place(left) < place(right); });
    return order;
}

void Form::reload(const Placed& placed, const PersistedRow& property) const {
    ControlBag bag(File_, placed.block);
    property.load(placed.control->control(), bag.readProperty(property));
}

void Form::writeExtender(const Entry& entry, FormFile& file) const {
    const Rect now = entry.control->bounds();
    setIfDifferent(file, entry.block, u"Left", entry.bounds.left, now.left);
    setIfDifferent(file, entry.block, u"Top", entry.bounds.top, now.top);
    setIfDifferent(file, entry.block, u"Width", entry.bounds.width, now.width);
    setIfDifferent(file, entry.block, u"Height", entry.bounds.height, now.height);
    const std::u16string toolTipText = entry.control->toolTipText();
    if (toolTipText != entry.toolTipText) file.set(entry.block, u"ToolTipText", toolTipText);
}

std::vector<ControlBag::Deviation> Form::deviations(FormBlockId block) const {
    const auto entry = std::find_if(Entries_.begin(), Entries_.end(), [&](const Entry& e) { return e.block == block; });
    if (entry == Entries_.end()) return {};
    ControlBag bag(File_, block);
    entry->control->control().WriteProperties(bag);
    return bag.deviations();
}

void Form::save(const std::string& path) const {
    FormFile file = File_;
    for (const Entry& entry : Entries_) {
        writeExtender(entry, file);
        ControlBag bag(File_, entry.block);
        entry.control->control().WriteProperties(bag);
        bag.applyTo(file, entry.block);
    }
    file.save(path);
}

}  // namespace kel
