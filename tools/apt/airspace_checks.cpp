#include "tools/apt/airspace_checks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "map_geometry/map_geometry.h"
#include "platform/images/image.h"
#include "tools/apt/colour_sight.h"
#include "tools/apt/ground_checks.h"
#include "tools/apt/label_checks.h"
#include "tools/apt/scope_measure.h"

namespace ventrel::apt {

namespace {

constexpr int leastDistance = 3;          // cells between two points, as a king moves
constexpr std::size_t mostPoints = 32;    // that the order menu can offer
constexpr std::size_t mostLookedAt = 256; // one by one and in pairs; a file with more is no use anyway
constexpr int leastBrightness = 72;       // of 255, for a colour to be seen on black
constexpr int mostChance = 100;           // percent
constexpr int leastColourDistance = 30;   // between the selected aircraft and the others, for every eye

int brightness(Colour colour) {
    return std::max({colour.red(), colour.green(), colour.blue()});
}

/// Whether the picture is one that the game can show.
bool decode(std::span<const std::byte> jpeg, Bitmap& bitmap) {
    Image image;
    return ImageLoadMemory(image, jpeg, ImageFormat::jpeg) == ImageError::none &&
           ImageToBitmap(image, bitmap) == ImageError::none;
}

class Checker {
public:
    explicit Checker(const AirportFile& airport)
        : header_(airport.header), points_(airport.vors),
          lookedAt_(points_.first(std::min(points_.size(), mostLookedAt))),
          layout_(radarLayoutFor(airport.header.layoutWidth)) {}

    Problems run(std::span<const std::byte> picture) {
        checkHeader();
        if (const std::string problem = pictureProblem(picture, header_.layoutWidth); !problem.empty()) {
            add(Subject::picture, problem);
        } else if (Bitmap ground; !picture.empty() && decode(picture, ground)) {
            checkGround(header_, lookedAt_, ground, problems_);
        }
        for (std::size_t i = 0; i < lookedAt_.size(); ++i) {
            checkNames(i);
            checkPlace(i);
            checkRunway(i);
            checkColours(i);
            checkLabel(lookedAt_, i, layout_, problems_);
            for (std::size_t k = 0; k < i; ++k) {
                checkDistance(k, i);
            }
        }
        return std::move(problems_);
    }

private:
    void add(Subject subject, const std::string& text) { problems_.push_back({{}, subject, text}); }
    void add(std::size_t point, Subject subject, const std::string& text) {
        problems_.push_back({point, subject, "point '" + points_[point].ident + "': " + text});
    }

    void checkHeader() {
        if (header_.name.empty()) {
            add(Subject::name, "the airspace has no name");
        }
        if (!scopeLayoutFor(header_.layoutWidth)) {
            add(Subject::layout, "the layout width is " + std::to_string(header_.layoutWidth) +
                                     ", neither 800 nor 1024; the game never offers it");
        }
        if (points_.size() > mostPoints) {
            add(Subject::points, "there are " + std::to_string(points_.size()) +
                                     " points; the order menu offers " + std::to_string(mostPoints));
        }
        checkBrightness({}, Subject::flightColour, "aircraft colour", header_.flightColour);
        checkBrightness({}, Subject::selectedColour, "selected aircraft colour",
                        header_.selectedFlightColour);
        checkBrightness({}, Subject::routeColour, "route colour", header_.routeColour);
        checkSelected();
    }

    void checkSelected() {
        constexpr std::array<std::pair<Sight, const char*>, 3> eyes{
            {{Sight::full, ""},
             {Sight::withoutRed, " to eyes without red"},
             {Sight::withoutGreen, " to eyes without green"}}};
        for (const auto& [sight, whose] : eyes) {
            const double apart = distanceSeen(header_.flightColour, header_.selectedFlightColour, sight);
            if (apart < leastColourDistance) {
                add(Subject::selectedColour, std::string("a selected aircraft looks like the others") +
                                                 whose + ": the colours are " +
                                                 std::to_string(std::lround(apart)) + " apart, " +
                                                 std::to_string(leastColourDistance) + " are needed");
                return;
            }
        }
    }

    void checkNames(std::size_t index) {
        const Vor& vor = points_[index];
        if (vor.ident.empty()) {
            add(Subject::ident, "point " + std::to_string(index + 1) + " has no ident");
        }
        if (vor.description.empty()) {
            add(index, Subject::name, "it has no name");
        }
        const auto before = points_.first(index);
        if (std::ranges::find(before, vor.ident, &Vor::ident) != before.end()) {
            add(index, Subject::ident, "another point has the same ident");
        }
        if (vor.isExit && vor.isAirport) {
            add(index, Subject::kind,
                "it is both an exit and an airport; flights that should leave there are judged as landings");
        }
        if (!vor.isExit && !vor.isAirport) {
            add(index, Subject::kind, "it is neither an exit nor an airport");
        }
    }

    Cell cellOf(const Vor& vor) const {
        return {vor.pixel.x / layout_.cellSize, vor.pixel.y / layout_.cellSize};
    }

    void checkPlace(std::size_t index) {
        const Vor& vor = points_[index];
        if (const int cells = cellsOutside(cellOf(vor)); cells > 0) {
            add(index, Subject::place,
                "it lies outside the scope by " + counted(cells, "cell") +
                    "; flights are lost before they reach it");
        } else if (const int pixels = pixelsOutside(layout_, markerBox(layout_, vor.pixel)); pixels > 0) {
            add(index, Subject::place,
                "its circle is cut by the edge of the scope (" + counted(pixels, "pixel") + ')');
        }
    }

    void checkRunway(std::size_t index) {
        const Vor& vor = points_[index];
        if (!vor.isAirport) {
            return;
        }
        if (!headingNumber(vor.runwayHeading)) {
            add(index, Subject::runway,
                "its runway heading " + std::to_string(vor.runwayHeading) +
                    " is none of 0 to 315 in steps of 45; nobody can land");
            return;
        }
        if (vor.reverseChance > mostChance) {
            add(index, Subject::reverseChance,
                "its reverse chance is " + std::to_string(vor.reverseChance) + " percent");
        }
        checkCone(index, vor.runwayHeading, "its approach cone");
        if (vor.reverseChance > 0) {
            checkCone(index, turned(vor.runwayHeading, fullCircle / 2),
                      "the approach cone of the opposite direction");
        }
    }

    void checkCone(std::size_t index, int heading, const std::string& what) {
        const auto cone = approachCone(layout_, points_[index].pixel, heading);
        if (!cone) {
            return;
        }
        const std::array<Point, 4> ends{(*cone)[0].from, (*cone)[0].to, (*cone)[1].from, (*cone)[1].to};
        if (const int pixels = pixelsOutside(layout_, ends); pixels > 0) {
            add(index, Subject::runway, what + " leaves the scope by " + counted(pixels, "pixel"));
        }
    }

    void checkDistance(std::size_t first, std::size_t second) {
        const Cell p = cellOf(points_[first]);
        const Cell q = cellOf(points_[second]);
        const int distance = std::max(std::abs(p.x - q.x), std::abs(p.y - q.y));
        if (distance < leastDistance) {
            add(second, Subject::place,
                "it is only " + counted(distance, "cell") + " from '" + points_[first].ident + "'; " +
                    std::to_string(leastDistance) + " are needed");
        }
    }

    void checkBrightness(std::optional<std::size_t> point, Subject subject, const std::string& what,
                         Colour colour) {
        if (brightness(colour) < leastBrightness) {
            problems_.push_back({point, subject,
                                 "the " + what + " cannot be seen on black: its brightest part is " +
                                     std::to_string(brightness(colour)) + " of 255, " +
                                     std::to_string(leastBrightness) + " are needed"});
        }
    }

    void checkColours(std::size_t index) {
        const Vor& vor = points_[index];
        const std::string of = " colour of '" + vor.ident + '\'';
        checkBrightness(index, Subject::labelColour, "label" + of, vor.labelColour);
        checkBrightness(index, Subject::symbolColour, "symbol" + of, vor.symbolColour);
        if (vor.isAirport) {
            checkBrightness(index, Subject::runwayColour, "runway" + of, vor.runwayColour);
        }
    }

    const AirportHeader& header_;
    std::span<const Vor> points_;
    std::span<const Vor> lookedAt_;
    const RadarLayout& layout_;
    Problems problems_;
};

std::string_view reasonOf(ImageError error) {
    switch (error) {
    case ImageError::wrongFormat: return "it is no JPEG";
    case ImageError::tooLarge: return "it is too large";
    default: return "it is damaged";
    }
}

} // namespace

std::string pictureProblem(std::span<const std::byte> jpeg, int layoutWidth) {
    if (jpeg.empty()) {
        return {};
    }
    Image image;
    const ImageError error = ImageLoadMemory(image, jpeg, ImageFormat::jpeg);
    if (error != ImageError::none) {
        return "the game drops the picture: " + std::string(reasonOf(error));
    }
    const auto side = static_cast<std::uint32_t>(radarLayoutFor(layoutWidth).scopeSize);
    if (image.width != side || image.height != side) {
        return "the picture has " + std::to_string(image.width) + " x " + std::to_string(image.height) +
               " pixels; the radar has " + std::to_string(side) + " x " + std::to_string(side);
    }
    return {};
}

Problems airspaceProblems(const AirportFile& airport, std::span<const std::byte> picture) {
    return Checker(airport).run(picture);
}

} // namespace ventrel::apt
