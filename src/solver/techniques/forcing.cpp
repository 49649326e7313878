// Forcing chains: one of some candidates is true, and each of them leads to the same result.
#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "solver/techniques/chain_text.h"
#include "solver/techniques/consequences.h"
#include "solver/techniques/families.h"
#include "solver/techniques/link_ways.h"
#include "solver/text.h"

namespace vemo {
namespace {

constexpr int kMostRounds = 10;  // chains of 20 links
constexpr int kFewestSources = 3;

// Candidates of which one is true, and what follows from them all.
class SourceSet {
  public:
    using Nodes = Sequence<std::int16_t, kDigits>;

    SourceSet(HintKind kind, int unit, const Nodes& sources)
        : kind_(kind), unit_(unit), sources_(sources) {}

    HintKind Kind() const { return kind_; }
    int Unit() const { return unit_; }  // of sources in a unit
    int Count() const { return static_cast<int>(sources_.Size()); }
    const Nodes& Sources() const { return sources_; }
    bool Has(int node) const { return std::ranges::find(sources_, node) != sources_.end(); }

    // Whether any of these states follows from each source within so many rounds.
    bool LeadsTo(const BitRows& states, const Consequences& consequences, int rounds);

    // The states that follow from all sources, within one round each and so many more altogether.
    const std::uint64_t* Common(const Consequences& consequences, int more);

  private:
    void Extend(const Consequences& consequences);

    HintKind kind_;
    int unit_;
    Nodes sources_;
    bool leads_ = false;
    int tried_ = 0;  // rounds: all in vain or, where it leads, all but the last
    // By rounds: what follows like that from the first source, the first two, and so on.
    std::vector<std::uint64_t> common_;
    int extended_ = 0;  // so many rounds
};

bool SourceSet::LeadsTo(const BitRows& states, const Consequences& consequences, int rounds) {
    for (; !leads_ && tried_ < rounds; ++tried_) {
        std::array<const std::uint64_t*, kDigits> following{};
        std::ranges::transform(sources_, following.begin(),
                               [&](int source) { return consequences.Within(tried_ + 1, source); });
        for (int word = 0; word < consequences.Words() && !leads_; ++word) {
            std::uint64_t common = states.Row(0)[word];
            for (std::size_t k = 0; k < sources_.Size(); ++k) {
                common &= following[k][word];
            }
            leads_ = common != 0;
        }
    }
    return leads_ && tried_ <= rounds;
}

const std::uint64_t* SourceSet::Common(const Consequences& consequences, int more) {
    while (extended_ <= more) {
        Extend(consequences);
    }
    return common_.data() + ((more + 1) * Count() - 1) * consequences.Words();
}

// What follows from some sources by so many rounds more follows from all but the last of them by a
// part of these, and from the last one by the rest.
void SourceSet::Extend(const Consequences& consequences) {
    const int words = consequences.Words();
    const int more = extended_++;
    common_.resize(static_cast<std::size_t>(extended_ * Count() * words));
    const auto rowOf = [&](int rounds, std::size_t sources) {
        return common_.data() + (rounds * Count() + static_cast<int>(sources) - 1) * words;
    };
    std::copy_n(consequences.Within(more + 1, sources_[0]), words, rowOf(more, 1));
    for (std::size_t sources = 2; sources <= sources_.Size(); ++sources) {
        std::uint64_t* to = rowOf(more, sources);
        for (int rest = 0; rest <= std::min(more, consequences.Rounds() - 1); ++rest) {
            const std::uint64_t* before = rowOf(more - rest, sources - 1);
            const std::uint64_t* last = consequences.Within(rest + 1, sources_[sources - 1]);
            for (int word = 0; word < words; ++word) {
                to[word] |= before[word] & last[word];
            }
        }
    }
}

// A candidate that follows from all sources: off by a last link that is weak, on by a strong one.
struct Result {
    int node;
    LinkKind last;

    bool IsOn() const { return last == LinkKind::Strong; }
};

class ForcingSearch {
  public:
    // `open`: the states that would change something, without those offered already.
    ForcingSearch(const Grid& grid, const LinkGraph& graph, BitRows& open);

    // Answers whether to go on.
    bool Run(FindSink& sink);

  private:
    void AddSources(HintKind kind, int unit, CellSet cells, Marks marks);
    bool IsExhausted(SourceSet& set, int total);
    std::vector<Result> Results(SourceSet& set, int total);
    void AddOpen(const SourceSet& set, const std::uint64_t* states, LinkKind last,
                 std::vector<Result>& results) const;
    int BitOf(const Result& result) const {
        const StateBits& bits = consequences_.Bits();
        return result.IsOn() ? bits.On(result.node) : bits.Off(result.node);
    }
    Find FindOf(const SourceSet& set, const Result& result) const;
    void AddChain(Find& find, int source, const Result& result) const;

    const Grid& grid_;
    const LinkGraph& graph_;
    BitRows& open_;
    Consequences consequences_;
    std::vector<SourceSet> sets_;
};

ForcingSearch::ForcingSearch(const Grid& grid, const LinkGraph& graph, BitRows& open)
    : grid_(grid), graph_(graph), open_(open), consequences_(graph, kMostRounds) {
    sets_.reserve(kCells + kDigits * kUnitCount);
    for (int cell : grid.EmptyCells()) {
        AddSources(HintKind::ForcingFromCell, 0, CellSet::Of(cell), grid.MarksAt(cell));
    }
    for (int digit = 1; digit <= kDigits; ++digit) {
        for (int unit = 0; unit < kUnitCount; ++unit) {
            const CellSet cells = kUnits[static_cast<std::size_t>(unit)].set;
            AddSources(HintKind::ForcingFromUnit, unit, cells & grid.Candidates(digit),
                       MarkOf(digit));
        }
    }
}

void ForcingSearch::AddSources(HintKind kind, int unit, CellSet cells, Marks marks) {
    SourceSet::Nodes sources;
    for (int cell : cells) {
        for (int digit : DigitsOf(marks)) {
            sources.Add(static_cast<std::int16_t>(graph_.NodeOf(cell, digit)));
        }
    }
    if (sources.Size() >= kFewestSources) {
        sets_.emplace_back(kind, unit, sources);
    }
}

bool ForcingSearch::Run(FindSink& sink) {
    for (int total = kFewestSources; !sets_.empty(); ++total) {
        // A chain has as many links as the total leaves it beside two chains of one link each.
        if (total % 2 != 0) {
            consequences_.Advance();
        }
        if (consequences_.IsOver()) {
            std::erase_if(sets_, [&](SourceSet& set) { return IsExhausted(set, total); });
        }
        for (SourceSet& set : sets_) {
            for (const Result& result : Results(set, total)) {
                open_.Row(0)[BitOf(result) / 64] &= ~(std::uint64_t{1} << BitOf(result) % 64);
                if (!sink.Offer(FindOf(set, result))) {
                    return false;
                }
            }
        }
    }
    return true;
}

// Nothing further can follow from the set, where the consequences are over.
bool ForcingSearch::IsExhausted(SourceSet& set, int total) {
    const int longest = 2 * consequences_.Rounds();
    return total > longest * set.Count() || !set.LeadsTo(open_, consequences_, kMostRounds);
}

// What follows from all sources of the set by so many links altogether; by node, off before on.
std::vector<Result> ForcingSearch::Results(SourceSet& set, int total) {
    std::vector<Result> results;
    for (LinkKind last : {LinkKind::Weak, LinkKind::Strong}) {
        const int inFirstRounds = set.Count() * (last == LinkKind::Weak ? 1 : 2);
        const int more = total - inFirstRounds;
        if (more < 0 || more % 2 != 0 || !set.LeadsTo(open_, consequences_, more / 2 + 1)) {
            continue;
        }
        AddOpen(set, set.Common(consequences_, more / 2), last, results);
    }
    std::ranges::sort(results, {}, [](const Result& at) { return std::pair(at.node, at.last); });
    return results;
}

// Those of the states, off or on, that are open and none of the sources.
void ForcingSearch::AddOpen(const SourceSet& set, const std::uint64_t* states, LinkKind last,
                            std::vector<Result>& results) const {
    const int begin = BitOf({0, last}) / 64;
    for (int word = 0; word < consequences_.Bits().HalfWords(); ++word) {
        const std::uint64_t fresh = states[begin + word] & open_.Row(0)[begin + word];
        ForEachBit(&fresh, 1, [&](int bit) {
            const Result result{64 * word + bit, last};
            if (!set.Has(result.node)) {
                results.push_back(result);
            }
        });
    }
}

// The find's cells: of the sources; its digits: theirs; its unit: where one of them stands in it.
// Its second colour: the candidate that is on, none where one is off. Its links: the chains one
// after the other.
Find ForcingSearch::FindOf(const SourceSet& set, const Result& result) const {
    Find find;
    find.kind = set.Kind();
    if (set.Kind() == HintKind::ForcingFromUnit) {
        find.AddUnit(set.Unit());
    }
    CellSet cells;
    Marks digits = 0;
    for (int source : set.Sources()) {
        cells |= graph_.Node(source).cells;
        digits |= MarkOf(graph_.Node(source).digit);
        AddChain(find, source, result);
    }
    find.AddCells(cells);
    find.AddDigits(digits);
    find.firstColor = Find::CandidatesOf(grid_, cells, digits);
    const auto& [targetCell, digit] = graph_.Node(result.node);
    if (result.IsOn()) {
        find.secondColor = Find::CandidatesOf(grid_, targetCell, MarkOf(digit));
        find.Remove(grid_, targetCell, static_cast<Marks>(kAllMarks & ~MarkOf(digit)));
    } else {
        find.Remove(grid_, targetCell, MarkOf(digit));
    }
    return find;
}

void ForcingSearch::AddChain(Find& find, int source, const Result& result) const {
    LinkWays ways(graph_, source, LinkKind::Weak);
    const std::vector<int> nodes = ways.To(result.node, result.last);
    for (std::size_t at = 1; at < nodes.size(); ++at) {
        const Find::Strength strength = at % 2 != 0 ? Find::Strength::Weak : Find::Strength::Strong;
        find.links.push_back(LinkAlong(graph_, nodes[at - 1], nodes[at], strength));
    }
}

// The states of candidates that would change something: off, and on where the cell has others.
BitRows ChangingStates(const Grid& grid, const LinkGraph& graph) {
    const StateBits bits(graph);
    BitRows states(1, bits.Count());
    for (int node = 0; node < graph.Singles(); ++node) {
        states.Add(0, bits.Off(node));
        if (BitCount(grid.MarksAt(graph.Node(node).cells.First())) > 1) {
            states.Add(0, bits.On(node));
        }
    }
    return states;
}

// Each chain begins elsewhere than where the one before it ends.
std::string ChainsInLog(const Find& find) {
    const std::span<const ChainLink> links = find.links;
    std::string text;
    std::size_t begin = 0;
    for (std::size_t end = 1; end <= links.size(); ++end) {
        const bool goesOn = end < links.size() && links[end].from == links[end - 1].to &&
                            links[end].fromDigit == links[end - 1].toDigit;
        if (!goesOn) {
            text += (begin == 0 ? "" : "; ") + ChainText(links.subspan(begin, end - begin));
            begin = end;
        }
    }
    return " (" + text + ")";
}

std::string Conclusion(const Find& find) {
    const bool isOn = !find.secondColor.empty();
    const auto& [cell, digit] = isOn ? find.secondColor[0] : find.removals[0];
    const std::string place = " be at cell " + CellName(cell);
    return " leads to the same result, number " + std::to_string(digit) +
           (isOn ? " must" + place + " and the other candidates can be discarded"
                 : " can't" + place);
}

}  // namespace

// One of the candidates of a cell is true, and so is one of the places of a digit in a unit. Where
// a chain of implications leads from each of three or more such sources to the same result, that
// holds: a candidate that is off goes; where one is on, the others of its cell go, and the single
// is left to the next pass. The result is none of the sources. A chain has at most 20 links, weak
// and strong in turn from a weak one on, each a shortest one of its source.
//
// The chains run along candidates and groups. Behind all that these lead to comes what the same
// search finds along almost locked sets, too: such a set without one of its digits has all others.
//
// By the number of links of all chains together; then cells before units, cells in order, units by
// digit, then unit; then by the result's cell and digit, off before on. Of several chains to a
// result, and of those with the same effects, the first.
void Forcing(const Position& position, const Args&, FindSink& sink) {
    const Grid& grid = position.Cells();
    const LinkGraph& grouped = position.Links(GraphNodes::Grouped, GraphDigits::All);
    BitRows open = ChangingStates(grid, grouped);
    if (ForcingSearch(grid, grouped, open).Run(sink)) {
        const LinkGraph& wide = position.Links(GraphNodes::AlmostLocked, GraphDigits::All);
        ForcingSearch(grid, wide, open).Run(sink);
    }
}

std::string ForcingFromCellLog(const Find& find) {
    return "Forcing Chain from Cell: " + CellName(find.cells[0]) + ChainsInLog(find) +
           RemovedInLog(find);
}

std::string ForcingFromCellHint(const Find& find) {
    return "FORCING CHAIN FROM CELL: Since every candidate of cell " + CellName(find.cells[0]) +
           " (" + JoinDigits(Items(find.digits)) + ")" + Conclusion(find);
}

std::string ForcingFromUnitLog(const Find& find) {
    return "Forcing Chain from Unit: " + UnitInLog(find.UnitAt(0)) + " number " +
           JoinDigits(Items(find.digits)) + ChainsInLog(find) + RemovedInLog(find);
}

std::string ForcingFromUnitHint(const Find& find) {
    return "FORCING CHAIN FROM UNIT: Since every place of number " +
           JoinDigits(Items(find.digits)) + UnitInHint(find.UnitAt(0)) + " (cells " +
           JoinCells(Items(find.cells)) + ")" + Conclusion(find);
}

}  // namespace vemo
