// Drawing onto a bitmap, pixel by pixel as the classic desktops drew.
//
// A canvas has an origin (its own (0, 0) in the picture) and a clip (what may change). A child window's
// canvas has the window's corner as its origin and the visible part of the window as its clip. Whoever wants
// to know what changed hands in a Damage record. All positions are the canvas's own, and any position may lie
// outside, however far: what is not visible costs next to nothing.

#pragma once

#include <cstdint>
#include <span>

#include "platform/canvas/bitmap.h"
#include "platform/canvas/damage.h"
#include "platform/canvas/region.h"

namespace ventrel {

/// How the pixels of a source (S) and the destination (D) are combined.
enum class RasterOp {
    copy,      ///< S
    notCopy,   ///< not S
    sourceAnd, ///< S and D
    sourceOr,  ///< S or D
};

/// The coverage of a glyph or another one-colour shape: 0 clear to 255 solid, rows of `size.width` bytes.
struct CoverageMask {
    Size size;
    std::span<const std::uint8_t> coverage;
};

class Canvas {
public:
    /// Draws on the whole of `target`, which must outlive the canvas. `damage` (none: nobody asks) takes the
    /// changed pixels in the target's coordinates.
    explicit Canvas(Bitmap& target, Damage* damage = nullptr);

    /// Draws with `origin` as (0, 0) and inside `visible` only, both in the target's coordinates.
    Canvas(Bitmap& target, Point origin, const Region& visible, Damage* damage = nullptr);

    /// Narrows drawing to `region` (this canvas's coordinates) within what is visible, replacing an earlier
    /// clip.
    void setClip(const Region& region);
    /// Back to all that is visible.
    void clearClip();
    /// What drawing may change at present, in this canvas's coordinates.
    Region clip() const;

    /// The pixel at `p` of the picture below; black outside it.
    Colour pixel(Point p) const;
    void setPixel(Point p, Colour colour);

    /// A one-pixel line from `from` towards `to`; the end pixel itself is left out. Exactly one pixel for
    /// each row or column of its longer side. Where it passes midway between two pixels it takes the one
    /// nearer to the row or column of `from`, so that mirrored lines make mirrored pictures; drawn from its
    /// other end such a line takes the other pixel.
    void line(Point from, Point to, Colour colour);
    /// Lines from each point to the next; only the very last pixel is left out.
    void polyline(std::span<const Point> points, Colour colour);

    void fill(const Rect& rect, Colour colour);
    void fill(const Region& region, Colour colour);
    /// A one-pixel frame just inside `rect`.
    void frame(const Rect& rect, Colour colour);

    /// A hollow ellipse inside `bounds` (right and bottom exclusive), touching all four sides. A wider pen
    /// grows outward by half its width (rounded down) and inward by the rest, never with a hole in it.
    void ellipse(const Rect& bounds, Colour pen, int penWidth = 1);
    /// The same outline, one pixel wide, filled. Together they cover exactly Region::ellipse(bounds).
    void filledEllipse(const Rect& bounds, Colour pen, Colour inside);

    /// Inverts the red, green and blue of every pixel of the region. Twice restores the picture.
    void invert(const Region& region);

    /// Combines `source` of `picture` into `destination`; where the sizes differ the picture is stretched by
    /// leaving out or repeating pixels: each takes the source pixel under its middle. The parts of `source`
    /// outside the picture draw nothing.
    /// `picture` may be the target itself: overlapping areas are copied as if from a snapshot.
    void draw(const Rect& destination, const Bitmap& picture, const Rect& source,
              RasterOp op = RasterOp::copy);
    /// The whole picture at 1:1 with its corner at `at`.
    void draw(Point at, const Bitmap& picture);
    /// The whole picture at 1:1, leaving the destination unchanged wherever it has exactly the colour
    /// `transparent`.
    void drawTransparent(Point at, const Bitmap& picture, Colour transparent);

    /// Lays `colour` through a mask whose corner is at `at`, mixing by coverage. The mask must hold a byte
    /// for every pixel of its size.
    void drawMask(Point at, const CoverageMask& mask, Colour colour);

    /// Moves what is inside `area` by `offset`; what comes from outside `area` is not drawn. What was there
    /// stays where nothing is drawn over it.
    void scroll(const Rect& area, Point offset);

private:
    /// Calls `change(piece, pixels)` for every piece of a row that drawing inside an area may change, and
    /// notes the damage. Areas are in the target's coordinates (the region after moving it by `offset`).
    template <typename Change>
    void changeInside(const Rect& area, const Change& change);
    template <typename Change>
    void changeInside(const Region& area, Point offset, const Change& change);
    template <typename Change>
    void changeRuns(std::span<const Run> clipRuns, int left, int right, const Change& change);

    void paint(const Region& area, Point offset, Colour colour);
    void copy(const Rect& to, const Bitmap& picture, const Rect& from, RasterOp op);
    void stretch(const Rect& to, const Bitmap& picture, const Rect& from, RasterOp op);

    Bitmap* target_;
    Damage* damage_;
    Point origin_;
    Region visible_; // in the target's coordinates, inside the picture
    Region clip_;    // visible_ or less, in the target's coordinates
};

} // namespace ventrel
