#include "host/focus/TabOrder.h"

#include <algorithm>

#include "host/focus/Mnemonic.h"

namespace kel {

namespace {

/// The Tab key's way from one control through all others and around.
class TabWay {
public:
    TabWay(const TabStop* from, bool back) : From_(from), Back_(back) {}

    bool reachesSooner(const TabStop& one, const TabStop& other) const {
        if (wraps(one) != wraps(other)) return wraps(other);
        return precedes(one, other);
    }

private:
    bool precedes(const TabStop& one, const TabStop& other) const {
        return Back_ ? other.tabPlace() < one.tabPlace() : one.tabPlace() < other.tabPlace();
    }
    bool wraps(const TabStop& stop) const { return From_ != nullptr && !precedes(*From_, stop); }

    const TabStop* From_;
    bool Back_;
};

}  // namespace

char16_t mnemonicOf(const WidgetSet& widgets) {
    if (widgets.label != nullptr) return widgets.label->mnemonic();
    return widgets.checkBox != nullptr ? widgets.checkBox->mnemonic() : u'\0';
}

FieldWidget* TabStop::focusTarget() const {
    FieldWidget* const field = widgets().field;
    return field != nullptr && field->takesInput() ? field : nullptr;
}

TabStop* TabOrder::next(const TabStop* from, bool back) const {
    const TabWay way(from, back);
    TabStop* next = nullptr;
    // Along the key's own way most others are found to come later, and need not be asked for their widgets.
    for (std::size_t i = 0; i < Stops_.size(); ++i) {
        TabStop* const stop = Stops_[back ? Stops_.size() - 1 - i : i];
        if (stop == from || !stop->takesTab() || (next != nullptr && !way.reachesSooner(*stop, *next))) continue;
        if (stop->focusTarget() != nullptr) next = stop;
    }
    return next;
}

TabStop* TabOrder::namedBy(std::int32_t labelIndex) const {
    TabStop* named = nullptr;
    for (TabStop* const stop : Stops_) {
        const bool isSooner = named == nullptr || stop->tabPlace() < named->tabPlace();
        if (stop->tabPlace().first > labelIndex && isSooner && stop->hasField()) named = stop;
    }
    return named;
}

void TabOrder::addLabel(std::u16string_view caption, std::int32_t tabIndex) {
    Labels_.emplace_back(mnemonicIn(caption), tabIndex);
}

TabOrder::Lead TabOrder::leadOf(const KeyStroke& stroke, const TabStop* from) const {
    Lead lead;
    if (!seeksMnemonic(stroke)) return lead;
    const TabWay way(from, false);
    const auto consider = [&](TabStop* stop, bool presses) {
        if (stop == nullptr || stop == lead.stop || stop->focusTarget() == nullptr) return;
        const bool isOnly = lead.stop == nullptr;
        if (isOnly || way.reachesSooner(*stop, *lead.stop)) lead.stop = stop;
        lead.presses = isOnly && presses;
    };
    for (TabStop* const stop : Stops_)
        if (isKeyOf(stop->mnemonic(), stroke.character)) consider(stop, true);
    for (const auto& [mnemonic, tabIndex] : Labels_)
        if (isKeyOf(mnemonic, stroke.character)) consider(namedBy(tabIndex), false);
    return lead;
}

bool TabOrder::pressMnemonic(const KeyStroke& stroke, const TabStop* from) const {
    const Lead lead = leadOf(stroke, from);
    if (lead.stop == nullptr) return false;
    if (lead.presses)
        lead.stop->focusTarget()->pressMnemonic();
    else
        lead.stop->focusTarget()->setFocus();
    return true;
}

std::vector<TabStop*> TabOrder::sorted() const {
    std::vector<TabStop*> stops = Stops_;
    std::sort(stops.begin(), stops.end(),
              [](const TabStop* one, const TabStop* other) { return one->tabPlace() < other->tabPlace(); });
    return stops;
}

}  // namespace kel
