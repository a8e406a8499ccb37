#include "small_airspace.h"

#include <algorithm>
#include <utility>

#include "sim/custom_skill.h"
#include "sim/flight_step.h"

namespace ventrel {

namespace {

using namespace airport_layout;

constexpr std::uint32_t pictureBytes = 5;

void putText(std::vector<std::byte>& file, std::size_t offset, std::string_view text) {
    std::transform(text.begin(), text.end(), file.begin() + static_cast<std::ptrdiff_t>(offset),
                   [](char c) { return static_cast<std::byte>(c); });
}

void putPoint(std::vector<std::byte>& file, std::size_t start, const Vor& vor) {
    putText(file, start + identOffset, vor.ident);
    putText(file, start + descriptionOffset, vor.description);
    putWord(file, start + cellXOffset, 999); // never to be believed
    putWord(file, start + cellYOffset, 999);
    putWord(file, start + pixelXOffset, static_cast<unsigned>(vor.pixel.x));
    putWord(file, start + pixelYOffset, static_cast<unsigned>(vor.pixel.y));
    putWord(file, start + isExitOffset, vor.isExit ? 7 : 0);
    putWord(file, start + isAirportOffset, vor.isAirport ? 1 : 0);
    putWord(file, start + isMajorOffset, vor.isMajor ? 1 : 0);
    putWord(file, start + runwayHeadingOffset, static_cast<unsigned>(vor.runwayHeading));
    putDoubleWord(file, start + labelColourOffset, vor.labelColour.value);
    putDoubleWord(file, start + symbolColourOffset, vor.symbolColour.value);
    putDoubleWord(file, start + runwayColourOffset, vor.runwayColour.value);
    putWord(file, start + labelPlaceOffset, static_cast<unsigned>(vor.labelPlace));
    putWord(file, start + reverseChanceOffset, static_cast<unsigned>(vor.reverseChance));
}

Vor pointAt(std::string_view ident, Cell cell) {
    constexpr int size = smallLayout.cellSize;
    Vor vor;
    vor.ident = ident;
    vor.pixel = {cell.x * size + size - 1, cell.y * size};
    return vor;
}

} // namespace

SmallAirspace& SmallAirspace::exit(std::string_view ident, Cell cell) {
    points_.push_back(pointAt(ident, cell));
    last().isExit = true;
    return *this;
}

SmallAirspace& SmallAirspace::airport(std::string_view ident, Cell cell, int runwayHeading) {
    points_.push_back(pointAt(ident, cell));
    last().isAirport = true;
    last().runwayHeading = runwayHeading;
    return *this;
}

SmallAirspace SmallAirspace::usual() {
    return SmallAirspace{}
        .airport("MID", {24, 24}, 90)
        .exit("NW", {12, 12})
        .exit("NE", {36, 12})
        .exit("SE", {36, 36})
        .exit("SW", {12, 36});
}

std::vector<std::byte> SmallAirspace::file() const {
    const std::size_t picture = headerSize + points_.size() * pointSize;
    std::vector<std::byte> file(picture + pictureBytes, std::byte{0});
    putWord(file, magicOffset, magic);
    putText(file, nameOffset, name);
    putWord(file, pointCountOffset, static_cast<unsigned>(points_.size()));
    putDoubleWord(file, pointTableOffset, headerSize);
    putDoubleWord(file, pictureStartOffset, static_cast<std::uint32_t>(picture));
    putDoubleWord(file, pictureSizeOffset, pictureBytes);
    putWord(file, layoutWidthOffset, 800);
    for (std::size_t i = 0; i < completionCount; ++i) {
        putWord(file, completionOffset + 2 * i, 1);
    }
    putDoubleWord(file, routeColourOffset, 0x112233);
    for (std::size_t i = 0; i < points_.size(); ++i) {
        putPoint(file, headerSize + i * pointSize, points_[i]);
    }
    putText(file, picture, "image");
    return file;
}

void putWord(std::vector<std::byte>& file, std::size_t offset, unsigned value) {
    file.at(offset) = static_cast<std::byte>(value & 0xFFU);
    file.at(offset + 1) = static_cast<std::byte>(value >> 8U & 0xFFU);
}

void putDoubleWord(std::vector<std::byte>& file, std::size_t offset, std::uint32_t value) {
    putWord(file, offset, value & 0xFFFFU);
    putWord(file, offset + 2, value >> 16U);
}

TestGame::TestGame(const SmallAirspace& airspace) : game{airspace.game()} {
    game.flights.clear();
    game.flights.reserve(mostPlanes); // so that flights may be kept by reference
    game.clouds.clear();
    game.bonus = 0;
    game.random = {};
}

Flight& TestGame::fly(Cell cell, int altitude, int heading, PointIndex destination) {
    Flight flight;
    flight.inPlay = true;
    flight.activatedAt = 30_s;
    flight.scheduledAt = 30_s;
    flight.destination = destination;
    const bool lands = game.vor(destination).isAirport;
    flight.destinationKind = lands ? DestinationKind::airport : DestinationKind::exit;
    flight.callsign = std::string_view{"F" + std::to_string(game.planeCount())};
    flight.plan = {{.cell = cell, .altitude = altitude, .heading = heading}};
    game.flights.push_back(flight);
    return game.flights.back();
}

Flight& TestGame::wait(PointIndex origin, PointIndex destination) {
    const Vor& airport = game.vor(origin);
    Flight& flight = fly(airport.cell, approachAltitude, airport.runwayHeading, destination);
    flight.origin = origin;
    flight.originKind = OriginKind::airport;
    flight.groundState = GroundState::waiting;
    return flight;
}

std::vector<std::string> TestGame::step(ClockSeconds now) {
    game.clock = now;
    if (SimulationStep(game, events)) {
        makeFrame(game, events);
    }
    std::vector<std::string> lines = events.take();
    std::erase_if(lines, [](const std::string& line) { return line == "strips"; });
    return lines;
}

std::vector<std::string> TestGame::steps(ClockSeconds from, ClockSeconds to) {
    std::vector<std::string> lines;
    for (ClockSeconds now = from; now <= to; now += stepInterval) {
        const auto more = step(now);
        lines.insert(lines.end(), more.begin(), more.end());
    }
    return lines;
}

} // namespace ventrel
