#pragma once

#include <QString>

#include "records/Store.h"

namespace kel::qt {

/// What stands in the header of a file that this program has made: its mark, and of which make its tables are. A file
/// of a later make is not opened, as this program would not know what to heed in it.
inline constexpr int FileMark = 0x4B656C46;
inline constexpr int FileVersion = 1;

/// Says why a file would not be opened as a database of SQLite, before SQLite is asked, which calls all of it the same.
/// One that is not there, and one that is empty, will be made. Throws StoreError.
void checkFile(const QString& file);

records::StoreError notADatabase();

}  // namespace kel::qt
