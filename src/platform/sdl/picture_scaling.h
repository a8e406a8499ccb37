// How the picture lies in the machine's window: with its shape kept, as large as it fits on a full screen, in
// a window by whole multiples where they nearly fill it.

#pragma once

#include "base/geometry.h"

namespace ventrel {

/// `sharp`: the largest whole multiple, or, when that would leave much of the window empty, as much as fits.
/// `filling`: always as much as fits.
enum class PictureFit { sharp, filling };

/// The part of a window of that size that the picture takes. A smaller window shrinks it.
Rect pictureArea(Size window, Size picture, PictureFit fit = PictureFit::sharp);

/// A comfortable size for the first time: the largest whole multiple that leaves some of the screen free, 1
/// when it fits at all, else as much as fits.
Size firstWindowSize(Size screen, Size picture);

/// From a position in the window to the picture's pixels; positions beside the picture come out outside it.
Point toPicture(Point window, const Rect& area, Size picture);
Point fromPicture(Point point, const Rect& area, Size picture);

} // namespace ventrel
