#include "presentation/framed_picture.h"

namespace ventrel {

namespace {

constexpr int frameCount = 8;
constexpr int frameDistance = 2;
constexpr Colour navy = Colour::rgb(0, 0, 128);

} // namespace

Point centredCorner(Size screen, Size size) {
    return {(screen.width - size.width) / 2, (screen.height - size.height) / 2};
}

void drawNavyFrames(Canvas& canvas, const Rect& picture) {
    for (int i = 1; i <= frameCount; ++i) {
        canvas.frame(picture.grownBy(i * frameDistance), navy);
    }
}

} // namespace ventrel
