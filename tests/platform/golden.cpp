#include "golden.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>

#include "platform/images/image.h"
#include "platform/images/png_writer.h"
#include "platform/text/font.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr Pixel differing = 0xFF0000;
/// Equal pixels stay visible behind the red ones, at a quarter of their strength.
constexpr Pixel dimmedBits = 0x3F3F3F;

/// Empty when there is none, or a damaged one.
Bitmap readPicture(const fs::path& file) {
    Image image;
    Bitmap picture;
    ImageLoadFile(image, file, ImageFormat::png);
    ImageToBitmap(image, picture);
    return picture;
}

struct Difference {
    Bitmap picture;
    int count = 0;
    Point first;
};

Difference difference(const Bitmap& a, const Bitmap& b) {
    Difference result{Bitmap({std::max(a.width(), b.width()), std::max(a.height(), b.height())}), 0, {}};
    for (int y = 0; y < result.picture.height(); ++y) {
        for (int x = 0; x < result.picture.width(); ++x) {
            const bool isInBoth = a.bounds().contains(Point{x, y}) && b.bounds().contains(Point{x, y});
            if (isInBoth && a.at(x, y) == b.at(x, y)) {
                result.picture.at(x, y) = a.at(x, y) >> 2 & dimmedBits;
                continue;
            }
            result.first = result.count == 0 ? Point{x, y} : result.first;
            result.picture.at(x, y) = differing;
            ++result.count;
        }
    }
    return result;
}

bool shallRenew() {
    const char* renew = std::getenv("VENTREL_RENEW_GOLDEN");
    return renew != nullptr && std::string_view(renew) == "1";
}

/// What tells machines apart that draw other letters: another release of the font files, or of the library
/// that draws them, makes other pixels of the same text.
constexpr std::array samples{std::to_array<FontRequest>({{Face::smallFonts, 10, false},
                                                         {Face::msSansSerif, -11, false},
                                                         {Face::msSansSerif, -11, true},
                                                         {Face::arial, 14, false},
                                                         {Face::arial, 16, true},
                                                         {Face::courierNew, -12, false},
                                                         {Face::arial, -40, true}})};
constexpr std::string_view sampleText = "Hamburgefonstiv PQWXYZ 0123456789 \xB0&%";

/// FNV-1a, 64 bits.
std::uint64_t sumOf(const Bitmap& picture) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const Pixel pixel : picture.pixels()) {
        sum = (sum ^ pixel) * 0x100000001B3;
    }
    return sum;
}

/// The same for two machines when they draw the program's faces alike; "none" where a face is missing.
std::string lettersOfThisMachine() {
    FontSet fonts(FONT_FOLDER);
    if (!fonts.failures().empty()) {
        return "none";
    }
    Bitmap picture({1024, 256});
    Canvas canvas(picture);
    int y = 0;
    for (const FontRequest& request : samples) {
        const Font& font = fonts.font(request);
        font.draw(canvas, {0, y}, sampleText, Colour::rgb(255, 255, 255));
        y += font.lineHeight();
    }
    return std::to_string(sumOf(picture));
}

const fs::path lettersFile = fs::path(GOLDEN_FOLDER) / "letters.txt";

bool hasTheLettersOfTheGoldens() {
    std::ifstream file(lettersFile);
    std::string letters;
    return std::getline(file, letters) && letters == lettersOfThisMachine();
}

/// The mean difference of one channel over an area of two pictures.
int meanDifference(const Bitmap& a, const Bitmap& b, const Rect& area, int shift) {
    int difference = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            difference += static_cast<int>(a.at(x, y) >> shift & 0xFF);
            difference -= static_cast<int>(b.at(x, y) >> shift & 0xFF);
        }
    }
    return std::abs(difference) / (area.width() * area.height());
}

/// Whether nothing but letters is different: these leave each area about as light as it was.
bool areAlike(const Bitmap& a, const Bitmap& b) {
    constexpr int side = 32;
    constexpr int most = 24; // of 255; other letters were seen to make 11
    if (a.size() != b.size()) {
        return false;
    }
    for (int y = 0; y < a.height(); y += side) {
        for (int x = 0; x < a.width(); x += side) {
            const Rect area = Rect::at({x, y}, {side, side}).intersectedWith(a.bounds());
            for (const int shift : {0, 8, 16}) {
                if (meanDifference(a, b, area, shift) > most) {
                    return false;
                }
            }
        }
    }
    return true;
}

std::string renew(const Bitmap& actual, const fs::path& golden) {
    std::error_code error;
    fs::create_directories(golden.parent_path(), error);
    std::ofstream(lettersFile) << lettersOfThisMachine() << '\n';
    return writePng(golden, actual) ? "" : golden.string() + " cannot be written.";
}

} // namespace

std::string compareWithGolden(const Bitmap& actual, const fs::path& golden, const fs::path& outFolder) {
    const fs::path newPicture = outFolder / (golden.stem().string() + ".actual.png");
    const fs::path changes = outFolder / (golden.stem().string() + ".diff.png");
    std::error_code error;
    fs::remove(newPicture, error);
    fs::remove(changes, error);
    const Bitmap expected = readPicture(golden);
    if (!expected.isEmpty() && expected == actual) {
        return "";
    }
    fs::create_directories(outFolder, error);
    if (const auto written = writePng(newPicture, actual); !written) {
        return written.error().text;
    }
    if (expected.isEmpty()) {
        return golden.string() + " is missing or damaged. The new picture: " + newPicture.string();
    }
    const Difference found = difference(actual, expected);
    if (const auto written = writePng(changes, found.picture); !written) {
        return written.error().text;
    }
    return golden.string() + " (" + std::to_string(expected.width()) + " x " +
           std::to_string(expected.height()) + ") differs in " + std::to_string(found.count) +
           " pixels, the first at (" + std::to_string(found.first.x) + ", " + std::to_string(found.first.y) +
           ").\nThe new picture: " + newPicture.string() + "\nThe difference: " + changes.string();
}

void expectGolden(const Bitmap& actual, std::string_view name, const char* file, int line) {
    const fs::path golden = fs::path(GOLDEN_FOLDER) / (std::string(name) + ".png");
    const std::string wrong =
        shallRenew() ? renew(actual, golden) : compareWithGolden(actual, golden, GOLDEN_OUT_FOLDER);
    const bool isOnlyOtherLetters =
        !wrong.empty() && !hasTheLettersOfTheGoldens() && areAlike(readPicture(golden), actual);
    if (!wrong.empty() && !isOnlyOtherLetters) {
        ADD_FAILURE_AT(file, line) << wrong;
    }
}

} // namespace ventrel
