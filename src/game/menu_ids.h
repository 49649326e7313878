// The commands of the main window, one for each menu entry.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vemo {

enum class CommandId : std::uint8_t {
    SudokuNext,
    SudokuOpen,
    SudokuSave,
    SudokuMake,
    SudokuValidate,
    SudokuCheck,
    SudokuGenerator,
    SudokuPrint,
    SudokuExit,
    Level1,
    Level2,
    Level3,
    Level4,
    Level5,
    Level6,
    Level7,
    Level8,
    Level9,
    SolveRestart,
    SolveUndo,
    SolveRedo,
    SolveResetCell,
    SolveHint,
    SolveShowMe,
    SolveSolution,
    SolveManager,
    SolveLog,
    SolveAutoSolve,
    SolveScan,
    SolveStop,
    PencilmarksMode,
    PencilmarksOff,
    PencilmarksDimmed,
    EraseSudokuTime,
    EraseLevelTime,
    EraseAllTime,
    OptionsTimer,
    OptionsSounds,
    OptionsWells,
    OptionsSmallWindow,
    OptionsColors,
    AppearanceSystem,
    AppearanceLight,
    AppearanceDark,
    HelpContents,
    HelpWeb,
    HelpRevision,
    Count,
};

inline constexpr std::size_t kCommands = static_cast<std::size_t>(CommandId::Count);

constexpr CommandId LevelCommand(int level) {
    return static_cast<CommandId>(static_cast<int>(CommandId::Level1) + level - 1);
}

}  // namespace vemo
