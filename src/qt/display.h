// Whether there is a display for a window, asked before the toolkit, which without one only aborts.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vemo {

// Both read the whole command line without the program's name.

// The toolkit's platform; empty where the choice is its own, or the user's. A print does not even
// touch a display that is there.
QByteArray PlatformFor(const QStringList& given);

// Why no window can be opened here, as a sentence; empty where one can.
QString WhyNoDisplay(const QStringList& given);

}  // namespace vemo
