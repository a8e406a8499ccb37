#include "radar/clouds.h"

namespace ventrel {

namespace {

constexpr int driftPixels = 2; // for each frame

} // namespace

bool CloudDrift(Cloud& cloud, Size picture, int scopeSize) {
    if (!cloud.visible) {
        return false;
    }
    const Cell direction = stepCell({0, 0}, cloud.driftHeading);
    cloud.position = cloud.position + Point{direction.x * driftPixels, direction.y * driftPixels};
    const auto [x, y] = cloud.position;
    return x <= scopeSize && y <= scopeSize && x >= -picture.width && y >= -picture.height;
}

void drawClouds(Canvas& canvas, std::span<Cloud> clouds, std::span<const Bitmap> pictures, ClockSeconds now,
                int scopeSize) {
    for (Cloud& cloud : clouds) {
        if (!cloud.visible || cloud.appearAt >= now) {
            continue;
        }
        const Bitmap& picture = pictures[static_cast<std::size_t>(cloud.image)];
        canvas.drawTransparent(cloud.position, picture, cloudTransparent);
        cloud.visible = CloudDrift(cloud, picture.size(), scopeSize);
    }
}

} // namespace ventrel
