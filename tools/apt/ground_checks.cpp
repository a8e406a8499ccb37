#include "tools/apt/ground_checks.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "map_geometry/map_geometry.h"
#include "platform/canvas/region.h"
#include "tools/apt/colour_sight.h"
#include "tools/apt/label_checks.h"

namespace ventrel::apt {

namespace {

constexpr double leastContrast = 3;
constexpr int patch = 10;            // pixels of the side of a part of the picture, about a letter's size
constexpr double brightPatches = 20; // one in so many is brighter than what counts as bright

/// The mean of the light in that box, as far as it lies on the picture.
double luminanceUnder(const Bitmap& picture, const Rect& box) {
    const Rect seen = box.intersectedWith(picture.bounds());
    double sum = 0;
    for (int y = seen.top; y < seen.bottom; ++y) {
        for (int x = seen.left; x < seen.right; ++x) {
            sum += luminanceOf(toColour(picture.at(x, y)));
        }
    }
    return seen.isEmpty() ? 0 : sum / (seen.width() * seen.height());
}

/// The light of the brightest parts of the scope.
double brightGround(const Bitmap& picture, const RadarLayout& layout) {
    std::vector<double> patches;
    const Region scope = Region::ellipse(layout.scopeEllipse);
    for (int y = 0; y + patch <= picture.height(); y += patch) {
        for (int x = 0; x + patch <= picture.width(); x += patch) {
            if (scope.contains({x + patch / 2, y + patch / 2})) {
                patches.push_back(luminanceUnder(picture, Rect::at({x, y}, {patch, patch})));
            }
        }
    }
    const auto bright =
        patches.end() - 1 - static_cast<long>(static_cast<double>(patches.size()) / brightPatches);
    std::ranges::nth_element(patches, bright);
    return *bright;
}

class GroundChecker {
public:
    GroundChecker(const Bitmap& picture, Problems& problems) : picture_(picture), problems_(problems) {}

    void check(std::optional<std::size_t> point, Subject subject, const std::string& what, Colour colour,
               double ground) {
        const double seen = contrast(luminanceOf(colour), ground);
        if (seen < leastContrast) {
            std::array<char, 8> number{};
            std::snprintf(number.data(), number.size(), "%.1f", seen);
            problems_.push_back({point, subject,
                                 what + " is hard to see on the picture: its contrast is " + number.data() +
                                     ", 3 is needed"});
        }
    }

    void checkPoint(std::size_t index, const Vor& vor, const RadarLayout& layout) {
        const std::string of = " of '" + vor.ident + '\'';
        check(index, Subject::labelColour, "the label" + of, vor.labelColour,
              luminanceUnder(picture_, labelBox(layout, vor)));
        const double ground = luminanceUnder(picture_, markerBox(layout, vor.pixel));
        check(index, Subject::symbolColour, "the circle" + of, vor.symbolColour, ground);
        if (vor.isAirport) {
            check(index, Subject::runwayColour, "the runway" + of, vor.runwayColour, ground);
        }
    }

private:
    const Bitmap& picture_;
    Problems& problems_;
};

} // namespace

void checkGround(const AirportHeader& header, std::span<const Vor> points, const Bitmap& picture,
                 Problems& problems) {
    const RadarLayout& layout = radarLayoutFor(header.layoutWidth);
    GroundChecker checker(picture, problems);
    for (std::size_t i = 0; i < points.size(); ++i) {
        checker.checkPoint(i, points[i], layout);
    }
    const double ground = brightGround(picture, layout);
    checker.check({}, Subject::flightColour, "the aircraft colour", header.flightColour, ground);
    checker.check({}, Subject::selectedColour, "the selected aircraft colour", header.selectedFlightColour,
                  ground);
    checker.check({}, Subject::routeColour, "the route colour", header.routeColour, ground);
}

} // namespace ventrel::apt
