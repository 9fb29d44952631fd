#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "host/Widgets.h"

namespace kel {

/// When the Tab key comes to a control: by tab index, equal ones in the order they were placed.
using TabPlace = std::pair<std::int32_t, std::size_t>;

/// That the caption of a control marks; 0 for none.
char16_t mnemonicOf(const WidgetSet& widgets);

/// A control on a form, for the keys that move the focus.
class TabStop {
public:
    TabStop(std::int32_t tabIndex, std::size_t order, bool takesTab) : Place_(tabIndex, order), TakesTab_(takesTab) {}
    TabStop(const TabStop&) = delete;
    TabStop& operator=(const TabStop&) = delete;

    const TabPlace& tabPlace() const { return Place_; }
    /// The form lets the Tab key come here.
    bool takesTab() const { return TakesTab_; }

    /// There is something in it that can have the focus, at this moment or another.
    bool hasField() const { return widgets().field != nullptr; }
    /// What has the focus or would take it now; nullptr while it takes none.
    FieldWidget* focusTarget() const;
    /// That its own caption marks; 0 for none.
    char16_t mnemonic() const { return mnemonicOf(widgets()); }

protected:
    ~TabStop() = default;
    virtual WidgetSet widgets() const = 0;

private:
    TabPlace Place_;
    bool TakesTab_;
};

/// The controls of one form, and where the focus goes among them. They outlive the order, or at least its use.
class TabOrder {
public:
    void add(TabStop& stop) { Stops_.push_back(&stop); }

    /// The Tab key, or with Shift `back`: from `from` through all others and around, from nowhere (nullptr) the first
    /// or the last. nullptr when nothing else takes the focus.
    TabStop* next(const TabStop* from, bool back) const;

    /// The field that has the focus in `stop` is disabled or hidden: it goes on as by Tab, unless another field has
    /// taken that one's place in the same control (several lines that of one).
    TabStop* afterBarred(TabStop& stop) const { return stop.focusTarget() != nullptr ? &stop : next(&stop, false); }

    /// What a plain label with this tab index names, and its mnemonic leads to: the next control that has a field.
    TabStop* namedBy(std::int32_t labelIndex) const;

    void addLabel(std::u16string_view caption, std::int32_t tabIndex);

    /// The stroke is that of a mnemonic which leads to a field that takes the focus.
    bool hasMnemonic(const KeyStroke& stroke) const { return leadOf(stroke, nullptr).stop != nullptr; }

    /// Alt with the letter of a mnemonic leads from the control that has the focus (nullptr: none) to the next one
    /// whose own caption marks the letter, or which a plain label that marks it names, and around. A letter that
    /// several have gives the focus and presses nothing. False where it leads nowhere.
    bool pressMnemonic(const KeyStroke& stroke, const TabStop* from) const;

    /// As Tab comes to them.
    std::vector<TabStop*> sorted() const;

private:
    /// Where the key of a mnemonic leads.
    struct Lead {
        TabStop* stop = nullptr;
        bool presses = false;
    };
    Lead leadOf(const KeyStroke& stroke, const TabStop* from) const;

    std::vector<TabStop*> Stops_;
    std::vector<std::pair<char16_t, std::int32_t>> Labels_;  ///< mnemonic and tab index
};

}  // namespace kel
