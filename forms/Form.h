#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/file/FormBag.h"
#include "forms/file/FormFile.h"
#include "forms/Home.h"

namespace kel {

/// The class of a block of this library's. Throws FormError where there is none of that name.
const ClassModel& controlModelOf(const FormFile& file, const FormBlock& block);

/// Whether the control reads a property of that name, or the form gives it to the control. "Object." stands before one
/// whose name the control has, too.
bool isPropertyOf(const ClassModel& model, std::u16string_view name);

/// A form in a window of some home: its controls loaded from the blocks of a form file.
class Form {
public:
    /// Places every block, loads every control and lays it out. Throws FormError when a block names a class
    /// that the library does not have, or holds a value that its property cannot take. `system` and
    /// `observer` outlive the form.
    Form(Home& home, System& system, ControlObserver& observer, FormFile file);

    /// Shows the window with every control.
    void show() { Window_->show(); }

    FormWindow& window() { return *Window_; }

    /// In the file's order.
    std::vector<PlacedControl*> controls() const;

    /// By its name, case ignored; an element of a control array is "name(index)". nullptr: there is none.
    PlacedControl* find(std::u16string_view name) const;

    /// A control and the block of the file that it was made from.
    struct Placed {
        FormBlockId block;
        PlacedControl* control;
    };
    /// In the order of the Tab key.
    std::vector<Placed> inTabOrder() const;
    const FormFile& file() const { return File_; }

    /// Gives a saved property of the control what it was loaded with, as if the form was opened now: a date of "Now" is
    /// today's. One that the block does not have gets its default.
    void reload(const Placed& placed, const PersistedRow& property) const;

    /// What the control of a block gives back otherwise than it stands in the file. A block without a control has none.
    std::vector<ControlBag::Deviation> deviations(FormBlockId block) const;

    /// Writes the form with its controls' properties as they are now; what did not change stands as it was.
    /// Throws FormError when it cannot.
    void save(const std::string& path) const;

private:
    struct Entry {
        FormBlockId block;
        Rect bounds;  ///< as the file has them
        std::u16string toolTipText;
        PlacedControl* control;
    };

    void placeControl(FormBlockId block, const ClassModel& model, const Placement& placement,
                      ControlObserver& observer);
    void writeExtender(const Entry& entry, FormFile& file) const;

    FormFile File_;
    std::unique_ptr<FormWindow> Window_;
    std::vector<Entry> Entries_;
};

}  // namespace kel
