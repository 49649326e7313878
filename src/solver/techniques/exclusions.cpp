// Aligned pair exclusions.
#include <algorithm>
#include <cassert>

#include "solver/techniques/families.h"
#include "solver/techniques/pair_table.h"
#include "solver/text.h"

namespace vemo {
namespace {

// Whether the two base cells must see each other.
enum class BaseCells : std::uint8_t { Any, Aligned };

// A candidate that goes with none of another cell is excluded: whichever is true there, it is not.
class PairSearch {
  public:
    PairSearch(const Grid& grid, std::span<const AlmostLocked> excluders, BaseCells which)
        : grid_(grid), excluders_(excluders), which_(which), table_(grid, excluders) {
        const int words = bits_.Words();
        ForEachBit(bits_.All(), words, [&](int bit) {
            for (int word = 0; word < words; ++word) {
                const std::uint64_t without = table_.CellsWithoutPartner(bit, word);
                ForEachBit(&without, 1, [&](int other) {
                    Note(bits_.CellAt(bit), bits_.CellAt(64 * word + other));
                });
            }
        });
    }

    void OfferAll(FindSink& sink) const {
        for (int first : grid_.EmptyCells()) {
            for (int second : SecondsOf(first)) {
                if (!sink.Offer(FindAt(first, second))) {
                    return;
                }
            }
        }
    }

  private:
    CellSet& SecondsOf(int first) { return seconds_[static_cast<std::size_t>(first)]; }
    CellSet SecondsOf(int first) const { return seconds_[static_cast<std::size_t>(first)]; }

    void Note(int one, int other) {
        if (which_ == BaseCells::Any || Peers(one).Has(other)) {
            SecondsOf(std::min(one, other)).Add(std::max(one, other));
        }
    }

    Find FindAt(int first, int second) const {
        const Marks atFirst = ExcludedAt(first, second);
        const Marks atSecond = ExcludedAt(second, first);
        const CellSet base = CellSet::Of(first) | CellSet::Of(second);
        const CellSet excluders =
            ExcludersOf(first, atFirst, second) | ExcludersOf(second, atSecond, first);
        Find find = ExclusionBy(HintKind::PairExclusion, grid_, base, excluders);
        find.Remove(grid_, CellSet::Of(first), atFirst);
        find.Remove(grid_, CellSet::Of(second), atSecond);
        return find;
    }

    // The candidates of a cell that go with none of the other.
    Marks ExcludedAt(int cell, int other) const {
        const int own = bits_.BitOf(other);
        Marks excluded = 0;
        for (int digit : DigitsOf(grid_.MarksAt(cell))) {
            const int bit = bits_.BitOf(At(cell, digit));
            if ((table_.CellsWithoutPartner(bit, own / 64) >> (own % 64) & 1) != 0) {
                excluded |= MarkOf(digit);
            }
        }
        return excluded;
    }

    // Of every combination of these candidates with the other cell's that does not just repeat a
    // number, the first set that makes it impossible.
    CellSet ExcludersOf(int cell, Marks excluded, int other) const {
        CellSet cells;
        for (int digit : DigitsOf(excluded)) {
            for (int otherDigit : DigitsOf(grid_.MarksAt(other))) {
                cells |= ExcluderOf(At(cell, digit), At(other, otherDigit));
            }
        }
        return cells;
    }

    CellSet ExcluderOf(CellDigit one, CellDigit other) const {
        if (one.digit == other.digit) {
            return {};
        }
        const auto set = std::ranges::find_if(excluders_, [&](const AlmostLocked& excluder) {
            return excluder.Kills(one.digit).Has(one.cell) &&
                   excluder.Kills(other.digit).Has(other.cell);
        });
        assert(set != excluders_.end() && "what the table excludes has an excluder");
        return set->cells;
    }

    const Grid& grid_;
    std::span<const AlmostLocked> excluders_;
    BaseCells which_;
    PairTable table_;
    const CandidateBits& bits_ = table_.Bits();
    std::array<CellSet, kCells> seconds_;  // by first base cell
};

}  // namespace

// Two base cells, anywhere. Of the combinations of a candidate of each, those are impossible that
// repeat a number in a unit, and those that rob an almost locked set of one or two cells of two
// digits: it would have fewer digits than cells. A candidate all of whose combinations are
// impossible goes.
//
// By first, then second base cell; what goes from either is one find.
void APE(const Position& position, const Args&, FindSink& sink) {
    const auto excluders = position.AlmostLockedSets().UpTo(2);
    PairSearch(position.Cells(), excluders, BaseCells::Any).OfferAll(sink);
}

// The same with base cells that see each other and sets of up to three cells.
void ExtendedAPE(const Position& position, const Args&, FindSink& sink) {
    const auto excluders = position.AlmostLockedSets().UpTo(3);
    PairSearch(position.Cells(), excluders, BaseCells::Aligned).OfferAll(sink);
}

std::string PairExclusionLog(const Find& find) {
    return "Aligned Pair Exclusion: Cells " + JoinCells(Items(find.cells).first(2)) +
           RemovedInLog(find);
}

std::string PairExclusionHint(const Find& find) {
    const auto base = Items(find.cells).first(2);
    const auto excluders = Items(find.cells).subspan(2);
    const std::string repeating = Peers(base[0]).Has(base[1]) ? "repeat a number" : "";
    std::string impossible;
    if (!excluders.empty()) {
        impossible = "would leave no number for " +
                     std::string(excluders.size() == 1 ? "cell " : "one of the cells ") +
                     JoinCells(excluders);
    }
    const std::string between = impossible.empty() || repeating.empty() ? "" : " or ";
    return "ALIGNED PAIR EXCLUSION: Of all combinations of candidates in cells " + JoinCells(base) +
           ", those that " + impossible + between + repeating +
           " are impossible, and the removed candidates appear in no other combination";
}

}  // namespace vemo
