// The field for one line of text.

#pragma once

#include <memory>
#include <string>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"

namespace ventrel {

struct EditSetup {
    Window parent;
    int id = 0;
    Rect bounds;
    const Font* font = nullptr;
    bool readOnly = false; ///< can be selected and copied, not changed
};

/// What the field tells with its command.
inline constexpr int editChanged = 1;

/// A handle: copies name the same field.
class Edit {
public:
    Window window;

    void setText(std::string text) const;
    const std::string& text() const;
    /// No more characters than that can be typed or pasted.
    void setLimit(std::size_t limit) const;
    void selectAll() const;

private:
    struct State;
    friend Edit createEdit(Desktop& desktop, EditSetup setup);
    std::shared_ptr<State> state_;
};

Edit createEdit(Desktop& desktop, EditSetup setup);

} // namespace ventrel
