// The window that changes the player's colours.
#include "game/color_window.h"

#include "game/support.h"

namespace vemo::test {
namespace {

class ColorWindowTest : public GameTest {
  protected:
    ColorWindowTest() {
        Ship({PuzzleWithOpen({0})});
        StartFirst();
        game->Run(CommandId::OptionsColors);
        EXPECT_EQ(view.opened, std::vector<Form>{Form::FormColors});
    }

    const ColorWindow& Window() const { return game->CurrentColorWindow(); }
    const Colors& Now() const { return game->CurrentColors(); }
    std::string Stored(const char* key) { return settings.Get("Colors", key, ""); }
    void ExpectQuestion(Answer answer) {
        view.Expect("Hint Colors", "Do you want to keep the changed colors ?", answer);
    }
};

TEST_F(ColorWindowTest, AChangeActsAtOnceAndIsStoredByOk) {
    game->ColorSelect(3);
    game->ColorChange(ColorPart::Color, 0x010203);
    game->ColorChange(ColorPart::Text, 0xFFFFFF);
    game->ColorTone(Tone::Dark);
    game->ColorSelect(RowOf(HintColor::Attacked));
    game->ColorChange(ColorPart::Color, 0xFF0000);
    game->ColorChange(ColorPart::Text, 0x00FF00);
    Colors expected = BuiltInColors();
    expected.light.brush[3] = 0x010203;
    expected.light.brushText[3] = 0xFFFFFF;
    expected.dark.hint[1] = 0xFF0000;
    EXPECT_EQ(Now(), expected) << "a hint color has no digits of its own";
    EXPECT_EQ(Stored("BColor3"), "");
    game->CommandKeepColors();
    EXPECT_EQ(view.closed, std::vector<Form>{Form::FormColors});
    EXPECT_TRUE(game->FormQueryUnload(Form::FormColors)) << "nothing is asked";
    game->FormUnload(Form::FormColors);
    EXPECT_EQ(Stored("BColor3"), "66051");
    EXPECT_EQ(Stored("FColor3"), "16777215");
    EXPECT_EQ(Stored("HColor101"), "16711680");
    StartAgain();
    EXPECT_EQ(Now(), expected);
}

TEST_F(ColorWindowTest, CancelTakesAllBackSinceTheWindowOpened) {
    game->ColorChange(ColorPart::Color, 0x010203);
    game->CommandKeepColors();
    const Colors kept = Now();
    game->ColorChange(ColorPart::Color, 0x040506);
    game->CommandResetColors();
    EXPECT_EQ(Now(), BuiltInColors());
    game->CommandCancelColors();
    EXPECT_EQ(Now(), kept);
    EXPECT_EQ(Stored("BColor0"), "66051");
    game->ColorChange(ColorPart::Color, 0x040506);
    game->ColorChange(ColorPart::Color, 0x010203);
    EXPECT_FALSE(Window().IsChanged());
}

TEST_F(ColorWindowTest, ClosingOtherwiseAsksAndQuittingKeeps) {
    EXPECT_TRUE(game->FormQueryUnload(Form::FormColors)) << "nothing has changed";
    game->ColorChange(ColorPart::Color, 0x010203);
    ExpectQuestion(Answer::No);
    EXPECT_TRUE(game->FormQueryUnload(Form::FormColors));
    game->FormUnload(Form::FormColors);
    EXPECT_EQ(Now(), BuiltInColors());
    EXPECT_EQ(Stored("BColor0"), "");
    game->ColorChange(ColorPart::Color, 0x010203);
    ExpectQuestion(Answer::Yes);
    EXPECT_TRUE(game->FormQueryUnload(Form::FormColors));
    game->FormUnload(Form::FormColors);
    EXPECT_EQ(Stored("BColor0"), "66051");
    game->ColorChange(ColorPart::Color, 0x010204);
    view.Expect("Quit Vemo Sudoku", "Do you really want to quit ?", Answer::Yes);
    EXPECT_TRUE(game->FormQueryUnload());
    EXPECT_EQ(Stored("BColor0"), "66052");
}

TEST_F(ColorWindowTest, ATextThatIsNoColorIsNamedAndChangesNothing) {
    EXPECT_EQ(Window().Text(ColorPart::Color), "#E6BD71");
    for (const char* text : {"", "#", "#12345", "1234567", "#12G456", "red", "-12345", "0x1234"}) {
        game->ColorType(ColorPart::Color, text);
        EXPECT_EQ(Window().Error(), "\"" + std::string(text) +
                                        "\" is no color: write six digits of 0 to 9 and A to F, "
                                        "such as #FFF0BF");
        game->ColorEndTyping();
        EXPECT_EQ(Window().Text(ColorPart::Color), text);
        game->CommandKeepColors();
    }
    EXPECT_EQ(Now(), BuiltInColors());
    EXPECT_TRUE(view.closed.empty());
    game->ColorType(ColorPart::Color, " 0a0b0c");
    EXPECT_EQ(Window().Error(), "");
    EXPECT_EQ(Now().light.brush[0], 0x0A0B0CU);
    EXPECT_EQ(Window().Text(ColorPart::Color), " 0a0b0c") << "it is still being typed";
    game->ColorEndTyping();
    EXPECT_EQ(Window().Text(ColorPart::Color), "#0A0B0C");
    game->ColorType(ColorPart::Text, "no");
    game->ColorSelect(4);
    EXPECT_EQ(Window().Error(), "") << "it spoke of another color";
}

TEST_F(ColorWindowTest, ResetTakesOneColorWithItsDigits) {
    EXPECT_FALSE(Window().CanReset());
    EXPECT_FALSE(Window().CanResetAll());
    game->ColorChange(ColorPart::Color, 0x010203);
    game->ColorChange(ColorPart::Text, 0x040506);
    EXPECT_FALSE(Window().Report(0).warnings.empty());
    game->ColorSelect(1);
    EXPECT_FALSE(Window().CanReset());
    game->ColorChange(ColorPart::Color, 0x010203);
    game->ColorSelect(0);
    game->CommandResetColor();
    EXPECT_FALSE(Window().CanReset());
    EXPECT_TRUE(Window().CanResetAll());
    Colors expected = BuiltInColors();
    expected.light.brush[1] = 0x010203;
    EXPECT_EQ(Now(), expected);
    EXPECT_TRUE(Window().Report(0).warnings.empty());
}

}  // namespace
}  // namespace vemo::test
