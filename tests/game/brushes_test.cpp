// Brushes and links.
#include "game/brushes.h"

#include <gtest/gtest.h>

namespace vemo {
namespace {

using enum MouseButton;

TEST(Brushes, EachButtonHasItsBrushAndALabelServesOne) {
    Brushes brushes;
    brushes.PaintCell(5, Left);
    EXPECT_EQ(brushes.CellColor(5), kNoBrush) << "no brush is armed";
    brushes.Arm(4, Left);
    brushes.Arm(7, Right);
    brushes.PaintCell(5, Left);
    EXPECT_EQ(brushes.CellColor(5), 4);
    brushes.PaintCell(5, Right);
    EXPECT_EQ(brushes.CellColor(5), 7);
    brushes.PaintCell(5, Right);
    EXPECT_EQ(brushes.CellColor(5), kNoBrush) << "it was that colour already";
    brushes.Arm(7, Left);
    EXPECT_EQ(brushes.Armed(Left), 7);
    EXPECT_EQ(brushes.Armed(Right), kNoBrush) << "the label changed over";
    brushes.Arm(7, Left);
    EXPECT_FALSE(brushes.IsArmed());
}

TEST(Brushes, AUnitIsPaintedWithItsLabel) {
    Brushes brushes;
    brushes.Arm(4, Left);
    brushes.Arm(7, Right);
    brushes.PaintCell(18, Left);
    brushes.PaintUnit(UnitKind::Row, 2, Left);
    brushes.PaintUnit(UnitKind::Column, 1, Right);
    EXPECT_EQ(brushes.CellColor(18), 4) << "painted before, and not taken off";
    EXPECT_EQ(brushes.CellColor(20), 4);
    EXPECT_EQ(brushes.LabelColor(UnitKind::Row, 2), 4);
    EXPECT_EQ(brushes.LabelColor(UnitKind::Column, 2), kNoBrush);

    brushes.PaintUnit(UnitKind::Row, 2, Left);
    EXPECT_EQ(brushes.CellColor(18), kNoBrush);
    EXPECT_EQ(brushes.CellColor(19), 7) << "the column's paint stays";
    EXPECT_EQ(brushes.LabelColor(UnitKind::Row, 2), kNoBrush);
    brushes.Clear();
    EXPECT_EQ(brushes.CellColor(19), kNoBrush);
    EXPECT_EQ(brushes.LabelColor(UnitKind::Column, 1), kNoBrush);
    EXPECT_TRUE(brushes.IsArmed());
}

TEST(Links, TheSecondClickDrawsALinkAndTheSamePairTakesItOff) {
    Links links;
    links.Toggle();
    links.Click(3, 7, Left);
    links.Click(12, 7, Left);
    links.Click(12, 7, Left);
    links.Click(12, 5, Right);
    ASSERT_EQ(links.All().size(), 2u);
    EXPECT_EQ(links.All()[0], (LinkView{3, 7, 12, 7, true, false}));
    EXPECT_EQ(links.All()[1], (LinkView{12, 7, 12, 5, false, false}));
    // Backwards and with the other button it is still the same pair.
    links.Click(12, 7, Right);
    links.Click(3, 7, Right);
    ASSERT_EQ(links.All().size(), 1u);
    EXPECT_EQ(links.All()[0].toDigit, 5);
}

TEST(Links, ABegunLinkIsTakenBackByItsOwnMarkAndByLeavingTheMode) {
    Links links;
    links.Toggle();
    links.Click(3, 7, Left);
    links.Click(3, 7, Left);
    EXPECT_EQ(links.StartCell(), kNoLinkCell);
    links.Click(3, 7, Left);
    links.Toggle();
    links.Toggle();
    links.Click(12, 5, Left);
    EXPECT_TRUE(links.All().empty());
    EXPECT_EQ(links.StartDigit(), 5);
    links.Clear();
    EXPECT_EQ(links.StartCell(), kNoLinkCell);
}

}  // namespace
}  // namespace vemo
