// The links between the candidates of a position once more, plain: to hold the graph and the
// searches on it against.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "solver/bit_rows.h"
#include "solver/link_graph.h"
#include "thorough/completeness.h"

namespace vemo::test {

// Every find, those with equal effects, too.
class EveryFind final : public FindSink {
  public:
    bool Offer(const Find& find) override {
        finds.push_back(find);
        return true;
    }

    std::vector<Find> finds;
};

// Where there are more, most searches find hundreds of chains, which cost more than they show.
inline constexpr int kMostCandidates = 200;

// Sets of open cells of a unit with one digit more than cells, by size, unit and cells, each once.
inline std::vector<CellSet> PlainAlmostLocked(const Grid& grid, int size) {
    std::vector<CellSet> sets;
    for (int unit = 0; unit < 27; ++unit) {
        std::vector<int> cells;  // in the unit's own order, which is that of their numbers
        for (int cell : CellsOf(unit) & grid.EmptyCells()) {
            cells.push_back(cell);
        }
        // Choices of cells in lexicographic order.
        std::vector<bool> chosen(cells.size());
        std::fill_n(chosen.begin(), std::min<std::size_t>(chosen.size(), size), true);
        do {
            CellSet set;
            Marks digits = 0;
            bool canBeFilled = true;
            for (std::size_t k = 0; k < cells.size(); ++k) {
                if (chosen[k]) {
                    set.Add(cells[k]);
                    digits |= grid.MarksAt(cells[k]);
                    canBeFilled = canBeFilled && grid.MarksAt(cells[k]) != 0;
                }
            }
            if (canBeFilled && set.Count() == size && BitCount(digits) == size + 1 &&
                std::ranges::find(sets, set) == sets.end()) {
                sets.push_back(set);
            }
        } while (std::prev_permutation(chosen.begin(), chosen.end()));
    }
    return sets;
}

// Nodes and links by their numbers.
class PlainLinks {
  public:
    PlainLinks(const Grid& grid, GraphNodes kinds, GraphDigits digits) : grid_(grid) {
        for (int cell = 0; cell < kCells; ++cell) {
            for (int digit = 1; digit <= 9; ++digit) {
                if (grid.KnopAan(cell, digit)) {
                    AddNode(CellSet::Of(cell), digit);
                }
            }
        }
        singles = Size();
        if (kinds != GraphNodes::Single) {
            AddGroups();
        }
        if (kinds == GraphNodes::AlmostLocked) {
            for (int size = 2; size <= 4; ++size) {
                const std::vector<CellSet> some = PlainAlmostLocked(grid, size);
                sets.insert(sets.end(), some.begin(), some.end());
            }
            AddSets();
        }
        weak_ = BitRows(Size(), Size());
        strong_ = BitRows(Size(), Size());
        LinkByDigit();
        if (digits == GraphDigits::All) {
            LinkInCells();
        }
        for (CellSet set : sets) {
            LinkInSet(set);
        }
    }

    int Size() const { return static_cast<int>(nodes.size()); }
    // The number of a node; -1 where it is none.
    int Find(CellSet cells, int digit) const {
        const std::vector<int>& some = OfDigit(digit);
        const auto has = [&](int node) { return nodes[Index(node)].cells == cells; };
        const auto node = std::ranges::find_if(some, has);
        return node == some.end() ? -1 : *node;
    }
    bool IsWeak(int one, int other) const { return weak_.Has(one, other); }
    bool IsStrong(int one, int other) const { return strong_.Has(one, other); }
    const BitRows& Rows(LinkKind kind) const { return kind == LinkKind::Weak ? weak_ : strong_; }

    std::vector<LinkNode> nodes;
    int singles = 0;
    std::vector<CellSet> sets;  // almost locked

  private:
    const std::vector<int>& OfDigit(int digit) const { return ofDigit_[Index(digit)]; }
    void AddNode(CellSet cells, int digit) {
        ofDigit_[Index(digit)].push_back(Size());
        nodes.push_back({cells, digit});
    }
    void AddGroups() {
        for (int digit = 1; digit <= 9; ++digit) {
            for (int line = 0; line < 18; ++line) {
                for (int box = 18; box < 27; ++box) {
                    const CellSet crossing = CellsOf(line) & CellsOf(box);
                    const CellSet cells = Holders(grid_, crossing, digit);
                    if (cells.Count() >= 2) {
                        AddNode(cells, digit);
                    }
                }
            }
        }
    }
    void AddSets() {
        for (CellSet set : sets) {
            for (int digit = 1; digit <= 9; ++digit) {
                const CellSet cells = Holders(grid_, set, digit);
                if (cells.Any() && Find(cells, digit) < 0) {
                    AddNode(cells, digit);
                }
            }
        }
    }
    void LinkByDigit() {
        for (int digit = 1; digit <= 9; ++digit) {
            std::vector<CellSet> places;  // by unit
            for (int unit = 0; unit < 27; ++unit) {
                places.push_back(Holders(grid_, CellsOf(unit), digit));
            }
            for (int one : OfDigit(digit)) {
                const CellSet cells = nodes[Index(one)].cells;
                const CellSet seenByAll = SeenByAll(cells);
                // Nodes that make up a unit's places with this one.
                std::vector<CellSet> within = places;
                std::erase_if(within,
                              [&](CellSet all) { return all == cells || !all.Contains(cells); });
                for (int other : OfDigit(digit)) {
                    const CellSet otherCells = nodes[Index(other)].cells;
                    if (seenByAll.Contains(otherCells)) {
                        weak_.Add(one, other);
                    }
                    for (CellSet all : within) {
                        if ((cells | otherCells) == all && otherCells != all) {
                            strong_.Add(one, other);
                        }
                    }
                }
            }
        }
    }
    void LinkInCells() {
        for (int one = 0; one < singles; ++one) {
            for (int other = 0; other < singles; ++other) {
                if (one != other && nodes[Index(one)].cells == nodes[Index(other)].cells) {
                    const int cell = nodes[Index(one)].cells.First();
                    weak_.Add(one, other);
                    if (BitCount(grid_.MarksAt(cell)) == 2) {
                        strong_.Add(one, other);
                    }
                }
            }
        }
    }
    void LinkInSet(CellSet set) {
        std::vector<int> members;
        for (int digit = 1; digit <= 9; ++digit) {
            const CellSet cells = Holders(grid_, set, digit);
            if (cells.Any()) {
                members.push_back(Find(cells, digit));
            }
        }
        for (int one : members) {
            for (int other : members) {
                if (one != other) {
                    strong_.Add(one, other);
                }
            }
        }
    }

    const Grid& grid_;
    std::array<std::vector<int>, 10> ofDigit_;
    BitRows weak_;
    BitRows strong_;
};

// By number of links, from 1 on, weak and strong in turn from one of this kind on: the nodes to
// which so many lead, but no fewer; at most so many. A link of the one kind only ever follows one
// of the other, so that a node is reached off by every other number, on by those between.
class PlainLevels {
  public:
    PlainLevels(const PlainLinks& links, int start, LinkKind first, int most)
        : levels_(most + 1, links.Size()) {
        BitRows reached(2, links.Size());
        levels_.Add(0, start);
        LinkKind kind = first;
        for (int level = 1; level <= most && levels_.HasAny(level - 1); ++level) {
            std::uint64_t* row = levels_.Row(level);
            std::uint64_t* old = reached.Row(level % 2);
            ForEachBit(levels_.Row(level - 1), levels_.Words(),
                       [&](int node) { Unite(row, links.Rows(kind).Row(node), levels_.Words()); });
            for (int word = 0; word < levels_.Words(); ++word) {
                row[word] &= ~old[word];
                old[word] |= row[word];
            }
            kind = Other(kind);
        }
    }

    bool Has(int level, int node) const { return levels_.Has(level, node); }
    template <typename Visit>
    void ForEachNode(int level, Visit visit) const {
        ForEachBit(levels_.Row(level), levels_.Words(), visit);
    }

  private:
    BitRows levels_;
};

// Checks fifty positions where the slot finds something and fifty where it does not.
inline void OnPositionsOf(int slot, const std::function<void(const Grid&)>& check) {
    CheckFiftyOfEach(StepOfSlot(slot), {.mostCandidates = kMostCandidates}, check);
}

}  // namespace vemo::test
