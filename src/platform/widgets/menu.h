// Popup menus: opened at a point, walked by mouse or keys, closed by a choice, a press elsewhere, or Esc.

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"
#include "platform/widgets/templates.h"

namespace ventrel {

/// One line of a menu as it is shown now.
struct MenuItem {
    std::string text; ///< empty: a separator
    int command = 0;
    std::vector<MenuItem> items; ///< of a submenu
    bool greyed = false;
    bool checked = false;
};

using Menu = std::vector<MenuItem>;

/// A menu to be shown, from its table.
Menu makeMenu(std::span<const MenuItemTemplate> items);

/// The item with that command, wherever it stands; null when there is none.
MenuItem* findMenuItem(Menu& menu, int command);

/// Sets or takes the check mark, or greys; nothing when there is no such item.
void checkMenuItem(Menu& menu, int command, bool checked);
void greyMenuItem(Menu& menu, int command, bool greyed);

inline constexpr int noCommand = 0;

/// Shows the menu with its upper left corner at a point of the screen, moved inside it, and returns the
/// chosen command or `noCommand` when it was closed without one. Either button chooses when
/// `rightButtonChooses`, else the left one.
int trackMenu(Desktop& desktop, const WidgetFonts& fonts, const Menu& menu, Point screen,
              bool rightButtonChooses = false);

/// The letter behind the mark of a label, in lower case; NUL without one.
char mnemonicOf(std::string_view label);
/// The letter or digit that a key bears, in lower case; NUL when it bears none.
char letterOf(Key key);

} // namespace ventrel
