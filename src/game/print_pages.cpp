// Printed pages as values.
#include "game/print_pages.h"

#include <algorithm>
#include <cassert>
#include <span>
#include <utility>

#include "model/levels.h"

namespace vemo {
namespace {

// Millimetres.
constexpr double kLargestSide = 160;
constexpr double kColumnGap = 10;
constexpr double kRowGap = 8;
constexpr double kSpareRoom = 10;  // around a sudoku that is as large as its column is wide
constexpr double kSmallestCaption = 2.7;
constexpr double kLargestCaption = 5;
constexpr double kHeading = 5;
constexpr double kHeadingRoom = 10;
constexpr double kFooter = 3;
constexpr double kFooterRoom = 7;
constexpr double kFootSide = 36;  // of a solution at the foot of its page
constexpr double kFootHeading = 3;
constexpr double kFootHeadingRoom = 6;
constexpr double kFootGap = 5;  // between a rule and what stands below and above it
constexpr double kThinnestThin = 0.15;
constexpr double kThinnestThick = 0.5;
constexpr double kRule = 0.2;

// Shares of a grid's side.
constexpr double kCaptionShare = 0.05;
constexpr double kThinShare = 0.0022;
constexpr double kThickShare = 0.0085;

// Shares of a cell's side.
constexpr double kDigitShare = 0.70;
constexpr double kMarkShare = 0.27;
constexpr double kMarkPitch = 0.29;

constexpr double kCaptionLine = 1.9;  // heights of a caption that its line takes

constexpr int kFootPlaces = 4;  // in the row at a page's foot
constexpr int kLastColumns = 3;
constexpr int kLastRows = 4;
constexpr int kOnLastPage = kLastColumns * kLastRows;

using Sudokus = std::span<const PrintedSudoku>;

struct Room {
    double left;
    double top;
    double width;
    double height;
};

enum class CaptionKind : std::uint8_t { NameAndTime, Name };

// What stands in a grid, and which of its digits are clues.
struct GridContent {
    Digits clues{};
    Digits digits{};
    std::array<Marks, kCells> marks{};
};

GridContent ContentOf(const PrintedSudoku& sudoku, PrintContent content) {
    GridContent made{sudoku.clues, sudoku.clues, {}};
    switch (content) {
    case PrintContent::Puzzle:
        break;
    case PrintContent::PencilMarks: {
        const Grid grid = Grid::FromClues(sudoku.clues);
        for (int cell : grid.EmptyCells()) {
            made.marks[static_cast<std::size_t>(cell)] = grid.MarksAt(cell);
        }
        break;
    }
    case PrintContent::CurrentState:
        made.digits = sudoku.digits;
        made.marks = sudoku.marks;
        break;
    case PrintContent::Solution:
        made.digits = sudoku.HasSolution() ? sudoku.solution : sudoku.clues;
        break;
    }
    return made;
}

// The four lines around boxes are thick, and reach into the corners.
void PutLines(Page& page, double left, double top, double side) {
    const double cell = side / 9;
    const double thin = std::max(kThinnestThin, kThinShare * side);
    const double thick = std::max(kThinnestThick, kThickShare * side);
    for (int line = 0; line <= 9; ++line) {
        const double width = line % 3 == 0 ? thick : thin;
        // The outermost lines lie inside, so that the grid is as large as it says.
        const double at = line == 0 ? 0 : line == 9 ? side - width : line * cell - width / 2;
        page.bars.push_back({left + at, top, width, side});
        page.bars.push_back({left, top + at, side, width});
    }
}

void PutMarks(Page& page, double x, double y, double cell, Marks marks) {
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (HasMark(marks, digit)) {
            const int place = digit - 1;
            page.labels.push_back({std::to_string(digit), x + (place % 3 - 1) * kMarkPitch * cell,
                                   y + (place / 3 - 1) * kMarkPitch * cell, kMarkShare * cell});
        }
    }
}

void PutGrid(Page& page, double left, double top, double side, const GridContent& content) {
    PutLines(page, left, top, side);
    const double cell = side / 9;
    for (int number = 0; number < kCells; ++number) {
        const auto at = static_cast<std::size_t>(number);
        const double x = left + (CellColumn(number) + 0.5) * cell;
        const double y = top + (CellRow(number) + 0.5) * cell;
        if (content.digits[at] == 0) {
            PutMarks(page, x, y, cell, content.marks[at]);
            continue;
        }
        const bool isClue = content.clues[at] != 0;
        page.labels.push_back({std::to_string(content.digits[at]), x, y, kDigitShare * cell,
                               isClue ? PageWeight::Bold : PageWeight::Regular});
    }
}

double CaptionSize(double side) {
    return std::clamp(kCaptionShare * side, kSmallestCaption, kLargestCaption);
}

// In the middle of its room, the caption above it.
void PutSudoku(Page& page, const Room& room, const PrintedSudoku& sudoku, PrintContent content,
               CaptionKind kind) {
    const double widest = std::min(room.width, kLargestSide);
    const double line = kCaptionLine * CaptionSize(widest);
    const double side = std::min(widest, room.height - line);
    const double left = room.left + (room.width - side) / 2;
    const double top = room.top + (room.height - line - side) / 2;
    const double size = CaptionSize(side);
    const double middle = top + line - size;
    page.labels.push_back(
        {CaptionOf(sudoku), left, middle, size, PageWeight::Bold, PageAlign::Left});
    if (kind == CaptionKind::NameAndTime && !sudoku.best.IsNone()) {
        page.labels.push_back({"Best time " + FormatTime(sudoku.best), left + side, middle, size,
                               PageWeight::Regular, PageAlign::Right});
    }
    PutGrid(page, left, top + line, side, ContentOf(sudoku, content));
}

// In rows of `columns`, from the upper left. Rows that have room to spare move together.
void PutSudokus(Page& page, const Room& room, Sudokus sudokus, int columns, int rows,
                PrintContent content, CaptionKind kind) {
    const double width = (room.width - (columns - 1) * kColumnGap) / columns;
    const double side = std::min(width, kLargestSide);
    const double height = std::min((room.height - (rows - 1) * kRowGap) / rows,
                                   side + kCaptionLine * CaptionSize(side) + kSpareRoom);
    const double pitch = height + kRowGap;
    const double top = room.top + (room.height - rows * pitch + kRowGap) / 2;
    for (std::size_t index = 0; index < sudokus.size(); ++index) {
        const int column = static_cast<int>(index) % columns;
        const int row = static_cast<int>(index) / columns;
        PutSudoku(page,
                  {room.left + column * (width + kColumnGap), top + row * pitch, width, height},
                  sudokus[index], content, kind);
    }
}

// Adds all that stands on `part`, turned upside down within the room.
void PutTurned(Page& page, const Room& room, const Page& part) {
    const double acrossTwice = 2 * room.left + room.width;
    const double downTwice = 2 * room.top + room.height;
    for (const PageBar& bar : part.bars) {
        page.bars.push_back({acrossTwice - bar.left - bar.width, downTwice - bar.top - bar.height,
                             bar.width, bar.height});
    }
    for (PageLabel label : part.labels) {
        label.x = acrossTwice - label.x;
        label.y = downTwice - label.y;
        label.isTurned = true;
        page.labels.push_back(std::move(label));
    }
}

// Takes the foot with the solutions off the room.
void PutFoot(Page& page, Room& room, Sudokus sudokus) {
    const double line = kCaptionLine * CaptionSize(kFootSide);
    const double height = kFootHeadingRoom + line + kFootSide;
    room.height -= height + 2 * kFootGap;
    const double rule = room.top + room.height + kFootGap;
    page.bars.push_back({room.left, rule, room.width, kRule});

    const Room foot{room.left, rule + kFootGap, room.width, height};
    Page part;
    part.labels.push_back({"Solutions", foot.left + foot.width / 2, foot.top + kFootHeading,
                           kFootHeading, PageWeight::Bold});
    const double pitch = foot.width / kFootPlaces;
    double left = foot.left + (foot.width - pitch * static_cast<double>(sudokus.size())) / 2;
    for (const PrintedSudoku& sudoku : sudokus) {
        PutSudoku(part,
                  {left + (pitch - kFootSide) / 2, foot.top + kFootHeadingRoom, kFootSide,
                   line + kFootSide},
                  sudoku, PrintContent::Solution, CaptionKind::Name);
        left += pitch;
    }
    PutTurned(page, foot, part);
}

void PutPuzzlePage(Page& page, Room room, Sudokus sudokus, int places, const PageStyle& style) {
    std::vector<PrintedSudoku> solved;
    std::ranges::copy_if(sudokus, std::back_inserter(solved), &PrintedSudoku::HasSolution);
    if (style.solutions == SolutionPlace::Foot && style.content != PrintContent::Solution &&
        !solved.empty()) {
        PutFoot(page, room, solved);
    }
    const int columns = places == 4 ? 2 : 1;
    PutSudokus(page, room, sudokus, columns, places / columns, style.content,
               CaptionKind::NameAndTime);
}

void PutSolutionPage(Page& page, Room room, Sudokus sudokus) {
    page.labels.push_back({"Solutions", room.left, room.top + kHeading / 2, kHeading,
                           PageWeight::Bold, PageAlign::Left});
    room.top += kHeadingRoom;
    room.height -= kHeadingRoom;
    PutSudokus(page, room, sudokus, kLastColumns, kLastRows, PrintContent::Solution,
               CaptionKind::Name);
}

int Shares(int count, int each) {
    return (count + each - 1) / each;
}

// On each page with puzzles: alike on all of them, though the last may not be full.
int PlacesOn(const PrintJob& job) {
    const int most = std::min(job.style.perPage, static_cast<int>(job.sudokus.size()));
    return *std::ranges::lower_bound(kPerPage, most);
}

int PuzzlePages(const PrintJob& job) {
    return Shares(static_cast<int>(job.sudokus.size()), job.style.perPage);
}

// Those that stand on the last pages.
int LastSolutions(const PrintJob& job) {
    const PageStyle& style = job.style;
    if (style.solutions != SolutionPlace::LastPages || style.content == PrintContent::Solution) {
        return 0;
    }
    return static_cast<int>(std::ranges::count_if(job.sudokus, &PrintedSudoku::HasSolution));
}

Sudokus Part(Sudokus all, int number, int each) {
    const auto first = static_cast<std::size_t>(number) * static_cast<std::size_t>(each);
    return all.subspan(first, std::min(static_cast<std::size_t>(each), all.size() - first));
}

std::vector<PrintedSudoku> SolvedPart(const PrintJob& job, int number) {
    std::vector<PrintedSudoku> part;
    int passed = number * kOnLastPage;
    for (const PrintedSudoku& sudoku : job.sudokus) {
        if (part.size() == static_cast<std::size_t>(kOnLastPage)) {
            break;
        }
        if (sudoku.HasSolution() && --passed < 0) {
            part.push_back(sudoku);
        }
    }
    return part;
}

}  // namespace

PrintedSudoku PrintedFrom(const PuzzleRecord& record, int level, int number) {
    PrintedSudoku sudoku;
    sudoku.level = level;
    sudoku.number = number;
    sudoku.best = record.best;
    sudoku.clues = record.clues;
    sudoku.solution = record.solution;
    sudoku.digits = record.clues;
    return sudoku;
}

PaperSize SizeOf(Paper paper) {
    return paper == Paper::A4 ? PaperSize{210, 297} : PaperSize{215.9, 279.4};
}

int PageCount(const PrintJob& job) {
    return PuzzlePages(job) + Shares(LastSolutions(job), kOnLastPage);
}

Page MakePage(const PrintJob& job, int number) {
    assert(number >= 0 && number < PageCount(job) && "the page is one of the job's");
    const PaperSize paper = SizeOf(job.style.paper);
    Page page{paper.width, paper.height, {}, {}};
    Room room{kPageMargin, kPageMargin, paper.width - 2 * kPageMargin,
              paper.height - 2 * kPageMargin};
    const int count = PageCount(job);
    if (count > 1) {
        page.labels.push_back(
            {"Page " + std::to_string(number + 1) + " of " + std::to_string(count), paper.width / 2,
             paper.height - kPageMargin - kFooter / 2, kFooter});
        room.height -= kFooterRoom;
    }
    const int puzzlePages = PuzzlePages(job);
    if (number < puzzlePages) {
        PutPuzzlePage(page, room, Part(job.sudokus, number, job.style.perPage), PlacesOn(job),
                      job.style);
    } else {
        PutSolutionPage(page, room, SolvedPart(job, number - puzzlePages));
    }
    return page;
}

std::string CaptionOf(const PrintedSudoku& sudoku) {
    if (sudoku.level == 0) {
        return "Sudoku";
    }
    const std::string level(LevelName(sudoku.level));
    return sudoku.number == 0 ? level : level + " " + std::to_string(sudoku.number);
}

}  // namespace vemo
