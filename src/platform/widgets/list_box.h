// A list of lines to choose from, with its scroll bar always shown.

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/desktop/desktop.h"
#include "platform/widgets/look.h"

namespace ventrel {

struct ListBoxSetup {
    Window parent;
    int id = 0;
    Rect bounds;
    const Font* font = nullptr;
    bool sorted = false; ///< by text, without regard to case
};

/// What the list tells with its command.
inline constexpr int listSelectionChanged = 1;
inline constexpr int listDoubleClicked = 2;

inline constexpr int noListItem = -1;

/// A handle: copies name the same list.
class ListBox {
public:
    Window window;

    void clear() const;
    void add(std::string line) const;
    int count() const;
    const std::string& line(int index) const;
    /// The chosen line, or `noListItem`.
    int selected() const;
    /// Chooses a line and brings it into view; `noListItem` lets go of the chosen one.
    void select(int index) const;
    /// Columns at tab characters, every that many pixels.
    void setTabWidth(int pixels) const;

private:
    struct State;
    friend ListBox createListBox(Desktop& desktop, ListBoxSetup setup);
    std::shared_ptr<State> state_;
};

ListBox createListBox(Desktop& desktop, ListBoxSetup setup);

} // namespace ventrel
