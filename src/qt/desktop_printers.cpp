// The printers of a system whose dialog also prints to a file.
#include "qt/ask_printer.h"

namespace vemo {

QString WhyNoPrinter() {
    return {};
}

}  // namespace vemo
