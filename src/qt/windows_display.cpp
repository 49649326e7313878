// The display of Windows, which every program has.
#include "qt/display.h"

namespace vemo {

QByteArray PlatformFor(const QStringList& /*given*/) {
    return {};
}

QString WhyNoDisplay(const QStringList& /*given*/) {
    return {};
}

}  // namespace vemo
