// The display of a desktop of Unix, which programs find through the environment.
#include <algorithm>

#include "qt/arguments.h"
#include "qt/display.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

bool IsPlatformChosen(const QStringList& given) {
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        return true;
    }
    const char* const options[] = {"-platform", "--platform", "-display", "--display"};
    return std::ranges::any_of(
        options, [&given](const char* option) { return given.contains(QLatin1String(option)); });
}

}  // namespace

QByteArray PlatformFor(const QStringList& given) {
    const bool isWithout = given.contains(u"--print"_s) || !WhyNoDisplay(given).isEmpty();
    return NeedsNoDisplay(given) && isWithout && !IsPlatformChosen(given) ? "offscreen" : "";
}

QString WhyNoDisplay(const QStringList& given) {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(variable)) {
            return {};
        }
    }
    return IsPlatformChosen(given)
               ? QString()
               : u"there is no display to open the window on: neither DISPLAY nor "
                 u"WAYLAND_DISPLAY is set."_s;
}

}  // namespace vemo
