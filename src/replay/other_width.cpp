#include "replay/other_width.h"

#include <algorithm>

namespace ventrel {

namespace {

/// Where in its cell it was, it is in the cell of the other size.
int movedWithin(int cell, int pixel, int from, int to) {
    return cell * to + (pixel - cell * from) * to / from;
}

Vor movedPoint(Vor point, const ScopeLayout& from, const ScopeLayout& to) {
    point.pixel = {movedWithin(point.cell.x, point.pixel.x, from.cellSize, to.cellSize),
                   movedWithin(point.cell.y, point.pixel.y, from.cellSize, to.cellSize)};
    return point;
}

/// A cloud's place along one side of the picture. Out of sight stays just out of sight.
int movedAlong(int place, int cloud, int movedCloud, int picture, int movedPicture) {
    if (place <= -cloud) {
        return -movedCloud;
    }
    return place >= picture ? movedPicture : place * movedPicture / picture;
}

void moveCloud(Cloud& cloud, Size size, const ScopeLayout& from, const ScopeLayout& to) {
    const auto moved = [&](Point place) {
        return Point{
            movedAlong(place.x, cloud.size.width, size.width, from.pictureSize(), to.pictureSize()),
            movedAlong(place.y, cloud.size.height, size.height, from.pictureSize(), to.pictureSize())};
    };
    cloud.start = moved(cloud.start);
    cloud.position = moved(cloud.position);
    cloud.size = size;
}

} // namespace

void moveToLayout(Game& game, const ScopeLayout& layout, std::span<const Size> cloudSizes,
                  std::span<const std::byte> picture) {
    std::vector<Vor> points = *game.points;
    for (Vor& point : points) {
        point = movedPoint(std::move(point), game.layout, layout);
    }
    game.points = std::make_shared<const std::vector<Vor>>(std::move(points));
    for (Cloud& cloud : game.clouds) {
        const auto image = static_cast<std::size_t>(cloud.image);
        moveCloud(cloud, image < cloudSizes.size() ? cloudSizes[image] : Size{}, game.layout, layout);
    }
    auto airspace = std::make_shared<Airspace>(*game.airspace);
    airspace->layoutWidth = layout.windowWidth;
    airspace->picture.assign(picture.begin(), picture.end());
    game.airspace = std::move(airspace);
    game.layout = layout;
}

bool hasSamePoints(const Airspace& airspace, const Airspace& other) {
    return std::ranges::equal(airspace.points, other.points, {}, &Vor::ident, &Vor::ident);
}

} // namespace ventrel
