#include "platform/desktop/standard_cursors.h"

#include <array>
#include <string_view>

namespace ventrel {

namespace {

// '#' black, '.' white, blank clear.

constexpr std::array<std::string_view, 19> arrowPicture{
    "#           ", //
    "##          ", //
    "#.#         ", //
    "#..#        ", //
    "#...#       ", //
    "#....#      ", //
    "#.....#     ", //
    "#......#    ", //
    "#.......#   ", //
    "#........#  ", //
    "#.........# ", //
    "#......#####", //
    "#...#..#    ", //
    "#..##..#    ", //
    "#.#  #..#   ", //
    "##   #..#   ", //
    "#     #..#  ", //
    "      #..#  ", //
    "       ##   ", //
};
constexpr Point arrowHotSpot{0, 0};

constexpr std::array<std::string_view, 18> beamPicture{
    " ####.#### ", //
    " ....#.... ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    "    .#.    ", //
    " ....#.... ", //
    " ####.#### ", //
};
constexpr Point beamHotSpot{5, 9};

constexpr std::array<std::string_view, 21> waitPicture{
    "###############", //
    "#.............#", //
    "###############", //
    " #...........# ", //
    " #...........# ", //
    " #...........# ", //
    " #..#.#.#.#..# ", //
    "  #..#.#.#..#  ", //
    "   #..#.#..#   ", //
    "    #..#..#    ", //
    "     #.#.#     ", //
    "    #..#..#    ", //
    "   #.......#   ", //
    "  #....#....#  ", //
    " #...........# ", //
    " #.....#.....# ", //
    " #....#.#....# ", //
    " #..#.#.#.#..# ", //
    "###############", //
    "#.............#", //
    "###############", //
};
constexpr Point waitHotSpot{7, 10};

template <std::size_t rows>
CursorImage drawnAs(const std::array<std::string_view, rows>& lines, Point hotSpot) {
    const Size size{static_cast<int>(lines.front().size()), static_cast<int>(rows)};
    CursorImage image{Bitmap(size), Bitmap(size), hotSpot};
    for (std::size_t y = 0; y < rows; ++y) {
        for (std::size_t x = 0; x < lines[y].size(); ++x) {
            const auto column = static_cast<int>(x);
            const auto row = static_cast<int>(y);
            image.picture.at(column, row) = lines[y][x] == '.' ? whitePixel : 0;
            image.mask.at(column, row) = lines[y][x] == ' ' ? 0 : whitePixel;
        }
    }
    return image;
}

} // namespace

StandardCursors::StandardCursors()
    : arrow(drawnAs(arrowPicture, arrowHotSpot)), beam(drawnAs(beamPicture, beamHotSpot)),
      wait(drawnAs(waitPicture, waitHotSpot)) {}

const CursorImage* StandardCursors::image(StandardCursor cursor) const {
    switch (cursor) {
    case StandardCursor::arrow: return &arrow;
    case StandardCursor::beam: return &beam;
    case StandardCursor::wait: return &wait;
    case StandardCursor::hidden: return nullptr;
    }
    return &arrow;
}

} // namespace ventrel
