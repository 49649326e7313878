// The window "Generator": what the player orders, the search for it, and the sudokus made. Each is
// appended to its level's file as soon as it is made; what cannot be stored stays in the list.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "game/generator_order.h"
#include "model/files.h"

namespace vemo {

struct Stage;

struct MadeSudoku {
    RatedPuzzle rated;
    int number = 0;  // in its level's file; 0: not stored

    bool IsStored() const { return number != 0; }
};

class GeneratorWindow {
  public:
    static constexpr int kNoRow = -1;

    // Both outlive the window.
    GeneratorWindow(RecordFiles& files, SettingsStore& settings);
    ~GeneratorWindow();

    const GeneratorOrder& Order() const { return order_; }
    const std::string& Error() const { return error_; }  // why the search cannot start
    bool IsSearching() const { return known_ || generator_; }
    bool CanStart() const { return error_.empty() && !IsSearching(); }
    // How the search stands or what ended it, what failed, what to do: for the player.
    std::string Message() const;
    // The message speaks of something that went wrong.
    bool IsWarning() const { return !refusal_.empty() || (!IsSearching() && !failure_.empty()); }

    // The search that runs, or ran last.
    bool HasSearched() const { return hasSearched_; }
    const GeneratorSettings& Searched() const { return searched_; }
    const GeneratorCounts& Counts() const { return counts_; }
    std::chrono::milliseconds Passed() const { return passed_; }
    double TriesPerSecond() const;

    // All since the game began, in the order in which they were made.
    const std::vector<MadeSudoku>& Made() const { return made_; }
    int Unstored() const { return unstored_; }
    int Row() const { return row_; }     // the selected one, or kNoRow
    const MadeSudoku* Selected() const;  // null where none is

    void ReadSettings();
    // The player has changed the order; not while searching.
    void Change(const GeneratorOrder& order);
    void Start();
    // Ends the search; what was made is kept.
    void Cancel();
    // Takes over what the search has made meanwhile: a few times a second while searching.
    void Tick();
    void Select(int row);
    // Tries again to store what could not be stored.
    void Store();
    // The message says why what was asked for is not done.
    void Refuse(std::string why) { refusal_ = std::move(why); }
    // The player gives up what is not stored.
    void GiveUpUnstored();

  private:
    class KnownForms;

    void Search();
    void TakeOver();
    bool Store(MadeSudoku& made);
    void EndSearch(Ending ending);
    std::string EndMessage() const;

    RecordFiles& files_;
    SettingsStore& settings_;
    GeneratorOrder order_;
    std::string error_;

    GeneratorSettings searched_;
    bool hasSearched_ = false;
    std::unique_ptr<KnownForms> known_;     // while they are found out
    std::unique_ptr<Generator> generator_;  // from then on, until the search ends
    GeneratorCounts counts_;
    std::chrono::steady_clock::time_point begin_;
    std::chrono::milliseconds passed_{0};

    std::vector<MadeSudoku> made_;
    int unstored_ = 0;
    int row_ = kNoRow;
    std::string failure_;
    std::string refusal_;
};

// The events that concern the rest of the game.
void OpenGenerator(Stage& stage);
void TickGenerator(Stage& stage);
// Why the selected sudoku cannot be played now, as a sentence; empty where it can.
std::string WhyNotPlay(const Stage& stage);
// Loads it, like Open.
void PlayMadeSudoku(Stage& stage);
// These two ask where sudokus are not stored.
bool MayCloseGenerator(Stage& stage);
bool MayQuitGenerator(Stage& stage);
// A search keeps the game from ending: the window comes to the front and says so.
bool RefuseQuitWhileSearching(Stage& stage);

}  // namespace vemo
