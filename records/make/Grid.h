#pragma once

#include <vector>

#include "host/Geometry.h"
#include "records/make/FieldPlan.h"

namespace kel::records {

/// Where each field of a form stands, twips: one below the other in columns of the same height, as many as it takes to
/// fit a screen, and read column by column.
struct Grid {
    struct Place {
        Rect bounds;  ///< with the caption
        std::int32_t captionWidth = 0;
    };
    std::vector<Place> places;
    Size size;  ///< of the form
};
Grid arrange(const std::vector<FieldPlan>& fields);

}  // namespace kel::records
