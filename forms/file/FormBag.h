#pragma once

#include <optional>
#include <vector>

#include "forms/file/FormFile.h"
#include "host/PropertyBag.h"

namespace kel {

/// The property bag of one control of a form: reads from its block, collects what the control writes, and puts
/// that into a form file in one go. The file that it reads from outlives it.
class ControlBag final : public PropertyBag {
public:
    ControlBag(const FormFile& file, FormBlockId block) : File_(file), Block_(block) {}

    /// Throws FormError with the line of a value that cannot be read as the row's type.
    Variant readProperty(const PersistedRow& row) override;

    void writeProperty(const PersistedRow& row, const Variant& value) override;

    /// Changes the lines whose values differ from what the control has written, and only those: a line that
    /// says the same in another way stays as it is. A property that equals its default loses its line.
    void applyTo(FormFile& file, FormBlockId block) const;

    /// The properties of the block that the control gives back otherwise than they stand there.
    struct Deviation {
        std::size_t line = 0;
        std::u16string_view name;
        std::u16string value;  ///< as it would be written
        bool isKept = false;   ///< saving leaves the line as it is
    };
    std::vector<Deviation> deviations() const;

private:
    struct Written {
        PersistedRow row;
        Variant value;
        bool isDefault = false;
    };

    const FormFile& File_;
    FormBlockId Block_;
    std::vector<Written> Written_;
};

}  // namespace kel
