// Fish: a digit whose places on some lines lie on as many crossing lines.
#include <algorithm>
#include <vector>

#include "solver/techniques/combinations.h"
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// Base and cover lines, bit k for line k of their kind.
struct Fish {
    unsigned base;
    unsigned cover;
};

UnitKind CrossingKind(UnitKind line) {
    return line == UnitKind::Row ? UnitKind::Column : UnitKind::Row;
}

// By base line the crossing lines on which it holds the digit; a line with a single place is a
// hidden single and no base line.
Members CrossingsOf(const Grid& grid, UnitKind base, int digit) {
    Members lines{};
    for (int index = 0; index < 9; ++index) {
        unsigned& line = lines[static_cast<std::size_t>(index)];
        for (int cell : UnitOf(base, index).set& grid.Candidates(digit)) {
            line |= 1u << UnitIndexOf(CrossingKind(base), cell);
        }
        line = BitCount(line) < 2 ? 0 : line;
    }
    return lines;
}

CellSet LinesOf(UnitKind kind, unsigned mask) {
    CellSet cells;
    for (int index = 0; index < 9; ++index) {
        if ((mask >> index & 1) != 0) {
            cells |= UnitOf(kind, index).set;
        }
    }
    return cells;
}

void AddLines(Find& find, UnitKind kind, unsigned mask) {
    for (int index = 0; index < 9; ++index) {
        if ((mask >> index & 1) != 0) {
            find.AddUnit(UnitNumber(kind, index));
        }
    }
}

// The digit goes from the cover lines outside the base lines. Answers whether the search shall go
// on.
bool OfferFish(const Grid& grid, UnitKind baseKind, HintKind kind, int digit, const Fish& fish,
               FindSink& sink) {
    const UnitKind coverKind = CrossingKind(baseKind);
    const CellSet base = LinesOf(baseKind, fish.base);
    const CellSet cover = LinesOf(coverKind, fish.cover);
    Find find;
    find.kind = kind;
    if (!find.Remove(grid, cover - base, MarkOf(digit))) {
        return true;
    }
    AddLines(find, baseKind, fish.base);
    AddLines(find, coverKind, fish.cover);
    find.AddCells(base & grid.Candidates(digit));
    find.AddDigit(digit);
    return sink.Offer(find);
}

// The two lines whose places are exactly the same pair, in the order of that pair.
std::vector<Fish> XWingsOf(const Members& lines) {
    std::vector<Fish> fish;
    ForEachSubset(lines, 2, [&](unsigned base, unsigned cover) {
        // Three lines on two crossing lines are a contradiction, and no X-Wing.
        if (std::ranges::count(lines, cover) == 2) {
            fish.push_back({base, cover});
        }
        return true;
    });
    const auto pairOrder = [](const Fish& a) {
        return std::pair(std::countr_zero(a.cover), a.cover);
    };
    std::ranges::sort(fish, {}, pairOrder);
    return fish;
}

// The unit labels of a find from `first` on, joined: "A and D".
std::string Labels(const Find& find, std::size_t first, std::size_t count) {
    std::vector<std::string> labels;
    for (std::size_t k = first; k < first + count; ++k) {
        labels.push_back(UnitLabel(find.UnitAt(k)));
    }
    return Join(labels);
}

std::string_view PluralOf(const Unit& line) {
    return line.kind == UnitKind::Row ? "rows" : "columns";
}

}  // namespace

// A digit that stands only twice on two lines, both times on the same two crossing lines, takes one
// place on each of these: it goes from their other cells. All digits with rows as base lines, then
// all with columns; within a digit by the pair of crossing lines.
void XWing(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (UnitKind base : {UnitKind::Row, UnitKind::Column}) {
        for (int digit = 1; digit <= kDigits; ++digit) {
            for (const Fish& fish : XWingsOf(CrossingsOf(grid, base, digit))) {
                if (!OfferFish(grid, base, HintKind::XWing, digit, fish, sink)) {
                    return;
                }
            }
        }
    }
}

std::string XWingLog(const Find& find) {
    const bool isRows = find.UnitAt(0).kind == UnitKind::Row;
    const std::string line = isRows ? "Row" : "Column";
    // Kept: the base lines are written as plain indices, 0 to 8.
    return "X-Wing in " + line + "s: " + line + "1=" + std::to_string(find.UnitAt(0).index) + " " +
           line + "2=" + std::to_string(find.UnitAt(1).index) + RemovedInLog(find);
}

std::string XWingHint(const Find& find) {
    const std::string cover(PluralOf(find.UnitAt(2)));
    return "X-WING: Since number " + JoinDigits(Items(find.digits)) +
           " appears only twice in both " + Labels(find, 0, 2) +
           ", and this number appears in the same two " + cover + " " + Labels(find, 2, 2) +
           ", this number can't appear anywhere else in these " + cover;
}

}  // namespace vemo
