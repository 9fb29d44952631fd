#include "forms/FormBag.h"

namespace kel {

namespace {

/// A default has no date of its own: it is given as the day serial.
Variant withoutDate(const Variant& value) {
    const auto* date = std::get_if<Date>(&value);
    return date == nullptr ? value : Variant(date->Serial);
}

Variant defaultOf(const PersistedRow& row) {
    Variant value = toVariant(row.readDefault);
    const auto* serial = std::get_if<double>(&value);
    return row.type == TypeTag::Date && serial != nullptr ? Variant(Date{*serial}) : value;
}

void apply(FormFile& file, FormBlockId block, const PersistedRow& row, const Variant& value, bool isDefault) {
    const auto property = file.find(block, row.name);
    if (!property && isDefault) return;
    const Variant held = property ? file.valueAs(*property, row.type) : defaultOf(row);
    if (held == value) return;
    if (isDefault)
        file.remove(block, row.name);
    else
        file.set(block, row.name, value);
}

}  // namespace

Variant ControlBag::readProperty(const PersistedRow& row) {
    const auto property = File_.find(Block_, row.readName);
    return property ? File_.valueAs(*property, row.type) : defaultOf(row);
}

void ControlBag::writeProperty(const PersistedRow& row, const Variant& value) {
    Written_.push_back({row, value, equalsDefault(withoutDate(value), row.writeDefault)});
}

void ControlBag::applyTo(FormFile& file, FormBlockId block) const {
    for (const Written& written : Written_) apply(file, block, written.row, written.value, written.isDefault);
}

}  // namespace kel
