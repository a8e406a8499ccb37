// Menus and dialogs as data: plain tables that look like what they describe.

#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "base/geometry.h"

namespace ventrel {

/// One line of a menu. "&" marks its letter; what follows a tab is its key, shown at the right.
struct MenuItemTemplate {
    std::string_view text; ///< empty: a separator
    int command = 0;
    std::span<const MenuItemTemplate> items = {}; ///< of a submenu
    bool greyed = false;
};

enum class ControlKind {
    pushButton,
    defaultButton, ///< pressed by Enter
    checkBox,
    radioButton,
    edit,
    staticText,
    groupBox,
    listBox,
};

/// What a control is besides its kind; combined with |.
enum ControlStyle : unsigned {
    plainStyle = 0,
    groupStart = 1U << 0, ///< a radio button that begins a group
    readOnlyEdit = 1U << 1,
    sunkenStatic = 1U << 2,
    rightAligned = 1U << 3,
    centred = 1U << 4,
    sortedList = 1U << 5,
    multiLine = 1U << 6, ///< a static text that wraps
};

/// Characters of a field that asks for no other limit.
inline constexpr std::size_t usualEditLimit = 255;

/// A control of a dialog; `place` is in dialog units from the dialog's inner corner.
struct ControlTemplate {
    ControlKind kind = ControlKind::staticText;
    int id = 0; ///< 0 for what is never asked for
    std::string_view text;
    Rect place;
    unsigned style = plainStyle;
    std::size_t limit = usualEditLimit; ///< of an edit's characters
};

/// A dialog; `size` is its inner size in dialog units.
struct DialogTemplate {
    std::string_view title; ///< empty: no caption
    Size size;
    std::span<const ControlTemplate> controls;
    bool hasCloseBox = true;
    bool hasFrame = true; ///< false: nothing but the inside
    /// False: a window beside the work, which never takes the keyboard from the active one. It is not run but
    /// shown and hidden by its frame, and hears keys only while the pointer is over it.
    bool activates = true;
};

/// The numbers that every dialog uses.
inline constexpr int okId = 1;
inline constexpr int cancelId = 2;

} // namespace ventrel
