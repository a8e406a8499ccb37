#include "records/window_memory.h"

#include <string>

namespace ventrel {

namespace {

constexpr std::string_view windowSection = "Window";
constexpr std::string_view pictureKey = "Picture";
constexpr std::string_view leftKey = "Left";
constexpr std::string_view topKey = "Top";
constexpr std::string_view widthKey = "Width";
constexpr std::string_view heightKey = "Height";

/// Larger than any desktop; keeps arithmetic with damaged numbers harmless.
constexpr int farthest = 32767;

bool isSound(int value) {
    return value >= -farthest && value <= farthest;
}

} // namespace

std::optional<Rect> readWindowPlace(const ProfileFile& profile, int pictureWidth) {
    const auto number = [&](std::string_view key) { return profile.integer(windowSection, key, 0); };
    const Point corner{number(leftKey), number(topKey)};
    const Size size{number(widthKey), number(heightKey)};
    const bool isUsable = number(pictureKey) == pictureWidth && isSound(corner.x) && isSound(corner.y) &&
                          isSound(size.width) && isSound(size.height) && size.width > 0 && size.height > 0;
    return isUsable ? std::optional(Rect::at(corner, size)) : std::nullopt;
}

void writeWindowPlace(const Rect& place, int pictureWidth, ProfileFile& profile) {
    profile.set(windowSection, pictureKey, std::to_string(pictureWidth));
    profile.set(windowSection, leftKey, std::to_string(place.left));
    profile.set(windowSection, topKey, std::to_string(place.top));
    profile.set(windowSection, widthKey, std::to_string(place.width()));
    profile.set(windowSection, heightKey, std::to_string(place.height()));
}

} // namespace ventrel
