// Static texts and the frames of groups.

#pragma once

#include <memory>
#include <string>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"

namespace ventrel {

struct LabelSetup {
    Window parent;
    int id = 0;
    Rect bounds;
    std::string text;
    const Font* font = nullptr;
    Align across = Align::near;
    bool sunken = false;
    bool wraps = false;
    bool isGroup = false; ///< a frame with the text in its upper edge
};

/// A handle: copies name the same label.
class Label {
public:
    Window window;

    void setText(std::string text) const;
    const std::string& text() const;

private:
    struct State;
    friend Label createLabel(Desktop& desktop, LabelSetup setup);
    std::shared_ptr<State> state_;
};

Label createLabel(Desktop& desktop, LabelSetup setup);

} // namespace ventrel
