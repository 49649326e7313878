// Aligned triple exclusions.
#include <algorithm>

#include "solver/techniques/families.h"
#include "solver/techniques/pair_table.h"
#include "solver/text.h"

namespace vemo {
namespace {

// Of the sets with two digits more than cells in the wider form, the first in list order.
constexpr std::size_t kMostTripleSets = 1024;

bool HasBit(const std::uint64_t* row, int bit) {
    return (row[bit / 64] >> (bit % 64) & 1) != 0;
}
void RemoveBit(std::uint64_t* row, int bit) {
    row[bit / 64] &= ~(std::uint64_t{1} << (bit % 64));
}

// The sets that take three candidates of three digits to be robbed of too many.
class TripleTable {
  public:
    TripleTable(const Grid& grid, const CandidateBits& bits, std::span<const AlmostLocked> sets)
        : bits_(bits),
          setWords_(static_cast<int>(sets.size() + 63) / 64),
          robbers_(static_cast<int>(sets.size()), bits.Size()),
          robbed_(bits.Size(), static_cast<int>(sets.size())),
          thirds_(1, bits.Size()) {
        int number = 0;
        for (const AlmostLocked& set : sets) {
            std::uint64_t* robbers = robbers_.Row(number);
            bits.AddRobbers(grid, set, robbers);
            ForEachBit(robbers, bits.Words(), [&](int bit) { robbed_.Add(bit, number); });
            ++number;
        }
    }

    // Adds the candidates of other digits that rob a set together with this one.
    void AddAccomplices(int bit, std::uint64_t* row) const {
        ForEachBit(robbed_.Row(bit), setWords_,
                   [&](int set) { Unite(row, robbers_.Row(set), robbers_.Words()); });
        const std::uint64_t* same = bits_.OfDigit(bits_.CandidateAt(bit).digit);
        for (int word = 0; word < bits_.Words(); ++word) {
            row[word] &= ~same[word];
        }
    }

    // The third candidates that two of different digits exclude. Good until it is asked again.
    const std::uint64_t* ThirdsExcluded(int first, int second) {
        const int words = bits_.Words();
        std::uint64_t* thirds = thirds_.Row(0);
        std::fill_n(thirds, words, 0);
        for (int word = 0; word < setWords_; ++word) {
            std::uint64_t both = robbed_.Row(first)[word] & robbed_.Row(second)[word];
            for (; both != 0; both &= both - 1) {
                const std::uint64_t* robbers = robbers_.Row(64 * word + std::countr_zero(both));
                Unite(thirds, robbers, robbers_.Words());
            }
        }
        const std::uint64_t* firstDigit = bits_.OfDigit(bits_.CandidateAt(first).digit);
        const std::uint64_t* secondDigit = bits_.OfDigit(bits_.CandidateAt(second).digit);
        for (int word = 0; word < words; ++word) {
            thirds[word] &= ~(firstDigit[word] | secondDigit[word]);
        }
        return thirds;
    }

  private:
    const CandidateBits& bits_;
    int setWords_;
    BitRows robbers_;  // by set, the candidates that rob it
    BitRows robbed_;   // by candidate, the sets that it robs
    BitRows thirds_;
};

// Three base cells in order, then the cell and the digit of a candidate that they exclude.
constexpr std::size_t kBaseCells = 3;
using Exclusion = std::array<std::uint8_t, kBaseCells + 2>;

// Takes each candidate for true in turn and looks for two other cells, the second and the third,
// that it leaves no combination: then it is excluded. For one second cell all third ones are looked
// at in one go, as the bits of a row.
//
// A second cell is worth it only where the candidate touches it: where the cell loses one of its
// own to it, or has one that robs a set of three together with it. A cell that is not touched has
// all its candidates left: to exclude anything, one of the third cell alone must leave it without a
// partner. Such cells, the loners, count as touched. And where the third cell has nothing left,
// because the candidate itself leaves it without a partner, every cell counts as touched.
class TripleSearch {
  public:
    TripleSearch(const Grid& grid, std::span<const AlmostLocked> pairSets,
                 std::span<const AlmostLocked> tripleSets)
        : grid_(grid),
          pairs_(grid, pairSets),
          triples_(grid, bits_, tripleSets),
          accomplices_(bits_.Size(), bits_.Size()),
          touched_(bits_.Size(), bits_.Size()),
          work_(kWorkRows, bits_.Size()) {
        for (int cell : grid.EmptyCells()) {
            const int count = BitCount(grid.MarksAt(cell));
            if (count == 2 || count == 3) {
                few_.Add(cell);
            }
        }
        FindTouched();
    }

    void OfferAll(FindSink& sink) {
        std::copy_n(bits_.Cells(), words_, work_.Row(kLater));
        for (int lowest : grid_.EmptyCells()) {
            if (grid_.MarksAt(lowest) == 0) {
                continue;
            }
            RemoveBit(work_.Row(kLater), bits_.BitOf(lowest));
            ExcludeWithin(lowest);
            if (!OfferExcluded(sink)) {
                return;
            }
        }
    }

  private:
    // Own bits of cells: of the loners; of those behind the lowest base cell; of the third cells
    // that are left. And an empty row.
    enum WorkRow { kLoners, kLater, kThirds, kNone, kWorkRows };

    void FindTouched() {
        std::uint64_t* loners = work_.Row(kLoners);
        ForEachBit(bits_.All(), words_, [&](int bit) {
            for (int word = 0; word < words_; ++word) {
                loners[word] |= pairs_.CellsWithoutPartner(bit, word);
            }
        });
        ForEachBit(bits_.All(), words_, [&](int bit) {
            std::uint64_t* accomplices = accomplices_.Row(bit);
            triples_.AddAccomplices(bit, accomplices);
            const std::uint64_t* partners = pairs_.PartnersOf(bit);
            std::uint64_t* touched = touched_.Row(bit);
            std::uint64_t without = 0;
            for (int word = 0; word < words_; ++word) {
                const std::uint64_t lost = bits_.All()[word] & ~partners[word];
                touched[word] = bits_.CellsWith(lost | accomplices[word], word) | loners[word];
                without |= pairs_.CellsWithoutPartner(bit, word);
            }
            if (without != 0) {
                std::copy_n(bits_.Cells(), words_, touched);
            }
        });
    }

    // Collects the exclusions of the triples with this lowest cell: those of its own candidates,
    // and those of later cells' candidates, with it as the second cell.
    void ExcludeWithin(int lowest) {
        const CellSet inReach = AllPeers(Peers(lowest) & few_);
        const int own = bits_.BitOf(lowest);
        for (int bit = own - BitCount(grid_.MarksAt(lowest)); bit < own; ++bit) {
            ForEachBit(touched_.Row(bit), words_, [&](int second) {
                if (second > own && inReach.Has(bits_.CellAt(second))) {
                    ExcludeBeside(bit, second);
                }
            });
        }
        for (int bit = own + 1; bit < bits_.Size(); ++bit) {
            const auto [cell, digit] = bits_.CandidateAt(bit);
            if (digit != 0 && inReach.Has(cell) && HasBit(touched_.Row(bit), own)) {
                ExcludeBeside(bit, own);
            }
        }
    }

    // Finds the third cells that exclude the candidate together with a second one, given by its own
    // bit. The candidates of the second cell that rob no set of three with it come first: they cost
    // less, and hardly ever is a third cell left by one of them.
    void ExcludeBeside(int bit, int second) {
        const int word = second / 64;
        const std::uint64_t field = bits_.FieldOf(second);
        const std::uint64_t going = pairs_.PartnersOf(bit)[word] & field;
        const std::uint64_t accomplices = accomplices_.Row(bit)[word] & going;
        const std::uint64_t* thirds = work_.Row(kLater);
        for (std::uint64_t left = going & ~accomplices; left != 0; left &= left - 1) {
            const int other = 64 * word + std::countr_zero(left);
            if (!LeaveThirds(thirds, bit, other, work_.Row(kNone))) {
                return;
            }
            thirds = work_.Row(kThirds);
        }
        for (std::uint64_t left = accomplices; left != 0; left &= left - 1) {
            const int other = 64 * word + std::countr_zero(left);
            if (!LeaveThirds(thirds, bit, other, triples_.ThirdsExcluded(bit, other))) {
                return;
            }
            thirds = work_.Row(kThirds);
        }
        ForEachBit(thirds, words_, [&](int third) {
            Note(bits_.CandidateAt(bit), bits_.CellAt(second), bits_.CellAt(third));
        });
    }

    // Leaves of these third cells those without a candidate that goes with two others and is not
    // excluded besides. Answers whether there is any.
    bool LeaveThirds(const std::uint64_t* thirds, int bit, int other,
                     const std::uint64_t* excluded) {
        const int words = words_;
        const std::uint64_t* one = pairs_.PartnersOf(bit);
        const std::uint64_t* two = pairs_.PartnersOf(other);
        std::uint64_t* left = work_.Row(kThirds);
        std::uint64_t any = 0;
        for (int word = 0; word < words; ++word) {
            const std::uint64_t alive = one[word] & two[word] & ~excluded[word];
            left[word] = thirds[word] & bits_.CellsWithout(alive, word);
            any |= left[word];
        }
        return any != 0;
    }

    void Note(CellDigit excluded, int second, int third) {
        const CellSet common = Peers(excluded.cell) & Peers(second) & Peers(third) & few_;
        if (!common.Any() || third == second || third == excluded.cell) {
            return;
        }
        std::array<std::uint8_t, kBaseCells> base = {
            excluded.cell, static_cast<std::uint8_t>(second), static_cast<std::uint8_t>(third)};
        std::ranges::sort(base);
        exclusions_.push_back({base[0], base[1], base[2], excluded.cell, excluded.digit});
    }

    // A find a triple. Answers whether the search shall go on.
    bool OfferExcluded(FindSink& sink) {
        std::ranges::sort(exclusions_);
        const auto isOfOther = [](const Exclusion& one, const Exclusion& other) {
            return !std::equal(one.begin(), one.begin() + kBaseCells, other.begin());
        };
        bool goesOn = true;
        for (auto from = exclusions_.cbegin(); goesOn && from != exclusions_.cend();) {
            const auto to = std::find_if(from, exclusions_.cend(), [&](const Exclusion& other) {
                return isOfOther(*from, other);
            });
            goesOn = sink.Offer(FindOf({from, to}));
            from = to;
        }
        exclusions_.clear();
        return goesOn;
    }

    Find FindOf(std::span<const Exclusion> triple) const {
        CellSet base;
        for (std::size_t k = 0; k < kBaseCells; ++k) {
            base.Add(triple.front()[k]);
        }
        // Cells of few candidates that see them.
        Find find = ExclusionBy(HintKind::TripleExclusion, grid_, base, CommonPeers(base) & few_);
        for (std::size_t at = 0; at < triple.size(); ++at) {
            if (at == 0 || triple[at] != triple[at - 1]) {
                find.Remove(grid_, CellSet::Of(triple[at][3]), MarkOf(triple[at][4]));
            }
        }
        return find;
    }

    const Grid& grid_;
    PairTable pairs_;
    const CandidateBits& bits_ = pairs_.Bits();
    int words_ = bits_.Words();
    TripleTable triples_;
    CellSet few_;          // the cells with two or three candidates
    BitRows accomplices_;  // by candidate, those that rob a set of three with it
    BitRows touched_;      // by candidate, the own bits of the cells that it touches
    BitRows work_;
    std::vector<Exclusion> exclusions_;
};

}  // namespace

// Three base cells that all see some cell with two or three candidates. Of the combinations of a
// candidate of each, those are impossible that repeat a number in a unit; those that rob a cell
// with two candidates of both; and those that rob a cell with three candidates of all of them. A
// candidate all of whose combinations are impossible goes.
//
// By the base cells in lexicographic order; what goes from the three is one find.
void ATE(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    const AlmostLockedList tripleSets(grid, 1, 2);
    TripleSearch(grid, position.AlmostLockedSets().UpTo(1), tripleSets.All()).OfferAll(sink);
}

// The same with sets of up to four cells that have one digit more than cells, robbed of two digits
// by a pair, and sets of up to three cells that have two more, robbed of three.
void ExtendedATE(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    const AlmostLockedList list(grid, 3, 2);
    const auto tripleSets = list.All().first(std::min(list.All().size(), kMostTripleSets));
    TripleSearch(grid, position.AlmostLockedSets().UpTo(4), tripleSets).OfferAll(sink);
}

std::string TripleExclusionLog(const Find& find) {
    return "Aligned Triple Exclusion: Cells " + JoinCells(Items(find.cells).first(kBaseCells)) +
           RemovedInLog(find);
}

std::string TripleExclusionHint(const Find& find) {
    return "ALIGNED TRIPLE EXCLUSION: Of all combinations of candidates in cells " +
           JoinCells(Items(find.cells).first(kBaseCells)) +
           ", those that repeat a number or would leave no number for a cell that sees them are "
           "impossible, and the removed candidates appear in no other combination";
}

}  // namespace vemo
