#pragma once

namespace kel::qt {

/// From now on assistive technology finds the text of every `QtLine`, reads it and writes it by the control's rules.
void makeLinesAccessible();

}  // namespace kel::qt
