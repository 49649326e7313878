// A plain text as a printout over as many pages as it needs.
#pragma once

#include "qt/printout.h"

namespace vemo {

// In black on white; the title and the page's number stand below each page.
Printout TextPrintout(const QString& title, const QString& text, const QPageSize& paper);

}  // namespace vemo
