// The window "Hint Colors".
#include "game/color_window.h"

#include <charconv>
#include <cstdio>

#include "game/stage.h"

namespace vemo {
namespace {

constexpr std::size_t kHexDigits = 6;

std::string ErrorOf(const std::string& text) {
    return "\"" + text + "\" is no color: write six digits of 0 to 9 and A to F, such as " +
           HexText(0xFFF0BF);
}

void CopyRow(const ColorSet& from, int row, ColorSet& to) {
    ColorAt(to, row) = ColorAt(from, row);
    if (IsBrush(row)) {
        to.brushText[static_cast<std::size_t>(row)] = from.brushText[static_cast<std::size_t>(row)];
    }
}

}  // namespace

std::string HexText(Rgb color) {
    std::array<char, 2 + kHexDigits> text{};
    std::snprintf(text.data(), text.size(), "#%06X", static_cast<unsigned>(color));
    return text.data();
}

std::optional<Rgb> ReadHex(const std::string& text) {
    const std::string trimmed = Trimmed(text, " \t");
    const std::string digits = trimmed.starts_with('#') ? trimmed.substr(1) : trimmed;
    Rgb color = 0;
    const char* end = digits.data() + digits.size();
    const auto [stopped, error] = std::from_chars(digits.data(), end, color, 16);
    if (digits.size() != kHexDigits || error != std::errc() || stopped != end) {
        return std::nullopt;
    }
    return color;
}

ColorWindow::ColorWindow(Colors& colors) : colors_(colors), before_(colors) {
    Update();
}

Rgb ColorWindow::Color(ColorPart part) const {
    return part == ColorPart::Text ? Shown().brushText[static_cast<std::size_t>(row_)]
                                   : ColorAt(Shown(), row_);
}

Rgb& ColorWindow::Place(ColorPart part) {
    ColorSet& set = colors_.Of(tone_);
    return part == ColorPart::Text ? set.brushText[static_cast<std::size_t>(row_)]
                                   : ColorAt(set, row_);
}

std::string ColorWindow::Text(ColorPart part) const {
    return typed_ && typed_->part == part ? typed_->text : HexText(Color(part));
}

bool ColorWindow::CanReset() const {
    ColorSet reset = Shown();
    CopyRow(BuiltInColors().Of(tone_), row_, reset);
    return typed_ || reset != Shown();
}

bool ColorWindow::CanResetAll() const {
    return typed_ || colors_ != BuiltInColors();
}

void ColorWindow::ShowTone(Tone tone) {
    tone_ = tone;
    Update();
}

void ColorWindow::Select(int row) {
    if (row >= 0 && row < kColorRows) {
        row_ = row;
        ForgetTyped();
    }
}

void ColorWindow::Change(ColorPart part, Rgb color) {
    if (HasPart(part)) {
        Place(part) = color;
        Update();
    }
}

void ColorWindow::Type(ColorPart part, const std::string& text) {
    if (const std::optional<Rgb> color = ReadHex(text)) {
        Change(part, *color);
        error_.clear();
    } else {
        error_ = ErrorOf(text);
    }
    typed_ = {part, text};
}

void ColorWindow::EndTyping() {
    if (error_.empty()) {
        ForgetTyped();
    }
}

void ColorWindow::ForgetTyped() {
    typed_.reset();
    error_.clear();
}

void ColorWindow::Reset() {
    CopyRow(BuiltInColors().Of(tone_), row_, colors_.Of(tone_));
    Update();
}

void ColorWindow::ResetAll() {
    colors_ = BuiltInColors();
    Update();
}

void ColorWindow::TakeBack() {
    colors_ = before_;
    Update();
}

void ColorWindow::Follow() {
    Remember();
    Update();
}

void ColorWindow::Update() {
    ForgetTyped();
    for (int row = 0; row < kColorRows; ++row) {
        reports_[static_cast<std::size_t>(row)] = ReportOn(Shown(), tone_, row);
    }
}

void OpenColors(Stage& stage) {
    stage.view.OpenForm(Form::FormColors, Keyboard::Follows);
}

void KeepColors(Stage& stage) {
    if (stage.colorWindow.IsChanged()) {
        SchrijfKleuren(stage.settings, stage.colors);
    }
    stage.colorWindow.Remember();
    stage.colorWindow.ForgetTyped();
}

void AskToKeepColors(Stage& stage) {
    if (stage.colorWindow.IsChanged() &&
        !AskYesNo(stage, "Hint Colors", "Do you want to keep the changed colors ?")) {
        stage.colorWindow.TakeBack();
    }
}

}  // namespace vemo
