#include "sim/cloud_cover.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr ClockSeconds cloudInterval = 4 * clockMinute;
constexpr ClockSeconds appearanceUnit = 5_s;
constexpr int driftPixels = 2;           // for each frame
constexpr std::size_t cloudsAtStart = 3; // already on the picture when the shift begins

ClockSeconds roundedDown(ClockSeconds time) {
    return time - time % appearanceUnit;
}

/// A number from 0 to `last`; always one draw, also when there is nothing to choose.
int drawUpTo(RandomGenerator& random, int last) {
    return random.next() % (std::max(last, 0) + 1);
}

/// Where a cloud drifts in from: a place on the edge of the picture, just out of sight.
Point startAtEdge(int driftHeading, Size cloud, int pictureSize, RandomGenerator& random) {
    switch (driftHeading) {
    case 0: return {drawUpTo(random, pictureSize - cloud.width), pictureSize};
    case 180: return {drawUpTo(random, pictureSize - cloud.width), -cloud.height};
    case 45:
    case 90:
    case 135: return {-cloud.width, Random(random, pictureSize)};
    default: return {pictureSize, Random(random, pictureSize)};
    }
}

/// A cloud comes with the flight of its number, or in the middle of the shift when there is no such flight.
ClockSeconds appearanceTime(const Game& game, std::size_t cloud) {
    return roundedDown(cloud < game.flights.size() ? game.flights[cloud].scheduledAt : game.shiftLength / 2);
}

} // namespace

void makeClouds(Game& game, bool wanted, std::span<const Size> sizes) {
    RandomGenerator& random = game.random;
    game.clouds.clear();
    const int count = game.shiftLength / cloudInterval;
    if (!wanted || count == 0) {
        return;
    }
    const int pictureSize = game.layout.pictureSize();
    const int firstImage = Random(random, game.layout.cloudImages);
    const int drift = headingStep * (Random(random, fullCircle) / headingStep);
    game.clouds.resize(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < game.clouds.size(); ++i) {
        Cloud& cloud = game.clouds[i];
        cloud.image = (firstImage + static_cast<int>(i)) % game.layout.cloudImages;
        cloud.driftHeading = drift;
        cloud.appearAt = appearanceTime(game, i);
        const auto image = static_cast<std::size_t>(cloud.image);
        cloud.size = image < sizes.size() ? sizes[image] : Size{};
        cloud.start = startAtEdge(drift, cloud.size, pictureSize, random);
        cloud.position = cloud.start;
    }
    for (std::size_t i = 0; i < std::min(cloudsAtStart, game.clouds.size()); ++i) {
        Cloud& cloud = game.clouds[i];
        cloud.appearAt = 0_s;
        cloud.start.x = Random(random, pictureSize);
        cloud.start.y = Random(random, pictureSize);
        cloud.position = cloud.start;
    }
}

bool CloudDrift(Cloud& cloud, int scopeSize) {
    if (!cloud.visible) {
        return false;
    }
    const Cell direction = stepCell({0, 0}, cloud.driftHeading);
    cloud.position = cloud.position + Point{direction.x * driftPixels, direction.y * driftPixels};
    const auto [x, y] = cloud.position;
    return x <= scopeSize && y <= scopeSize && x >= -cloud.size.width && y >= -cloud.size.height;
}

void showClouds(Game& game) {
    if (!game.cloudCover) {
        return;
    }
    for (Cloud& cloud : game.clouds) {
        if (cloud.isShown) {
            cloud.visible = CloudDrift(cloud, game.layout.pictureSize());
        } else {
            cloud.isShown = cloud.appearAt < game.clock;
        }
    }
}

} // namespace ventrel
