#pragma once

class QStyle;

namespace kel::qt {

/// The application's style with `character` in place of each one of a password. Shared by all boxes that show
/// the same character; never goes while the application runs.
QStyle* passwordStyle(char16_t character);

}  // namespace kel::qt
