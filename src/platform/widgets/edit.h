// The field for one line of text.

#pragma once

#include <memory>
#include <string>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"
#include "platform/widgets/templates.h"

namespace ventrel {

struct EditSetup {
    Window parent;
    int id = 0;
    Rect bounds;
    const Font* font = nullptr;
    bool readOnly = false;              ///< can be selected and copied, not changed
    std::size_t limit = usualEditLimit; ///< so many characters can be typed or pasted
};

/// What the field tells with its command.
inline constexpr int editChanged = 1;

/// A handle: copies name the same field.
class Edit {
public:
    Window window;

    void setText(std::string text) const;
    const std::string& text() const;
    void selectAll() const;

private:
    struct State;
    friend Edit createEdit(Desktop& desktop, EditSetup setup);
    std::shared_ptr<State> state_;
};

Edit createEdit(Desktop& desktop, EditSetup setup);

} // namespace ventrel
