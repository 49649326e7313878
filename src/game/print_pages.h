// Printed pages as values: where every line and every text of a page stands, in millimetres from
// the upper left corner of the paper.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/records.h"

namespace vemo {

// What stands in a grid. PencilMarks: the clues and all that they leave possible; CurrentState: the
// digits and marks of the player.
enum class PrintContent : std::uint8_t { Puzzle, PencilMarks, CurrentState, Solution };
// Foot: small and upside down below the puzzles of the page.
enum class SolutionPlace : std::uint8_t { None, Foot, LastPages };
enum class Paper : std::uint8_t { A4, Letter };

inline constexpr std::array<int, 3> kPerPage = {1, 2, 4};

struct PageStyle {
    int perPage = 4;  // of kPerPage, at most: fewer are printed larger
    PrintContent content = PrintContent::Puzzle;
    SolutionPlace solutions = SolutionPlace::None;
    Paper paper = Paper::A4;

    bool operator==(const PageStyle&) const = default;
};

struct PrintedSudoku {
    int level = 0;   // 0: of no level
    int number = 0;  // in its level; 0: it has none
    PlayTime best;
    Digits clues{};
    Digits solution{};  // all 0: not known
    // As played, for PrintContent::CurrentState.
    Digits digits{};
    std::array<Marks, kCells> marks{};

    bool HasSolution() const { return solution != Digits{}; }
    bool operator==(const PrintedSudoku&) const = default;
};

// One that nobody has played yet.
PrintedSudoku PrintedFrom(const PuzzleRecord& record, int level, int number);

struct PrintJob {
    PageStyle style;
    std::vector<PrintedSudoku> sudokus;
};

// A filled rectangle; all are black.
struct PageBar {
    double left;
    double top;
    double width;
    double height;
};

enum class PageWeight : std::uint8_t { Regular, Bold };
enum class PageAlign : std::uint8_t { Left, Center, Right };

struct PageLabel {
    std::string text;
    double x;  // its left end, its middle or its right end
    double y;  // the middle between the feet and the heads of its capitals
    double size;
    PageWeight weight = PageWeight::Regular;
    PageAlign align = PageAlign::Center;
    bool isTurned = false;  // upside down, about its place
};

struct Page {
    double width = 0;
    double height = 0;
    std::vector<PageBar> bars;
    std::vector<PageLabel> labels;
};

// Nothing is printed nearer to the paper's edges.
inline constexpr double kPageMargin = 15;

// Of the paper, in millimetres.
struct PaperSize {
    double width;
    double height;
};
PaperSize SizeOf(Paper paper);

int PageCount(const PrintJob& job);
// `number` is from 0 to PageCount - 1.
Page MakePage(const PrintJob& job, int number);

// "Easy 17", "Easy" without a number, "Sudoku" without a level.
std::string CaptionOf(const PrintedSudoku& sudoku);

}  // namespace vemo
