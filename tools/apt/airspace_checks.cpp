#include "tools/apt/airspace_checks.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/windows1252.h"
#include "radar/map_geometry.h"
#include "tools/apt/picture_check.h"

namespace ventrel::apt {

namespace {

constexpr int leastDistance = 3;          // cells between two points, as a king moves
constexpr std::size_t mostPoints = 32;    // that the order menu can offer
constexpr std::size_t mostLookedAt = 256; // one by one and in pairs; a file with more is no use anyway
constexpr int leastBrightness = 72;       // of 255, for a colour to be seen on black
constexpr int leastColourDifference =
    96; // between the selected aircraft and the others, all channels together

/// The size of a label, a little on the large side: the map's font has narrow letters of at most this size.
struct LabelMeasure {
    int letterWidth = 0;
    int height = 0;
};
constexpr LabelMeasure smallLabels{6, 10};
constexpr LabelMeasure largeLabels{7, 11};

class Checker {
public:
    Checker(const AirportFile& airport, std::span<const std::byte> picture)
        : airport_(airport), vors_(airport.vors), picture_(picture),
          layout_(radarLayoutFor(airport.header.layoutWidth)) {}

    std::vector<std::string> run() {
        checkHeader();
        checkPicture();
        for (std::size_t i = 0; i < lookedAt_; ++i) {
            checkNames(i);
            checkPlace(vors_[i]);
            checkRunway(vors_[i]);
            checkColours(vors_[i]);
            checkLabel(i);
            for (std::size_t k = 0; k < i; ++k) {
                checkDistance(vors_[k], vors_[i]);
            }
        }
        return std::move(problems_);
    }

private:
    void add(const std::string& problem) { problems_.push_back(problem); }
    void add(const Vor& vor, const std::string& problem) {
        add("point '" + toTerminal(vor.ident) + "': " + problem);
    }

    void checkHeader() {
        const AirportHeader& header = airport_.header;
        if (header.name.empty()) {
            add("the airspace has no name");
        }
        if (!scopeLayoutFor(header.layoutWidth)) {
            add("the layout width is " + std::to_string(header.layoutWidth) + ", neither 800 nor 1024");
        }
        if (vors_.size() > mostPoints) {
            add("there are " + std::to_string(vors_.size()) + " points; the order menu offers " +
                std::to_string(mostPoints));
        }
        checkBrightness("aircraft", header.flightColour);
        checkBrightness("selected aircraft", header.selectedFlightColour);
        checkBrightness("route", header.routeColour);
        if (difference(header.flightColour, header.selectedFlightColour) < leastColourDifference) {
            add("a selected aircraft looks like the others");
        }
    }

    void checkPicture() {
        if (picture_.empty()) {
            return;
        }
        const auto size = jpegSize(picture_);
        if (!size) {
            add("the picture is no JPEG");
        } else if (*size != scopeSquare(layout_).size()) {
            add("the picture has " + std::to_string(size->width) + " x " + std::to_string(size->height) +
                " pixels; the radar has " + std::to_string(layout_.scopeSize) + " x " +
                std::to_string(layout_.scopeSize));
        }
    }

    void checkNames(std::size_t index) {
        const Vor& vor = vors_[index];
        if (vor.ident.empty()) {
            add("point " + std::to_string(index + 1) + " has no ident");
        }
        if (vor.description.empty()) {
            add(vor, "it has no name");
        }
        const auto before = vors_.begin() + static_cast<std::ptrdiff_t>(index);
        if (std::find_if(vors_.begin(), before, [&](const Vor& v) { return v.ident == vor.ident; }) !=
            before) {
            add(vor, "another point has the same ident");
        }
        if (vor.isExit && vor.isAirport) {
            add(vor,
                "it is both an exit and an airport; flights that should leave there are judged as landings");
        }
        if (!vor.isExit && !vor.isAirport) {
            add(vor, "it is neither an exit nor an airport");
        }
    }

    Cell cellOf(const Vor& vor) const {
        return {vor.pixel.x / layout_.cellSize, vor.pixel.y / layout_.cellSize};
    }

    /// Within the round glass, edge included.
    bool isOnScope(Point p) const {
        const Rect& e = layout_.scopeEllipse;
        const long width = e.width();
        const long height = e.height();
        const long x = 2L * p.x - e.left - e.right;
        const long y = 2L * p.y - e.top - e.bottom;
        return x * x * height * height + y * y * width * width <= width * width * height * height;
    }

    bool isOnScope(const Rect& r) const {
        const std::array<Point, 4> corners{
            {r.topLeft(), {r.right - 1, r.top}, {r.left, r.bottom - 1}, {r.right - 1, r.bottom - 1}}};
        return std::ranges::all_of(corners, [this](Point corner) { return isOnScope(corner); });
    }

    void checkPlace(const Vor& vor) {
        const Cell cell = cellOf(vor);
        const bool isOnGrid = cell.x >= 0 && cell.x < gridSize && cell.y >= 0 && cell.y < gridSize;
        if (!isOnGrid || isOutsideScope(cell)) {
            add(vor, "it lies outside the scope; flights are lost before they reach it");
        } else if (!isOnScope(markerBox(layout_, vor.pixel))) {
            add(vor, "its circle is cut by the edge of the scope");
        }
    }

    void checkRunway(const Vor& vor) {
        if (!vor.isAirport) {
            return;
        }
        if (!headingNumber(vor.runwayHeading)) {
            add(vor, "its runway heading " + std::to_string(vor.runwayHeading) + " is not a multiple of 45");
            return;
        }
        if (vor.reverseChance > 100) {
            add(vor, "its reverse chance is above 100");
        }
        checkCone(vor, vor.runwayHeading, "its approach cone leaves the scope");
        if (vor.reverseChance > 0) {
            checkCone(vor, turned(vor.runwayHeading, fullCircle / 2),
                      "the approach cone of the opposite direction leaves the scope");
        }
    }

    void checkCone(const Vor& vor, int heading, const std::string& problem) {
        const auto cone = approachCone(layout_, vor.pixel, heading);
        const bool isInside = std::ranges::all_of(
            *cone, [this](const MapLine& line) { return isOnScope(line.from) && isOnScope(line.to); });
        if (!isInside) {
            add(vor, problem);
        }
    }

    void checkDistance(const Vor& a, const Vor& b) {
        const Cell p = cellOf(a);
        const Cell q = cellOf(b);
        const int distance = std::max(std::abs(p.x - q.x), std::abs(p.y - q.y));
        if (distance < leastDistance) {
            add(b, "it is only " + std::to_string(distance) + " cells from '" + toTerminal(a.ident) + "'");
        }
    }

    static int brightness(Colour colour) { return std::max({colour.red(), colour.green(), colour.blue()}); }

    static int difference(Colour a, Colour b) {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
    }

    void checkBrightness(const std::string& what, Colour colour) {
        if (brightness(colour) < leastBrightness) {
            add("the " + what + " colour cannot be seen on black");
        }
    }

    void checkColours(const Vor& vor) {
        const std::string of = " of '" + toTerminal(vor.ident) + '\'';
        checkBrightness("label" + of, vor.labelColour);
        checkBrightness("symbol" + of, vor.symbolColour);
        if (vor.isAirport) {
            checkBrightness("runway" + of, vor.runwayColour);
        }
    }

    Rect labelBox(const Vor& vor) const {
        const bool isLarge = layout_.windowWidth == largeRadarLayout.windowWidth;
        const LabelMeasure& measure = isLarge ? largeLabels : smallLabels;
        const Size size{static_cast<int>(vor.ident.size()) * measure.letterWidth, measure.height};
        return Rect::at(labelCorner(layout_, vor, size), size);
    }

    /// The boxes around an airport's approach cone, and around that of the opposite direction where it may be
    /// used.
    std::vector<Rect> coneBoxes(const Vor& vor) const {
        std::vector<Rect> boxes;
        const auto add = [&](int heading) {
            if (const auto cone = vor.isAirport ? approachCone(layout_, vor.pixel, heading) : std::nullopt) {
                boxes.push_back(boxAround(*cone));
            }
        };
        add(vor.runwayHeading);
        if (vor.reverseChance > 0) {
            add(turned(vor.runwayHeading, fullCircle / 2));
        }
        return boxes;
    }

    /// The boxes of a point's circle, runway and approach cones, which no other point's label may cover.
    std::vector<Rect> drawnBoxes(const Vor& vor) const {
        std::vector<Rect> boxes = coneBoxes(vor);
        boxes.push_back(markerBox(layout_, vor.pixel));
        if (const auto runway =
                vor.isAirport ? runwayLines(layout_, vor.pixel, vor.runwayHeading) : std::nullopt) {
            boxes.push_back(boxAround(*runway));
        }
        return boxes;
    }

    static Rect boxAround(const std::array<MapLine, 2>& lines) {
        Rect box;
        for (const MapLine& line : lines) {
            for (const Point p : {line.from, line.to}) {
                box = box.unitedWith({p.x, p.y, p.x + 1, p.y + 1});
            }
        }
        return box;
    }

    static bool meetsAny(const Rect& rect, const std::vector<Rect>& boxes) {
        return std::ranges::any_of(boxes, [&](const Rect& box) { return rect.intersects(box); });
    }

    void checkLabel(std::size_t index) {
        const Vor& vor = vors_[index];
        const Rect label = labelBox(vor);
        if (!isOnScope(label)) {
            add(vor, "its label is cut by the edge of the scope");
        }
        if (meetsAny(label, coneBoxes(vor))) {
            add(vor, "its label lies in its own approach cone");
        }
        for (std::size_t k = 0; k < lookedAt_; ++k) {
            const Vor& other = vors_[k];
            if (k < index && label.intersects(labelBox(other))) {
                add(vor, "its label collides with that of '" + toTerminal(other.ident) + '\'');
            }
            if (k != index && meetsAny(label, drawnBoxes(other))) {
                add(vor, "its label covers '" + toTerminal(other.ident) + '\'');
            }
        }
    }

    const AirportFile& airport_;
    const std::vector<Vor>& vors_;
    const std::size_t lookedAt_ = std::min(vors_.size(), mostLookedAt);
    std::span<const std::byte> picture_;
    const RadarLayout& layout_;
    std::vector<std::string> problems_;
};

} // namespace

std::vector<std::string> airspaceProblems(const AirportFile& airport, std::span<const std::byte> picture) {
    return Checker(airport, picture).run();
}

} // namespace ventrel::apt
