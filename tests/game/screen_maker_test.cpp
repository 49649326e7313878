// What the player sees of a puzzle in play: marks and their modes, highlights, wells, links, the
// colours of a hint, and the covered board.
#include "game/play_support.h"

namespace vemo::test {
namespace {

class ScreenTest : public PlayTest {
  protected:
    Screen Make() const { return MakeScreen(stage); }
    bool IsShown(int cell, int digit) const { return MarkIn(Make(), cell, digit).isShown; }
};

TEST_F(ScreenTest, MarksFollowTheirModesAndKeepTheCandidates) {
    EXPECT_TRUE(IsShown(kA1, 1));
    EXPECT_FALSE(IsShown(kA1, 2));
    FlipOption(stage, &Options::dimmed);
    EXPECT_TRUE(MarkIn(Make(), kA1, 1).isDimmed);
    EXPECT_FALSE(MarkIn(Make(), kA1, 2).isDimmed);
    FlipOption(stage, &Options::pencilmarks);
    EXPECT_FALSE(IsShown(kA1, 1));
    EXPECT_EQ(MarksAt(kA1), DigitsNamed("14"));
    EXPECT_EQ(settings.Get("Options", "Dimmed", ""), "True");
    EXPECT_EQ(settings.Get("Options", "Pencilmarks", ""), "False");
}

TEST_F(ScreenTest, TheSimpleDisplayShowsThePointedMarkAndTheHintsMarks) {
    FlipOption(stage, &Options::pencilmarksOff);
    EXPECT_FALSE(IsShown(kA1, 1));
    session.pointedMark = kA1 * 9 + 3;
    EXPECT_TRUE(IsShown(kA1, 4));
    EXPECT_FALSE(IsShown(kA1, 1));
    session.pointedMark = kA1 * 9 + 8;
    EXPECT_FALSE(IsShown(kA1, 9)) << "no candidate";
    session.hintColors.ZetHintNummer(kB1, 1, Role::Placed);
    EXPECT_TRUE(IsShown(kB1, 1));
    session.level = 4;
    EXPECT_TRUE(IsShown(kA1, 1));
}

TEST_F(ScreenTest, EqualDigitsOfTheSelectedCellStandOut) {
    Left(kA1, 1);
    const Screen screen = Make();
    EXPECT_EQ(screen.selectedCell, kA1);
    const Digits solution = PlainSolution();
    for (int cell = 18; cell < kCells; ++cell) {
        EXPECT_EQ(CellIn(screen, cell).isSameDigit, solution[static_cast<std::size_t>(cell)] == 1);
        EXPECT_FALSE(CellIn(screen, cell).isDimmed);
    }
    EXPECT_TRUE(CellIn(screen, kA1).isSameDigit);
    session.selectedCell = kA2;
    EXPECT_FALSE(CellIn(Make(), kA1).isSameDigit) << "an empty cell has no equals";
}

TEST_F(ScreenTest, ADigitFilterHighlightsItsDigitAndDimsTheRest) {
    Left(kA1, 1);
    ToggleDigitFilter(stage, 7);
    Screen screen = Make();
    EXPECT_FALSE(CellIn(screen, kA1).isSameDigit);
    EXPECT_TRUE(CellIn(screen, kA1).isDimmed);
    EXPECT_TRUE(CellIn(screen, kC1).isSameDigit);
    EXPECT_FALSE(CellIn(screen, kC1).isDimmed);
    EXPECT_FALSE(CellIn(screen, kB1).isDimmed) << "empty";
    EXPECT_TRUE(MarkIn(screen, kA4, 7).isFiltered);
    EXPECT_FALSE(MarkIn(screen, kA4, 7).isDimmed);
    EXPECT_TRUE(MarkIn(screen, kA4, 4).isDimmed);
    EXPECT_FALSE(MarkIn(screen, kA1, 7).isFiltered) << "not shown";
    FlipOption(stage, &Options::dimmed);
    EXPECT_FALSE(MarkIn(Make(), kA4, 7).isDimmed);
    ToggleDigitFilter(stage, 7);
    EXPECT_EQ(Make().digitFilter, 0);
    EXPECT_FALSE(CellIn(Make(), kA1).isDimmed);
}

TEST_F(ScreenTest, WellsShowTheDigitsThatTheUnitsHold) {
    Left(kA4, 4);
    Screen screen = Make();
    EXPECT_TRUE(screen.areWellsShown);
    EXPECT_EQ(screen.rowWells[0], MarkOf(4));
    EXPECT_EQ(screen.rowWells[2], kAllMarks);
    EXPECT_EQ(screen.columnWells[0], kAllMarks & ~DigitsNamed("14"));
    EXPECT_EQ(screen.columnWells[3], kAllMarks & ~DigitsNamed("7"));
    stage.options.wells = false;
    EXPECT_FALSE(Make().areWellsShown);
    EXPECT_EQ(Make().rowWells[2], 0);
}

TEST_F(ScreenTest, ALinkIsDrawnWhileBothItsMarksAreThere) {
    ToggleLinkMode(stage);
    Left(kA1, 1);
    EXPECT_TRUE(MarkIn(Make(), kA1, 1).isFiltered) << "the link begun can be seen";
    EXPECT_FALSE(MarkIn(Make(), kA1, 4).isFiltered);
    Left(kB1, 4);
    EXPECT_TRUE(Make().isLinkMode);
    ASSERT_EQ(Make().links.size(), 1u);
    ToggleLinkMode(stage);
    Right(kB1, 4);
    EXPECT_TRUE(Make().links.empty());
    UndoStep(stage);
    EXPECT_EQ(Make().links.size(), 1u);
    FlipOption(stage, &Options::pencilmarks);
    EXPECT_TRUE(Make().links.empty());
}

TEST_F(ScreenTest, AHintIsColouredByItsFind) {
    Find find;
    find.kind = HintKind::PointingPair;
    find.AddUnit(UnitNumber(UnitKind::Box, 0));
    find.AddUnit(UnitNumber(UnitKind::Row, 0));
    find.AddCell(kA1);
    find.AddCell(kA2);
    find.AddDigit(1);
    find.removals.Add(At(6, 1));  // A7
    find.links.push_back({CellsNamed("A1 A9"), CellsNamed("B7 B9"), 1, 7, true});
    session.hintColors.Show(find);
    session.hint = find;
    const Screen screen = Make();
    EXPECT_TRUE(CellIn(screen, kA2).isHintCell);
    EXPECT_FALSE(CellIn(screen, 6).isHintCell);
    EXPECT_TRUE(CellIn(screen, 6).isUnitTint);
    EXPECT_TRUE(CellIn(screen, kC1).isUnitTint);
    EXPECT_FALSE(CellIn(screen, 30).isUnitTint);
    EXPECT_TRUE(screen.rowLabels[0].isRed);
    EXPECT_FALSE(screen.columnLabels[0].isRed);
    EXPECT_EQ(MarkIn(screen, kA1, 1).role, Role::Pattern);
    EXPECT_EQ(MarkIn(screen, kA1, 4).role, Role::None);
    EXPECT_EQ(MarkIn(screen, kA2, 1).role, Role::None) << "no mark is there";
    EXPECT_EQ(MarkIn(screen, 6, 1).role, Role::Attacked);
    ASSERT_EQ(screen.links.size(), 1u);
    EXPECT_EQ(screen.links[0], (LinkView{8, 1, 17, 7, true, false})) << "the nearest cells";
    const LegendEntry strong{Role::None, "strong link", LinkLook{true, false}};
    EXPECT_EQ(screen.legend, (std::vector<LegendEntry>{
                                 {Role::Pattern, "pattern"}, {Role::Attacked, "goes"}, strong}));
    EXPECT_TRUE(screen.canApply);

    Find sets;
    sets.kind = HintKind::AlsXz;
    sets.secondColor = {At(kB1, 4)};
    sets.placements.Add(At(kB1, 1));
    sets.AddLink(At(kB1, 1), At(kB1, 4), Find::Strength::Weak);
    sets.links[0].directed = true;
    session.hintColors.Show(sets);
    session.hintColors.ZetHintNummer(30, 1, Role::Pattern);  // a filled cell
    session.isFunctionBusy = true;
    const Screen two = Make();
    const LegendEntry weak{Role::None, "weak link", LinkLook{false, true}};
    EXPECT_EQ(two.legend, (std::vector<LegendEntry>{{Role::Pattern, "first set"},
                                                    {Role::Second, "second set"},
                                                    {Role::Attacked, "goes"},
                                                    {Role::Placed, "comes here"},
                                                    strong,
                                                    weak}));
    EXPECT_FALSE(two.canApply);
    EXPECT_FALSE(two.isBoardEnabled);
}

TEST_F(ScreenTest, ACoveredBoardGivesNothingAway) {
    Left(kA1, 1);
    session.brushes.Arm(3, MouseButton::Left);
    Left(kA2, 0);
    session.links.Click(kB1, 4, MouseButton::Left);
    session.links.Click(kA4, 4, MouseButton::Left);
    GiveHint(stage);
    ASSERT_FALSE(Make().legend.empty());
    session.clock.Tick(clock.second + 75 * 60 + 3);
    session.isStoppedByPlayer = true;
    const Screen screen = Make();
    EXPECT_TRUE(screen.isBoardCovered);
    EXPECT_FALSE(screen.isBoardEnabled);
    for (int cell = 0; cell < kCells; ++cell) {
        const CellView& seen = CellIn(screen, cell);
        EXPECT_EQ(seen.digit, 0);
        EXPECT_FALSE(seen.isClue || seen.isHintCell || seen.isSameDigit || seen.isUnitTint);
        EXPECT_EQ(seen.brush, kNoBrush);
        for (int digit = 1; digit <= kDigits; ++digit) {
            EXPECT_FALSE(MarkIn(screen, cell, digit).isShown);
            EXPECT_EQ(MarkIn(screen, cell, digit).role, Role::None);
        }
    }
    EXPECT_TRUE(screen.links.empty());
    EXPECT_TRUE(screen.legend.empty());
    EXPECT_EQ(screen.rowWells, (std::array<Marks, 9>{}));
    EXPECT_EQ(screen.hintCaption, "");
    EXPECT_FALSE(screen.canApply);
    EXPECT_EQ(screen.timeText, "75:13") << "ten seconds were charged";
    EXPECT_TRUE(screen.isClockStopped);
    EXPECT_EQ(screen.stepText, "Step 1");
}

TEST_F(ScreenTest, WithoutAPuzzleTheBoardIsEmpty) {
    session.phase = PlayPhase::NoPuzzle;
    session.grid = Grid();
    const Screen screen = Make();
    EXPECT_FALSE(screen.isBoardEnabled);
    EXPECT_FALSE(screen.areWellsShown);
    EXPECT_FALSE(MarkIn(screen, kA1, 1).isShown);
    EXPECT_EQ(screen.stepText, "Step 0");
    EXPECT_EQ(screen.hintButton, "Hint");
}

}  // namespace
}  // namespace vemo::test
