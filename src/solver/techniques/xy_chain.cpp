// Chains of bivalue cells.
#include <algorithm>
#include <bitset>
#include <vector>

#include "solver/techniques/alternating_path.h"
#include "solver/techniques/families.h"
#include "solver/text.h"

namespace vemo {
namespace {

constexpr int kFewestCells = 3;

// The candidates of the bivalue cells, numbered by cell, then digit: those of one cell differ in
// the last bit.
constexpr int OtherOfCell(int candidate) {
    return candidate ^ 1;
}

class BivalueLinks {
  public:
    explicit BivalueLinks(const Position& position)
        : candidates_(Find::CandidatesOf(position.Cells(), position.BivalueCells(), kAllMarks)),
          lost_(Count(), Count()),
          following_(Count(), Count()) {
        for (int one = 0; one < Count(); ++one) {
            for (int other = one + 1; other < Count(); ++other) {
                Link(one, other);
            }
        }
        Close();
    }

    int Count() const { return static_cast<int>(candidates_.size()); }
    CellDigit operator[](int candidate) const {
        return candidates_[static_cast<std::size_t>(candidate)];
    }
    // The candidates that are lost where this one comes.
    const BitRows& Lost() const { return lost_; }
    // Those that come where this one comes, over however many cells.
    const BitRows& Following() const { return following_; }

  private:
    void Link(int one, int other) {
        const auto [cell, digit] = (*this)[one];
        if (digit == (*this)[other].digit && Peers(cell).Has((*this)[other].cell)) {
            lost_.Add(one, other);
            lost_.Add(other, one);
            following_.Add(one, OtherOfCell(other));
            following_.Add(other, OtherOfCell(one));
        }
    }
    void Close() {
        for (int through = 0; through < Count(); ++through) {
            for (int from = 0; from < Count(); ++from) {
                if (following_.Has(from, through)) {
                    Unite(following_.Row(from), following_.Row(through), following_.Words());
                }
            }
        }
    }

    std::vector<CellDigit> candidates_;
    BitRows lost_;
    BitRows following_;
};

// What comes, cell by cell, where the first cell does not take this digit: the last cell takes it.
struct Chain {
    int digit;
    std::vector<CellDigit> comes;

    CellSet Ends() const {
        return CellSet::Of(comes.front().cell) | CellSet::Of(comes.back().cell);
    }
};

// The chains that take something away, one for each two ends.
class ChainSearch {
  public:
    explicit ChainSearch(const Position& position) : grid_(position.Cells()), links_(position) {}

    // By length, then first cell, then digit.
    std::vector<Chain> Run() {
        for (int first = 0; first < links_.Count(); ++first) {
            first_ = first;
            FindEnds();
            if (!ends_.empty()) {
                Follow();
                Detour();
            }
        }
        std::ranges::stable_sort(chains_, {},
                                 [](const Chain& chain) { return chain.comes.size(); });
        return std::move(chains_);
    }

  private:
    // A chain up to the cell where this candidate comes.
    struct Way {
        int candidate;
        int before;  // the way up to the cell before it; kNone at the first
        CellSet cells;
    };
    static constexpr int kNone = -1;

    // The same digit in later cells, where it comes if the first one does not: from the earlier
    // of its two ends each chain is known.
    void FindEnds() {
        ends_.clear();
        const CellDigit own = links_[first_];
        const CellSet losers = Peers(own.cell) & grid_.Candidates(own.digit);
        const BitRows& following = links_.Following();
        ForEachBit(following.Row(OtherOfCell(first_)), following.Words(), [&](int last) {
            const CellDigit end = links_[last];
            if (last > first_ && end.digit == own.digit && (Peers(end.cell) & losers).Any()) {
                ends_.push_back(last);
            }
        });
    }

    // Breadth first; each candidate is met once.
    void Follow() {
        isMet_.reset();
        ways_.clear();
        ways_.push_back({OtherOfCell(first_), kNone, CellSet::Of(links_[first_].cell)});
        const BitRows& lost = links_.Lost();
        for (std::size_t at = 0; at < ways_.size() && !ends_.empty(); ++at) {
            ForEachBit(lost.Row(ways_[at].candidate), lost.Words(),
                       [&](int candidate) { GoOn(static_cast<int>(at), OtherOfCell(candidate)); });
        }
    }

    void GoOn(int way, int candidate) {
        CellSet cells = ways_[Index(way)].cells;
        const int cell = links_[candidate].cell;
        if (cells.Has(cell) || isMet_[Index(candidate)]) {
            return;
        }
        cells.Add(cell);
        isMet_.set(Index(candidate));
        ways_.push_back({candidate, way, cells});
        if (cells.Count() >= kFewestCells && std::erase(ends_, candidate) > 0) {
            AddChain(PathTo(static_cast<int>(ways_.size()) - 1));
        }
    }

    // The way by which a candidate was met may run through a cell that a chain needs later, while
    // another way to it does not. Such a chain is found by other means.
    void Detour() {
        for (int last : ends_) {
            const std::vector<int> path =
                AlternatingPath(links_.Lost(), links_.Count(), OtherOfCell(first_), last);
            if (!path.empty()) {
                AddChain(path);
            }
        }
    }

    std::vector<int> PathTo(int last) const {
        std::vector<int> path;
        for (int way = last; way != kNone; way = ways_[Index(way)].before) {
            path.push_back(ways_[Index(way)].candidate);
        }
        std::ranges::reverse(path);
        return path;
    }

    void AddChain(const std::vector<int>& path) {
        Chain chain{links_[first_].digit, {}};
        for (int candidate : path) {
            chain.comes.push_back(links_[candidate]);
        }
        chains_.push_back(std::move(chain));
    }

    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

    const Grid& grid_;
    BivalueLinks links_;
    int first_ = 0;          // the candidate that does not come
    std::vector<int> ends_;  // not reached yet
    std::vector<Way> ways_;
    std::bitset<2 * kCells> isMet_;
    std::vector<Chain> chains_;
};

// Its cells along the chain; its digit.
Find FindOf(const Grid& grid, const Chain& chain) {
    Find find;
    find.kind = HintKind::XYChain;
    find.AddDigit(chain.digit);
    int lost = chain.digit;
    for (const CellDigit& comes : chain.comes) {
        if (!find.cells.Empty()) {
            find.AddLink(find.firstColor.back(), At(comes.cell, lost), Find::Strength::Weak);
        }
        find.AddLink(At(comes.cell, lost), comes, Find::Strength::Strong);
        find.AddCell(comes.cell);
        find.firstColor.push_back(At(comes.cell, lost));
        find.firstColor.push_back(comes);
        lost = comes.digit;
    }
    for (ChainLink& link : find.links) {
        link.directed = true;
    }
    find.Remove(grid, CommonPeers(chain.Ends()), MarkOf(chain.digit));
    return find;
}

std::string ChainOfCells(const Find& find) {
    std::string text;
    for (int cell : find.cells) {
        text += (text.empty() ? "" : " - ") + CellName(cell);
    }
    return text;
}

}  // namespace

// Three or more cells with two candidates, each seeing the next: the first holds z and another
// digit, the second this digit and another, and so on, the last one z again. If the first is not
// z, each next one loses the digit that it shares with the one before it, and the last is z: one
// of the two ends is z, and every cell that sees both loses it, those of the chain not excepted.
//
// The shortest first; then by the first cell, which is the earlier of the two ends, and by z. Of
// several chains between two ends the one that is met first when all are followed breadth first,
// the next cells in ascending order; where none is met though there is one, any.
void XYChain(const Position& position, const Args&, FindSink& sink) {
    for (const Chain& chain : ChainSearch(position).Run()) {
        if (!sink.Offer(FindOf(position.Cells(), chain))) {
            return;
        }
    }
}

std::string XYChainLog(const Find& find) {
    return "XY-Chain: Cells " + ChainOfCells(find) + RemovedInLog(find);
}

std::string XYChainHint(const Find& find) {
    const std::string digit = JoinDigits(Items(find.digits));
    const std::string last = CellName(find.cells[find.cells.Size() - 1]);
    return "XY-CHAIN: Since each cell of the chain " + ChainOfCells(find) +
           " holds only two candidates and a number other than " + digit + " at " +
           CellName(find.cells[0]) + " forces " + digit + " at " + last +
           ", one of these two cells must be " + digit +
           " and this number can't be in any cell that sees both";
}

}  // namespace vemo
