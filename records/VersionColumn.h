#pragma once

#include <string_view>

namespace kel::records {

/// What a table that is made for a form has beside the columns of its fields: the key, and a count of the record's
/// changes, by which programs that know nothing of each other see that one was first.
inline constexpr std::u16string_view KeyColumn = u"record_id";
inline constexpr std::u16string_view VersionColumn = u"record_version";

}  // namespace kel::records
