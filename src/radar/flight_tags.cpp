#include "radar/flight_tags.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "platform/text/text.h"

namespace ventrel {

namespace {

// All relative to the flight's radar point.
constexpr int callsignLeft = -4;
constexpr Point dataOffset{6, -4};

constexpr int shortestLeader = 2;

/// A place beside the symbol: towards where, and how far off the block begins.
struct PlaceBeside {
    Point side; ///< -1, 0 or 1 for each axis
    Point gap;
};

constexpr Point nearGap{9, 5};
constexpr Point farGap{20, 16};

constexpr std::array<Point, 8> sides{{{1, -1}, {1, 1}, {-1, -1}, {-1, 1}, {1, 0}, {-1, 0}, {0, -1}, {0, 1}}};

constexpr PlaceBeside placeBeside(std::size_t number) {
    const Point side = sides[number % sides.size()];
    const bool isNear = number < sides.size();
    return {side, isNear ? nearGap : farGap};
}
static_assert(tagPlaces == 1 + 2 * sides.size());

/// From the flight to where an extent begins that lies on that side of it.
constexpr int beginning(int side, int gap, int extent) {
    return side > 0 ? gap : side < 0 ? -gap - extent : -extent / 2;
}

std::string_view speedLetter(Speed speed) {
    switch (speed) {
    case Speed::slow: return "S";
    case Speed::fast: return "F";
    case Speed::normal: break;
    }
    return "N";
}

/// From one of its lines to the next.
int pitchOf(const TagMeasures& tag) {
    return tag.rise + dataOffset.y;
}

/// Both lines as one block.
Size blockSize(const TagMeasures& tag) {
    return {std::max(tag.callsign, tag.data), 2 * pitchOf(tag)};
}

TagStand usualStand(const TagMeasures& tag, Point at) {
    const Point callsign = at + Point{callsignLeft, -tag.rise};
    const Point data = at + dataOffset;
    return {callsign,
            data,
            {callsign.x, callsign.y, std::max(callsign.x + tag.callsign, data.x + tag.data),
             data.y + pitchOf(tag)}};
}

Point nearestIn(const Rect& box, Point p) {
    return {std::clamp(p.x, box.left, box.right - 1), std::clamp(p.y, box.top, box.bottom - 1)};
}

} // namespace

TagTexts tagTexts(const Flight& flight, std::span<const Vor> vors, TagContents contents) {
    const PlanStep& now = flight.current();
    std::string altitude = FormatText("%dK", {long{now.altitude}});
    if (contents == TagContents::speedAndDestination) {
        altitude = FormatText("%s %s %s", {std::string_view(altitude), speedLetter(now.speed),
                                           std::string_view(vors[flight.destination.place()].ident)});
    }
    return {std::string(std::string_view(flight.callsign)), std::move(altitude)};
}

TagMeasures measureTag(const TagTexts& texts, const Font& font, const TagFont& letters) {
    return {font.width(texts.callsign), font.width(texts.data), letters.rise};
}

Size tagReach(const TagMeasures& tag) {
    const Size block = blockSize(tag);
    return {farGap.x + block.width, farGap.y + block.height};
}

TagStand tagStand(const TagMeasures& tag, Point at, std::size_t place) {
    if (place == usualTagPlace) {
        return usualStand(tag, at);
    }
    const auto [side, gap] = placeBeside(place - 1);
    const int pitch = pitchOf(tag);
    const Size block = blockSize(tag);
    const Point corner =
        at + Point{beginning(side.x, gap.x, block.width), beginning(side.y, gap.y, block.height)};
    // Beside the symbol's left the lines end together, so that the shorter one is not far from it.
    const auto left = [&, sideways = side.x](int lineWidth) {
        return sideways < 0 ? corner.x + block.width - lineWidth : corner.x;
    };
    return {{left(tag.callsign), corner.y}, {left(tag.data), corner.y + pitch}, Rect::at(corner, block)};
}

void drawTag(Canvas& canvas, const Font& font, const TagTexts& texts, const TagStand& stand, Colour colour) {
    drawText(canvas, font, stand.callsign, texts.callsign, {colour, {}});
    drawText(canvas, font, stand.data, texts.data, {colour, {}});
}

void drawTagLeader(Canvas& canvas, Point at, const Rect& box, Colour colour) {
    const Point end = nearestIn(box, at);
    const Point start = nearestIn(symbolBox(at).grownBy(1), end);
    const int length = std::max(std::abs(end.x - start.x), std::abs(end.y - start.y));
    if (length >= shortestLeader) {
        canvas.line(start, end, colour);
    }
}

} // namespace ventrel
