// What the collection window says.
#pragma once

#include <string>

#include "model/files.h"

namespace vemo {

inline constexpr const char* kDiscardedText =
    "This Sudoku has no unique solution and will be discarded !";
// Behind the name of a sudoku.
inline constexpr const char* kUnsolvedText = " unsolved and rated as Outlaw!";

// "1,000,000".
std::string Grouped(std::size_t number);

// "Easy 12".
std::string PlaceText(const StoredPlace& place);

// What was understood of a file: "list.txt: lines of 81; sudokus: 49,990; rejected: 10".
struct ReadReport {
    std::string name;
    std::string format;  // empty: nothing was understood
    std::size_t puzzles = 0;
    std::size_t rejected = 0;
};
std::string ReadText(const ReadReport& report);

// How solving ended; 0: it has no single solution.
std::string SolvedText(const std::string& name, int rating);

}  // namespace vemo
