#include "platform/sdl/scaled_picture.h"

#include <algorithm>
#include <vector>

namespace ventrel {

namespace {

constexpr int weightBits = 8;
constexpr int fullWeight = 1 << weightBits;

std::uint32_t* rowOf(const PixelRows& target, int y) {
    return target.first + static_cast<std::ptrdiff_t>(y) * target.pitch;
}

/// Mixes two pixels; `weight` is that of the second, of 256.
Pixel mixed(Pixel a, Pixel b, unsigned weight) {
    constexpr Pixel redBlue = 0xFF00FF;
    constexpr Pixel green = 0x00FF00;
    const unsigned rest = fullWeight - weight;
    return (((a & redBlue) * rest + (b & redBlue) * weight) >> weightBits & redBlue) |
           (((a & green) * rest + (b & green) * weight) >> weightBits & green);
}

/// Each pixel of `from` so many times, as far as `to` reaches; the first of them `skipped` times less.
void repeatAcross(std::span<std::uint32_t> to, std::span<const Pixel> from, int multiple, int skipped) {
    auto next = to.begin();
    int times = multiple - skipped;
    for (const Pixel pixel : from) {
        const auto end = next + std::min<std::ptrdiff_t>(times, to.end() - next);
        std::fill(next, end, pixel);
        next = end;
        times = multiple;
    }
}

void repeatPixels(const PixelRows& target, const Rect& area, const Bitmap& picture, const Rect& shown,
                  int multiple) {
    const Point first{(shown.left - area.left) / multiple, (shown.top - area.top) / multiple};
    const int skipped = (shown.left - area.left) % multiple;
    const auto width = static_cast<std::size_t>(shown.width());
    int repeated = -1; // the picture's row that the row above shows
    for (int y = shown.top; y < shown.bottom; ++y) {
        std::uint32_t* row = rowOf(target, y) + shown.left;
        const int wanted = (y - area.top) / multiple;
        if (wanted == repeated) {
            std::copy_n(rowOf(target, y - 1) + shown.left, width, row);
        } else {
            const auto source = picture.row(wanted).subspan(static_cast<std::size_t>(first.x));
            const auto needed = (width + static_cast<std::size_t>(skipped + multiple - 1)) /
                                static_cast<std::size_t>(multiple);
            repeatAcross({row, width}, source.first(needed), multiple, skipped);
            repeated = wanted;
        }
    }
}

void copyRows(const PixelRows& target, const Rect& area, const Bitmap& picture, const Rect& shown) {
    for (int y = shown.top; y < shown.bottom; ++y) {
        const auto source =
            picture.row(y - area.top).subspan(static_cast<std::size_t>(shown.left - area.left));
        std::copy_n(source.begin(), shown.width(), rowOf(target, y) + shown.left);
    }
}

/// Rows of the same length; `weight` is that of the second, of 256. As `mixed` does it, but byte by byte: of
/// these a machine takes many at once.
void mixRows(std::span<const Pixel> upper, std::span<const Pixel> lower, unsigned weight, std::uint32_t* to) {
    const auto* const above = reinterpret_cast<const std::uint8_t*>(upper.data());
    const auto* const below = reinterpret_cast<const std::uint8_t*>(lower.data());
    auto* const bytes = reinterpret_cast<std::uint8_t*>(to);
    const auto ofBelow = static_cast<std::uint16_t>(weight);
    const auto ofAbove = static_cast<std::uint16_t>(fullWeight - weight);
    for (std::size_t i = 0; i < upper.size_bytes(); ++i) {
        const auto sum = static_cast<std::uint16_t>(above[i] * ofAbove + below[i] * ofBelow);
        bytes[i] = static_cast<std::uint8_t>(sum >> weightBits);
    }
}

} // namespace

PictureScaler::Between PictureScaler::between(int shown, int shownLength, int length) {
    // The middle of the shown pixel, in 256ths of the picture's pixels, counted from the middle of its first.
    const std::int64_t at =
        ((2 * std::int64_t{shown} + 1) * length * fullWeight / shownLength - fullWeight) / 2;
    const auto clamped = std::clamp<std::int64_t>(at, 0, std::int64_t{length - 1} * fullWeight);
    const int first = static_cast<int>(clamped >> weightBits);
    const int weight = static_cast<int>(clamped & (fullWeight - 1));
    // Enlarged, two pixels mix only where they meet, over the width of one shown pixel: edges stay crisp.
    const int fromEdge = (weight - fullWeight / 2) * std::max(shownLength, length) / length;
    const int crisp = std::clamp(fromEdge + fullWeight / 2, 0, fullWeight);
    return {first, std::min(first + 1, length - 1), static_cast<unsigned>(crisp)};
}

std::vector<PictureScaler::Between> PictureScaler::betweenAll(int shownLength, int length) {
    std::vector<Between> result;
    result.reserve(static_cast<std::size_t>(shownLength));
    for (int shown = 0; shown < shownLength; ++shown) {
        result.push_back(between(shown, shownLength, length));
    }
    return result;
}

void PictureScaler::prepare(Size shown, Size picture) {
    if (shown != shown_ || picture != picture_) {
        shown_ = shown;
        picture_ = picture;
        findSeams();
        rows_ = betweenAll(shown.height, picture.height);
    }
}

void PictureScaler::findSeams() {
    columns_.clear();
    seams_.clear();
    seamsBefore_.clear();
    for (const Between& pixels : betweenAll(shown_.width, picture_.width)) {
        seamsBefore_.push_back(seams_.size());
        if (pixels.weight != 0 && pixels.weight != fullWeight) {
            seams_.push_back({static_cast<int>(columns_.size()), pixels});
        }
        columns_.push_back(pixels.weight == fullWeight ? pixels.second : pixels.first);
    }
}

const std::vector<Pixel>& PictureScaler::mixedAcross(MixedRow& row, int number, const Bitmap& picture,
                                                     int left, int width) {
    if (row.number == number) {
        return row.pixels;
    }
    row.number = number;
    row.pixels.resize(static_cast<std::size_t>(width));
    const auto from = picture.row(number);
    const auto columns =
        std::span(columns_).subspan(static_cast<std::size_t>(left), static_cast<std::size_t>(width));
    std::ranges::transform(columns, row.pixels.begin(),
                           [from](int column) { return from[static_cast<std::size_t>(column)]; });
    const auto fromLeft = std::span(seams_).subspan(seamsBefore_[static_cast<std::size_t>(left)]);
    for (const auto& [shown, pixels] : fromLeft) {
        if (shown >= left + width) {
            break;
        }
        row.pixels[static_cast<std::size_t>(shown - left)] =
            mixed(from[static_cast<std::size_t>(pixels.first)], from[static_cast<std::size_t>(pixels.second)],
                  pixels.weight);
    }
    return row.pixels;
}

/// Each row of the picture is mixed across once; the rows that are shown of it are copies, and between two of
/// the picture's rows mixtures of both.
void PictureScaler::mixPixels(const PixelRows& target, const Rect& area, const Bitmap& picture,
                              const Rect& shown) {
    prepare(area.size(), picture.size());
    const auto across = [&](MixedRow& row, int number) -> const std::vector<Pixel>& {
        return mixedAcross(row, number, picture, shown.left - area.left, shown.width());
    };
    upper_.number = -1;
    lower_.number = -1;
    for (int y = shown.top; y < shown.bottom; ++y) {
        const Between& down = rows_[static_cast<std::size_t>(y - area.top)];
        if (down.first == lower_.number) {
            std::swap(upper_, lower_);
        }
        std::uint32_t* to = rowOf(target, y) + shown.left;
        if (down.weight == 0) {
            std::ranges::copy(across(upper_, down.first), to);
        } else if (down.weight == fullWeight) {
            std::ranges::copy(across(lower_, down.second), to);
        } else {
            mixRows(across(upper_, down.first), across(lower_, down.second), down.weight, to);
        }
    }
}

Rect PictureScaler::draw(const PixelRows& target, const Rect& area, const Bitmap& picture,
                         const Rect& changed) {
    const int multiple = area.width() / picture.width();
    const bool isWhole = multiple >= 1 && area.width() == multiple * picture.width() &&
                         area.height() == multiple * picture.height();
    // A mixed pixel is touched by the neighbours of what has changed too.
    const Rect source = (isWhole ? changed : changed.grownBy(1)).intersectedWith(picture.bounds());
    const auto across = [&](int x) { return area.left + x * area.width() / picture.width(); };
    const auto down = [&](int y) { return area.top + y * area.height() / picture.height(); };
    const Rect shown = Rect{across(source.left), down(source.top), across(source.right) + (isWhole ? 0 : 1),
                            down(source.bottom) + (isWhole ? 0 : 1)}
                           .intersectedWith(area)
                           .intersectedWith(Rect::at({}, target.size));
    if (shown.isEmpty()) {
        return {};
    }
    if (!isWhole) {
        mixPixels(target, area, picture, shown);
    } else if (multiple == 1) {
        copyRows(target, area, picture, shown);
    } else {
        repeatPixels(target, area, picture, shown, multiple);
    }
    return shown;
}

} // namespace ventrel
