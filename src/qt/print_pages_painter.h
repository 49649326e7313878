// Paints pages of sudokus.
#pragma once

#include "game/print_pages.h"
#include "qt/printout.h"

namespace vemo {

QPageSize PageSizeOf(Paper paper);

// In black alone. `name` is the document's; the job is copied.
Printout PrintoutOf(const PrintJob& job, const QString& name);

}  // namespace vemo
