// Where the parts of the gallery stand, at both sizes of the screen.

#pragma once

#include "base/geometry.h"

namespace ventrel {

struct GalleryLayout {
    Rect controls; ///< the grey panel
    Point buttons; ///< corners of the groups on it, on the screen
    Point toggles;
    Point fields;
    Point texts;
    Point tallButton;
    Rect columnsList;
    Rect sortedList;
    Rect photographs; ///< a band in which menu, dialog and boxes stand side by side
    Rect faces;       ///< the dark panels
    Rect drawing;
    int drawingColumns = 1;
};

inline constexpr GalleryLayout smallGallery{
    .controls = {6, 5, 794, 179},
    .buttons = {14, 12},
    .toggles = {14, 42},
    .fields = {196, 42},
    .texts = {400, 42},
    .tallButton = {560, 12},
    .columnsList = {584, 12, 786, 88},
    .sortedList = {584, 94, 786, 172},
    .photographs = {6, 179, 794, 418},
    .faces = {6, 418, 348, 594},
    .drawing = {354, 418, 794, 594},
    .drawingColumns = 6,
};

inline constexpr GalleryLayout largeGallery{
    .controls = {8, 8, 1016, 192},
    .buttons = {18, 18},
    .toggles = {18, 50},
    .fields = {210, 50},
    .texts = {424, 50},
    .tallButton = {596, 18},
    .columnsList = {624, 18, 828, 182},
    .sortedList = {838, 18, 1006, 182},
    .photographs = {8, 192, 1016, 440},
    .faces = {8, 440, 576, 760},
    .drawing = {584, 440, 1016, 760},
    .drawingColumns = 4,
};

constexpr const GalleryLayout& galleryLayout(Size screen) {
    constexpr int largeWidth = 1024;
    return screen.width >= largeWidth ? largeGallery : smallGallery;
}

} // namespace ventrel
