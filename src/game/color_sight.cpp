// Contrast and difference of colours.
#include "game/color_sight.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vemo {
namespace {

constexpr Rgb kBlack = 0x17181D;

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

constexpr Matrix kFullVision = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix kNoRed = {{{0.152286, 1.052583, -0.204868},
                            {0.114503, 0.786281, 0.099216},
                            {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix kNoGreen = {{{0.367322, 0.860646, -0.227968},
                              {0.280085, 0.672501, 0.047413},
                              {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix kNoBlue = {{{1.255528, -0.076749, -0.178779},
                             {-0.078411, 0.930809, 0.147602},
                             {0.004733, 0.691367, 0.303900}}};

// From linear red, green and blue to X, Y and Z, each divided by that of white (D65).
constexpr Matrix kToXyz = {{{0.433950, 0.376210, 0.189840},
                            {0.212673, 0.715152, 0.072175},
                            {0.017757, 0.109468, 0.872775}}};

const Matrix& MatrixOf(Vision vision) {
    switch (vision) {
    case Vision::NoRed:
        return kNoRed;
    case Vision::NoGreen:
        return kNoGreen;
    case Vision::NoBlue:
        return kNoBlue;
    case Vision::Full:
        break;
    }
    return kFullVision;
}

Vector Times(const Matrix& matrix, const Vector& vector) {
    Vector product{};
    for (std::size_t row = 0; row < product.size(); ++row) {
        for (std::size_t k = 0; k < vector.size(); ++k) {
            product[row] += matrix[row][k] * vector[k];
        }
    }
    return product;
}

// Red, green and blue in shares of their full light.
Vector Light(Rgb color) {
    const auto light = [](Rgb byte) {
        const double value = static_cast<double>(byte & 0xFF) / 255;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return {light(color >> 16), light(color >> 8), light(color)};
}

double Luminance(Rgb color) {
    const Vector light = Light(color);
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

// In degrees, 0 to 360.
double Hue(double a, double b) {
    const double hue = std::atan2(b, a) * 180 / std::numbers::pi;
    return hue < 0 ? hue + 360 : hue;
}

// 0 for grays, almost 1 for strong colours.
double StrongShare(double chroma) {
    constexpr double kTwentyFive7 = 6103515625;
    const double chroma7 = std::pow(chroma, 7);
    return std::sqrt(chroma7 / (chroma7 + kTwentyFive7));
}

// Of two hues that have no direction in common where one colour is gray.
struct HuePair {
    double difference = 0;
    double mean = 0;
};

HuePair Compare(double first, double second, bool isGray) {
    if (isGray) {
        return {0, first + second};
    }
    const double plain = second - first;
    if (std::abs(plain) <= 180) {
        return {plain, (first + second) / 2};
    }
    const double sum = first + second;
    return {plain > 0 ? plain - 360 : plain + 360, (sum < 360 ? sum + 360 : sum - 360) / 2};
}

}  // namespace

double Contrast(Rgb first, Rgb second) {
    const double a = Luminance(first) + 0.05;
    const double b = Luminance(second) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

Rgb ReadableOn(Rgb fill) {
    return Contrast(fill, kBlack) >= Contrast(fill, kWhite) ? kBlack : kWhite;
}

Lab Seen(Rgb color, Vision vision) {
    Vector light = Times(MatrixOf(vision), Light(color));
    for (double& part : light) {
        part = std::clamp(part, 0.0, 1.0);
    }
    Vector xyz = Times(kToXyz, light);
    for (double& part : xyz) {
        part = part > 216.0 / 24389 ? std::cbrt(part) : (24389.0 / 27 * part + 16) / 116;
    }
    return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

// The steps and names of Sharma, Wu and Dalal (2005).
double Difference(const Lab& first, const Lab& second) {
    const double plainMean = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2;
    const double stretch = 1 + 0.5 * (1 - StrongShare(plainMean));
    const double a1 = first.a * stretch;
    const double a2 = second.a * stretch;
    const double c1 = std::hypot(a1, first.b);
    const double c2 = std::hypot(a2, second.b);
    const HuePair hue = Compare(Hue(a1, first.b), Hue(a2, second.b), c1 * c2 == 0);

    const double dL = second.lightness - first.lightness;
    const double dC = c2 - c1;
    const double dH = 2 * std::sqrt(c1 * c2) * std::sin(Radians(hue.difference / 2));
    const double lMean = (first.lightness + second.lightness) / 2;
    const double cMean = (c1 + c2) / 2;
    const double t =
        1 - 0.17 * std::cos(Radians(hue.mean - 30)) + 0.24 * std::cos(Radians(2 * hue.mean)) +
        0.32 * std::cos(Radians(3 * hue.mean + 6)) - 0.20 * std::cos(Radians(4 * hue.mean - 63));
    const double middle = (lMean - 50) * (lMean - 50);
    const double sL = 1 + 0.015 * middle / std::sqrt(20 + middle);
    const double sC = 1 + 0.045 * cMean;
    const double sH = 1 + 0.015 * cMean * t;
    const double blue = (hue.mean - 275) / 25;
    const double turn = 30 * std::exp(-blue * blue);
    const double rT = -2 * StrongShare(cMean) * std::sin(Radians(2 * turn));
    const double l = dL / sL;
    const double c = dC / sC;
    const double h = dH / sH;
    return std::sqrt(l * l + c * c + h * h + rT * c * h);
}

}  // namespace vemo
