#include "forms/file/FormBag.h"

namespace kel {

namespace {

void apply(FormFile& file, FormBlockId block, const PersistedRow& row, const Variant& value, bool isDefault) {
    const auto property = file.find(block, row.name);
    if (!property && isDefault) return;
    const Variant held = property ? file.valueAs(*property, row.type) : toVariant(row.readDefault);
    if (held == value) return;
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

}  // namespace kel
