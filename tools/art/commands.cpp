#include "tools/art/commands.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>

#include "base/whole_file.h"
#include "base/windows1252.h"
#include "platform/canvas/canvas.h"
#include "platform/images/image.h"
#include "platform/images/jpeg_writer.h"
#include "platform/images/png_writer.h"
#include "tools/art/about_art.h"
#include "tools/art/award_art.h"
#include "tools/art/cloud_art.h"
#include "tools/art/console_art.h"
#include "tools/art/curtain_art.h"
#include "tools/art/film.h"
#include "tools/art/film_file.h"
#include "tools/art/letterhead_art.h"
#include "tools/art/score_art.h"
#include "tools/art/small_art.h"
#include "tools/art/title_art.h"

namespace ventrel::art {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view filmName = "film";

/// The colour that the program leaves out of a keyed picture.
constexpr Colour keyColour = Colour::rgb(255, 255, 0);
constexpr int halfCovered = 128;
constexpr int fullyCovered = 255;

constexpr std::string_view cloudName = "cloud";

struct SmallDrawing {
    std::string_view name;
    std::string (*draw)();
};

constexpr std::array smallDrawings{std::to_array<SmallDrawing>({
    {"lamp_green_dark", [] { return drawLamp(LampColour::green, false); }},
    {"lamp_green_bright", [] { return drawLamp(LampColour::green, true); }},
    {"lamp_yellow_dark", [] { return drawLamp(LampColour::yellow, false); }},
    {"lamp_yellow_bright", [] { return drawLamp(LampColour::yellow, true); }},
    {"lamp_red_dark", [] { return drawLamp(LampColour::red, false); }},
    {"lamp_red_bright", [] { return drawLamp(LampColour::red, true); }},
    {"strip_button_up", [] { return drawStripButton(false); }},
    {"strip_button_down", [] { return drawStripButton(true); }},
    {"pointer_hand", drawHandPointer},
    {"pointer_arrow", drawArrowPointer},
    {"icon", drawIcon},
    {"letterhead", drawLetterhead},
    {"film_sky", drawFilmSky},
})};

struct ConsoleDrawing {
    std::string_view name;
    const ConsoleFittings& fittings;
};

/// A drawing that is made of the console's materials.
struct MaterialDrawing {
    std::string_view name;
    std::string (*draw)(std::string_view materials);
};

constexpr std::array materialDrawings{std::to_array<MaterialDrawing>({
    {"about", drawAbout},
    {"title", drawTitle},
    {"scores", drawScores},
    {"award", drawAward},
    {"curtain800", [](std::string_view materials) { return drawCurtain(smallConsole.size, materials); }},
    {"curtain1024", [](std::string_view materials) { return drawCurtain(largeConsole.size, materials); }},
})};

constexpr std::array<ConsoleDrawing, 2> consoles{
    {{"console800", smallFittings}, {"console1024", largeFittings}}};

void complain(std::string_view text) {
    std::fprintf(stderr, "ventrel-art: %s\n", toTerminal(text).c_str());
}

/// Whether it was done; if not, the reason is told.
bool isDone(const Result<>& result) {
    if (!result) {
        complain(result.error().text);
    }
    return result.has_value();
}

std::optional<Bitmap> load(const fs::path& file) {
    Image image;
    Bitmap bitmap;
    if (ImageLoadFile(image, file, ImageFormat::png) != ImageError::none ||
        ImageToBitmap(image, bitmap) != ImageError::none) {
        complain(pathText(file) + " is no PNG picture that can be read");
        return std::nullopt;
    }
    return bitmap;
}

bool save(const fs::path& file, const Bitmap& bitmap, PngPacking packing = PngPacking::small) {
    return isDone(writePng(file, bitmap, packing));
}

/// How much a dithered pixel must be covered, by its place in a square of four.
// clang-format off
constexpr std::array<std::array<int, 4>, 4> ditherSteps{{
    { 0,  8,  2, 10},
    {12,  4, 14,  6},
    { 3, 11,  1,  9},
    {15,  7, 13,  5},
}};
// clang-format on

int leastCoverage(Edge edge, Point pixel) {
    if (edge == Edge::crisp) {
        return halfCovered;
    }
    constexpr int steps = 16;
    const auto row = static_cast<std::size_t>(pixel.y % 4);
    const auto column = static_cast<std::size_t>(pixel.x % 4);
    return (2 * ditherSteps[row][column] + 1) * fullyCovered / (2 * steps);
}

/// The colour of a pixel that covers its ground as the two renderings show; the key where it does so less
/// than `least`.
Colour uncovered(Colour onBlack, Colour onWhite, int least) {
    const int coverage = fullyCovered - (onWhite.green() - onBlack.green());
    if (coverage < least) {
        return keyColour;
    }
    const auto channel = [&](int value) {
        return static_cast<unsigned>(std::min(value * fullyCovered / coverage, fullyCovered));
    };
    const Colour colour =
        Colour::rgb(channel(onBlack.red()), channel(onBlack.green()), channel(onBlack.blue()));
    // The key itself must not come about by chance.
    return colour == keyColour ? Colour::rgb(255, 255, 1) : colour;
}

/// The clear pixels that lead out to the picture's edge, each within one dither square of the next.
std::vector<bool> openGround(const Bitmap& keyed) {
    constexpr int reach = static_cast<int>(ditherSteps.size());
    const auto index = [&](Point p) {
        const int pixel = p.y * keyed.width() + p.x;
        return static_cast<std::size_t>(pixel);
    };
    std::vector<bool> isOpen(static_cast<std::size_t>(keyed.width()) *
                             static_cast<std::size_t>(keyed.height()));
    std::vector<Point> toVisit{{0, 0}};
    isOpen[0] = true;
    while (!toVisit.empty()) {
        const Rect near = Rect::at(toVisit.back(), {1, 1}).grownBy(reach).intersectedWith(keyed.bounds());
        toVisit.pop_back();
        for (int y = near.top; y < near.bottom; ++y) {
            for (int x = near.left; x < near.right; ++x) {
                if (toColour(keyed.at(x, y)) == keyColour && !isOpen[index({x, y})]) {
                    isOpen[index({x, y})] = true;
                    toVisit.push_back({x, y});
                }
            }
        }
    }
    return isOpen;
}

/// Clear pixels that lead nowhere are holes in the picture, not a part of its soft edge.
void closePinholes(Bitmap& keyed, const Bitmap& onBlack, const Bitmap& onWhite) {
    constexpr int anyCoverage = 1;
    const std::vector<bool> isOpen = openGround(keyed);
    std::size_t index = 0;
    for (int y = 0; y < keyed.height(); ++y) {
        for (int x = 0; x < keyed.width(); ++x, ++index) {
            if (toColour(keyed.at(x, y)) == keyColour && !isOpen[index]) {
                keyed.at(x, y) =
                    toPixel(uncovered(toColour(onBlack.at(x, y)), toColour(onWhite.at(x, y)), anyCoverage));
            }
        }
    }
}

} // namespace

std::vector<std::string> drawingNames() {
    std::vector<std::string> names;
    names.reserve(consoles.size() + cloudCount + 1 + smallDrawings.size());
    for (const ConsoleDrawing& console : consoles) {
        names.emplace_back(console.name);
    }
    for (int i = 0; i < cloudCount; ++i) {
        names.push_back(std::string(cloudName) + std::to_string(i));
    }
    for (int i = 0; i < filmSheets; ++i) {
        names.push_back(std::string(filmName) + std::to_string(i));
    }
    for (const MaterialDrawing& drawing : materialDrawings) {
        names.emplace_back(drawing.name);
    }
    for (const SmallDrawing& small : smallDrawings) {
        names.emplace_back(small.name);
    }
    return names;
}

std::string drawing(std::string_view name, std::string_view materials) {
    for (const ConsoleDrawing& console : consoles) {
        if (name == console.name) {
            return drawConsole(console.fittings, materials);
        }
    }
    for (const MaterialDrawing& drawing : materialDrawings) {
        if (name == drawing.name) {
            return drawing.draw(materials);
        }
    }
    for (int i = 0; i < cloudCount; ++i) {
        if (name == std::string(cloudName) + std::to_string(i)) {
            return drawCloud(i);
        }
    }
    for (int i = 0; i < filmSheets; ++i) {
        if (name == std::string(filmName) + std::to_string(i)) {
            return drawFilmSheet(i);
        }
    }
    const auto* const small = std::ranges::find(smallDrawings, name, &SmallDrawing::name);
    return small == smallDrawings.end() ? std::string() : small->draw();
}

bool convertPicture(const fs::path& picture, const fs::path& target, PngPacking packing) {
    const auto bitmap = load(picture);
    return bitmap && save(target, *bitmap, packing);
}

bool convertToJpeg(const fs::path& picture, const fs::path& target) {
    constexpr int quality = 92;
    const auto bitmap = load(picture);
    if (!bitmap) {
        return false;
    }
    return isDone(writeJpeg(target, *bitmap, quality));
}

bool cutRadarFrame(const fs::path& console, const fs::path& target) {
    const auto bitmap = load(console);
    if (!bitmap) {
        return false;
    }
    const auto* const found = std::ranges::find_if(
        consoles, [&](const ConsoleDrawing& drawn) { return drawn.fittings.places.size == bitmap->size(); });
    if (found == consoles.end()) {
        complain(pathText(console) + " has the size of neither console");
        return false;
    }
    const Rect window = radarWindowRect(found->fittings.places.radar);
    Bitmap frame(window.size());
    Canvas canvas(frame);
    canvas.draw(frame.bounds(), *bitmap, window);
    return save(target, frame, PngPacking::none);
}

bool keyPicture(const fs::path& onBlack, const fs::path& onWhite, const fs::path& target, Edge edge) {
    const auto black = load(onBlack);
    const auto white = load(onWhite);
    if (!black || !white) {
        return false;
    }
    if (black->size() != white->size()) {
        complain(pathText(onWhite) + " has another size than its twin");
        return false;
    }
    Bitmap keyed(black->size());
    for (int y = 0; y < keyed.height(); ++y) {
        for (int x = 0; x < keyed.width(); ++x) {
            const int least = leastCoverage(edge, {x, y});
            keyed.at(x, y) = toPixel(uncovered(toColour(black->at(x, y)), toColour(white->at(x, y)), least));
        }
    }
    if (edge == Edge::dithered) {
        closePinholes(keyed, *black, *white);
    }
    return save(target, keyed);
}

namespace {

/// The pictures of a rendered sheet, as JPEGs behind those that are there already.
bool addSheet(std::vector<std::vector<std::byte>>& pictures, const fs::path& file) {
    constexpr int quality = 87;
    const auto sheet = load(file);
    if (!sheet) {
        return false;
    }
    if (sheet->size() != filmSheetSize) {
        complain(pathText(file) + " has another size than a sheet of the film");
        return false;
    }
    for (int i = 0; i < filmSheetPictures; ++i) {
        Bitmap picture(filmSize);
        Canvas(picture).draw(picture.bounds(), *sheet, onFilmSheet(i));
        addGrain(picture, static_cast<int>(pictures.size()));
        pictures.push_back(encodeJpeg(picture, quality));
    }
    return true;
}

} // namespace

bool assembleFilm(const fs::path& folder, const fs::path& target) {
    std::vector<std::vector<std::byte>> pictures;
    for (int i = 0; i < filmSheets; ++i) {
        if (!addSheet(pictures, folder / (std::string(filmName) + std::to_string(i) + ".png"))) {
            return false;
        }
    }
    const auto written = replaceFile(target, filmFile({filmSize, filmRate}, pictures));
    if (!written) {
        complain(pathText(target) + " cannot be written");
    }
    return written.has_value();
}

} // namespace ventrel::art
