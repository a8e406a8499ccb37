// A picture in memory: rows of 32-bit pixels, top row first.

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/colour.h"
#include "base/geometry.h"

namespace ventrel {

/// One pixel as screens take it: 0x00RRGGBB. The top byte is always 0.
using Pixel = std::uint32_t;

inline constexpr Pixel whitePixel = 0x00FFFFFF;

constexpr Pixel toPixel(Colour colour) {
    return static_cast<Pixel>(colour.red()) << 16 | static_cast<Pixel>(colour.green()) << 8 | colour.blue();
}

constexpr Colour toColour(Pixel pixel) {
    return Colour::rgb(pixel >> 16 & 0xFFU, pixel >> 8 & 0xFFU, pixel & 0xFFU);
}

class Bitmap {
public:
    Bitmap() = default;

    /// A picture of that size, all black. Neither side may be negative; a side of 0 makes an empty picture.
    explicit Bitmap(Size size);

    Size size() const { return size_; }
    int width() const { return size_.width; }
    int height() const { return size_.height; }
    Rect bounds() const { return {0, 0, size_.width, size_.height}; }
    bool isEmpty() const { return pixels_.empty(); }

    /// The pixels of row `y`, which must lie inside the picture.
    std::span<Pixel> row(int y);
    std::span<const Pixel> row(int y) const;

    /// The pixel at (x, y), which must lie inside the picture.
    Pixel& at(int x, int y) { return row(y)[static_cast<std::size_t>(x)]; }
    Pixel at(int x, int y) const { return row(y)[static_cast<std::size_t>(x)]; }

    std::span<const Pixel> pixels() const { return pixels_; }

    friend bool operator==(const Bitmap&, const Bitmap&) = default;

private:
    Size size_;
    std::vector<Pixel> pixels_;
};

} // namespace ventrel
