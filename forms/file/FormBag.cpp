#include "forms/file/FormBag.h"

namespace kel {

namespace {

bool loadsSame(const PersistedRow& row, const Variant& held, const Variant& value) {
    if (held == value) return true;
    const auto* const left = std::get_if<std::u16string>(&held);
    const auto* const right = std::get_if<std::u16string>(&value);
    return row.loadsSame != nullptr && left != nullptr && right != nullptr && row.loadsSame(*left, *right);
}

void apply(FormFile& file, FormBlockId block, const PersistedRow& row, const Variant& value, bool isDefault) {
    const auto property = file.find(block, row.name);
    if (!property && isDefault) return;
    const Variant held = property ? file.valueAs(*property, row.type) : toVariant(row.readDefault);
    if (loadsSame(row, held, value)) return;
    if (isDefault)
        file.remove(block, row.name);
    else
        file.set(block, row.name, value);
}

}  // namespace

Variant ControlBag::readProperty(const PersistedRow& row) {
    const auto property = File_.find(Block_, row.readName);
    return property ? File_.valueAs(*property, row.type) : toVariant(row.readDefault);
}

void ControlBag::writeProperty(const PersistedRow& row, const Variant& value) {
    Written_.push_back({row, value, equalsDefault(value, row.writeDefault)});
}

void ControlBag::applyTo(FormFile& file, FormBlockId block) const {
    for (const Written& written : Written_) apply(file, block, written.row, written.value, written.isDefault);
}

std::vector<ControlBag::Deviation> ControlBag::deviations() const {
    std::vector<Deviation> found;
    for (const Written& written : Written_) {
        const auto property = File_.find(Block_, written.row.name);
        if (!property) continue;
        const Variant held = File_.valueAs(*property, written.row.type);
        if (held != written.value)
            found.push_back({property->line, written.row.name, writeFormVariant(written.value),
                             loadsSame(written.row, held, written.value)});
    }
    return found;
}

}  // namespace kel
