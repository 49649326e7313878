// The colours of the window, light and dark.
#include "qt/theme.h"

#include "game/color_check.h"

namespace vemo {
namespace {

// How much of the text stays in a disabled text.
constexpr double kDisabledShare = 0.55;

Theme LightTheme() {
    const BoardInks inks = InksOf(Tone::Light);
    return {.window = QRgb(0xF4F3EF),
            .panel = QRgb(0xFBFAF7),
            .board = QRgb(inks.board),
            .thickLine = QRgb(0x2B2C34),
            .thinLine = QRgb(0xCFCCC4),
            .clue = QRgb(inks.clue),
            .own = QRgb(inks.own),
            .mark = QRgb(inks.mark),
            .sameDigit = QRgb(inks.sameDigit),
            .text = QRgb(0x22232A),
            .softText = QRgb(0x63626C),
            .line = QRgb(0xDAD7CF),
            .button = QRgb(0xFFFFFF),
            .accent = QRgb(0x1C5BB8),
            .accentText = QRgb(0xFFFFFF),
            .wrong = QRgb(0xB3261E)};
}

Theme DarkTheme() {
    const BoardInks inks = InksOf(Tone::Dark);
    return {.window = QRgb(0x1B1C20),
            .panel = QRgb(0x222328),
            .board = QRgb(inks.board),
            .thickLine = QRgb(0xE4E2DC),
            .thinLine = QRgb(0x45464E),
            .clue = QRgb(inks.clue),
            .own = QRgb(inks.own),
            .mark = QRgb(inks.mark),
            .sameDigit = QRgb(inks.sameDigit),
            .text = QRgb(0xECEBE6),
            .softText = QRgb(0xA5A4AE),
            .line = QRgb(0x3A3B43),
            .button = QRgb(0x2C2D33),
            .accent = QRgb(0x8FBAFF),
            .accentText = QRgb(0x10203A),
            .wrong = QRgb(0xFF8076)};
}

Rgb Plain(const QColor& color) {
    return color.rgb() & RGB_MASK;
}

QColor At(const std::array<std::uint32_t, kBrushColors>& colors, int index) {
    return QRgb(colors[static_cast<std::size_t>(index)]);
}

}  // namespace

Theme ThemeOf(Tone tone) {
    return tone == Tone::Dark ? DarkTheme() : LightTheme();
}

Tone ToneOf(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::WindowText).lightness() >
                        palette.color(QPalette::Window).lightness();
    return isDark ? Tone::Dark : Tone::Light;
}

Tone ToneOf(Appearance appearance, Tone system) {
    switch (appearance) {
    case Appearance::Light:
        return Tone::Light;
    case Appearance::Dark:
        return Tone::Dark;
    case Appearance::AsTheSystem:
        break;
    }
    return system;
}

QPalette PaletteOf(const Theme& theme) {
    QPalette palette(theme.button, theme.window);
    palette.setColor(QPalette::Window, theme.window);
    palette.setColor(QPalette::WindowText, theme.text);
    palette.setColor(QPalette::Base, theme.panel);
    palette.setColor(QPalette::AlternateBase, theme.window);
    palette.setColor(QPalette::Text, theme.text);
    palette.setColor(QPalette::Button, theme.button);
    palette.setColor(QPalette::ButtonText, theme.text);
    palette.setColor(QPalette::BrightText, theme.wrong);
    palette.setColor(QPalette::PlaceholderText, theme.softText);
    palette.setColor(QPalette::Mid, theme.line);
    palette.setColor(QPalette::Midlight, theme.sameDigit);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, theme.accentText);
    palette.setColor(QPalette::Link, theme.accent);
    palette.setColor(QPalette::LinkVisited, theme.accent);
    palette.setColor(QPalette::ToolTipBase, theme.panel);
    palette.setColor(QPalette::ToolTipText, theme.text);
    const QColor off = Mixed(theme.window, theme.text, kDisabledShare);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, off);
    }
    palette.setColor(QPalette::Disabled, QPalette::Button,
                     Mixed(theme.window, theme.button, kDisabledShare));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, theme.line);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, off);
    return palette;
}

QColor BoardColors::Brush(int brush) const {
    return At(chosen.brush, brush);
}

QColor BoardColors::BrushText(int brush) const {
    return MadeReadable(At(chosen.brushText, brush), Brush(brush));
}

QColor BoardColors::Hint(HintColor color) const {
    return QRgb(chosen.Hint(color));
}

QColor ReadableOn(const QColor& fill) {
    return QRgb(ReadableOn(Plain(fill)));
}

QColor MadeReadable(const QColor& color, const QColor& ground) {
    const QColor end = ReadableOn(ground);
    QColor readable = color;
    for (int step = 1; step <= 10 && Contrast(readable, ground) < kReadable; ++step) {
        readable = Mixed(color, end, step / 10.0);
    }
    return readable;
}

QColor Mixed(const QColor& base, const QColor& top, double share) {
    const auto mix = [share](float below, float above) {
        return static_cast<float>(below + (above - below) * share);
    };
    return QColor::fromRgbF(mix(base.redF(), top.redF()), mix(base.greenF(), top.greenF()),
                            mix(base.blueF(), top.blueF()));
}

double Contrast(const QColor& first, const QColor& second) {
    return Contrast(Plain(first), Plain(second));
}

}  // namespace vemo
