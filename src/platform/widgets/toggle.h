// Check boxes and radio buttons.

#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"

namespace ventrel {

enum class ToggleKind { checkBox, radioButton };

struct ToggleSetup {
    Window parent;
    int id = 0;
    Rect bounds;
    ToggleKind kind = ToggleKind::checkBox;
    std::string text;
    const Font* font = nullptr;
};

/// A handle: copies name the same control. A press changes it and then sends the command with its id.
class Toggle {
public:
    Window window;

    bool isChecked() const;
    void setChecked(bool checked) const;
    void enable(bool enabled) const;
    const std::string& text() const;
    /// Acts as a press does: flips a check box, sets a radio button.
    void choose() const;
    /// Called when a radio button is chosen, before the command: its group lets go of the others.
    void setOnChosen(std::function<void()> onChosen) const;

private:
    struct State;
    friend Toggle createToggle(Desktop& desktop, ToggleSetup setup);
    std::shared_ptr<State> state_;
};

Toggle createToggle(Desktop& desktop, ToggleSetup setup);

} // namespace ventrel
