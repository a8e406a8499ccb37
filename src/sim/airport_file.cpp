#include "sim/airport_file.h"

#include <algorithm>
#include <string_view>

#include "base/string_table.h"
#include "base/windows1252.h"

namespace ventrel {

namespace {

using namespace airport_layout;

// The first placeholder is the file, the second the airport's name, as in the text of an unfinished airport.
constexpr std::string_view tooShortText = "The file %s is too short to be an airport file.";
constexpr std::string_view notAnAirportFileText = "The file %s is not an airport file.";
constexpr std::string_view pointsOutsideText =
    "The airport file %s ('%s') is damaged: its table of map points does not lie within the file.";
constexpr std::string_view pictureOutsideText =
    "The airport file %s ('%s') is damaged: its picture does not lie within the file.";
constexpr std::string_view controlCharacterText =
    "The airport file %s ('%s') is damaged: a name in it has a control character.";
constexpr std::string_view noExitText =
    "The airport file %s ('%s') cannot be played: it has no VOR through which flights may leave.";
constexpr std::string_view noAirportText = "The airport file %s ('%s') cannot be played: it has no airport.";

std::uint16_t word(std::span<const std::byte> bytes, std::size_t offset) {
    const auto low = std::to_integer<unsigned>(bytes[offset]);
    const auto high = std::to_integer<unsigned>(bytes[offset + 1]);
    return static_cast<std::uint16_t>(low | high << 8);
}

std::uint32_t doubleWord(std::span<const std::byte> bytes, std::size_t offset) {
    return std::uint32_t{word(bytes, offset)} | std::uint32_t{word(bytes, offset + 2)} << 16;
}

Colour colour(std::span<const std::byte> bytes, std::size_t offset) {
    return {doubleWord(bytes, offset)};
}

std::string text(std::span<const std::byte> bytes, std::size_t offset, std::size_t size) {
    const auto field = bytes.subspan(offset, size);
    const auto end = std::find(field.begin(), field.end(), std::byte{0});
    std::string result;
    std::transform(field.begin(), end, std::back_inserter(result),
                   [](std::byte b) { return static_cast<char>(std::to_integer<unsigned char>(b)); });
    return result;
}

bool liesWithin(std::span<const std::byte> file, std::uint64_t start, std::uint64_t size) {
    return start <= file.size() && size <= file.size() - start;
}

Vor readPoint(std::span<const std::byte> record) {
    return {
        .ident = text(record, identOffset, identSize),
        .description = text(record, descriptionOffset, descriptionSize),
        .cell = {},
        .pixel = {word(record, pixelXOffset), word(record, pixelYOffset)},
        .isExit = word(record, isExitOffset) != 0,
        .isAirport = word(record, isAirportOffset) != 0,
        .isMajor = word(record, isMajorOffset) != 0,
        .runwayHeading = word(record, runwayHeadingOffset),
        .labelColour = colour(record, labelColourOffset),
        .symbolColour = colour(record, symbolColourOffset),
        .runwayColour = colour(record, runwayColourOffset),
        .labelPlace = word(record, labelPlaceOffset),
        .reverseChance = word(record, reverseChanceOffset),
    };
}

std::vector<Vor> readPoints(std::span<const std::byte> file, const AirportHeader& header) {
    std::vector<Vor> vors;
    vors.reserve(header.pointCount);
    for (std::size_t i = 0; i < header.pointCount; ++i) {
        vors.push_back(readPoint(file.subspan(header.pointTable + i * pointSize, pointSize)));
    }
    return vors;
}

/// What is wrong with the file's outline, as a text for the player; empty when nothing is.
std::string_view outlineFault(std::span<const std::byte> file, const AirportHeader& header) {
    if (!header.isComplete()) {
        return StringTableText(TextId::airportIncomplete);
    }
    if (!header.isAirportFile()) {
        return notAnAirportFileText;
    }
    if (!liesWithin(file, header.pointTable, std::uint64_t{header.pointCount} * pointSize)) {
        return pointsOutsideText;
    }
    if (!liesWithin(file, header.pictureStart, header.pictureSize)) {
        return pictureOutsideText;
    }
    return {};
}

bool hasControlCharacter(std::string_view text) {
    return std::ranges::any_of(text, isControlCharacter);
}

/// Names stand in lines: of the ticker, on strips, in traces.
bool hasControlCharacter(const AirportFile& airport) {
    return hasControlCharacter(airport.header.name) || std::ranges::any_of(airport.vors, [](const Vor& vor) {
               return hasControlCharacter(vor.ident) || hasControlCharacter(vor.description);
           });
}

/// The airspace's name for a message about its file.
std::string shownName(const AirportHeader& header) {
    std::string name = header.name;
    std::ranges::replace_if(name, isControlCharacter, '?');
    return name;
}

std::string_view mapFault(const AirportFile& airport) {
    const auto& vors = airport.vors;
    if (hasControlCharacter(airport)) {
        return controlCharacterText;
    }
    if (std::none_of(vors.begin(), vors.end(), [](const Vor& vor) { return vor.isExit; })) {
        return noExitText;
    }
    if (std::none_of(vors.begin(), vors.end(), [](const Vor& vor) { return vor.isAirport; })) {
        return noAirportText;
    }
    return {};
}

} // namespace

bool AirportHeader::isComplete() const {
    return completion[0] != 0 && completion[1] != 0 && completion[2] != 0 && completion[3] == 1;
}

std::optional<AirportHeader> readAirportHeader(std::span<const std::byte> file) {
    if (file.size() < headerSize) {
        return std::nullopt;
    }
    AirportHeader header{
        .magic = word(file, magicOffset),
        .name = text(file, nameOffset, nameSize),
        .pointCount = word(file, pointCountOffset),
        .pointTable = doubleWord(file, pointTableOffset),
        .pictureStart = doubleWord(file, pictureStartOffset),
        .pictureSize = doubleWord(file, pictureSizeOffset),
        .layoutWidth = word(file, layoutWidthOffset),
        .completion = {},
        .routeColour = colour(file, routeColourOffset),
        .selectedFlightColour = colour(file, selectedFlightColourOffset),
        .flightColour = colour(file, flightColourOffset),
    };
    for (std::size_t i = 0; i < completionCount; ++i) {
        header.completion[i] = word(file, completionOffset + 2 * i);
    }
    return header;
}

Result<AirportFile> readAirportFile(std::span<const std::byte> file, const std::filesystem::path& path) {
    const std::string fileName = pathText(path);
    const auto header = readAirportHeader(file);
    if (!header) {
        return failed(FormatText(tooShortText, {fileName}));
    }
    if (const auto fault = outlineFault(file, *header); !fault.empty()) {
        return failed(FormatText(fault, {fileName, shownName(*header)}));
    }
    AirportFile airport{*header, readPoints(file, *header)};
    if (const auto fault = mapFault(airport); !fault.empty()) {
        return failed(FormatText(fault, {fileName, shownName(*header)}));
    }
    return airport;
}

std::span<const std::byte> embeddedPicture(std::span<const std::byte> file, const AirportHeader& header) {
    return file.subspan(header.pictureStart, header.pictureSize);
}

} // namespace ventrel
