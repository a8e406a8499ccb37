#include "tools/apt/airspace_writer.h"

#include <algorithm>
#include <cstdint>

namespace ventrel::apt {

namespace {

using namespace airport_layout;

/// Puts numbers and texts at offsets from the start of a record.
class RecordWriter {
public:
    explicit RecordWriter(std::span<std::byte> record) : record_(record) {}

    void u16(std::size_t offset, int value) { number(offset, static_cast<std::uint32_t>(value), 2); }
    void u32(std::size_t offset, std::size_t value) { number(offset, static_cast<std::uint32_t>(value), 4); }
    void colour(std::size_t offset, Colour value) { number(offset, value.value, 4); }
    void text(std::size_t offset, std::string_view value) {
        std::ranges::copy(std::as_bytes(std::span(value)),
                          record_.begin() + static_cast<std::ptrdiff_t>(offset));
    }

private:
    void number(std::size_t offset, std::uint32_t value, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i) {
            record_[offset + i] = static_cast<std::byte>(value >> (8 * i));
        }
    }

    std::span<std::byte> record_;
};

void writeHeader(std::span<std::byte> file, const AirportFile& airport, std::size_t pictureSize) {
    RecordWriter header(file.first(headerSize));
    header.u16(magicOffset, magic);
    header.text(nameOffset, airport.header.name);
    header.u16(pointCountOffset, static_cast<int>(airport.vors.size()));
    header.u32(pointTableOffset, headerSize);
    header.u32(pictureStartOffset, headerSize + pointSize * airport.vors.size());
    header.u32(pictureSizeOffset, pictureSize);
    header.u16(layoutWidthOffset, airport.header.layoutWidth);
    for (std::size_t i = 0; i < completionCount; ++i) {
        header.u16(completionOffset + 2 * i, 1);
    }
    header.colour(routeColourOffset, airport.header.routeColour);
    header.colour(selectedFlightColourOffset, airport.header.selectedFlightColour);
    header.colour(flightColourOffset, airport.header.flightColour);
}

void writePoint(std::span<std::byte> bytes, const Vor& vor, int cellSize) {
    RecordWriter record(bytes);
    record.text(identOffset, vor.ident);
    record.text(descriptionOffset, vor.description);
    record.u16(cellXOffset, vor.pixel.x / cellSize);
    record.u16(cellYOffset, vor.pixel.y / cellSize);
    record.u16(pixelXOffset, vor.pixel.x);
    record.u16(pixelYOffset, vor.pixel.y);
    record.u16(isExitOffset, vor.isExit ? 1 : 0);
    record.u16(isAirportOffset, vor.isAirport ? 1 : 0);
    record.u16(isMajorOffset, vor.isMajor ? 1 : 0);
    record.u16(runwayHeadingOffset, vor.runwayHeading);
    record.colour(labelColourOffset, vor.labelColour);
    record.colour(symbolColourOffset, vor.symbolColour);
    record.colour(runwayColourOffset, vor.runwayColour);
    record.u16(labelPlaceOffset, vor.labelPlace);
    record.u16(reverseChanceOffset, vor.reverseChance);
}

} // namespace

Point pixelOf(const SourcePoint& point, const RadarLayout& layout) {
    return point.pixel ? *point.pixel : radarPoint(layout, point.cell.value_or(Cell{}));
}

AirportFile airportOf(const AirspaceSource& source, const RadarLayout& layout) {
    AirportFile airport;
    airport.header.name = source.name;
    airport.header.layoutWidth = layout.windowWidth;
    airport.header.routeColour = source.routeColour;
    airport.header.selectedFlightColour = source.selectedFlightColour;
    airport.header.flightColour = source.flightColour;
    for (const SourcePoint& point : source.points) {
        airport.vors.push_back(point.vor);
        airport.vors.back().pixel = pixelOf(point, layout);
    }
    return airport;
}

std::vector<std::byte> airportFileBytes(const AirportFile& airport, std::span<const std::byte> picture) {
    const int cellSize = radarLayoutFor(airport.header.layoutWidth).cellSize;
    const std::size_t tableEnd = headerSize + pointSize * airport.vors.size();
    std::vector<std::byte> bytes(tableEnd);
    writeHeader(bytes, airport, picture.size());
    for (std::size_t i = 0; i < airport.vors.size(); ++i) {
        writePoint(std::span(bytes).subspan(headerSize + pointSize * i, pointSize), airport.vors[i],
                   cellSize);
    }
    bytes.insert(bytes.end(), picture.begin(), picture.end());
    return bytes;
}

} // namespace ventrel::apt
