// What is said of the player's colours, and that those of the game leave nothing to say.
#include "game/color_check.h"

#include <cmath>

#include <gtest/gtest.h>

namespace vemo::test {
namespace {

constexpr int kFirstBrush = 0;

std::vector<std::string> TextsOf(const ColorReport& report) {
    std::vector<std::string> texts;
    for (const ColorWarning& warning : report.warnings) {
        texts.push_back(warning.text);
    }
    return texts;
}

TEST(ColorSightTest, ContrastIsThatOfTheAccessibilityRules) {
    EXPECT_NEAR(Contrast(0x000000, 0xFFFFFF), 21, 1e-9);
    EXPECT_NEAR(Contrast(0x123456, 0x123456), 1, 1e-9);
    EXPECT_NEAR(Contrast(0xFFFFFF, 0x767676), 4.54, 0.005);
    EXPECT_NEAR(Contrast(0xFFFFFF, 0x777777), 4.48, 0.005);
    EXPECT_NEAR(Contrast(0xFF0000, 0xFFFFFF), 4.00, 0.005);
}

// Pairs of the data that its authors published for testing.
TEST(ColorSightTest, DifferenceIsCiede2000) {
    const auto expect = [](const Lab& first, const Lab& second, double difference) {
        EXPECT_NEAR(Difference(first, second), difference, 1e-4);
        EXPECT_NEAR(Difference(second, first), difference, 1e-4);
    };
    expect({50, 2.6772, -79.7751}, {50, 0, -82.7485}, 2.0425);
    expect({50, -1, 2}, {50, 0, 0}, 2.3669);
    expect({50, 2.49, -0.001}, {50, -2.49, 0.0009}, 7.1792);
    expect({50, 2.5, 0}, {73, 25, -18}, 27.1492);
    expect({60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644);
    expect({2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}, 0.9082);
}

TEST(ColorSightTest, EachKindOfColorBlindnessConfusesItsOwnColors) {
    const auto difference = [](Rgb first, Rgb second, Vision vision) {
        return Difference(Seen(first, vision), Seen(second, vision));
    };
    for (const Vision vision : kVisions) {
        const Lab gray = Seen(0x808080, vision);
        EXPECT_NEAR(gray.lightness, 53.59, 0.01);
        EXPECT_NEAR(std::hypot(gray.a, gray.b), 0, 0.01);
    }
    constexpr Rgb kOlive = 0x8C8C3C;
    constexpr Rgb kOrange = 0xC07A3C;
    EXPECT_LT(difference(kOlive, kOrange, Vision::NoGreen),
              difference(kOlive, kOrange, Vision::Full) / 2);
    constexpr Rgb kBlue = 0x4090B0;
    constexpr Rgb kGreen = 0x40A070;
    EXPECT_LT(difference(kBlue, kGreen, Vision::NoBlue),
              difference(kBlue, kGreen, Vision::Full) / 2);
}

TEST(ColorCheckTest, TheColorsThatComeWithTheGameAreReadAndToldApartByEverybody) {
    const Colors colors = BuiltInColors();
    for (const Tone tone : {Tone::Light, Tone::Dark}) {
        const ColorSet& set = colors.Of(tone);
        for (int row = 0; row < kColorRows; ++row) {
            EXPECT_EQ(TextsOf(ReportOn(set, tone, row)), std::vector<std::string>())
                << ColorName(row) << (tone == Tone::Dark ? ", dark" : ", light");
        }
        for (int brush = 0; brush < kBrushColors; ++brush) {
            for (int other = 0; other < brush; ++other) {
                EXPECT_GE(Contrast(ColorAt(set, brush), ColorAt(set, other)), 1.1)
                    << "without any colour";
                for (const Vision vision : kVisions) {
                    EXPECT_GE(Difference(Seen(ColorAt(set, brush), vision),
                                         Seen(ColorAt(set, other), vision)),
                              10)
                        << ColorName(brush) << " and " << ColorName(other);
                }
            }
        }
    }
}

TEST(ColorCheckTest, WhatIsHardToReadOrToSeeIsSaidWithItsFigures) {
    ColorSet set = BuiltInColors().light;
    set.brush[kFirstBrush] = 0x404040;
    set.brushText[kFirstBrush] = 0x5A5A5A;
    EXPECT_EQ(TextsOf(ReportOn(set, Tone::Light, kFirstBrush)),
              std::vector<std::string>{"Digits are hard to read on this color: 1.5 to 1, 4.5 "
                                       "needed. The board draws them lighter"});
    // Neither black nor white is read well on it.
    set.brush[kFirstBrush] = 0x777777;
    set.brushText[kFirstBrush] = 0xFFFFFF;
    const ColorReport gray = ReportOn(set, Tone::Light, kFirstBrush);
    EXPECT_EQ(TextsOf(gray), std::vector<std::string>{
                                 "Digits are hard to read on this color: 4.4 to 1, 4.5 needed"});
    EXPECT_EQ(gray.figure, "Digits on this color: 4.4 to 1, 4.5 needed");

    const auto change = [&](HintColor color, Rgb value) {
        set.hint[static_cast<std::size_t>(color)] = value;
        return TextsOf(ReportOn(set, Tone::Light, RowOf(color)));
    };
    EXPECT_EQ(
        change(HintColor::WeakLink, 0xFFFFFF),
        std::vector<std::string>{"This color is hard to see on the board: 1.0 to 1, 3.0 needed"});
    EXPECT_EQ(change(HintColor::Attacked, 0xFFF0BF),
              std::vector<std::string>{"Digits of this color are hard to read on a hint cell: 1.0 "
                                       "to 1, 4.5 needed. The board draws them darker"});
    EXPECT_EQ(change(HintColor::HintCell, 0x17181D).size(), 1U) << "the clues' own color";
}

TEST(ColorCheckTest, WhatIsHardToTellApartIsSaidAndForWhom) {
    ColorSet set = BuiltInColors().light;
    set.brush[0] = set.brush[9];
    EXPECT_EQ(TextsOf(ReportOn(set, Tone::Light, 0)),
              std::vector<std::string>{"Hard to tell from Color 10"});
    // A pair that those without red cones mix up.
    set.brush[0] = 0xD4EEB9;
    EXPECT_EQ(NearestTo(set, Tone::Light, 0).name, "Hint cell");
    EXPECT_EQ(TextsOf(ReportOn(set, Tone::Light, 0)),
              std::vector<std::string>{"Hard to tell from Hint cell for players who see no red"});
    set.hint[static_cast<std::size_t>(HintColor::Pattern)] = set.Hint(HintColor::Placed);
    EXPECT_EQ(ReportOn(set, Tone::Light, RowOf(HintColor::Pattern)).warnings.back().brief,
              "much like Placed candidate");
    set.hint[static_cast<std::size_t>(HintColor::SecondPattern)] = set.Hint(HintColor::Placed);
    EXPECT_TRUE(ReportOn(set, Tone::Light, RowOf(HintColor::SecondPattern)).warnings.empty())
        << "its shape is another";
    set.hint[static_cast<std::size_t>(HintColor::UnitTint)] = 0xFEFEFE;
    EXPECT_EQ(ReportOn(set, Tone::Light, RowOf(HintColor::UnitTint)).warnings.back().brief,
              "much like the empty board");
}

}  // namespace
}  // namespace vemo::test
