// The picture at the size in which it is shown.

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/canvas/bitmap.h"

namespace ventrel {

/// Rows of 32-bit pixels that are drawn into, `pitch` pixels apart.
struct PixelRows {
    std::uint32_t* first = nullptr;
    int pitch = 0;
    Size size;
};

/// Draws changed parts of a picture at another size. Keeps what it has found out for that size, so one object
/// serves one screen.
class PictureScaler {
public:
    /// Draws the part `changed` of the picture where it lies in `area` of `target`, and returns the part of
    /// the target that was drawn. At whole multiples pixels are repeated; otherwise neighbours are mixed.
    Rect draw(const PixelRows& target, const Rect& area, const Bitmap& picture, const Rect& changed);

private:
    /// Where a shown pixel lies between two of the picture.
    struct Between {
        int first = 0;
        int second = 0;
        unsigned weight = 0; ///< of the second, of 256
    };
    /// A row of the picture, mixed across, as far as the part that is being drawn reaches.
    struct MixedRow {
        int number = -1; ///< of the picture's rows; -1: none yet
        std::vector<Pixel> pixels;
    };

    /// A shown column that is a mixture. The others show a pixel of the picture as it is.
    struct Seam {
        int shown = 0;
        Between pixels;
    };

    static Between between(int shown, int shownLength, int length);
    static std::vector<Between> betweenAll(int shownLength, int length);
    void prepare(Size shown, Size picture);
    void findSeams();
    void mixPixels(const PixelRows& target, const Rect& area, const Bitmap& picture, const Rect& shown);
    /// The columns from `left` on, `width` of them.
    const std::vector<Pixel>& mixedAcross(MixedRow& row, int number, const Bitmap& picture, int left,
                                          int width);

    Size shown_;
    Size picture_;
    std::vector<int> columns_;             ///< the picture's column that each shown one is nearest to
    std::vector<Seam> seams_;              ///< from left to right
    std::vector<std::size_t> seamsBefore_; ///< of each shown column: how many seams lie left of it
    std::vector<Between> rows_;
    MixedRow upper_;
    MixedRow lower_;
};

} // namespace ventrel
