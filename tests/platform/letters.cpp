#include "letters.h"

#include <array>
#include <cstdint>

#include "platform/canvas/font.h"

namespace ventrel {

namespace {

constexpr std::array samples{std::to_array<FontRequest>({{Face::smallFonts, 10, false},
                                                         {Face::msSansSerif, -11, false},
                                                         {Face::msSansSerif, -11, true},
                                                         {Face::arial, 14, false},
                                                         {Face::arial, 16, true},
                                                         {Face::courierNew, -12, false},
                                                         {Face::arial, -40, true}})};
constexpr std::string_view text = "Hamburgefonstiv PQWXYZ 0123456789 \xB0&%";

/// FNV-1a, 64 bits.
std::uint64_t sumOf(const Bitmap& picture) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const Pixel pixel : picture.pixels()) {
        sum = (sum ^ pixel) * 0x100000001B3;
    }
    return sum;
}

} // namespace

std::string lettersOfThisMachine() {
    FontSet fonts(FONT_FOLDER, [](std::string_view, MessageIcon) {});
    if (!fonts.isComplete()) {
        return "none";
    }
    Bitmap picture({1024, 256});
    Canvas canvas(picture);
    int y = 0;
    for (const FontRequest& request : samples) {
        const Font& font = fonts.font(request);
        font.draw(canvas, {0, y}, text, Colour::rgb(255, 255, 255));
        y += font.lineHeight();
    }
    return std::to_string(sumOf(picture));
}

} // namespace ventrel
