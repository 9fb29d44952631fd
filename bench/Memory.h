#pragma once

namespace kel::bench {

/// Prints what long lists take from the heap, beside Qt's own, as further lines of the table.
void printMemory();

}  // namespace kel::bench
