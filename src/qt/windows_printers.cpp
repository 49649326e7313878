// The printers of Windows: its own dialog needs at least one of them.
#include <QPrinterInfo>

#include "qt/ask_printer.h"

namespace vemo {

using namespace Qt::StringLiterals;

QString WhyNoPrinter() {
    return QPrinterInfo::availablePrinters().isEmpty()
               ? u"No printer is set up on this computer. Save as PDF writes the same pages."_s
               : QString();
}

}  // namespace vemo
