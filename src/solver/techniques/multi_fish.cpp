// MultiFish: rows and columns whose common cells have room for just as many placements as they
// are.
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

#include "solver/techniques/families.h"
#include "solver/techniques/fish.h"
#include "solver/techniques/tight_crossings.h"
#include "solver/text.h"

namespace vemo {
namespace {

constexpr int kFewestCells = 4;
constexpr Lines kAllLines = 511;

// In how many of some sets each of the nine digits is, up to 7: nine numbers of three bits, those
// of the same weight together.
class DigitCounts {
  public:
    void Add(Marks set) {
        const Marks twos = ones_ & set;
        const Marks fours = twos_ & twos;
        ones_ ^= set;
        twos_ ^= twos;
        fours_ ^= fours;
    }
    // The digits that the other count has at least as often.
    Marks NotAbove(const DigitCounts& other) const {
        unsigned above = ones_ & ~other.ones_;
        above = (twos_ & ~other.twos_) | (~(twos_ ^ other.twos_) & above);
        above = (fours_ & ~other.fours_) | (~(fours_ ^ other.fours_) & above);
        return static_cast<Marks>(kAllMarks & ~above);
    }

  private:
    Marks ones_ = 0;
    Marks twos_ = 0;
    Marks fours_ = 0;
};

// The digits that each row and column holds on any choice of the lines that cross it. Where few
// cells are open nearly every crossing is tight; this keeps it cheap to look through them all.
class HeldDigits {
  public:
    explicit HeldDigits(const Grid& grid) {
        for (std::size_t line = 0; line < held_.size(); ++line) {
            for (std::size_t choice = 1; choice <= kAllLines; ++choice) {
                const auto last = static_cast<std::size_t>(std::countr_zero(choice));
                held_[line][choice] =
                    held_[line][choice & (choice - 1)] | grid.MarksAt(kUnits[line].cells[last]);
            }
        }
    }

    Marks On(const Unit& line, Lines crossing) const {
        return held_[static_cast<std::size_t>(UnitNumber(line.kind, line.index))][crossing];
    }
    Marks Off(const Unit& line, Lines crossing) const { return On(line, kAllLines & ~crossing); }

  private:
    std::array<std::array<Marks, kAllLines + 1>, 18> held_{};  // rows, columns; then choices
};

// The rows of a pattern, or its columns, and the lines that cross them there.
struct LineGroup {
    const HeldDigits& held;
    UnitKind kind;
    Lines lines;
    Lines crossing;

    // Calls `visit(line, inside, outside)` for each line: the digits that it holds where the
    // pattern's lines cross it, and those that it holds elsewhere.
    template <typename Visit>
    void ForEach(Visit visit) const {
        for (unsigned left = lines; left != 0; left &= left - 1) {
            const Unit& line = UnitOf(kind, std::countr_zero(left));
            visit(line, held.On(line, crossing), held.Off(line, crossing));
        }
    }

    DigitCounts Counts() const {
        DigitCounts counts;
        ForEach([&](const Unit&, Marks inside, Marks) { counts.Add(inside); });
        return counts;
    }
    // Whether a digit that is counted by these lines goes from any other cell.
    bool Takes(Marks counted) const {
        Marks taken = 0;
        ForEach([&](const Unit&, Marks inside, Marks outside) { taken |= inside & outside; });
        return (taken & counted) != 0;
    }
    void Take(Marks counted, CellsByDigit& taken) const {
        const CellSet met = LinesOf(CrossingKind(kind), crossing);
        ForEach([&](const Unit& line, Marks inside, Marks) {
            for (int digit : DigitsOf(inside & counted)) {
                taken[static_cast<std::size_t>(digit - 1)] |= line.set - met;
            }
        });
    }
    void AddUnits(Find& find) const {
        for (unsigned left = lines; left != 0; left &= left - 1) {
            find.AddUnit(UnitOf(kind, std::countr_zero(left)));
        }
    }
};

// A tight crossing: the digits that are counted by rows, and those by columns; where the numbers
// are equal, both.
struct Pattern {
    LineGroup rows;
    LineGroup columns;
    CellSet cells;
    Marks countedByRows;
    Marks countedByColumns;

    Pattern(const Grid& grid, const HeldDigits& held, const Crossing& tight)
        : rows{held, UnitKind::Row, tight.rows, tight.columns},
          columns{held, UnitKind::Column, tight.columns, tight.rows},
          cells(LinesOf(UnitKind::Row, tight.rows) & LinesOf(UnitKind::Column, tight.columns) &
                grid.EmptyCells()) {
        const DigitCounts inRows = rows.Counts();
        const DigitCounts inColumns = columns.Counts();
        countedByRows = inRows.NotAbove(inColumns);
        countedByColumns = inColumns.NotAbove(inRows);
    }

    bool IsFind() const {
        return cells.Count() >= kFewestCells &&
               (rows.Takes(countedByRows) || columns.Takes(countedByColumns));
    }
};

// A crossing as a number, the lower the earlier in the scan: the counts of lines in the highest
// bits, then the rows, then the columns.
std::uint32_t ScanNumber(const Crossing& at) {
    const int rowCount = BitCount(at.rows);
    const int lineCount = rowCount + BitCount(at.columns);
    return static_cast<std::uint32_t>(((lineCount << 3 | rowCount) << 9 | at.rows) << 9 |
                                      at.columns);
}
Crossing CrossingOf(std::uint32_t number) {
    return {static_cast<Lines>(number >> 9 & kAllLines), static_cast<Lines>(number & kAllLines)};
}

bool Offer(const Grid& grid, const Pattern& pattern, FindSink& sink) {
    Find find;
    find.kind = HintKind::MultiFish;
    pattern.rows.AddUnits(find);
    pattern.columns.AddUnits(find);
    find.AddCells(pattern.cells);
    const Marks others = static_cast<Marks>(kAllMarks & ~pattern.countedByRows);
    find.firstColor = Find::CandidatesOf(grid, pattern.cells, pattern.countedByRows);
    find.secondColor = Find::CandidatesOf(grid, pattern.cells, others);
    CellsByDigit taken;
    pattern.rows.Take(pattern.countedByRows, taken);
    pattern.columns.Take(pattern.countedByColumns, taken);
    find.Remove(grid, taken);
    return sink.Offer(find);
}

// The labels of a find's rows and of its columns.
struct Labels {
    std::string rows;
    std::string columns;

    explicit Labels(const Find& find) {
        std::size_t rowCount = 0;
        while (find.UnitAt(rowCount).kind == UnitKind::Row) {
            ++rowCount;
        }
        rows = JoinUnits(find, 0, rowCount);
        columns = JoinUnits(find, rowCount, find.units.Size() - rowCount);
    }
};

}  // namespace

// Two to five rows and two to five columns, with four open cells or more where they meet. A digit
// can stand there once in each of the rows that hold it there, and once in each of the columns; the
// smaller number counts. Where these numbers of all digits add up to that of the cells, every digit
// stands there in each of the lines by which it is counted: it goes from their other cells. With as
// many rows as columns it is counted either way, and goes from both. A larger sum proves nothing.
//
// By number of lines, then number of rows, then the mask of the rows, then that of the columns. The
// digits counted by rows are drawn in the first colour, the others in the second.
void MultiFish(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    if (grid.EmptyCount() < kFewestCells) {
        return;
    }
    const std::vector<Crossing> crossings = TightCrossings(grid);
    if (crossings.empty()) {
        return;
    }
    const HeldDigits held(grid);
    std::vector<std::uint32_t> scan;
    for (const Crossing& crossing : crossings) {
        if (Pattern(grid, held, crossing).IsFind()) {
            scan.push_back(ScanNumber(crossing));
        }
    }
    std::ranges::sort(scan);
    for (const std::uint32_t number : scan) {
        if (!Offer(grid, Pattern(grid, held, CrossingOf(number)), sink)) {
            return;
        }
    }
}

std::string MultiFishLog(const Find& find) {
    const Labels labels(find);
    return "MultiFish: Rows " + labels.rows + " and Columns " + labels.columns + RemovedInLog(find);
}

std::string MultiFishHint(const Find& find) {
    const Labels labels(find);
    std::vector<std::string> counted;
    if (!find.firstColor.empty()) {
        counted.push_back("of " + JoinDigits(MarksOf(find.firstColor)) + " one per row");
    }
    if (!find.secondColor.empty()) {
        counted.push_back("of " + JoinDigits(MarksOf(find.secondColor)) + " one per column");
    }
    const std::string count = std::to_string(find.cells.Size());
    return "MULTIFISH: Since the " + count + " open cells where rows " + labels.rows +
           " and columns " + labels.columns + " meet have room for only " + count +
           " placements (" + Join(counted, ", ") +
           "), each of these numbers can be discarded from the other cells of those rows or "
           "columns";
}

}  // namespace vemo
