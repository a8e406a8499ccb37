#include "tools/art/daylight.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace ventrel::art {

std::string hex(const Tint& colour) {
    const auto byte = [](double part) {
        return static_cast<unsigned>(std::lround(std::clamp(part, 0.0, 1.0) * 255));
    };
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", byte(colour.red), byte(colour.green),
                  byte(colour.blue));
    return text.data();
}

Tint lit(const Daylight& light, const Tint& paint, const Vec& normal, const Vec& towardsEye, double shine) {
    constexpr double hardness = 18;
    const double facing = std::max(0.0, dot(normal, light.towardsSun));
    const Tint around = mixed(light.ground, light.sky, normal.z / 2 + 0.5);
    const Vec half = unit(light.towardsSun + towardsEye);
    const double glint = facing > 0 ? std::pow(std::max(0.0, dot(normal, half)), hardness) : 0;
    return paint * (light.sun * facing + around) + light.sun * (glint * shine);
}

} // namespace ventrel::art
