// Pairs of almost locked sets.
#include <algorithm>
#include <span>
#include <vector>

#include "solver/bit_rows.h"
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

constexpr int kCandidates = kCells * kDigits;

constexpr int CandidateNumber(int cell, int digit) {
    return cell * kDigits + digit - 1;
}

// The digits of both sets that only one of them can hold: all their places in the one see all those
// in the other.
Marks RestrictedCommon(const AlmostLocked& a, const AlmostLocked& b) {
    Marks restricted = 0;
    for (int digit : DigitsOf(a.digits & b.digits)) {
        if (a.Kills(digit).Contains(b.Places(digit))) {
            restricted |= MarkOf(digit);
        }
    }
    return restricted;
}

// What a pair takes, whether or not the digits are candidates there.
CellsByDigit TakenBy(const AlmostLocked& a, const AlmostLocked& b, Marks restricted) {
    CellsByDigit losers;
    const bool isDouble = (restricted & (restricted - 1)) != 0;
    const Marks unrestricted = kAllMarks & ~restricted;
    const auto losersOf = [&](int digit) -> CellSet& {
        return losers[static_cast<std::size_t>(digit - 1)];
    };
    for (int digit : DigitsOf(a.digits & b.digits & (isDouble ? kAllMarks : unrestricted))) {
        losersOf(digit) = a.Kills(digit) & b.Kills(digit);
    }
    if (isDouble) {
        for (const AlmostLocked* set : {&a, &b}) {
            for (int digit : DigitsOf(set->digits & unrestricted)) {
                losersOf(digit) |= set->Kills(digit);
            }
        }
    }
    return losers;
}

// A set kills a digit in the cells outside that hold it and see all its places in the set; for
// most digits of a set there are none. A restricted common digit stands in the other set only where
// this one kills it, and what a pair takes is killed by both. So only those pairs are looked at
// where one digit may be restricted and the sets kill another in a same cell, or two may be
// restricted: the partners of a set are united from rows of sets, by candidate.
class PairSearch {
  public:
    PairSearch(const Grid& grid, std::span<const AlmostLocked> sets, FindSink& sink)
        : grid_(grid),
          sets_(sets),
          sink_(sink),
          holding_(kCandidates, Size()),
          killing_(kCandidates, Size()),
          work_(kWorkRows, Size()) {
        for (int number = 0; number < Size(); ++number) {
            const AlmostLocked& set = Set(number);
            for (int digit : DigitsOf(set.digits)) {
                for (int cell : set.Places(digit)) {
                    holding_.Add(CandidateNumber(cell, digit), number);
                }
                for (int cell : Killed(set, digit)) {
                    killing_.Add(CandidateNumber(cell, digit), number);
                }
            }
        }
    }

    int Size() const { return static_cast<int>(sets_.size()); }

    // The pairs of a set with those from a number on. Answers whether the search shall go on.
    bool PairsOf(int number, int from) {
        FindPartners(Set(number));
        const std::uint64_t* partners = work_.Row(kPartners);
        for (int word = from / 64; word < work_.Words(); ++word) {
            const int skipped = word == from / 64 ? from % 64 : 0;
            std::uint64_t left = partners[word] & ~std::uint64_t{0} << skipped;
            for (; left != 0; left &= left - 1) {
                if (!Try(Set(number), Set(64 * word + std::countr_zero(left)))) {
                    return false;
                }
            }
        }
        return true;
    }

  private:
    // Of the set in hand: the sets that hold a digit that it kills, that kill a digit with it in a
    // same cell, by the digit in hand and by those before it; and those that do so by two digits.
    enum WorkRow { kHolding, kSharing, kHoldingBefore, kSharingBefore, kPartners, kWorkRows };

    const AlmostLocked& Set(int number) const { return sets_[static_cast<std::size_t>(number)]; }
    CellSet Killed(const AlmostLocked& set, int digit) const {
        return set.Kills(digit) & grid_.Candidates(digit);
    }

    void FindPartners(const AlmostLocked& set) {
        const int words = work_.Words();
        std::fill_n(work_.Row(0), kWorkRows * words, 0);
        for (int digit : DigitsOf(set.digits)) {
            const CellSet killed = Killed(set, digit);
            if (killed.Any()) {
                AddPartners(killed, digit);
            }
        }
    }

    void AddPartners(CellSet killed, int digit) {
        const int words = work_.Words();
        std::uint64_t* holding = work_.Row(kHolding);
        std::uint64_t* sharing = work_.Row(kSharing);
        std::fill_n(holding, 2 * words, 0);
        for (int cell : killed) {
            Unite(holding, holding_.Row(CandidateNumber(cell, digit)), words);
            Unite(sharing, killing_.Row(CandidateNumber(cell, digit)), words);
        }
        std::uint64_t* holdingBefore = work_.Row(kHoldingBefore);
        std::uint64_t* sharingBefore = work_.Row(kSharingBefore);
        std::uint64_t* partners = work_.Row(kPartners);
        for (int at = 0; at < words; ++at) {
            partners[at] |= (holdingBefore[at] & (holding[at] | sharing[at])) |
                            (sharingBefore[at] & holding[at]);
            holdingBefore[at] |= holding[at];
            sharingBefore[at] |= sharing[at];
        }
    }

    bool Try(const AlmostLocked& a, const AlmostLocked& b) {
        if ((a.cells & b.cells).Any()) {
            return true;
        }
        const Marks restricted = RestrictedCommon(a, b);
        return restricted == 0 || Offer(a, b, restricted);
    }

    bool Offer(const AlmostLocked& a, const AlmostLocked& b, Marks restricted) {
        const CellsByDigit losers = TakenBy(a, b, restricted);
        CellSet all;
        for (int digit = 1; digit <= kDigits; ++digit) {
            all |= losers[static_cast<std::size_t>(digit - 1)] & grid_.Candidates(digit);
        }
        if (!all.Any()) {
            return true;
        }
        Find find = FindOf(a, b, restricted);
        find.Remove(grid_, losers);
        return sink_.Offer(find);
    }

    // What the texts need: the sets in the two colours, which hold all their candidates, and the
    // restricted common digits.
    Find FindOf(const AlmostLocked& a, const AlmostLocked& b, Marks restricted) const {
        Find find;
        find.kind = a.cells.Count() == 1 ? HintKind::BivalueAlsXz : HintKind::AlsXz;
        find.AddCells(a.cells);
        find.AddCells(b.cells);
        find.AddDigits(restricted);
        find.firstColor = Find::CandidatesOf(grid_, a.cells, a.digits);
        find.secondColor = Find::CandidatesOf(grid_, b.cells, b.digits);
        for (int digit : DigitsOf(restricted)) {
            find.links.push_back({.from = a.Places(digit),
                                  .to = b.Places(digit),
                                  .fromDigit = static_cast<std::uint8_t>(digit),
                                  .toDigit = static_cast<std::uint8_t>(digit)});
        }
        return find;
    }

    const Grid& grid_;
    std::span<const AlmostLocked> sets_;
    FindSink& sink_;
    BitRows holding_;  // by candidate, the sets that hold it
    BitRows killing_;  // by candidate, the sets that lose a digit by it
    BitRows work_;
};

std::string WithCandidates(const std::vector<CellDigit>& set) {
    return CellsInHint(CellsOf(set)) + " (candidates " + JoinDigits(MarksOf(set)) + ")";
}

}  // namespace

// Two almost locked sets have no cell in common, and a digit x in common that only one of them can
// hold, because every place of it in the one sees every place in the other. The set without x is
// locked on its other digits: so every other digit z in common is in one of the two, and goes from
// the cells that see all its places in both. With two such digits x and y one set loses x and the
// other y, for a set that loses both is short. So both are locked on all that is left to them: each
// of these digits goes from the cells that see all its places in its set, and x and y from those
// that see all places in both.
//
// First a cell with two candidates and a larger set, then two larger sets; pairs in list order. Two
// such cells would show no more than a naked pair.
void ALSxz(const Position& position, const Args&, FindSink& sink) {
    const AlmostLockedList& list = position.AlmostLockedSets();
    const int bivalues = static_cast<int>(list.UpTo(1).size());
    PairSearch search(position.Cells(), list.All(), sink);
    for (int number = 0; number < search.Size(); ++number) {
        if (!search.PairsOf(number, std::max(number + 1, bivalues))) {
            return;
        }
    }
}

std::string ALSxzLog(const Find& find) {
    const std::string title = find.kind == HintKind::BivalueAlsXz ? "Bi-Value ALSxz" : "ALSxz";
    return title + ": Cells " + JoinCells(CellsOf(find.firstColor)) + " and cells " +
           JoinCells(CellsOf(find.secondColor)) + " with x=" + JoinDigits(Items(find.digits)) +
           RemovedInLog(find);
}

std::string ALSxzHint(const Find& find) {
    const std::string title = find.kind == HintKind::BivalueAlsXz ? "BI-VALUE ALSXZ" : "ALSXZ";
    const std::string digits = JoinDigits(Items(find.digits));
    if (find.digits.Size() > 1) {
        return title + ": Since the numbers " + digits + " are each allowed only once in " +
               CellsInHint(CellsOf(find.firstColor)) + " and " +
               CellsInHint(CellsOf(find.secondColor)) +
               " together, both sets are locked and their numbers can be discarded from the cells "
               "that see all their places";
    }
    const Marks going = MarksOf(Items(find.removals));
    return title + ": Since number " + digits + " can't be both in " +
           WithCandidates(find.firstColor) + " and in " + WithCandidates(find.secondColor) +
           ", one of the two sets must hold " + JoinDigits(going) +
           ", which can't be in any cell that sees all its places in both sets";
}

}  // namespace vemo
