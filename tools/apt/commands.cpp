#include "tools/apt/commands.h"

#include <cstdio>
#include <limits>

#include "base/whole_file.h"
#include "base/windows1252.h"
#include "tools/apt/airspace_checks.h"
#include "tools/apt/airspace_source.h"
#include "tools/apt/airspace_text.h"
#include "tools/apt/airspace_writer.h"
#include "tools/apt/picture_check.h"

namespace ventrel::apt {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t wholeFile = std::numeric_limits<std::size_t>::max();

void complain(const std::string& text) {
    std::fprintf(stderr, "ventrel-apt: %s\n", text.c_str());
}

/// The file's bytes. Throws SourceFault when it cannot be read.
std::vector<std::byte> read(const fs::path& file) {
    auto content = readFileStart(file, wholeFile);
    if (!content) {
        throw SourceFault{file.string() + ": cannot be opened"};
    }
    return std::move(*content);
}

void write(const fs::path& file, std::span<const std::byte> content) {
    if (!replaceFile(file, content)) {
        throw SourceFault{file.string() + ": cannot be written"};
    }
}

std::vector<std::byte> readPicture(const AirspaceSource& source, const RadarLayout& layout) {
    const auto found = source.pictures.find(layout.windowWidth);
    if (found == source.pictures.end()) {
        return {};
    }
    auto picture = read(found->second);
    if (jpegSize(picture) != scopeSquare(layout).size()) {
        const std::string side = std::to_string(layout.scopeSize);
        throw SourceFault{found->second.string() + ": not a JPEG of " + side + " x " + side + " pixels"};
    }
    return picture;
}

/// The file that the source becomes for that layout. Throws SourceFault when the source is not for it.
std::vector<std::byte> compile(const AirspaceSource& airspace, const fs::path& source, int width) {
    if (airspace.layoutWidth.value_or(width) != width) {
        throw SourceFault{source.string() + ": is for the layout of " +
                          std::to_string(*airspace.layoutWidth) + " pixels only"};
    }
    const RadarLayout& layout = radarLayoutFor(width);
    return airportFileBytes(airspace, layout, readPicture(airspace, layout));
}

AirspaceSource readSource(const fs::path& source) {
    const auto text = read(source);
    return parseAirspace({reinterpret_cast<const char*>(text.data()), text.size()}, source);
}

struct OpenedAirport {
    std::vector<std::byte> bytes;
    AirportFile airport;
};

/// The airport in a file's bytes. Throws SourceFault when it cannot be played.
OpenedAirport open(std::vector<std::byte> bytes, const fs::path& file) {
    std::string refusal;
    auto airport =
        readAirportFile(bytes, file, [&](std::string_view text, MessageIcon) { refusal = toTerminal(text); });
    if (!airport) {
        throw SourceFault{refusal};
    }
    return {std::move(bytes), std::move(*airport)};
}

/// Prints the problems of one airport; whether there were any.
bool printProblems(const OpenedAirport& opened, const std::string& name) {
    const auto picture = embeddedPicture(opened.bytes, opened.airport.header);
    const auto problems = airspaceProblems(opened.airport, picture);
    for (const std::string& problem : problems) {
        std::printf("%s: %s\n", name.c_str(), problem.c_str());
    }
    return !problems.empty();
}

/// Checks a source for each layout that it serves; whether there were problems.
bool checkSource(const fs::path& file) {
    const AirspaceSource airspace = readSource(file);
    bool hasProblems = false;
    for (const ScopeLayout& layout : {smallLayout, largeLayout}) {
        const int width = layout.windowWidth;
        if (airspace.layoutWidth.value_or(width) == width) {
            const std::string name = file.string() + " (" + std::to_string(width) + ')';
            hasProblems |= printProblems(open(compile(airspace, file, width), file), name);
        }
    }
    return hasProblems;
}

} // namespace

int build(const fs::path& source, const fs::path& target, int width) {
    try {
        write(target, compile(readSource(source), source, width));
        return success;
    } catch (const SourceFault& fault) {
        complain(fault.text);
        return faulty;
    }
}

int check(const std::vector<fs::path>& files) {
    bool hasProblems = false;
    for (const fs::path& file : files) {
        try {
            const bool isSource = file.extension() == ".toml";
            hasProblems |=
                isSource ? checkSource(file) : printProblems(open(read(file), file), file.string());
        } catch (const SourceFault& fault) {
            std::printf("%s\n", fault.text.c_str());
            hasProblems = true;
        }
    }
    return hasProblems ? faulty : success;
}

int show(const fs::path& file, const fs::path& picture) {
    try {
        const OpenedAirport opened = open(read(file), file);
        const auto embedded = embeddedPicture(opened.bytes, opened.airport.header);
        const bool writesPicture = !picture.empty() && !embedded.empty();
        if (writesPicture) {
            write(picture, embedded);
        }
        const std::string name = writesPicture ? fromUtf8(picture.string()) : std::string();
        std::fputs(airspaceText(opened.airport, name).c_str(), stdout);
        if (!embedded.empty() && !writesPicture) {
            std::printf("\n# The embedded picture (%zu bytes) is left out; --picture writes it.\n",
                        embedded.size());
        }
        return success;
    } catch (const SourceFault& fault) {
        complain(fault.text);
        return faulty;
    }
}

} // namespace ventrel::apt
