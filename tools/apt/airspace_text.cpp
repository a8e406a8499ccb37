#include "tools/apt/airspace_text.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "base/windows1252.h"
#include "console/radar_layout.h"
#include "sim/grid.h"
#include "tools/apt/airspace_source.h"
#include "tools/apt/airspace_writer.h"

namespace ventrel::apt {

namespace {

std::string inQuotes(std::string_view windows1252) {
    std::string text = "\"";
    for (const char c : windows1252) {
        if (c == '"' || c == '\\') {
            text += '\\';
        }
        text += c;
    }
    return text + '"';
}

std::string colourText(Colour colour) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "\"#%02x%02x%02x\"", unsigned{colour.red()},
                  unsigned{colour.green()}, unsigned{colour.blue()});
    return text.data();
}

std::string pairText(Point p) {
    return '[' + std::to_string(p.x) + ", " + std::to_string(p.y) + ']';
}

void line(std::string& text, std::string_view key, const std::string& value) {
    text += std::string(key) + " = " + value + '\n';
}

std::string labelName(const Vor& vor) {
    const auto& places = vor.isAirport ? airportLabelPlaces : vorLabelPlaces;
    const auto last = places.size() - 1;
    const auto place = static_cast<std::size_t>(vor.labelPlace);
    return inQuotes(places[place < last ? place : last]);
}

void writePlace(std::string& text, const RadarLayout& layout, Point pixel) {
    const Point cell{pixel.x / layout.cellSize, pixel.y / layout.cellSize};
    const bool isOnGrid = cell.x < gridSize && cell.y < gridSize;
    const bool isCorner = isOnGrid && radarPoint(layout, {cell.x, cell.y}) == pixel;
    line(text, isCorner ? "cell" : "pixel", pairText(isCorner ? cell : pixel));
}

/// A point's colours are written only where they differ from those of the first point.
void writeColours(std::string& text, const Vor& vor, const Vor& shared) {
    const auto own = [&](std::string_view key, Colour colour, Colour usual) {
        if (colour != usual) {
            line(text, key, colourText(colour));
        }
    };
    own("label_colour", vor.labelColour, shared.labelColour);
    own("symbol_colour", vor.symbolColour, shared.symbolColour);
    own("runway_colour", vor.runwayColour, shared.runwayColour);
}

void writePoint(std::string& text, const RadarLayout& layout, const Vor& vor, const Vor& shared) {
    text += "\n[[point]]\n";
    line(text, "ident", inQuotes(vor.ident));
    line(text, "name", inQuotes(vor.description));
    writePlace(text, layout, vor.pixel);
    if (vor.isExit) {
        line(text, "exit", "true");
    }
    if (vor.isAirport) {
        line(text, "airport", "true");
    }
    if (vor.isMajor) {
        line(text, "major", "true");
    }
    if (vor.isAirport) {
        line(text, "runway", std::to_string(vor.runwayHeading));
        line(text, "reverse_chance", std::to_string(vor.reverseChance));
    }
    line(text, "label", labelName(vor));
    writeColours(text, vor, shared);
}

std::string sourceText(const AirportFile& airport, const ShownPicture& picture) {
    const AirportHeader& header = airport.header;
    const RadarLayout& layout = radarLayoutFor(header.layoutWidth);
    const Vor& shared = airport.vors.front();
    std::string text;
    line(text, "name", inQuotes(header.name));
    line(text, "layout", std::to_string(header.layoutWidth));
    if (!picture.name.empty()) {
        text += "\n[picture] # beside this source\n";
        line(text, std::to_string(header.layoutWidth), inQuotes(picture.name));
    }
    text += "\n[colours]\n";
    line(text, "aircraft", colourText(header.flightColour));
    line(text, "selected", colourText(header.selectedFlightColour));
    line(text, "route", colourText(header.routeColour));
    line(text, "label", colourText(shared.labelColour));
    line(text, "symbol", colourText(shared.symbolColour));
    line(text, "runway", colourText(shared.runwayColour));
    for (const Vor& vor : airport.vors) {
        writePoint(text, layout, vor, shared);
    }
    return text;
}

/// What of a point a source cannot say, as comments.
void tellPointLosses(std::string& text, const Vor& vor, const Vor& rebuilt) {
    const auto tell = [&](const std::string& loss) {
        text += "# Point '" + vor.ident + "': " + loss + ".\n";
    };
    if (vor.labelPlace != rebuilt.labelPlace) {
        tell("label place " + std::to_string(vor.labelPlace) + " becomes " +
             std::to_string(rebuilt.labelPlace) + ", which looks the same");
    }
    if (vor.runwayHeading != rebuilt.runwayHeading || vor.reverseChance != rebuilt.reverseChance) {
        tell("the runway of a point that is no airport is left out");
    }
    if (vor.labelColour != rebuilt.labelColour || vor.symbolColour != rebuilt.symbolColour ||
        vor.runwayColour != rebuilt.runwayColour) {
        tell("its colours lose their fourth byte, which nothing shows");
    }
}

/// What building the source again would not give back, as comments.
std::string losses(const AirportFile& airport, const AirportFile& rebuilt) {
    std::string text;
    const AirportHeader& was = airport.header;
    const AirportHeader& is = rebuilt.header;
    if (was.routeColour != is.routeColour || was.flightColour != is.flightColour ||
        was.selectedFlightColour != is.selectedFlightColour) {
        text += "# The colours of aircraft or routes lose their fourth byte, which nothing shows.\n";
    }
    for (std::size_t i = 0; i < airport.vors.size(); ++i) {
        tellPointLosses(text, airport.vors[i], rebuilt.vors[i]);
    }
    return text.empty() ? "# Bytes of the file that are not read, or the order of its parts, are lost.\n"
                        : text;
}

} // namespace

Result<std::string> airspaceText(const AirportFile& airport, std::span<const std::byte> file,
                                 const ShownPicture& picture) {
    const auto [source, faults] = parseAirspace(toUtf8(sourceText(airport, {})));
    if (!faults.empty()) {
        std::string reasons;
        for (const Fault& fault : faults) {
            reasons += "\n    " + fault.text;
        }
        return failed("no source makes this file:" + reasons);
    }
    const AirportFile rebuilt = airportOf(source, radarLayoutFor(airport.header.layoutWidth));
    const auto bytes = airportFileBytes(rebuilt, embeddedPicture(file, airport.header));
    std::string text =
        "# From an airport file, which holds cells and pixels alone: the [grid], the coordinates and the\n"
        "# comments of the source that it was made of are not in it.\n";
    if (!std::ranges::equal(bytes, file)) {
        text += losses(airport, rebuilt);
    }
    if (!picture.remark.empty()) {
        text += "# " + picture.remark + '\n';
    }
    return text + '\n' + sourceText(airport, picture);
}

} // namespace ventrel::apt
