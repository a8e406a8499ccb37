#include "replay/airspace_checksum.h"

#include <string>
#include <string_view>

namespace ventrel {

namespace {

constexpr std::uint64_t offsetBasis = 0xCBF29CE484222325;
constexpr std::uint64_t prime = 0x100000001B3;

std::uint64_t hashed(std::string_view text) {
    std::uint64_t hash = offsetBasis;
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * prime;
    }
    return hash;
}

void append(std::string& text, int number) {
    text += std::to_string(number) + ' ';
}

} // namespace

std::uint64_t airspaceChecksum(const Airspace& airspace) {
    std::string text;
    append(text, airspace.layoutWidth);
    for (const Vor& vor : airspace.points) {
        text += vor.ident + ' ';
        for (const int number : {vor.pixel.x, vor.pixel.y, int{vor.isExit}, int{vor.isAirport},
                                 int{vor.isMajor}, vor.runwayHeading, vor.reverseChance}) {
            append(text, number);
        }
    }
    return hashed(text);
}

} // namespace ventrel
