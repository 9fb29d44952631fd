#pragma once

#include <string_view>
#include <vector>

#include "library/TypeModel.h"

namespace kel {

/// Name of the library in program identifiers and form files: "KelControls8.KelText".
inline constexpr std::u16string_view LibraryName = u"KelControls8";

/// The classes of the library by name. Holds no class itself: models are static and outlive it.
class ClassRegistry {
public:
    void add(const ClassModel& model) { Models_.push_back(&model); }

    const std::vector<const ClassModel*>& all() const { return Models_; }

    /// By "KelText" or "KelControls8.KelText", case ignored; nullptr when there is none.
    const ClassModel* find(std::u16string_view name) const;

private:
    std::vector<const ClassModel*> Models_;
};

}  // namespace kel
