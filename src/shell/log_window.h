// Options > Shift Log: what has happened in this shift, in a window that stays open beside the game.
//
// It never takes the keyboard from the console and pauses nothing. While it is closed nothing is done for it.

#pragma once

#include <memory>

#include "platform/widgets/dialog.h"
#include "review/log_view.h"

namespace ventrel {

struct Shell;

struct LogWindow {
    LogView view;

    std::unique_ptr<Dialog> dialog = {};      ///< none before it is opened first; then it is shown or hidden
    std::optional<FlightIndex> selected = {}; ///< on the panel, when last looked
    std::optional<FlightIndex> clicked = {};  ///< of an entry since then

    bool isOpen() const { return dialog && dialog->frame().isVisible(); }
};

/// Opens the window where it stood last, or closes it.
void LogWindowToggle(Shell& shell);

/// Once a pass of the loop: an open window shows what is new.
void LogWindowTick(Shell& shell);

} // namespace ventrel
