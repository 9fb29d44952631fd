#include "library/ClassRegistry.h"

#include <algorithm>

#include "values/Text.h"

namespace kel {

const ClassModel* ClassRegistry::find(std::u16string_view name) const {
    const std::size_t point = name.find(u'.');
    if (point != std::u16string_view::npos) {
        if (!equalsIgnoringCase(name.substr(0, point), LibraryName)) return nullptr;
        name.remove_prefix(point + 1);
    }
    const auto found = std::find_if(Models_.begin(), Models_.end(),
                                    [name](const ClassModel* model) { return equalsIgnoringCase(model->name, name); });
    return found == Models_.end() ? nullptr : *found;
}

}  // namespace kel
