#include "tools/apt/airspace_text.h"

#include <array>
#include <cstdio>

#include "base/windows1252.h"
#include "radar/radar_layout.h"
#include "tools/apt/airspace_source.h"

namespace ventrel::apt {

namespace {

/// A control character as TOML wants it; every other one as it stands.
std::string escaped(char c) {
    constexpr unsigned deletion = 0x7F;
    const char32_t unicode = toUnicode(c);
    if (unicode >= ' ' && unicode != deletion) {
        return toUtf8({&c, 1});
    }
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "\\u%04x", static_cast<unsigned>(unicode));
    return text.data();
}

std::string inQuotes(std::string_view windows1252) {
    std::string text = "\"";
    for (const char c : windows1252) {
        if (c == '"' || c == '\\') {
            text += '\\';
        }
        text += escaped(c);
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

} // namespace

std::string airspaceText(const AirportFile& airport, const std::string& pictureName) {
    const AirportHeader& header = airport.header;
    const RadarLayout& layout = radarLayoutFor(header.layoutWidth);
    const Vor& shared = airport.vors.front();
    std::string text;
    line(text, "name", inQuotes(header.name));
    line(text, "layout", std::to_string(header.layoutWidth));
    if (!pictureName.empty()) {
        text += "\n[picture]\n";
        line(text, std::to_string(header.layoutWidth), inQuotes(pictureName));
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

} // namespace ventrel::apt
