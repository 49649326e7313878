// Fish: a digit whose places on some lines lie on as many crossing lines.
#include "solver/techniques/fish.h"

#include <algorithm>
#include <bit>
#include <utility>
#include <vector>

#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

// Base and cover lines, bit k for line k of their kind.
struct Fish {
    unsigned base;
    unsigned cover;
};

// Base lines that have as many crossing lines between them need one digit each, and have it on one
// of these each: the digit goes from the cover lines outside the base lines. Answers whether the
// search shall go on.
bool OfferFish(const Grid& grid, UnitKind baseKind, HintKind kind, int digit, const Fish& fish,
               FindSink& sink) {
    const CellSet places = grid.Candidates(digit);
    const CellSet base = LinesOf(baseKind, fish.base);
    const CellSet losers = (places & LinesOf(CrossingKind(baseKind), fish.cover)) - base;
    if (!losers.Any()) {
        return true;
    }
    Find find;
    find.kind = kind;
    for (int index = 0; index < 9; ++index) {
        if ((fish.base >> index & 1) != 0) {
            find.AddUnit(UnitOf(baseKind, index));
        }
    }
    find.AddCells(base & places);
    find.AddDigit(digit);
    find.Remove(grid, losers, MarkOf(digit));
    return sink.Offer(find);
}

// All digits with rows as base lines, then all with columns. `fishOf(lines, offer)` offers the fish
// among a digit's base lines for as long as `offer` answers that the search shall go on, and
// answers the same.
template <typename FishOf>
void SearchFish(const Grid& grid, HintKind kind, FishOf fishOf, FindSink& sink) {
    for (UnitKind base : kLineKinds) {
        for (int digit = 1; digit <= kDigits; ++digit) {
            const auto offer = [&](const Fish& fish) {
                return OfferFish(grid, base, kind, digit, fish, sink);
            };
            if (!fishOf(CrossingsOf(grid, base, digit), offer)) {
                return;
            }
        }
    }
}

// A digit that stands on `size` lines, twice or more on each, only where `size` crossing lines pass
// goes from the rest of these. Within a digit by the base lines, in lexicographic order.
void SearchFishOfSize(const Position& position, HintKind kind, int size, FindSink& sink) {
    const auto fishOf = [size](const Members& lines, const auto& offer) {
        return ForEachSubset(lines, size, [&](unsigned base, unsigned cover) {
            return offer(Fish{base, cover});
        });
    };
    SearchFish(position.Cells(), kind, fishOf, sink);
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

std::string FishLog(const char* name, const Find& find) {
    return std::string(name) + ": " + FishWords(find).baseInLog + RemovedInLog(find);
}

std::string FishHint(const char* name, const char* size, const Find& find) {
    const FishWords words(find);
    return std::string(name) + ": Since number " + words.digit + " in the " + size + " " +
           words.baseKind + " " + words.base + " appears only in the same " + size + " " +
           words.coverKind + " " + words.cover +
           ", this number can't appear anywhere else in these " + words.coverKind;
}

}  // namespace

Members CrossingsOf(const Grid& grid, UnitKind base, int digit) {
    Members lines{};
    for (int cell : grid.Candidates(digit)) {
        lines[static_cast<std::size_t>(UnitIndexOf(base, cell))] |=
            1u << UnitIndexOf(CrossingKind(base), cell);
    }
    for (unsigned& line : lines) {
        line = BitCount(line) < 2 ? 0 : line;
    }
    return lines;
}

CellSet LinesOf(UnitKind kind, unsigned mask) {
    CellSet cells;
    for (; mask != 0; mask &= mask - 1) {
        cells |= UnitOf(kind, std::countr_zero(mask)).set;
    }
    return cells;
}

FishWords::FishWords(const Find& find) {
    const CellSet corners = CellsOf(Items(find.cells)) - CellsOf(find.secondColor);
    std::vector<std::string> labels;
    const Unit& first = find.UnitAt(0);
    for (int index = 0; index < 9; ++index) {
        const Unit& line = UnitOf(CrossingKind(first.kind), index);
        if ((line.set & corners).Any()) {
            labels.push_back(UnitLabel(line));
            coverKind = LinesWord(line);
        }
    }
    digit = JoinDigits(Items(find.digits));
    base = JoinUnits(find, 0, find.units.Size());
    baseKind = LinesWord(first);
    cover = Join(labels);
    baseInLog = (first.kind == UnitKind::Row ? "Rows " : "Columns ") + base;
}

// A digit that stands only twice on two lines, both times on the same two crossing lines, takes one
// place on each of these: it goes from their other cells. All digits with rows as base lines, then
// all with columns; within a digit by the pair of crossing lines.
void XWing(const Position& position, const Args&, FindSink& sink) {
    const auto fishOf = [](const Members& lines, const auto& offer) {
        return std::ranges::all_of(XWingsOf(lines), offer);
    };
    SearchFish(position.Cells(), HintKind::XWing, fishOf, sink);
}

// A digit that stands on three lines, two or three times on each, only where the same three
// crossing lines pass: the three lines take a place on each of these, and it goes from their other
// cells. All digits with rows as base lines, then all with columns; within a digit by the base
// lines.
void SwordFish(const Position& position, const Args&, FindSink& sink) {
    SearchFishOfSize(position, HintKind::Swordfish, 3, sink);
}

// The same with four lines and four crossing lines.
void JellyFish(const Position& position, const Args&, FindSink& sink) {
    SearchFishOfSize(position, HintKind::Jellyfish, 4, sink);
}

std::string XWingLog(const Find& find) {
    const bool isRows = find.UnitAt(0).kind == UnitKind::Row;
    const std::string line = isRows ? "Row" : "Column";
    // Kept: the base lines are written as plain indices, 0 to 8.
    return "X-Wing in " + line + "s: " + line + "1=" + std::to_string(find.UnitAt(0).index) + " " +
           line + "2=" + std::to_string(find.UnitAt(1).index) + RemovedInLog(find);
}

std::string XWingHint(const Find& find) {
    const FishWords words(find);
    return "X-WING: Since number " + words.digit + " appears only twice in both " + words.base +
           ", and this number appears in the same two " + words.coverKind + " " + words.cover +
           ", this number can't appear anywhere else in these " + words.coverKind;
}

std::string SwordFishLog(const Find& find) {
    return FishLog("Swordfish", find);
}

std::string SwordFishHint(const Find& find) {
    return FishHint("SWORDFISH", "three", find);
}

std::string JellyFishLog(const Find& find) {
    return FishLog("Jellyfish", find);
}

std::string JellyFishHint(const Find& find) {
    return FishHint("JELLYFISH", "four", find);
}

}  // namespace vemo
