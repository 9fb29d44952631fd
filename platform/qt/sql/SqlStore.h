#pragma once

#include <functional>
#include <memory>
#include <string>

#include "records/Store.h"

namespace kel::qt {

/// Called again and again while another program holds the database. The window stays alive in it.
using Waiting = std::function<void()>;

/// Opens a database: a file of SQLite, made when it is not there, or "postgresql://user@host:port/name". Needs a
/// QCoreApplication. Throws records::StoreError.
std::unique_ptr<records::Store> openStore(const std::string& database, Waiting waiting);

}  // namespace kel::qt
