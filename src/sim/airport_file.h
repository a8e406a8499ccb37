// The airport file (".apt"): its layout, byte for byte, and its reader.
//
// A 76-byte header, a table of 56-byte map point records anywhere behind it, and an embedded picture.
// All numbers are little-endian; a text is cut at its first NUL or at the end of its field.
// The reader never decodes the picture: it only says where in the file it lies.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/result.h"
#include "sim/vor.h"

namespace ventrel {

/// Offsets and sizes in bytes. Header offsets count from the start of the file.
namespace airport_layout {

constexpr std::uint16_t magic = 0xCFAC;
constexpr std::size_t headerSize = 76;

constexpr std::size_t magicOffset = 0x00; // u16
constexpr std::size_t nameOffset = 0x02;  // text
constexpr std::size_t nameSize = 32;
constexpr std::size_t pointCountOffset = 0x22;   // u16
constexpr std::size_t pointTableOffset = 0x24;   // u32, offset of the first map point record
constexpr std::size_t pictureStartOffset = 0x28; // u32, offset of the picture
constexpr std::size_t pictureSizeOffset = 0x2C;  // u32
constexpr std::size_t layoutWidthOffset = 0x30;  // u16, the window width that the positions and picture fit
constexpr std::size_t completionOffset = 0x32;   // four u16: non-zero, non-zero, non-zero, exactly 1
constexpr std::size_t completionCount = 4;
constexpr std::size_t routeColourOffset = 0x3C; // colours are u32
constexpr std::size_t selectedFlightColourOffset = 0x40;
constexpr std::size_t flightColourOffset = 0x44;

/// Of one map point; offsets count from the start of its record.
constexpr std::size_t pointSize = 56;
constexpr std::size_t identOffset = 0; // text
constexpr std::size_t identSize = 4;
constexpr std::size_t descriptionOffset = 4; // text
constexpr std::size_t descriptionSize = 20;
constexpr std::size_t cellXOffset = 24; // u16, not read: cells follow from the pixels
constexpr std::size_t cellYOffset = 26;
constexpr std::size_t pixelXOffset = 28; // u16 from here on
constexpr std::size_t pixelYOffset = 30;
constexpr std::size_t isExitOffset = 32;
constexpr std::size_t isAirportOffset = 34;
constexpr std::size_t isMajorOffset = 36;
constexpr std::size_t runwayHeadingOffset = 38;
constexpr std::size_t labelColourOffset = 40; // colours
constexpr std::size_t symbolColourOffset = 44;
constexpr std::size_t runwayColourOffset = 48;
constexpr std::size_t labelPlaceOffset = 52; // u16
constexpr std::size_t reverseChanceOffset = 54;

} // namespace airport_layout

/// The first 76 bytes. Nothing in it has been checked.
struct AirportHeader {
    std::uint16_t magic = 0;
    std::string name;
    std::uint16_t pointCount = 0;
    std::uint32_t pointTable = 0;   ///< file offset
    std::uint32_t pictureStart = 0; ///< file offset
    std::uint32_t pictureSize = 0;
    int layoutWidth = 0; ///< 800 or 1024 in a file that can be offered to a player
    std::array<std::uint16_t, airport_layout::completionCount> completion{};
    Colour routeColour;
    Colour selectedFlightColour;
    Colour flightColour;

    bool isAirportFile() const { return magic == airport_layout::magic; }
    /// Whether the author has finished the airspace.
    bool isComplete() const;
};

/// A checked airport: it has an exit and an airport, and its table and picture lie within the file.
struct AirportFile {
    AirportHeader header;
    /// Cells are all (0, 0) and runways as drawn, until the airport is loaded for a shift.
    std::vector<Vor> vors;
};

/// Decodes a header; nothing when there are fewer than 76 bytes.
std::optional<AirportHeader> readAirportHeader(std::span<const std::byte> file);

/// Decodes and checks a whole file. Fails by the name of `path` when it is too short, unfinished, not an
/// airport file, has table or picture outside the file, a control character in a name, no exit, no airport.
Result<AirportFile> readAirportFile(std::span<const std::byte> file, const std::filesystem::path& path);

/// The embedded picture's bytes within `file`, the bytes from which `header` was accepted.
std::span<const std::byte> embeddedPicture(std::span<const std::byte> file, const AirportHeader& header);

} // namespace ventrel
