#include "radar/clouds.h"

namespace ventrel {

void drawClouds(Canvas& canvas, std::span<const Cloud> clouds, std::span<const Bitmap> pictures) {
    for (const Cloud& cloud : clouds) {
        if (cloud.visible && cloud.isShown) {
            const Bitmap& picture = pictures[static_cast<std::size_t>(cloud.image)];
            canvas.drawTransparent(cloud.position, picture, cloudTransparent);
        }
    }
}

} // namespace ventrel
