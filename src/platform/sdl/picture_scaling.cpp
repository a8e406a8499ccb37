#include "platform/sdl/picture_scaling.h"

#include <algorithm>

namespace ventrel {

namespace {

// Hundredths.
constexpr int whole = 100;
constexpr int comfortablePart = 85; ///< of the screen, at most, for the first window
constexpr int leastPart = 75;       ///< of what would fit: less than that is not worth sharp pixels

int wholeMultiple(Size room, Size picture) {
    return std::min(room.width / picture.width, room.height / picture.height);
}

Size multiplied(Size picture, int multiple) {
    return {picture.width * multiple, picture.height * multiple};
}

/// The largest size of the picture's shape within the room.
Size fitted(Size room, Size picture) {
    const bool isWide = room.width * picture.height > room.height * picture.width;
    return isWide ? Size{std::max(1, room.height * picture.width / picture.height), std::max(1, room.height)}
                  : Size{std::max(1, room.width), std::max(1, room.width * picture.height / picture.width)};
}

int floorDiv(int a, int b) {
    return a >= 0 ? a / b : -((-a + b - 1) / b);
}

} // namespace

Rect pictureArea(Size window, Size picture, PictureFit fit) {
    const Size largest = fitted(window, picture);
    const Size sharp = multiplied(picture, wholeMultiple(window, picture));
    const bool isLargeEnough = sharp.height * whole >= largest.height * leastPart;
    const Size size = fit == PictureFit::sharp && isLargeEnough ? sharp : largest;
    return Rect::at({(window.width - size.width) / 2, (window.height - size.height) / 2}, size);
}

Size firstWindowSize(Size screen, Size picture) {
    const Size room{screen.width * comfortablePart / whole, screen.height * comfortablePart / whole};
    const int multiple = std::max(wholeMultiple(room, picture), std::min(1, wholeMultiple(screen, picture)));
    return multiple >= 1 ? multiplied(picture, multiple) : fitted(screen, picture);
}

Point toPicture(Point window, const Rect& area, Size picture) {
    return {floorDiv((window.x - area.left) * picture.width, area.width()),
            floorDiv((window.y - area.top) * picture.height, area.height())};
}

Point fromPicture(Point point, const Rect& area, Size picture) {
    return {area.left + point.x * area.width() / picture.width,
            area.top + point.y * area.height() / picture.height};
}

} // namespace ventrel
