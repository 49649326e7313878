// The appearance that the desktop asks for, where it offers a settings portal: some desktops are
// dark without a word of it in the toolkit's palette.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QObject>

#include "qt/theme.h"

namespace vemo {

// Called when the desktop has answered and whenever it changes its mind; nothing where it leaves
// the choice to the program.
using ToneListener = std::function<void(std::optional<Tone>)>;

// Asks without waiting. Destroying what comes back ends the calls; null where there is no portal to
// ask.
std::unique_ptr<QObject> ListenToDesktop(ToneListener listener);

}  // namespace vemo
