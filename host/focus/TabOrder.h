#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace kel {

/// When the Tab key comes to a control: by tab index, equal ones in the order they were placed.
using TabPlace = std::pair<std::int32_t, std::size_t>;

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
    virtual bool hasField() const = 0;
    /// It would take the focus now.
    virtual bool takesFocus() const = 0;
    /// That its own caption marks, for homes whose toolkit does not look for it; 0 for none.
    virtual char16_t mnemonic() const { return 0; }

protected:
    ~TabStop() = default;

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
    TabStop* afterBarred(TabStop& stop) const { return stop.takesFocus() ? &stop : next(&stop, false); }

    /// What a plain label with this tab index names, and its mnemonic leads to: the next control that has a field.
    TabStop* namedBy(std::int32_t labelIndex) const;

    void addLabel(std::u16string_view caption, std::int32_t tabIndex);

    /// Where the mnemonic with this letter leads: to the first control that has it, or else to what a plain label
    /// names.
    TabStop* marked(char32_t letter) const;

    /// As Tab comes to them.
    std::vector<TabStop*> sorted() const;

private:
    std::vector<TabStop*> Stops_;
    std::vector<std::pair<char16_t, std::int32_t>> Labels_;  ///< mnemonic and tab index
};

}  // namespace kel
