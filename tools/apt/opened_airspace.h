// An airspace from a file of either kind, with all that speaks against it.

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "base/result.h"
#include "sim/airport_file.h"
#include "tools/apt/airspace_source.h"

namespace ventrel::apt {

/// "FILE:LINE: text"; without a line "FILE: text".
std::string located(const std::filesystem::path& file, int line, const std::string& text);

struct OpenedAirport {
    std::vector<std::byte> bytes;
    AirportFile airport;

    std::span<const std::byte> picture() const { return embeddedPicture(bytes, airport.header); }
};

/// An airport file that can be played.
Result<OpenedAirport> openAirport(const std::filesystem::path& file);

/// A source, sound or not.
struct OpenedSource {
    std::filesystem::path file;
    SourceReading reading;

    /// Its faults, one a line; empty when it can be built.
    std::string faultLines() const;
    /// The picture for that layout: drawn from the source's chart, or the file that it names, whatever is in
    /// it; empty when there is neither.
    Result<std::vector<std::byte>> picture(int width) const;
    /// The source and all files that it names.
    std::vector<std::filesystem::path> inputs() const;
};

Result<OpenedSource> openSource(const std::filesystem::path& file);

/// The file that a source becomes for that layout, ready to be played.
Result<OpenedAirport> compile(const OpenedSource& source, int width);

/// Whether the file is a source, by its name.
bool isSource(const std::filesystem::path& file);

} // namespace ventrel::apt
