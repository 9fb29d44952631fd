#pragma once

#include <QIcon>

#include "records/Commands.h"

class QWidget;

namespace kel::qt {

/// The picture of a command in menus and tool bars, as it suits the window; empty for most.
QIcon iconOf(const QWidget& window, records::Command command);

}  // namespace kel::qt
