// One open popup of a menu: its window, the places of its lines, and how it is painted. Private to the menus.

#pragma once

#include <optional>
#include <vector>

#include "platform/widgets/menu.h"

namespace ventrel {

inline constexpr int noItem = -1;

struct MenuLevel {
    const Menu* menu = nullptr;
    const WidgetFonts* fonts = nullptr;
    Window window;
    std::vector<Rect> rows; ///< of each item, in the popup's own coordinates
    Size size;
    int hot = noItem;    ///< the item under the mouse or chosen by keys
    int opened = noItem; ///< the item whose submenu is the next level

    bool canChoose(int item) const;
    /// The next item in that direction that is no separator, round the ends.
    int neighbour(int item, int direction) const;
    /// The next item behind `item`, round the end, that goes by that letter: one with that mnemonic, or, when
    /// there is none, one without any that begins with it. Never a separator.
    int itemWith(char letter, int item) const;
    /// The item at a point of the screen, separators included.
    int itemAt(Point screen) const;
};

/// Measures a popup for `menu`, which outlives it. It has no window yet.
MenuLevel makeMenuLevel(const Menu& menu, const WidgetFonts& fonts);

void paintMenuLevel(Canvas& canvas, const MenuLevel& level);

} // namespace ventrel
