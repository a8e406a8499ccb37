#include "tools/apt/colour_sight.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace ventrel::apt {

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

/// What of a colour reaches the eye, as light of red, green and blue (Machado, Oliveira and Fernandes, 2009).
constexpr Matrix everything{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix noRed{
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix noGreen{
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix noBlue{
    {{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}};

/// From light of red, green and blue to X, Y and Z, parts of those of white.
constexpr Matrix toXyz{{{0.43388, 0.37622, 0.18990}, {0.2126, 0.7152, 0.0722}, {0.01774, 0.10946, 0.87280}}};

double lightOf(std::uint8_t channel) {
    constexpr double most = 255;
    const double part = channel / most;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

Triple lightOf(Colour colour) {
    return {lightOf(colour.red()), lightOf(colour.green()), lightOf(colour.blue())};
}

Triple product(const Matrix& matrix, const Triple& light) {
    Triple sums{};
    for (std::size_t i = 0; i < sums.size(); ++i) {
        sums[i] = matrix[i][0] * light[0] + matrix[i][1] * light[1] + matrix[i][2] * light[2];
    }
    return sums;
}

const Matrix& seenBy(Sight sight) {
    switch (sight) {
    case Sight::withoutRed: return noRed;
    case Sight::withoutGreen: return noGreen;
    case Sight::withoutBlue: return noBlue;
    case Sight::full: break;
    }
    return everything;
}

/// The place in the space of colours (CIE L*a*b*) in which equal steps look equal.
Triple placeOf(Colour colour, Sight sight) {
    Triple light = product(seenBy(sight), lightOf(colour));
    std::ranges::transform(light, light.begin(), [](double part) { return std::clamp(part, 0.0, 1.0); });
    Triple root = product(toXyz, light);
    std::ranges::transform(root, root.begin(), [](double part) {
        return part > 0.008856 ? std::cbrt(part) : 7.787 * part + 16.0 / 116;
    });
    return {116 * root[1] - 16, 500 * (root[0] - root[1]), 200 * (root[1] - root[2])};
}

} // namespace

double luminanceOf(Colour colour) {
    return product(toXyz, lightOf(colour))[1];
}

double contrast(double luminance, double otherLuminance) {
    constexpr double flare = 0.05; // of the room's light on the screen
    return (std::max(luminance, otherLuminance) + flare) / (std::min(luminance, otherLuminance) + flare);
}

double distanceSeen(Colour a, Colour b, Sight sight) {
    const Triple p = placeOf(a, sight);
    const Triple q = placeOf(b, sight);
    return std::hypot(p[0] - q[0], p[1] - q[1], p[2] - q[2]);
}

} // namespace ventrel::apt
