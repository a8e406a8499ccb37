#include "golden.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numeric>
#include <set>

#include "platform/canvas/image.h"
#include "platform/canvas/png_writer.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr Pixel differing = 0xFF0000;
/// Equal pixels stay visible behind the red ones, at a quarter of their strength.
constexpr Pixel dimmedBits = 0x3F3F3F;

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

std::string wholeText(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The face files on this machine, each with a checksum (FNV-1a): other files draw other pixels.
std::string facesHere() {
    constexpr std::uint64_t offsetBasis = 0xCBF29CE484222325;
    constexpr std::uint64_t prime = 0x100000001B3;
    std::set<std::string> lines;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(FONT_FOLDER, error)) {
        if (entry.path().extension() == ".ttf") {
            std::uint64_t sum = offsetBasis;
            for (const char c : wholeText(entry.path())) {
                sum = (sum ^ static_cast<unsigned char>(c)) * prime;
            }
            lines.insert(entry.path().filename().string() + " " + std::to_string(sum) + "\n");
        }
    }
    return std::accumulate(lines.begin(), lines.end(), std::string());
}

fs::path facesFile() {
    return fs::path(GOLDEN_FOLDER) / "faces.txt";
}

std::string renew(const Bitmap& actual, const fs::path& golden) {
    std::error_code error;
    fs::create_directories(golden.parent_path(), error);
    std::ofstream(facesFile(), std::ios::binary) << facesHere();
    return writePng(golden, actual) ? "" : golden.string() + " cannot be written.";
}

} // namespace

std::string compareWithGolden(const Bitmap& actual, const fs::path& golden, const fs::path& outFolder) {
    const fs::path newPicture = outFolder / (golden.stem().string() + ".actual.png");
    const fs::path changes = outFolder / (golden.stem().string() + ".diff.png");
    std::error_code error;
    fs::remove(newPicture, error);
    fs::remove(changes, error);
    Image image;
    Bitmap expected;
    ImageLoadFile(image, golden, ImageFormat::png);
    ImageToBitmap(image, expected);
    if (!expected.isEmpty() && expected == actual) {
        return "";
    }
    fs::create_directories(outFolder, error);
    writePng(newPicture, actual);
    if (expected.isEmpty()) {
        return golden.string() + " is missing or damaged. The new picture: " + newPicture.string();
    }
    const Difference found = difference(actual, expected);
    writePng(changes, found.picture);
    return golden.string() + " (" + std::to_string(expected.width()) + " x " +
           std::to_string(expected.height()) + ") differs in " + std::to_string(found.count) +
           " pixels, the first at (" + std::to_string(found.first.x) + ", " + std::to_string(found.first.y) +
           ").\nThe new picture: " + newPicture.string() + "\nThe difference: " + changes.string();
}

void expectGolden(const Bitmap& actual, std::string_view name, const char* file, int line) {
    const fs::path golden = fs::path(GOLDEN_FOLDER) / (std::string(name) + ".png");
    const std::string wrong =
        shallRenew() ? renew(actual, golden) : compareWithGolden(actual, golden, GOLDEN_OUT_FOLDER);
    if (wrong.empty()) {
        return;
    }
    if (facesHere() != wholeText(facesFile())) {
        GTEST_SKIP() << "This machine has other faces than those with which " << golden << " was drawn.";
    }
    ADD_FAILURE_AT(file, line) << wrong;
}

} // namespace ventrel
