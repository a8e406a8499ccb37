// Pictures of menus, dialogs and boxes as they stand open, taken on a desktop of their own: a screen can show
// only one of each at a time.

#pragma once

#include <functional>

#include "platform/desktop/desktop.h"
#include "platform/headless/script.h"

namespace ventrel {

/// Opens something modal over `owner` and returns when it has ended.
using OpenModal = std::function<void(Desktop& desktop, const Window& owner)>;

/// What was open once the script's keys had been pressed, cut out of its desktop.
/// `ground` fills what lies between the windows.
Bitmap photograph(Colour ground, const OpenModal& open, const std::function<void(Script&)>& keys = nullptr);

} // namespace ventrel
