// Push buttons, in dialogs and on any other window.

#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"

namespace ventrel {

struct ButtonSetup {
    Window parent;
    int id = 0;
    Rect bounds;
    std::string text; ///< "&" marks its letter; line ends make several lines
    const Font* font = nullptr;
    bool enabled = true;
    bool isDefault = false;              ///< drawn with a dark frame: Enter presses it
    bool takesFocus = true;              ///< false: a press leaves the keyboard where it is
    const CursorImage* cursor = nullptr; ///< none: the arrow
    std::function<void(bool gained)> onFocus = nullptr;
};

/// A handle: copies name the same button. A press sends the command with the button's id.
class Button {
public:
    Button() = default;

    Window window;

    void setText(std::string text) const;
    const std::string& text() const;
    void setDefault(bool isDefault) const;
    void enable(bool enabled) const;
    /// Presses it as a person would; nothing when it is disabled.
    void press() const;
    /// Draws it pressed, or not, while nobody holds it: somebody else has pressed it.
    void showPressed(bool pressed) const;

private:
    struct State;
    friend Button createButton(Desktop& desktop, ButtonSetup setup);
    std::shared_ptr<State> state_;
};

Button createButton(Desktop& desktop, ButtonSetup setup);

} // namespace ventrel
