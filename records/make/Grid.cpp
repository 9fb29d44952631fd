#include "records/make/Grid.h"

#include <algorithm>

#include "common/FieldLayout.h"

namespace kel::records {

namespace {

constexpr std::int32_t Margin = 240;
constexpr std::int32_t RowHeight = 390;
constexpr std::int32_t ColumnGap = 360;
constexpr std::int32_t BesideGap = 150;
constexpr std::int32_t RowsOfColumn = 14;  ///< more make a further column
constexpr std::int32_t MostRows = 20;      ///< where there would be more than two
constexpr std::int32_t CaptionCharacter = 105;
constexpr std::int32_t CaptionGap = 150;
constexpr std::int32_t NarrowestCaption = 900;
constexpr std::int32_t CheckIndent = 15;

std::int32_t captionWidthOf(const FieldPlan& field) {
    return static_cast<std::int32_t>(field.caption.size()) * CaptionCharacter + CaptionGap;
}

bool hasCaptionBeside(const FieldPlan& field) { return field.className != u"KelCheck"; }

/// One column from field `first` to before `end`; its right edge.
std::int32_t arrangeColumn(const std::vector<FieldPlan>& fields, std::size_t first, std::size_t end, std::int32_t left,
                           Grid& grid) {
    std::int32_t captions = NarrowestCaption;
    for (std::size_t i = first; i < end; ++i)
        if (hasCaptionBeside(fields[i]) && !fields[i].isBesideBefore)
            captions = std::max(captions, captionWidthOf(fields[i]));
    std::int32_t top = Margin;
    std::int32_t right = left;
    for (std::size_t i = first; i < end; ++i) {
        const FieldPlan& field = fields[i];
        const std::int32_t height = FieldHeight + (field.rows - 1) * RowHeight;
        Grid::Place place{{left, top, captions + field.width, height}, captions};
        if (field.isBesideBefore) {
            const Rect& before = grid.places.back().bounds;
            const std::int32_t own = captionWidthOf(field);
            place = {{before.left + before.width + BesideGap, before.top, own + field.width, height}, own};
        } else if (!hasCaptionBeside(field)) {
            place = {{left + captions + CheckIndent, top, field.width, height}, 0};
        }
        if (!field.isBesideBefore) top += height - FieldHeight + RowHeight;
        right = std::max(right, place.bounds.left + place.bounds.width);
        grid.size.height = std::max(grid.size.height, place.bounds.top + height + Margin);
        grid.places.push_back(place);
    }
    return right;
}

}  // namespace

Grid arrange(const std::vector<FieldPlan>& fields) {
    std::int32_t rows = 0;
    for (const FieldPlan& field : fields) rows += field.isBesideBefore ? 0 : field.rows;
    const std::int32_t most = rows <= 2 * RowsOfColumn ? RowsOfColumn : MostRows;
    const std::int32_t columns = std::max((rows + most - 1) / most, 1);
    const std::int32_t rowsOfEach = (rows + columns - 1) / columns;
    Grid grid;
    std::int32_t left = Margin;
    for (std::size_t first = 0; first < fields.size();) {
        std::size_t end = first;
        for (std::int32_t used = 0; end < fields.size(); ++end) {
            const std::int32_t more = fields[end].isBesideBefore ? 0 : fields[end].rows;
            // A tall field at the end may stand a little lower than the others.
            if (used > 0 && used + (more + 1) / 2 > rowsOfEach) break;
            used += more;
        }
        const std::int32_t right = arrangeColumn(fields, first, end, left, grid);
        grid.size.width = right + Margin;
        left = right + ColumnGap;
        first = end;
    }
    return grid;
}

}  // namespace kel::records
