// The technique manager as the game runs it.
#include "game/solve_tech.h"

#include "game/support.h"
#include "solver/brute_force.h"
#include "tools/puzzle_line.h"

namespace vemo::test {
namespace {

constexpr int kXWingSlot = 8;
constexpr int kBoxesToHalt = kSlots;  // before the halt box of slot 0

// Slots 3 to 7 and an X-Wing solve it, and without the X-Wing it takes more than slots 3 to 7.
const Digits kXWingClues = ParseDigits(
    "97..2...4....9.7...6.....922..68....35.2.4.19....31..879.....5...4.5....1...6..47");

class SolveTechTest : public GameTest {
  protected:
    SolveTechTest() {
        PuzzleRecord puzzle;
        puzzle.clues = kXWingClues;
        puzzle.solution = BruteForceSolve(kXWingClues).solution;
        Ship({puzzle});
        StartFirst();
    }
    std::array<TechniqueRow, kSlots> Rows() const { return game->TechniqueManager().Rows(); }
    int SlotAt(int position) const { return Rows()[static_cast<std::size_t>(position)].slot; }
    TechniqueRow RowOf(int slot) const {
        const auto rows = Rows();
        return *std::ranges::find(rows, slot, &TechniqueRow::slot);
    }
    int Position() const { return game->TechniqueManager().Position(); }
    void MoveDown(int times) {
        for (int time = 0; time < times; ++time) {
            game->KnopDown();
        }
    }
    // The techniques that a hint scans for, in their order.
    std::vector<std::string> ScannedByHint() {
        std::vector<std::string> scanned;
        view.onYield = [&] { scanned.push_back(Seen().textHint); };
        game->mnuSolveHint();
        view.onYield = nullptr;
        return scanned;
    }
};

TEST_F(SolveTechTest, WhatIsFixedStaysAsItIs) {
    const auto before = Rows();
    for (int slot = 0; slot <= 7; ++slot) {
        game->CheckInclude(slot);
    }
    for (int slot = 0; slot <= 2; ++slot) {
        game->CheckInclude(kBoxesToHalt + slot);
    }
    for (int position : {0, 7, 39, -1, 40}) {
        game->OptionOrder(position);
        EXPECT_EQ(Position(), 8);
    }
    game->KnopUp();
    EXPECT_EQ(Rows(), before);
    game->OptionOrder(38);
    game->KnopDown();
    EXPECT_EQ(Rows(), before);
    EXPECT_EQ(Position(), 38);
}

TEST_F(SolveTechTest, ASlotSwitchedOffKeepsItsHaltWhichCannotBeChanged) {
    game->CheckInclude(kBoxesToHalt + 39);
    for (const bool isOn : {false, true}) {
        game->CheckInclude(39);
        EXPECT_EQ(RowOf(39).isIncluded, isOn);
        EXPECT_EQ(RowOf(39).canHalt, isOn);
        EXPECT_TRUE(RowOf(39).isHalting);
    }
}

TEST_F(SolveTechTest, WhatWasChosenIsThereAtTheNextStartAndDefaultsUndoIt) {
    const auto before = Rows();
    EXPECT_TRUE(game->TechniqueManager().AreDefaults());
    game->mnuSolveManager();
    EXPECT_EQ(view.opened, std::vector<Form>{Form::SolveTech});
    game->CheckInclude(12);
    game->CheckInclude(kBoxesToHalt + 3);
    game->OptionOrder(20);
    MoveDown(2);
    game->KnopUp();
    EXPECT_EQ(Position(), 21) << "the current row follows the slot";
    EXPECT_EQ(SlotAt(20), 21);
    EXPECT_EQ(SlotAt(21), 20);
    EXPECT_EQ(SlotAt(22), 22);
    const auto chosen = Rows();
    game->CommandOK();
    EXPECT_EQ(view.closed, std::vector<Form>{Form::SolveTech});
    game->FormUnload(Form::SolveTech);
    StartAgain();
    EXPECT_EQ(Rows(), chosen);
    EXPECT_FALSE(RowOf(12).isIncluded);
    EXPECT_TRUE(RowOf(3).isHalting);
    EXPECT_FALSE(game->TechniqueManager().AreDefaults());

    game->OptionOrder(21);
    game->CommandDefaultsClick();
    EXPECT_EQ(Rows(), before);
    EXPECT_TRUE(game->TechniqueManager().AreDefaults());
    EXPECT_EQ(Position(), 20) << "the current row stays with its slot";
}

TEST_F(SolveTechTest, AHintFollowsTheOrderAndTheSwitches) {
    // Autosolve goes as far as the first X-Wing, which is then on display as a hint.
    game->CheckInclude(kBoxesToHalt + kXWingSlot);
    OpenFirst(5);
    game->mnuSolveAutoSolve();
    ASSERT_EQ(Seen().hintCaption, "Hint - X-Wing");
    const std::string xWing = "Scanning for X-Wing - Please be patient";
    const std::string swordfish = "Scanning for Swordfish - Please be patient";
    std::vector<std::string> scanned = ScannedByHint();
    EXPECT_EQ(scanned.back(), xWing);
    EXPECT_EQ(std::ranges::count(scanned, swordfish), 0);
    game->KnopDown();
    scanned = ScannedByHint();
    EXPECT_LT(std::ranges::find(scanned, swordfish), std::ranges::find(scanned, xWing));
    game->CheckInclude(kXWingSlot);
    EXPECT_EQ(std::ranges::count(ScannedByHint(), xWing), 0);
    EXPECT_NE(Seen().hintCaption, "Hint - X-Wing");
}

TEST_F(SolveTechTest, TheRatingOfAPuzzleOfOnesOwnKnowsNoSettings) {
    MoveDown(30);
    for (int slot = 8; slot <= 39; ++slot) {
        game->CheckInclude(slot);
    }
    Digits turned = kXWingClues;  // not the one that the level holds already
    std::ranges::reverse(turned);
    game->mnuSudokuMake();
    game->SudTekstChange(WriteGrid81(turned));
    view.Expect("Sudoku solved", "Sudoku solved and rated as Crazy");
    game->mnuSudokuValidate();
}

TEST_F(SolveTechTest, NothingChangesWhileTheGameIsBusy) {
    OpenFirst(5);
    game->CheckInclude(39);
    const auto before = Rows();
    int tried = 0;
    view.onYield = [&] {
        ++tried;
        game->CheckInclude(20);
        game->CheckInclude(kBoxesToHalt + 20);
        game->OptionOrder(30);
        game->KnopDown();
        game->CommandDefaultsClick();
        EXPECT_EQ(Rows(), before);
        EXPECT_EQ(Position(), 8);
    };
    game->mnuSolveAutoSolve();
    EXPECT_GT(tried, 0);
}

}  // namespace
}  // namespace vemo::test
