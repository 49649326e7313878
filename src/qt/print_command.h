// Printing from the command line.
#pragma once

#include "platform/files.h"
#include "platform/folders.h"
#include "platform/settings_store.h"
#include "qt/arguments.h"

namespace vemo {

struct PrintOutcome {
    int pages = 0;
    QString notice;  // what was left out
    QString error;   // why nothing was written; a file that was there stays
};

// Prints the player's own sudokus; shipped ones of levels that the player has none of yet.
PrintOutcome PrintToFile(const PrintRequest& request, SettingsStore& settings, Folders& folders,
                         Files& files);

}  // namespace vemo
