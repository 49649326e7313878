// Counting by elimination and guesses, on one set of cells a digit: a few instructions work on all
// places of a digit at once.
#include "solver/fast_count.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>

namespace vemo {
namespace {

// A set of cells: a band (three rows) in each of the first three lanes, the last lane 0. This is
// the compilers' own vector type: one register where the processor has such, else as many as it
// takes. CellSet keeps cells in their reading order, where the steps below would be far longer.
using Plane = std::uint32_t __attribute__((vector_size(16)));

// Within a lane the nine cells of a box stand together, row by row: bit 10 * box + 3 * row +
// column. The tenth bit of a box is its guard, for a subtraction to borrow from; in a set it is 0.
constexpr int kBoxStep = 10;
constexpr int kRowStep = 3;
constexpr std::uint32_t kFirsts = 1u | 1u << kBoxStep | 1u << 2 * kBoxStep;
constexpr std::uint32_t kTopRows = kFirsts * 0b111;
constexpr std::uint32_t kRowStarts = kFirsts * 0b1001001;
constexpr std::uint32_t kBand = kFirsts * 0b111111111;
constexpr std::uint32_t kGuards = kFirsts << 9;

constexpr int kBands = 3;
constexpr int kBandCells = 27;

constexpr std::size_t At(int number) {
    return static_cast<std::size_t>(number);
}

constexpr int BitOf(int cell) {
    const int box = CellColumn(cell) / 3;
    return kBoxStep * box + kRowStep * (CellRow(cell) % 3) + CellColumn(cell) % 3;
}

struct Tables {
    using Lanes = std::array<std::uint32_t, 4>;
    std::array<Lanes, kCells> self;
    std::array<Lanes, kCells> peers;
    std::array<std::uint8_t, 32> cellOfBit;  // in the first band
};

constexpr Tables MakeTables() {
    Tables tables{};
    for (int cell = 0; cell < kCells; ++cell) {
        tables.self[At(cell)][At(cell / kBandCells)] = 1u << BitOf(cell);
        for (int peer : Peers(cell)) {
            tables.peers[At(cell)][At(peer / kBandCells)] |= 1u << BitOf(peer);
        }
    }
    for (int cell = 0; cell < kBandCells; ++cell) {
        tables.cellOfBit[At(BitOf(cell))] = static_cast<std::uint8_t>(cell);
    }
    return tables;
}

constexpr Tables kPlanes = MakeTables();

Plane SelfOf(int cell) {
    return std::bit_cast<Plane>(kPlanes.self[At(cell)]);
}
Plane PeersOf(int cell) {
    return std::bit_cast<Plane>(kPlanes.peers[At(cell)]);
}
int CellAt(int band, std::uint32_t bits) {
    return kBandCells * band + kPlanes.cellOfBit[At(std::countr_zero(bits))];
}

Plane InEachBand(std::uint32_t bits) {
    return Plane{bits, bits, bits, 0};
}

bool Any(Plane plane) {
    const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(plane);
    return (halves[0] | halves[1]) != 0;
}

// The set less the first cell of each box. A box that has none loses its guard; the others' guards
// are set.
Plane LessFirsts(Plane plane) {
    return (plane | InEachBand(kGuards)) - InEachBand(kFirsts);
}

// All cells of the boxes in which the set has any.
Plane BoxesOf(Plane plane) {
    const Plane guards = LessFirsts(plane) & InEachBand(kGuards);
    return guards - (guards >> 9);
}

// In which rows of each box the set has a cell; a row is given by its first cell. And the columns,
// each given by its top cell.
Plane RowsOf(Plane plane) {
    return (plane | plane >> 1 | plane >> 2) & InEachBand(kRowStarts);
}
Plane ColumnsOf(Plane plane) {
    return (plane | plane >> kRowStep | plane >> 2 * kRowStep) & InEachBand(kTopRows);
}
Plane CellsOfRows(Plane rows) {
    return (rows << kRowStep) - rows;
}
Plane CellsOfColumns(Plane columns) {
    return columns | columns << kRowStep | columns << 2 * kRowStep;
}

// A digit takes one row in each of the three boxes of a band, and three different ones: six
// arrangements, each going on from box to box by one row or by two. What stays is each row of a box
// that is part of an arrangement; with it go both kinds of locked candidates and, as the columns
// are done alike, all that a single place in a row or a column leads to.
Plane RowsThatFit(Plane rows) {
    const Plane byOne = (rows >> 3 & InEachBand(kFirsts * 0b001001)) |
                        (rows << 6 & InEachBand(kFirsts * 0b1000000));
    const Plane byTwo =
        (rows >> 6 & InEachBand(kFirsts)) | (rows << 3 & InEachBand(kFirsts * 0b1001000));
    const auto nextBox = [](Plane plane) { return plane >> kBoxStep | plane << 2 * kBoxStep; };
    const auto boxBefore = [](Plane plane) { return plane >> 2 * kBoxStep | plane << kBoxStep; };
    return rows & ((nextBox(byOne) & boxBefore(byTwo)) | (nextBox(byTwo) & boxBefore(byOne)));
}

// The same for the columns in the three boxes of a stack, from band to band.
Plane ColumnsThatFit(Plane columns) {
    const Plane byOne =
        (columns >> 1 & InEachBand(kFirsts * 0b011)) | (columns << 2 & InEachBand(kFirsts * 0b100));
    const Plane byTwo =
        (columns >> 2 & InEachBand(kFirsts)) | (columns << 1 & InEachBand(kFirsts * 0b110));
    const auto nextBand = [](Plane plane) {
        return __builtin_shufflevector(plane, plane, 1, 2, 0, 3);
    };
    const auto bandBefore = [](Plane plane) {
        return __builtin_shufflevector(plane, plane, 2, 0, 1, 3);
    };
    return columns &
           ((nextBand(byOne) & bandBefore(byTwo)) | (nextBand(byTwo) & bandBefore(byOne)));
}

using DigitPlanes = std::array<Plane, kDigits>;  // by digit - 1

struct State {
    DigitPlanes places;  // where a digit can go or stands
    DigitPlanes fitted;  // the places when their rows were last made to fit
    Plane single;        // cells left with one candidate, which is gone from the rest of its box
};

// The clues placed; false where they clash.
bool PlaceClues(const Digits& clues, State& state) {
    // The clues' cells first, so that no branch hangs on whether a cell has one.
    std::array<std::uint8_t, kCells + 1> cells;
    std::size_t count = 0;
    for (int cell = 0; cell < kCells; ++cell) {
        cells[count] = static_cast<std::uint8_t>(cell);
        count += clues[At(cell)] != 0 ? 1 : 0;
    }
    DigitPlanes held{};
    state.places.fill(InEachBand(kBand));
    state.fitted.fill(InEachBand(kGuards));  // unlike any set
    state.single = Plane{};
    for (std::size_t k = 0; k < count; ++k) {
        const int cell = cells[k];
        const std::size_t d = clues[At(cell)] - 1u;
        state.places[d] &= ~PeersOf(cell);
        held[d] |= SelfOf(cell);
        state.single |= SelfOf(cell);
    }
    Plane clash{};
    for (std::size_t d = 0; d < kDigits; ++d) {
        clash |= held[d] & ~state.places[d];
        state.places[d] = (state.places[d] & ~state.single) | held[d];
    }
    return !Any(clash);
}

// Cells by the number of their candidates.
struct Counts {
    Plane any{};
    Plane several{};
    Plane many{};      // three and more
    Plane veryMany{};  // four and more

    void Add(Plane places) {
        veryMany |= many & places;
        many |= several & places;
        several |= any & places;
        any |= places;
    }
};

Counts CountsOf(const State& state) {
    Counts counts;
    for (const Plane& places : state.places) {
        counts.Add(places);
    }
    return counts;
}

// What one round finds: the cells where a digit must go for want of another in their box.
struct Forced {
    DigitPlanes byDigit{};
    Plane all{};
    Plane wrong{};  // two digits in one cell; and the guards of boxes without a place for a digit
};

void Fit(State& state, std::size_t d, Plane fresh, Forced& forced) {
    Plane places = state.places[d];
    const Plane naked = places & fresh;
    places = (places & ~BoxesOf(naked)) | naked;
    places &= CellsOfRows(RowsThatFit(RowsOf(places)));
    state.fitted[d] = places;
    places &= CellsOfColumns(ColumnsThatFit(ColumnsOf(places)));
    state.places[d] = places;
    const Plane others = LessFirsts(places);
    forced.byDigit[d] = places & ~BoxesOf(places & others);
    forced.wrong |= (InEachBand(kGuards) & ~others) | (forced.all & forced.byDigit[d]);
    forced.all |= forced.byDigit[d];
}

enum class Outcome { Dead, Solved, Open };

// Rounds of eliminations until one changes nothing. A round works on each digit whose places have
// changed, and only then clears the cells that were decided: no digit waits for another's result,
// so that the processor has several under way at a time.
Outcome Propagate(State& state) {
    for (Counts counts = CountsOf(state);; counts = CountsOf(state)) {
        if (Any(InEachBand(kBand) & ~counts.any)) {
            return Outcome::Dead;
        }
        const Plane fresh = ~(counts.several | state.single);
        std::array<std::uint8_t, kDigits + 1> changed;
        std::size_t changes = 0;
        for (std::size_t d = 0; d < kDigits; ++d) {
            const Plane places = state.places[d];
            changed[changes] = static_cast<std::uint8_t>(d);
            changes += Any((places ^ state.fitted[d]) | (places & fresh)) ? 1 : 0;
        }
        if (changes == 0) {
            return Any(counts.several) ? Outcome::Open : Outcome::Solved;
        }
        Forced forced;
        for (std::size_t k = 0; k < changes; ++k) {
            Fit(state, changed[k], fresh, forced);
        }
        if (Any(forced.wrong)) {
            return Outcome::Dead;
        }
        state.single |= fresh | forced.all;
        for (std::size_t d = 0; d < kDigits; ++d) {
            state.places[d] &= ~forced.all | forced.byDigit[d];
        }
    }
}

// How many cells the set has, those in its part counted three times. Made for the peers of a cell:
// the sums of more cells would not fit their bits.
unsigned Weight(Plane set, Plane part) {
    const auto inFours = [](Plane plane) {
        plane -= plane >> 1 & InEachBand(0x55555555);
        return (plane & InEachBand(0x33333333)) + (plane >> 2 & InEachBand(0x33333333));
    };
    Plane sums = inFours(set) + (inFours(part) << 1);
    sums = (sums & InEachBand(0x0f0f0f0f)) + (sums >> 4 & InEachBand(0x0f0f0f0f));
    return (sums[0] + sums[1] + sums[2]) * 0x01010101u >> 24;
}

struct Guess {
    int cell = 0;
    std::size_t d = 0;  // the digit - 1
    unsigned worth = 0;
};

// Bit d - 1 for each digit d that the cell at this bit of its band can hold.
unsigned DigitsAt(const State& state, int band, int bit) {
    unsigned digits = 0;
    for (std::size_t d = 0; d < kDigits; ++d) {
        digits |= (state.places[d][band] >> bit & 1) << d;
    }
    return digits;
}

// Where no cell has two candidates the grid is wide open. There the cells are filled in order:
// guesses side by side meet their contradictions early, guesses all over the grid only near its
// end.
Guess GuessInOrder(const State& state, const Counts& counts) {
    Plane cells = counts.many & ~counts.veryMany;
    cells = Any(cells) ? cells : counts.several;
    int band = 0;
    while (cells[band] == 0) {
        ++band;
    }
    const unsigned digits = DigitsAt(state, band, std::countr_zero(cells[band]));
    return {CellAt(band, cells[band]), At(std::countr_zero(digits)), 0};
}

// Both digits of a cell will have to be tried, so the weaker must be strong. A digit is where it
// goes from many cells at once, and the more where these have two candidates themselves.
Guess ChooseGuess(const State& state) {
    const Counts counts = CountsOf(state);
    const Plane pairs = counts.several & ~counts.many;
    if (!Any(pairs)) {
        return GuessInOrder(state, counts);
    }
    Guess best;
    for (int band = 0; band < kBands; ++band) {
        for (std::uint32_t left = pairs[band]; left != 0; left &= left - 1) {
            const int cell = CellAt(band, left);
            const Plane peers = PeersOf(cell);
            const auto weightOf = [&](int d) {
                const Plane seen = state.places[At(d)] & peers;
                return Weight(seen, seen & pairs);
            };
            const unsigned digits = DigitsAt(state, band, std::countr_zero(left));
            const int d = std::countr_zero(digits);
            const unsigned one = weightOf(d);
            const unsigned other = weightOf(std::countr_zero(digits & (digits - 1)));
            const unsigned worth = 1 + 256 * std::min(one, other) + std::max(one, other);
            if (worth > best.worth) {
                best = {cell, At(d), worth};
            }
        }
    }
    return best;
}

class Counter final {
  public:
    explicit Counter(int limit) : limit_(limit) {}

    void Search(State state);
    int Found() const { return found_; }
    Digits First() const;

  private:
    int limit_;
    int found_ = 0;
    DigitPlanes first_{};
};

void Counter::Search(State state) {
    while (true) {
        const Outcome outcome = Propagate(state);
        if (outcome == Outcome::Solved && found_++ == 0) {
            first_ = state.places;
        }
        if (outcome != Outcome::Open) {
            return;
        }
        const Guess guess = ChooseGuess(state);
        const Plane self = SelfOf(guess.cell);
        State with = state;
        for (Plane& places : with.places) {
            places &= ~self;
        }
        with.places[guess.d] = state.places[guess.d] & ~PeersOf(guess.cell);
        Search(with);
        if (found_ >= limit_) {
            return;
        }
        state.places[guess.d] &= ~self;
    }
}

// A solution has each digit three times in each band.
Digits Counter::First() const {
    Digits digits{};
    for (std::size_t d = 0; d < kDigits && found_ > 0; ++d) {
        for (int band = 0; band < kBands; ++band) {
            std::uint32_t left = first_[d][band];
            for (int k = 0; k < 3; ++k, left &= left - 1) {
                digits[At(CellAt(band, left))] = static_cast<std::uint8_t>(d + 1);
            }
        }
    }
    return digits;
}

}  // namespace

SolutionCount FastCount(const Digits& clues, int limit) {
    assert(limit >= 1 && "a count up to nothing answers nothing");
    Counter counter(limit);
    if (State state; PlaceClues(clues, state)) {
        counter.Search(state);
    }
    return {counter.Found(), counter.First()};
}

bool NeedsClue(const Digits& clues, int cell) {
    const std::uint8_t digit = clues[At(cell)];
    assert(digit != 0 && "the cell has no clue to be needed");
    Digits others = clues;
    others[At(cell)] = 0;
    Counter counter(1);
    if (State state; PlaceClues(others, state)) {
        state.places[digit - 1u] &= ~SelfOf(cell);
        counter.Search(state);
    }
    return counter.Found() > 0;
}

}  // namespace vemo
