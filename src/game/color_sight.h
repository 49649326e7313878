// How colours look: their contrast, as accessibility rules count it, and the difference that people
// see between two of them, with each kind of colour vision.
#pragma once

#include <cstdint>

namespace vemo {

using Rgb = std::uint32_t;  // 0xRRGGBB, as screens show it

// From 1, alike, to 21, black and white. Text needs kReadable, lines and shapes need kVisible.
double Contrast(Rgb first, Rgb second);
inline constexpr double kReadable = 4.5;
inline constexpr double kVisible = 3;

// A soft black or kWhite, whichever is easier to read on `fill`.
inline constexpr Rgb kWhite = 0xFFFFFF;
Rgb ReadableOn(Rgb fill);

enum class Vision : std::uint8_t { Full, NoRed, NoGreen, NoBlue };
inline constexpr Vision kVisions[] = {Vision::Full, Vision::NoRed, Vision::NoGreen, Vision::NoBlue};

// A point of the space in which equal distances look about alike (CIE 1976, for daylight).
struct Lab {
    double lightness = 0;  // 0 to 100
    double a = 0;          // green to red
    double b = 0;          // blue to yellow
};
// As someone with this vision sees the colour; those without one kind of cones by the simulation of
// Machado, Oliveira and Fernandes (2009).
Lab Seen(Rgb color, Vision vision);
// By CIEDE2000: about 1 is just noticed side by side, 100 is black and white.
double Difference(const Lab& first, const Lab& second);

}  // namespace vemo
