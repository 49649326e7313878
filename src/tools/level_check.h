// What must hold of level files: that every puzzle is worth its place.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tools/rated_puzzle.h"

namespace vemo {

// Judges the puzzles of one or more files, file by file and in their order.
class LevelCheck {
  public:
    // Uniqueness and equivalence are looked at in every puzzle; rating and order, which take far
    // longer, in every `ratesOneIn`-th of a file.
    explicit LevelCheck(int ratesOneIn) : ratesOneIn_(ratesOneIn) {}

    // The file's name is for messages.
    void BeginFile(int level, std::string name);

    // The faults of the file's next puzzle, each a sentence without its subject: "is rated Hard".
    // Nothing stands for a record that could not be read.
    std::vector<std::string> FaultsOf(const std::optional<PuzzleRecord>& puzzle);

  private:
    void CheckRating(const PuzzleRecord& puzzle, std::vector<std::string>& faults);

    int ratesOneIn_;
    int level_ = 0;
    std::string file_;
    int number_ = 0;
    RatedPuzzle before_;
    std::map<Digits, std::string> places_;  // by canonical form: where it stands
};

}  // namespace vemo
