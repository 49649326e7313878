// The finned X-Wing: two lines that would be an X-Wing but for a fin.
#include <algorithm>
#include <bit>

#include "solver/techniques/families.h"
#include "solver/techniques/fish.h"
#include "solver/text.h"

namespace vemo {
namespace {

// Base lines by their index among the lines of their kind, cover lines among the crossing ones.
struct FinnedFish {
    int exact;   // the base line with the digit on the two cover lines alone
    int finned;  // the other one
    int plain;   // the cover line away from the fin
    int beside;  // the cover line that shares a box with the fin
};

CellSet BoxBeside(UnitKind base, const FinnedFish& fish) {
    const Unit& finned = UnitOf(base, fish.finned);
    return UnitAround(UnitKind::Box, finned.cells[static_cast<std::size_t>(fish.beside)]).set;
}

// The finned line holds the digit on the plain cover line, and elsewhere only in the box where it
// crosses the other one, at least once beside the crossing.
bool HasFin(const Members& lines, const FinnedFish& fish) {
    const unsigned finned = lines[static_cast<std::size_t>(fish.finned)];
    const unsigned plain = 1u << fish.plain;
    const unsigned crossing = 1u << fish.beside;
    const unsigned box = 7u << (fish.beside / 3 * 3);
    const unsigned others = finned & ~plain;
    return (finned & plain) != 0 && (others & ~box) == 0 && (others & ~crossing) != 0;
}

// Answers whether the search shall go on.
bool OfferFinned(const Grid& grid, UnitKind baseKind, int digit, const FinnedFish& fish,
                 FindSink& sink) {
    const UnitKind coverKind = CrossingKind(baseKind);
    const CellSet places = grid.Candidates(digit);
    const unsigned baseLines = 1u << fish.exact | 1u << fish.finned;
    const CellSet base = LinesOf(baseKind, baseLines) & places;
    const CellSet beside = UnitOf(coverKind, fish.beside).set & BoxBeside(baseKind, fish);
    const CellSet losers = (places & beside) - base;
    if (!losers.Any()) {
        return true;
    }
    const CellSet corners = base & LinesOf(coverKind, 1u << fish.plain | 1u << fish.beside);
    Find find;
    find.kind = HintKind::FinnedXWing;
    find.AddUnit(UnitOf(baseKind, std::min(fish.exact, fish.finned)));
    find.AddUnit(UnitOf(baseKind, std::max(fish.exact, fish.finned)));
    find.AddCells(base);
    find.AddDigit(digit);
    find.firstColor = Find::CandidatesOf(grid, corners, MarkOf(digit));
    find.secondColor = Find::CandidatesOf(grid, base - corners, MarkOf(digit));
    find.Remove(grid, losers, MarkOf(digit));
    return sink.Offer(find);
}

// The finned X-Wings with this exact line. Answers whether the search shall go on.
bool SearchFromLine(const Grid& grid, UnitKind baseKind, int digit, const Members& lines, int exact,
                    FindSink& sink) {
    const unsigned cover = lines[static_cast<std::size_t>(exact)];
    const int low = std::countr_zero(cover);
    const int high = std::countr_zero(cover & (cover - 1));
    for (int finned = 0; finned < 9; ++finned) {
        if (finned == exact) {
            continue;
        }
        for (const FinnedFish& fish :
             {FinnedFish{exact, finned, high, low}, FinnedFish{exact, finned, low, high}}) {
            if (HasFin(lines, fish) && !OfferFinned(grid, baseKind, digit, fish, sink)) {
                return false;
            }
        }
    }
    return true;
}

std::string FinsOf(const Find& find) {
    return JoinCells(CellsOf(find.secondColor));
}

}  // namespace

// One line holds the digit on two crossing lines alone; another one on the first of these, perhaps
// on the second, and beside the second within the same box: the fin. Where no fin is true the two
// lines are an X-Wing, or, without the place on the second (sashimi), the two must take one place
// on each crossing line all the same: the second has its digit on one of the two lines. Where a fin
// is true its box has its digit. Both ways it goes from the second crossing line within the fin's
// box. All digits with rows as base lines, then all with columns; within a digit by the line
// without a fin, then the one with it, then the crossing line at the fin.
void FinnedXWing(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    for (UnitKind base : kLineKinds) {
        for (int digit = 1; digit <= kDigits; ++digit) {
            const Members lines = CrossingsOf(grid, base, digit);
            for (int exact = 0; exact < 9; ++exact) {
                const bool hasTwo = BitCount(lines[static_cast<std::size_t>(exact)]) == 2;
                if (hasTwo && !SearchFromLine(grid, base, digit, lines, exact, sink)) {
                    return;
                }
            }
        }
    }
}

std::string FinnedXWingLog(const Find& find) {
    return "Finned X-Wing: " + FishWords(find).baseInLog + " with fin " + FinsOf(find) +
           RemovedInLog(find);
}

std::string FinnedXWingHint(const Find& find) {
    const FishWords words(find);
    // All removals lie on the cover line at the fin.
    const UnitKind coverKind = CrossingKind(find.UnitAt(0).kind);
    const Unit& beside = UnitAround(coverKind, find.removals[0].cell);
    return "FINNED X-WING: Since number " + words.digit + " in " + words.baseKind + " " +
           words.base + " appears, apart from the fin at " + FinsOf(find) + ", only in the two " +
           words.coverKind + " " + words.cover +
           ", either the fin is true or the X-Wing is, and this number can't be in any cell of " +
           std::string(UnitWord(beside)) + " " + UnitLabel(beside) +
           " outside the X-Wing that shares a block with the fin";
}

}  // namespace vemo
