// Pictures onto a canvas: copied, stretched, combined, with a transparent colour, or from the canvas itself.

#include <algorithm>

#include "platform/canvas/canvas_change.h"

namespace ventrel {

namespace {

/// Combines as many pixels as `to` has.
void combine(RasterOp op, std::span<Pixel> to, std::span<const Pixel> from) {
    const auto each = [&](auto operation) {
        std::transform(to.begin(), to.end(), from.begin(), to.begin(), operation);
    };
    switch (op) {
    case RasterOp::copy: std::copy_n(from.begin(), to.size(), to.begin()); break;
    case RasterOp::notCopy: each([](Pixel, Pixel s) { return s ^ whitePixel; }); break;
    case RasterOp::sourceAnd: each([](Pixel d, Pixel s) { return d & s; }); break;
    case RasterOp::sourceOr: each([](Pixel d, Pixel s) { return d | s; }); break;
    }
}

Bitmap cutOut(const Bitmap& picture, const Rect& part) {
    Bitmap result(part.size());
    for (int y = 0; y < part.height(); ++y) {
        const auto row = picture.row(part.top + y).subspan(static_cast<std::size_t>(part.left));
        std::copy_n(row.begin(), part.width(), result.row(y).begin());
    }
    return result;
}

/// One side of a stretch: which source position lies under the middle of a destination position.
struct Stretch {
    int to = 0;
    int toLength = 0; ///< above 0
    int from = 0;
    int fromLength = 0; ///< above 0

    int sourceOf(int position) const {
        const std::int64_t middle = 2 * (std::int64_t{position} - to) + 1;
        return from + static_cast<int>(middle * fromLength / (2 * std::int64_t{toLength}));
    }
};

struct Extent {
    int low = 0;
    int high = 0; ///< exclusive
};

/// The part of `extent` whose sources lie from 0 to `limit` (exclusive).
Extent withinSource(const Stretch& stretch, Extent extent, int limit) {
    while (extent.low < extent.high && stretch.sourceOf(extent.low) < 0) {
        ++extent.low;
    }
    while (extent.low < extent.high && stretch.sourceOf(extent.high - 1) >= limit) {
        --extent.high;
    }
    return extent;
}

} // namespace

void Canvas::draw(const Rect& destination, const Bitmap& picture, const Rect& source, RasterOp op) {
    const Rect to = limitedMove(destination, origin_);
    const Rect from = limited(source);
    if (to.isEmpty() || from.isEmpty()) {
        return;
    }
    if (&picture == target_) {
        const Rect used = from.intersectedWith(picture.bounds());
        draw(destination, cutOut(picture, used), from.movedBy(Point{} - used.topLeft()), op);
    } else if (to.size() == from.size()) {
        copy(to, picture, from, op);
    } else {
        stretch(to, picture, from, op);
    }
}

void Canvas::draw(Point at, const Bitmap& picture) {
    draw(Rect::at(limited(at), picture.size()), picture, picture.bounds());
}

void Canvas::copy(const Rect& to, const Bitmap& picture, const Rect& from, RasterOp op) {
    const Point back = from.topLeft() - to.topLeft();
    const Rect covered = picture.bounds().movedBy(Point{} - back).intersectedWith(to);
    changeInside(covered, [&](const Run& piece, std::span<Pixel> pixels) {
        const int left = piece.left + back.x;
        combine(op, pixels, picture.row(piece.y + back.y).subspan(static_cast<std::size_t>(left)));
    });
}

void Canvas::stretch(const Rect& to, const Bitmap& picture, const Rect& from, RasterOp op) {
    const Rect visible = to.intersectedWith(clip_.bounds());
    const Stretch across{to.left, to.width(), from.left, from.width()};
    const Stretch down{to.top, to.height(), from.top, from.height()};
    const Extent x = withinSource(across, {visible.left, visible.right}, picture.width());
    const Extent y = withinSource(down, {visible.top, visible.bottom}, picture.height());

    std::vector<std::size_t> columns;
    for (int position = x.low; position < x.high; ++position) {
        columns.push_back(static_cast<std::size_t>(across.sourceOf(position)));
    }
    std::vector<Pixel> stretched(columns.size());
    int stretchedRow = -1;
    changeInside(Rect{x.low, y.low, x.high, y.high}, [&](const Run& piece, std::span<Pixel> pixels) {
        const int sourceRow = down.sourceOf(piece.y);
        if (sourceRow != stretchedRow) {
            const auto row = picture.row(sourceRow);
            std::transform(columns.begin(), columns.end(), stretched.begin(),
                           [row](std::size_t column) { return row[column]; });
            stretchedRow = sourceRow;
        }
        combine(op, pixels, std::span(stretched).subspan(static_cast<std::size_t>(piece.left - x.low)));
    });
}

void Canvas::drawTransparent(Point at, const Bitmap& picture, Colour transparent) {
    if (&picture == target_) {
        drawTransparent(at, Bitmap(picture), transparent);
        return;
    }
    const Point corner = limitedMove(at, origin_);
    changeInside(Rect::at(corner, picture.size()), [&](const Run& piece, std::span<Pixel> pixels) {
        const auto row =
            picture.row(piece.y - corner.y).subspan(static_cast<std::size_t>(piece.left - corner.x));
        std::transform(
            pixels.begin(), pixels.end(), row.begin(), pixels.begin(),
            [key = toPixel(transparent)](Pixel below, Pixel above) { return above == key ? below : above; });
    });
}

void Canvas::scroll(const Rect& area, Point offset) {
    const Rect from = limited(area);
    const Point way = limited(offset);
    const Rect to = limitedMove(from, way).intersectedWith(from);
    draw(to, *target_, limitedMove(limitedMove(to, Point{} - way), origin_));
}

} // namespace ventrel
