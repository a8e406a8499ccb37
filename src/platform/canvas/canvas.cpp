#include "platform/canvas/canvas.h"

#include <algorithm>
#include <cassert>

#include "platform/canvas/canvas_change.h"

namespace ventrel {

namespace {

// Two channels of a pixel with room for 16 bits each: blue and red, or green alone.
constexpr Pixel channelBits = 8;
constexpr Pixel outerChannels = 0xFF00FF;
constexpr Pixel oneEach = 0x10001;
constexpr Pixel halfEach = 127 * oneEach; // of the 255 parts, so that the result is rounded

/// `coverage` of 255 parts of the one over the rest of the other, channel by channel, rounded.
constexpr Pixel mixChannels(Pixel below, Pixel above, Pixel coverage) {
    const Pixel sum = below * (255 - coverage) + above * coverage + halfEach;
    // A 255th, exactly: n / 255 is (n + 1 + n / 256) / 256 for what two bytes multiply to.
    return (sum + oneEach + (sum >> channelBits & outerChannels)) >> channelBits & outerChannels;
}

constexpr Pixel mix(Pixel below, Pixel above, std::uint8_t coverage) {
    const Pixel outer = mixChannels(below & outerChannels, above & outerChannels, coverage);
    const Pixel green = mixChannels(below >> channelBits & 0xFFU, above >> channelBits & 0xFFU, coverage);
    return outer | green << channelBits;
}

} // namespace

Canvas::Canvas(Bitmap& target, Damage* damage)
    : target_(&target), damage_(damage), visible_(target.bounds()), clip_(visible_) {}

Canvas::Canvas(Bitmap& target, Point origin, const Region& visible, Damage* damage)
    : target_(&target), damage_(damage), origin_(limited(origin)),
      visible_(target.bounds().contains(visible.bounds()) ? visible
                                                          : visible.intersectedWith(target.bounds())),
      clip_(visible_) {}

void Canvas::setClip(const Region& region) {
    clip_ = visible_.intersectedWith(region.movedBy(origin_));
}

void Canvas::clearClip() {
    clip_ = visible_;
}

Region Canvas::clip() const {
    return clip_.movedBy(Point{} - origin_);
}

Colour Canvas::pixel(Point p) const {
    const Point inTarget = limitedMove(p, origin_);
    return target_->bounds().contains(inTarget) ? toColour(target_->at(inTarget.x, inTarget.y)) : Colour{};
}

void Canvas::setPixel(Point p, Colour colour) {
    fill(Rect::at(limited(p), {1, 1}), colour);
}

void Canvas::fill(const Rect& rect, Colour colour) {
    changeInside(limitedMove(rect, origin_), SetTo{toPixel(colour)});
}

void Canvas::fill(const Region& region, Colour colour) {
    paint(region, origin_, colour);
}

void Canvas::paint(const Region& area, Point offset, Colour colour) {
    changeInside(area, offset, SetTo{toPixel(colour)});
}

void Canvas::frame(const Rect& rect, Colour colour) {
    const Rect r = limited(rect);
    if (r.isEmpty()) {
        return;
    }
    fill(Rect{r.left, r.top, r.right, r.top + 1}, colour);
    fill(Rect{r.left, r.bottom - 1, r.right, r.bottom}, colour);
    fill(Rect{r.left, r.top, r.left + 1, r.bottom}, colour);
    fill(Rect{r.right - 1, r.top, r.right, r.bottom}, colour);
}

void Canvas::ellipse(const Rect& bounds, Colour pen, int penWidth) {
    const Rect inTarget = limitedMove(bounds, origin_);
    // The rows just beyond the clip tell which pixels at its edge belong to the outline.
    const Rect window = clip_.bounds().grownBy(1);
    if (penWidth <= 1) {
        const Region inside = Region::ellipse(inTarget, window);
        paint(inside.minus(inside.interior()), {}, pen);
    } else {
        const int outward = penWidth / 2;
        const Region outside = Region::ellipse(inTarget.grownBy(outward), window);
        paint(outside.minus(Region::ellipse(inTarget.grownBy(outward - penWidth), window)), {}, pen);
    }
}

void Canvas::filledEllipse(const Rect& bounds, Colour pen, Colour inside) {
    const Region whole = Region::ellipse(limitedMove(bounds, origin_), clip_.bounds().grownBy(1));
    const Region interior = whole.interior();
    paint(interior, {}, inside);
    paint(whole.minus(interior), {}, pen);
}

void Canvas::invert(const Region& region) {
    changeInside(region, origin_, [](const Run&, std::span<Pixel> pixels) {
        for (Pixel& pixel : pixels) {
            pixel ^= whitePixel;
        }
    });
}

void Canvas::drawMask(Point at, const CoverageMask& mask, Colour colour) {
    const Point corner = limitedMove(at, origin_);
    const auto pitch = static_cast<std::size_t>(mask.size.width);
    assert(mask.coverage.size() >= pitch * static_cast<std::size_t>(mask.size.height));
    changeInside(Rect::at(corner, mask.size), [&](const Run& piece, std::span<Pixel> pixels) {
        const auto row = mask.coverage.subspan(static_cast<std::size_t>(piece.y - corner.y) * pitch, pitch);
        const auto covered = row.subspan(static_cast<std::size_t>(piece.left - corner.x), pixels.size());
        std::transform(pixels.begin(), pixels.end(), covered.begin(), pixels.begin(),
                       [above = toPixel(colour)](Pixel below, std::uint8_t coverage) {
                           return mix(below, above, coverage);
                       });
    });
}

} // namespace ventrel
