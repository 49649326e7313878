// The window "Hint Colors": the colours of both palettes, changed one by one. Changes act at once;
// until the window closes they can be taken back.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "game/color_check.h"

namespace vemo {

struct Stage;

// What can be changed of a row: its colour, and for a brush the colour of the digits on it.
enum class ColorPart : std::uint8_t { Color, Text };

// "#FFF0BF". Six hexadecimal digits, with or without the sign, are read back.
std::string HexText(Rgb color);
std::optional<Rgb> ReadHex(const std::string& text);

class ColorWindow {
  public:
    // The colours outlive the window.
    explicit ColorWindow(Colors& colors);

    Tone ShownTone() const { return tone_; }
    const ColorSet& Shown() const { return colors_.Of(tone_); }  // the palette of that tone
    const ColorReport& Report(int row) const { return reports_[static_cast<std::size_t>(row)]; }

    int Row() const { return row_; }  // the selected one
    bool HasPart(ColorPart part) const { return part == ColorPart::Color || IsBrush(row_); }
    Rgb Color(ColorPart part) const;  // of a part that the row has
    // What stands in its text box; what was typed there last, while it is being typed.
    std::string Text(ColorPart part) const;
    // Why that is no colour; empty where it is one.
    const std::string& Error() const { return error_; }

    bool CanReset() const;
    bool CanResetAll() const;
    // The window cannot close with OK while a text is no colour.
    bool CanKeep() const { return error_.empty(); }
    // Something is not as it was when the window opened.
    bool IsChanged() const { return colors_ != before_; }

    void ShowTone(Tone tone);
    // Any other row than 0..17 changes nothing.
    void Select(int row);
    void Change(ColorPart part, Rgb color);
    // Changes the colour where the text is one.
    void Type(ColorPart part, const std::string& text);
    // The typing has ended: a colour's text is shown in its usual form, what is none stays.
    void EndTyping();
    // What was typed goes.
    void ForgetTyped();
    // To the colours that came with the game: the row's, or all of both palettes.
    void Reset();
    void ResetAll();
    // From here on, these are the colours to take back to.
    void Remember() { before_ = colors_; }
    void TakeBack();
    // The colours were read anew.
    void Follow();

  private:
    struct Typed {
        ColorPart part;
        std::string text;
    };

    Rgb& Place(ColorPart part);
    void Update();

    Colors& colors_;
    Colors before_;
    Tone tone_ = Tone::Light;
    int row_ = 0;
    std::optional<Typed> typed_;
    std::string error_;
    std::array<ColorReport, kColorRows> reports_;
};

// The events that concern the rest of the game.
void OpenColors(Stage& stage);
// The window closes with the colours as they are: they are stored where any has changed.
void KeepColors(Stage& stage);
// Asks where colours have changed, and takes them back where the player does not want them.
void AskToKeepColors(Stage& stage);

}  // namespace vemo
