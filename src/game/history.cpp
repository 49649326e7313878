// The undo history.
#include "game/history.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace vemo {
namespace {

constexpr int kDigitBits = 15;
constexpr int kGivenBack = 256;
constexpr int kReset = 512;
constexpr int kJoined = 1024;
constexpr int kKnownBits = kDigitBits | kGivenBack | kReset | kJoined;

enum class EntryKind : std::uint8_t { Discard, Placement, GiveBack, Reset };

bool HasFlag(const UndoEntry& entry, int flag) {
    return (entry.kindAndDigit & flag) != 0;
}

bool IsJoined(const UndoEntry& entry) {
    return HasFlag(entry, kJoined);
}

int DigitOf(const UndoEntry& entry) {
    return entry.kindAndDigit & kDigitBits;
}

EntryKind KindOf(const UndoEntry& entry) {
    if (HasFlag(entry, kReset)) {
        return EntryKind::Reset;
    }
    if (HasFlag(entry, kGivenBack)) {
        return EntryKind::GiveBack;
    }
    return DigitOf(entry) != 0 ? EntryKind::Placement : EntryKind::Discard;
}

// A record holds marks with bit d-1 for digit d.
std::int16_t ToRecord(Marks marks) {
    return static_cast<std::int16_t>(marks >> 1);
}
Marks MarksOf(const UndoEntry& entry) {
    return static_cast<Marks>(entry.marks << 1);
}

UndoEntry MakeEntry(int cell, Marks marks, int kindAndDigit) {
    UndoEntry entry;
    entry.cell = static_cast<std::int16_t>(cell);
    entry.marks = ToRecord(marks);
    entry.kindAndDigit = static_cast<std::int16_t>(kindAndDigit);
    return entry;
}

std::int16_t PositionsIn(const Unit& unit, CellSet cells) {
    int mask = 0;
    for (std::size_t k = 0; k < unit.cells.size(); ++k) {
        mask |= cells.Has(unit.cells[k]) ? 1 << k : 0;
    }
    return static_cast<std::int16_t>(mask);
}

void NotePeers(UndoEntry& entry, CellSet changed) {
    const CellSet peers = changed & Peers(entry.cell);
    entry.rowMask = PositionsIn(UnitAround(UnitKind::Row, entry.cell), peers);
    entry.columnMask = PositionsIn(UnitAround(UnitKind::Column, entry.cell), peers);
    entry.boxMask = PositionsIn(UnitAround(UnitKind::Box, entry.cell), peers);
}

void TakeMarks(Grid& grid, int cell, Marks marks) {
    for (; marks != 0; marks &= static_cast<Marks>(marks - 1)) {
        grid.VerwijderKnop(cell, FirstDigit(marks));
    }
}

// Autosolve fills cells without a step, and the steps before it can be taken back all the same. So
// marks are given only where they are legal, only an empty cell is filled, and only its own digit
// is taken off a cell.
void GiveMarks(Grid& grid, int cell, Marks marks) {
    for (marks &= LegalMarks(grid, cell); marks != 0; marks &= static_cast<Marks>(marks - 1)) {
        grid.GiveBack(cell, FirstDigit(marks));
    }
}

void Fill(Grid& grid, int cell, int digit) {
    if (grid.Digit(cell) == 0) {
        grid.Zet(digit, cell);
    }
}

// Empties the cell; its digit is given back to every empty peer where it is legal again.
void TakeDigitOff(Grid& grid, int cell, int digit) {
    if (grid.Digit(cell) != digit) {
        return;
    }
    grid.TakeOff(cell);
    for (int peer : Peers(cell) & grid.EmptyCells()) {
        if (grid.IsLegal(peer, digit)) {
            grid.GiveBack(peer, digit);
        }
    }
}

void Do(Grid& grid, const UndoEntry& entry) {
    switch (KindOf(entry)) {
    case EntryKind::Discard:
        TakeMarks(grid, entry.cell, MarksOf(entry));
        break;
    case EntryKind::Placement:
        Fill(grid, entry.cell, DigitOf(entry));
        break;
    case EntryKind::GiveBack:
        GiveMarks(grid, entry.cell, MarksOf(entry));
        break;
    case EntryKind::Reset:
        TakeDigitOff(grid, entry.cell, DigitOf(entry));
        GiveMarks(grid, entry.cell, kAllMarks);
        break;
    }
}

void TakeBack(Grid& grid, const UndoEntry& entry) {
    switch (KindOf(entry)) {
    case EntryKind::Discard:
        GiveMarks(grid, entry.cell, MarksOf(entry));
        break;
    case EntryKind::Placement:
        TakeDigitOff(grid, entry.cell, DigitOf(entry));
        GiveMarks(grid, entry.cell, MarksOf(entry) | MarkOf(DigitOf(entry)));
        break;
    case EntryKind::GiveBack:
        TakeMarks(grid, entry.cell, MarksOf(entry));
        break;
    case EntryKind::Reset:
        Fill(grid, entry.cell, DigitOf(entry));
        break;
    }
}

// Names the placement in an entry of which only cell and marks are known.
UndoEntry WithDigit(UndoEntry entry, const Digits& digits) {
    const bool isBare = entry.kindAndDigit == 0 && entry.rowMask == 0 && entry.columnMask == 0 &&
                        entry.boxMask == 0;
    if (isBare) {
        entry.kindAndDigit = digits[static_cast<std::size_t>(entry.cell)];
    }
    return entry;
}

// Puts the digits back to what they were before the entry. False where the entry cannot have led
// to them.
bool TakeBackDigit(const UndoEntry& entry, Digits& digits) {
    const int digit = DigitOf(entry);
    std::uint8_t& held = digits[static_cast<std::size_t>(entry.cell)];
    if ((entry.kindAndDigit & ~kKnownBits) != 0) {
        return false;
    }
    switch (KindOf(entry)) {
    case EntryKind::Placement:
        return std::exchange(held, std::uint8_t{0}) == digit;
    case EntryKind::Reset:
        return std::exchange(held, static_cast<std::uint8_t>(digit)) == 0 && digit != 0;
    case EntryKind::Discard:
    case EntryKind::GiveBack:
        break;
    }
    return held == 0 && entry.marks != 0;
}

}  // namespace

Marks LegalMarks(const Grid& grid, int cell) {
    Marks held = 0;
    for (int peer : Peers(cell) - grid.EmptyCells()) {
        held |= MarkOf(grid.Digit(peer));
    }
    return static_cast<Marks>(kAllMarks & ~held);
}

void History::Record(const UndoEntry& entry, Joined joined) {
    assert((joined == Joined::No || top_ > 0) && "an entry is joined to one before it");
    CutRedo();
    entries_.push_back(entry);
    if (joined == Joined::Yes) {
        entries_.back().kindAndDigit |= kJoined;
    }
    top_ = entries_.size();
}

void History::Place(Grid& grid, int cell, int digit, Joined joined) {
    assert(grid.KnopAan(cell, digit) && "only a candidate can be placed");
    UndoEntry entry = MakeEntry(cell, grid.MarksAt(cell), digit);
    NotePeers(entry, grid.Candidates(digit));
    Do(grid, entry);
    Record(entry, joined);
}

void History::Discard(Grid& grid, int cell, int digit, Joined joined) {
    assert(grid.KnopAan(cell, digit) && "only a candidate can be discarded");
    const UndoEntry entry = MakeEntry(cell, MarkOf(digit), 0);
    Do(grid, entry);
    Record(entry, joined);
}

void History::GiveBack(Grid& grid, int cell, Marks marks) {
    assert(grid.Digit(cell) == 0 && "a filled cell has no marks");
    const auto missing = static_cast<Marks>(marks & ~grid.MarksAt(cell));
    if (missing == 0) {
        return;
    }
    const UndoEntry entry = MakeEntry(cell, missing, kGivenBack);
    Do(grid, entry);
    Record(entry, Joined::No);
}

void History::Reset(Grid& grid, int cell) {
    const int digit = grid.Digit(cell);
    assert(digit != 0 && "only a digit can be taken off");
    const CellSet before = grid.Candidates(digit);
    UndoEntry entry = MakeEntry(cell, LegalMarks(grid, cell), kReset + digit);
    Do(grid, entry);
    NotePeers(entry, grid.Candidates(digit) - before);
    Record(entry, Joined::No);
}

std::size_t History::StepStart(std::size_t at) const {
    while (at > 0 && IsJoined(entries_[at])) {
        --at;
    }
    return at;
}

bool History::Undo(Grid& grid) {
    if (!CanUndo()) {
        return false;
    }
    const std::size_t start = StepStart(top_ - 1);
    while (top_ > start) {
        const UndoEntry& entry = entries_[--top_];
        // A damaged file can name a clue.
        if (!grid.IsGiven(entry.cell)) {
            TakeBack(grid, entry);
        }
    }
    return true;
}

bool History::Redo(Grid& grid) {
    if (!CanRedo()) {
        return false;
    }
    do {
        const UndoEntry& entry = entries_[top_++];
        if (!grid.IsGiven(entry.cell)) {
            Do(grid, entry);
        }
    } while (CanRedo() && IsJoined(entries_[top_]));
    return true;
}

int History::StepCount() const {
    const auto top = entries_.begin() + static_cast<std::ptrdiff_t>(top_);
    return static_cast<int>(std::count_if(entries_.begin(), top,
                                          [](const UndoEntry& entry) { return !IsJoined(entry); }));
}

void History::Clear() {
    entries_.clear();
    top_ = 0;
}

void History::CutRedo() {
    entries_.resize(top_);
}

void History::SaveTo(PlayState& state) const {
    std::size_t first = top_ > kSavedSteps ? top_ - kSavedSteps : 0;
    while (first < top_ && IsJoined(entries_[first])) {
        ++first;
    }
    state.undoCount = static_cast<int>(top_ - first);
    state.history.fill({});
    std::copy_n(entries_.begin() + static_cast<std::ptrdiff_t>(first), top_ - first,
                state.history.begin());
}

void History::LoadFrom(const PlayState& state) {
    Clear();
    const auto count = static_cast<std::size_t>(state.undoCount);
    entries_.assign(state.history.begin(), state.history.begin() + state.undoCount);
    Digits digits = state.digits;
    std::size_t first = count;
    while (first > 0) {
        UndoEntry& entry = entries_[first - 1];
        entry = WithDigit(entry, digits);
        if (!TakeBackDigit(entry, digits)) {
            break;
        }
        --first;
    }
    while (first < count && IsJoined(entries_[first])) {
        ++first;
    }
    entries_.erase(entries_.begin(), entries_.begin() + static_cast<std::ptrdiff_t>(first));
    top_ = entries_.size();
}

}  // namespace vemo
