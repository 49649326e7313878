// Puzzles of the player's own.
#include "game/maker.h"

#include <algorithm>
#include <utility>

#include "game/dropped_text.h"
#include "game/play_levels.h"
#include "solver/brute_force.h"
#include "solver/solver.h"
#include "tools/clue_facts.h"
#include "tools/dig.h"
#include "tools/formats.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

constexpr int kFewestDigits = 8;
constexpr int kMostEmptyLines = 1;  // in a band or stack
constexpr int kMostEmptyBoxes = 4;

// The bytes of a character that one key can type.
constexpr std::size_t kLongestCharacter = 4;

constexpr const char* kInvitation =
    "You can now paste or drop a sudoku textfile (*.txt) into this box, or enter the clues in the "
    "grid, then press [Validate]";
constexpr const char* kHowToMake =
    "Click a number in the grid to place a clue, click the clue to take it off again. Press "
    "[Validate] when all clues are there.";
constexpr const char* kDiscarded =
    "The sudoku you've made is discarded. Choose a level in the menu Level to go on playing.";
constexpr const char* kValidating =
    "Validating User Made Sudoku. Please be patient, this may take a while...";

constexpr const char* kMakeTitle = "Make error";

constexpr const char* kAllRules =
    "The sudoku you've made doesn't meet the minimal requirements:\n"
    "1) You must have at least 17 clues (no valid 16-clue sudoku has ever been found/generated)\n"
    "2) You must have at least 8 of the 9 values among the clues\n"
    "3) You cannot have more than 4 empty (clue-less) boxes\n"
    "4) You cannot have more than 1 empty row in the same band\n"
    "5) You cannot have more than 1 empty column in the same stack\n"
    "Do you want to abort the making of this sudoku ?";
constexpr const char* kNotUnique =
    "The Sudoku you've made has no unique solution. Do you want to abort the making of this "
    "sudoku ?";
constexpr const char* kNotSolved =
    "The Sudoku you've made can't be solved by the logic of Vemo Sudoku.\n"
    "Click [Abort] to discard this sudoku.\n"
    "Click [Retry] to make changes to this sudoku.\n"
    "Click [Ignore] to assign this sudoku to the Outlaw level.";

// The clues as the grid shows them; those that stand twice in a unit are marked as wrong.
void SetClues(Session& session, const Digits& clues) {
    session.grid = Grid::FromClues(clues);
    session.hintColors.WisKleuren();
    for (int cell : session.grid.Givens()) {
        if (!session.grid.IsLegal(cell, session.grid.Digit(cell))) {
            session.hintColors.MarkWrong(cell);
        }
    }
}

void PutClue(Stage& stage, int cell, int digit) {
    Session& session = stage.session;
    Digits clues = session.grid.AllDigits();
    clues[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(digit);
    SetClues(session, clues);
    session.sudTekst = WriteGrid81(clues);
    session.textHint = kHowToMake;
    Speel(stage, digit == 0 ? Sound::ResetCell : Sound::Assign);
}

// The second text is the first with one character put in, taken out or replaced.
bool IsOneKeystroke(const std::string& before, const std::string& after) {
    const std::size_t shorter = std::min(before.size(), after.size());
    const auto head =
        static_cast<std::size_t>(std::ranges::mismatch(before, after).in1 - before.begin());
    std::size_t tail = 0;
    while (tail < shorter - head && before.rbegin()[tail] == after.rbegin()[tail]) {
        ++tail;
    }
    return before.size() - head - tail <= kLongestCharacter &&
           after.size() - head - tail <= kLongestCharacter;
}

// The grid that the text looks like, where the reading by position misses it.
std::optional<RecognizedPuzzle> OtherReading(const std::string& text) {
    std::optional<RecognizedPuzzle> puzzle = RecognizePuzzle(text);
    if (!puzzle || puzzle->format == TextFormat::Line || puzzle->clues == Digits{} ||
        puzzle->clues == ReadByPosition(text)) {
        return std::nullopt;
    }
    return puzzle;
}

// In lines of a width that does not depend on the cells: the dash is as wide as a digit.
std::string Drawn(const Digits& clues) {
    std::string text;
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        if (cell > 0) {
            text += cell % 27 == 0 ? "\n\n" : cell % 9 == 0 ? "\n" : cell % 3 == 0 ? "   " : " ";
        }
        text += clues[cell] == 0 ? std::string("\u2012") : std::to_string(clues[cell]);
    }
    return text;
}

bool AskForReading(Stage& stage, const RecognizedPuzzle& puzzle) {
    const char* what =
        puzzle.format == TextFormat::PencilMarks
            ? "This text looks like a grid of pencil marks. Read these clues from it ?"
            : "This text looks like a grid of nine lines. Read these clues from it ?";
    return AskYesNo(stage, "Text of a sudoku",
                    std::string(what) + "\n\n" + Drawn(puzzle.clues) +
                        "\n\n[No] reads it as one line of 81 characters, line breaks included.");
}

void PutText(Stage& stage, std::string text) {
    Session& session = stage.session;
    session.textHint = kHowToMake;
    if (text.size() > kMostText) {
        text.resize(kMostText);
        session.textHint = "The text is too long for a sudoku, only its beginning is kept.";
    }
    session.sudTekst = std::move(text);
    SetClues(session, ReadByPosition(session.sudTekst));
    const std::optional<RecognizedPuzzle> other = OtherReading(session.sudTekst);
    if (!other || session.isReadingRefused) {
        return;
    }
    session.isReadingRefused = !AskForReading(stage, *other);
    if (!session.isReadingRefused) {
        session.sudTekst = WriteGrid81(other->clues);
        SetClues(session, other->clues);
    }
}

bool HasClue(const Digits& clues, const Unit& unit) {
    return std::ranges::any_of(
        unit.cells, [&](int cell) { return clues[static_cast<std::size_t>(cell)] != 0; });
}

// Rows (columns) without a clue, in the band (stack) that has most of them.
int MostEmptyLines(const Digits& clues, UnitKind kind) {
    std::array<int, 3> emptyLines{};
    for (const Unit& unit : kUnits) {
        if (unit.kind == kind && !HasClue(clues, unit)) {
            ++emptyLines[static_cast<std::size_t>(unit.index / 3)];
        }
    }
    return std::ranges::max(emptyLines);
}

void Discard(Stage& stage) {
    CloseSudoku(stage);
    stage.session.sudTekst.clear();
    stage.session.textHint = kDiscarded;
}

void OfferToAbort(Stage& stage, const char* title, const char* text) {
    if (AskYesNo(stage, title, text, EnterKey::No)) {
        Discard(stage);
    }
}

struct Validation {
    bool isStopped = false;
    bool isUnique = false;
    PuzzleRecord puzzle;
    int level = 0;  // of a unique puzzle
};

// The level by logic, Outlaw where that does not solve the puzzle. Between two yields one step of
// the ladder runs at most.
int SolveSudoku(const Digits& clues, const std::function<bool()>& yield) {
    Solver solver(Grid::FromClues(clues));
    solver.SetStepWatcher([&](const Step&) { return yield(); });
    const bool isSolved = RunToTheEnd(solver, FixedLadder());
    return RatingOf(solver, isSolved);
}

Validation Validate(Stage& stage, const Digits& clues) {
    Session& session = stage.session;
    const std::string saved = std::exchange(session.textHint, kValidating);
    Validation result;
    {
        const LongFunction busy(session);
        const auto yield = [&] {
            stage.view.Yield();
            return !session.isStopRequested;
        };
        stage.show();
        if (yield()) {
            const BruteForceResult search = UniqueSud(clues, yield);
            result.isUnique = search.IsUnique();
            result.puzzle = {clues, search.solution, PlayTime()};
        }
        if (result.isUnique) {
            result.level = SolveSudoku(clues, yield);
        }
        result.isStopped = session.isStopRequested;
    }
    session.textHint = saved;
    return result;
}

// Where logic does not solve the puzzle the player decides. False: it is not to be stored.
bool AgreeOnLevel(Stage& stage, int level) {
    if (level != kOutlaw) {
        stage.view.Beep();
        Tell(stage, "Sudoku solved", RatedText(level));
        return true;
    }
    stage.show();
    const Answer answer = stage.view.ShowBox({"Sudoku unsolveable by Vemo Sudoku", kNotSolved,
                                              BoxButtons::AbortRetryIgnore, BoxIcon::None});
    if (answer == Answer::Abort) {
        Discard(stage);
    }
    return answer == Answer::Ignore;
}

// Into the level's file; play begins with it.
void Store(Stage& stage, int level, const PuzzleRecord& puzzle) {
    const RecordFiles::SavedPuzzle saved = stage.files.SaveSudoku(level, puzzle);
    if (saved.error || !LoadSudoku(stage, level, saved.number)) {
        TellWriteFailed(stage);
        return;
    }
    stage.session.sudTekst.clear();
    WriteStatistics(stage);
}

}  // namespace

void MakeSudoku(Stage& stage) {
    Session& session = stage.session;
    if (session.IsMaking() ||
        (WhySaveRefuses(stage) == SaveRefusal::None && !SaveProgress(stage))) {
        return;
    }
    AdoptPendingLevel(stage);
    CloseSudoku(stage);
    session.phase = PlayPhase::Making;
    session.selectedCell = 0;
    session.digitFilter = 0;
    session.sudTekst = kInvitation;
    session.isReadingRefused = false;
    session.textHint = kHowToMake;
}

void ChangeSudTekst(Stage& stage, std::string text) {
    Session& session = stage.session;
    if (!session.IsMaking() || text == session.sudTekst) {
        return;
    }
    session.isReadingRefused = session.isReadingRefused && IsOneKeystroke(session.sudTekst, text);
    PutText(stage, std::move(text));
}

void DropOnSudTekst(Stage& stage, const std::vector<std::filesystem::path>& paths) {
    if (!stage.session.IsMaking() || paths.empty()) {
        return;
    }
    DroppedText dropped = ReadDroppedText(stage.anyFiles, paths);
    if (!dropped.error.empty()) {
        Tell(stage, "Drag 'N' Drop Error", dropped.error);
        return;
    }
    stage.session.isReadingRefused = false;
    PutText(stage, std::move(dropped.text));
}

void ClickClue(Stage& stage, int cell, int digit, MouseButton button) {
    Session& session = stage.session;
    if (!session.IsMaking()) {
        return;
    }
    session.selectedCell = cell;
    if (button != MouseButton::Left) {
        return;
    }
    if (session.grid.Digit(cell) != 0) {
        PutClue(stage, cell, 0);
    } else if (session.grid.KnopAan(cell, digit)) {
        PutClue(stage, cell, digit);
    }
}

void TypeClue(Stage& stage, int digit) {
    Session& session = stage.session;
    const int cell = session.selectedCell;
    if (!session.IsMaking() || cell == kNoCell) {
        return;
    }
    if (session.grid.Digit(cell) == digit) {
        PutClue(stage, cell, 0);
    } else if (session.grid.IsLegal(cell, digit)) {
        PutClue(stage, cell, digit);
    } else {
        session.textHint = "Number " + std::to_string(digit) + " cannot be a clue at cell " +
                           CellName(cell) + ": its row, column or block holds it already";
    }
}

void EmptyClue(Stage& stage) {
    const Session& session = stage.session;
    if (session.IsMaking() && session.selectedCell != kNoCell &&
        session.grid.Digit(session.selectedCell) != 0) {
        PutClue(stage, session.selectedCell, 0);
    }
}

void CancelMaking(Stage& stage) {
    if (!stage.session.IsMaking()) {
        return;
    }
    if (stage.session.grid.Givens().Any()) {
        OfferToAbort(stage, "Make", "Do you want to abort the making of this sudoku ?");
    } else {
        Discard(stage);
    }
}

std::string UnmetRestriction(const Digits& clues) {
    Marks digits = 0;
    int clueCount = 0;
    for (int digit : clues) {
        digits |= digit == 0 ? Marks{0} : MarkOf(digit);
        clueCount += digit == 0 ? 0 : 1;
    }
    if (BitCount(digits) < kFewestDigits) {
        return "A minimum of 8 different numbers among the clues is required !";
    }
    if (clueCount < kFewestClues) {
        return "A minimum of 17 clues is required !";
    }
    if (clueCount == kCells) {
        return "The sudoku is allready solved !";
    }
    if (MostEmptyLines(clues, UnitKind::Row) > kMostEmptyLines) {
        return "More than one empty row in the same band is not allowed !";
    }
    if (MostEmptyLines(clues, UnitKind::Column) > kMostEmptyLines) {
        return "More than one empty column in the same stack is not allowed !";
    }
    if (FactsOf(clues).emptyBoxes > kMostEmptyBoxes) {
        return "More than four empty boxes are not allowed !";
    }
    return "";
}

bool SudMeetRestrictions(Stage& stage) {
    const std::string unmet = UnmetRestriction(stage.session.grid.AllDigits());
    if (!unmet.empty()) {
        Tell(stage, kMakeTitle, unmet);
    }
    return unmet.empty();
}

void ValidateSudoku(Stage& stage) {
    if (!stage.session.IsMaking()) {
        return;
    }
    if (!SudMeetRestrictions(stage)) {
        OfferToAbort(stage, kMakeTitle, kAllRules);
        return;
    }
    const Validation validation = Validate(stage, stage.session.grid.AllDigits());
    if (validation.isStopped) {
        return;
    }
    if (!validation.isUnique) {
        OfferToAbort(stage, "Invalid Sudoku", kNotUnique);
    } else if (AgreeOnLevel(stage, validation.level)) {
        Store(stage, validation.level, validation.puzzle);
    }
}

}  // namespace vemo
