// What a player orders to be printed, as entered in its window or written on a command line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "game/print_pages.h"
#include "platform/settings_store.h"

namespace vemo {

enum class PrintSource : std::uint8_t {
    Current,    // the sudoku in the main window
    Run,        // the numbers `first` to `last` of a level
    Selection,  // what another window handed over
};

// At a time: so many are read before the player notices.
inline constexpr int kMostPrinted = 2000;

struct PrintOrder {
    PrintSource source = PrintSource::Run;
    int level = 1;
    int first = 1;
    int last = 4;
    PageStyle style;

    bool operator==(const PrintOrder&) const = default;
};

// The numbers of a level as they are written: "Easy:1-4", "easy:7", "Easy" for all of them.
struct LevelRun {
    int level = 0;
    int first = 1;
    int last = 0;       // 0: to the level's end
    std::string error;  // what is wrong with the text; empty where all is well
};
LevelRun ParseLevelRun(std::string_view text);

// What keeps the numbers of an order's run from being printed, as a sentence; empty where all is
// well. `count` is how many sudokus the level has.
std::string RunError(int level, int first, int last, int count);

// The words that stand for a style on a command line. Nothing for an unknown word.
std::optional<PrintContent> PrintContentNamed(std::string_view word);
std::optional<Paper> PaperNamed(std::string_view word);

// How pages look, as kept in the settings. A missing or impossible setting reads as its default.
PageStyle ReadPageStyle(SettingsStore& store);
void WritePageStyle(SettingsStore& store, const PageStyle& style);

}  // namespace vemo
