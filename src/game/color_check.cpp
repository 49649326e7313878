// What there is to say of each colour.
#include "game/color_check.h"

#include <array>

namespace vemo {
namespace {

constexpr BoardInks kLightInks = {
    .board = 0xFFFFFF, .sameDigit = 0xE4EDFB, .clue = 0x17181D, .own = 0x1C5BB8, .mark = 0x5E5D68};
constexpr BoardInks kDarkInks = {
    .board = 0x26272D, .sameDigit = 0x2E3A50, .clue = 0xF3F2EE, .own = 0x8FBAFF, .mark = 0xB1B0BA};

// How a colour is drawn decides what it has to be told from.
enum class Paint : std::uint8_t {
    Brush,  // behind digits of a colour of its own
    Tint,   // behind all digits
    Disc,   // behind one candidate
    Ink,    // of a candidate
    Line,
};

struct HintColorText {
    Paint paint;
    const char* name;
    const char* use;
};

// By HintColor.
constexpr std::array<HintColorText, kHintColors> kHintTexts = {{
    {Paint::Tint, "Hint cell", "Behind the cells that a hint speaks of."},
    {Paint::Ink, "Attacked candidate",
     "Candidates that a hint takes away, struck through, and digits that are wrong."},
    {Paint::Disc, "Pattern", "Candidates of the pattern, or of the first of its two colors."},
    {Paint::Ink, "Second pattern", "Candidates of the second of two colors, outlined."},
    {Paint::Line, "Strong link", "The lines of strong links, your own as well."},
    {Paint::Line, "Weak link", "The dashed lines of weak links, your own as well."},
    {Paint::Tint, "Row, column, box", "Behind the rows, columns and boxes that a hint speaks of."},
    {Paint::Disc, "Placed candidate", "Candidates that a hint places, with a ring."},
}};

const HintColorText& TextOf(int row) {
    return kHintTexts[static_cast<std::size_t>(HintColorAt(row))];
}

Paint PaintOf(int row) {
    return IsBrush(row) ? Paint::Brush : TextOf(row).paint;
}

struct Ground {
    const char* name;
    Rgb color;
};

// What a hint is drawn on.
std::array<Ground, 3> GroundsOf(const ColorSet& set, Tone tone) {
    return {{{"the board", InksOf(tone).board},
             {"a hint cell", set.Hint(HintColor::HintCell)},
             {"a tinted row", set.Hint(HintColor::UnitTint)}}};
}

// The worst contrast of several.
struct Weakest {
    double contrast = 21;
    Rgb ink = 0;
    Ground ground{};

    void Try(Rgb newInk, const Ground& newGround) {
        const double found = Contrast(newInk, newGround.color);
        if (found < contrast) {
            *this = {found, newInk, newGround};
        }
    }
};

Weakest WeakestDigits(const ColorSet& set, Tone tone, int row) {
    const Ground own{"this color", ColorAt(set, row)};
    Weakest weakest;
    switch (PaintOf(row)) {
    case Paint::Brush:
        weakest.Try(set.brushText[static_cast<std::size_t>(row)], own);
        break;
    case Paint::Tint: {
        const BoardInks inks = InksOf(tone);
        for (const Rgb ink : {inks.clue, inks.own, inks.mark}) {
            weakest.Try(ink, own);
        }
        break;
    }
    case Paint::Disc:
        weakest.Try(ReadableOn(own.color), own);
        break;
    case Paint::Ink:
    case Paint::Line:
        break;
    }
    return weakest;
}

Weakest WeakestOnGrounds(const ColorSet& set, Tone tone, int row) {
    Weakest weakest;
    for (const Ground& ground : GroundsOf(set, tone)) {
        weakest.Try(ColorAt(set, row), ground);
    }
    return weakest;
}

// Rounded down: a figure never seems to reach what it misses.
std::string Figure(double contrast) {
    const auto tenths = static_cast<int>(contrast * 10);
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10);
}

std::string ToOne(double contrast, double needed) {
    return Figure(contrast) + " to 1, " + Figure(needed) + " needed";
}

// What boards do about a digit that cannot be read, where any other ink can be.
std::string Mended(const Weakest& weakest) {
    const Rgb end = ReadableOn(weakest.ground.color);
    if (Contrast(end, weakest.ground.color) < kReadable) {
        return "";
    }
    return end == kWhite ? ". The board draws them lighter" : ". The board draws them darker";
}

void AddDigits(ColorReport& report, const Weakest& weakest, Paint paint) {
    const std::string figures = ToOne(weakest.contrast, kReadable);
    report.figure = "Digits on this color: " + figures;
    if (weakest.contrast < kReadable) {
        report.warnings.push_back(
            {"hard to read", "Digits are hard to read on this color: " + figures +
                                 (paint == Paint::Disc ? "" : Mended(weakest))});
    }
}

void AddInk(ColorReport& report, const Weakest& weakest) {
    const std::string figures = ToOne(weakest.contrast, kReadable);
    const std::string ground = weakest.ground.name;
    report.figure = "Digits of this color on " + ground + ": " + figures;
    if (weakest.contrast < kReadable) {
        report.warnings.push_back({"hard to read", "Digits of this color are hard to read on " +
                                                       ground + ": " + figures + Mended(weakest)});
    }
}

void AddShape(ColorReport& report, const Weakest& weakest) {
    const std::string figures = ToOne(weakest.contrast, kVisible);
    const std::string where = "on " + std::string(weakest.ground.name) + ": " + figures;
    if (report.figure.empty()) {
        report.figure = "This color " + where;
    }
    if (weakest.contrast < kVisible) {
        report.warnings.push_back({"hard to see", "This color is hard to see " + where});
    }
}

const char* ForWhom(Vision vision) {
    switch (vision) {
    case Vision::NoRed:
        return " for players who see no red";
    case Vision::NoGreen:
        return " for players who see no green";
    case Vision::NoBlue:
        return " for players who see no blue";
    case Vision::Full:
        break;
    }
    return "";
}

// A colour that nothing but colour tells from another.
struct Rival {
    std::string name;
    Rgb color;
    double needed;
};

bool FillsCells(int row) {
    return PaintOf(row) == Paint::Brush || PaintOf(row) == Paint::Tint;
}

std::vector<Rival> RivalsOf(const ColorSet& set, Tone tone, int row) {
    const bool fillsCells = FillsCells(row);
    std::vector<Rival> rivals;
    for (int other = 0; other < kColorRows; ++other) {
        const bool isAlike = fillsCells
                                 ? FillsCells(other)
                                 : PaintOf(row) == Paint::Disc && PaintOf(other) == Paint::Disc;
        if (other != row && isAlike) {
            rivals.push_back({ColorName(other), ColorAt(set, other), kToldApart});
        }
    }
    if (fillsCells) {
        const BoardInks inks = InksOf(tone);
        const bool isFaint = !IsBrush(row) && HintColorAt(row) == HintColor::UnitTint;
        rivals.push_back({"the empty board", inks.board, isFaint ? kNoticed : kToldApart});
        rivals.push_back({"the cells of equal digits", inks.sameDigit, kToldApart});
    }
    return rivals;
}

void AddNearest(ColorReport& report, const NearestColor& nearest) {
    if (nearest.IsTooNear()) {
        report.warnings.push_back({"much like " + nearest.name,
                                   "Hard to tell from " + nearest.name + ForWhom(nearest.vision)});
    }
}

}  // namespace

BoardInks InksOf(Tone tone) {
    return tone == Tone::Dark ? kDarkInks : kLightInks;
}

std::string ColorName(int row) {
    return IsBrush(row) ? "Color " + std::to_string(row + 1) : TextOf(row).name;
}

std::string ColorUse(int row) {
    return IsBrush(row) ? "A brush for cells, rows and columns, and the digits on it."
                        : TextOf(row).use;
}

Rgb ColorAt(const ColorSet& set, int row) {
    return IsBrush(row) ? set.brush[static_cast<std::size_t>(row)] : set.Hint(HintColorAt(row));
}

Rgb& ColorAt(ColorSet& set, int row) {
    return IsBrush(row) ? set.brush[static_cast<std::size_t>(row)]
                        : set.hint[static_cast<std::size_t>(HintColorAt(row))];
}

ColorReport ReportOn(const ColorSet& set, Tone tone, int row) {
    ColorReport report;
    const Paint paint = PaintOf(row);
    switch (paint) {
    case Paint::Brush:
    case Paint::Tint:
        AddDigits(report, WeakestDigits(set, tone, row), paint);
        break;
    case Paint::Disc:
        AddDigits(report, WeakestDigits(set, tone, row), paint);
        AddShape(report, WeakestOnGrounds(set, tone, row));
        break;
    case Paint::Ink:
        AddInk(report, WeakestOnGrounds(set, tone, row));
        break;
    case Paint::Line:
        AddShape(report, WeakestOnGrounds(set, tone, row));
        break;
    }
    AddNearest(report, NearestTo(set, tone, row));
    return report;
}

NearestColor NearestTo(const ColorSet& set, Tone tone, int row) {
    const auto differenceTo = [&](Rgb other, Vision vision) {
        return Difference(Seen(ColorAt(set, row), vision), Seen(other, vision));
    };
    NearestColor nearest;
    for (const Rival& rival : RivalsOf(set, tone, row)) {
        for (const Vision vision : kVisions) {
            const double difference = differenceTo(rival.color, vision);
            const bool isNearer = nearest.name.empty() ||
                                  difference / rival.needed < nearest.difference / nearest.needed;
            // What nobody can tell apart is not said of some alone.
            const bool isForAll =
                nearest.name == rival.name && nearest.IsTooNear() && nearest.vision == Vision::Full;
            if (isNearer && !isForAll) {
                nearest = {rival.name, difference, rival.needed, vision};
            }
        }
    }
    return nearest;
}

}  // namespace vemo
