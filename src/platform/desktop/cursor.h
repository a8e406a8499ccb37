// Pointers: the standard ones, which the desktop draws itself, and those that a window's owner brings along.

#pragma once

#include <variant>

#include "platform/devices/backend.h"

namespace ventrel {

enum class StandardCursor {
    arrow,
    beam, ///< over text that can be edited
    wait, ///< an hourglass
    hidden,
};

/// A pointer to show. An image of the owner's must outlive every window that names it.
using Cursor = std::variant<StandardCursor, const CursorImage*>;

} // namespace ventrel
