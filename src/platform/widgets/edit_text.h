// One line of text being edited: its caret and selection, without any window.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ventrel {

struct EditText {
    std::string text;
    std::size_t caret = 0;   ///< before which character the next one is inserted
    std::size_t anchor = 0;  ///< the other end of the selection; equal to the caret when nothing is selected
    std::size_t limit = 255; ///< no more characters than that are inserted

    bool hasSelection() const { return caret != anchor; }
    std::size_t selectionStart() const { return caret < anchor ? caret : anchor; }
    std::size_t selectionEnd() const { return caret < anchor ? anchor : caret; }
    std::string_view selected() const;

    /// Moves the caret; without `extend` the selection follows it.
    void moveTo(std::size_t place, bool extend);
    void selectAll();

    /// Puts the text in place of the selection, as much of it as the limit allows. Control characters are
    /// left out.
    void insert(std::string_view words);
    /// Removes the selection, or the character before or after the caret.
    void erase(bool forward);

    /// Selects the word at that place with the blanks behind it.
    void selectWordAt(std::size_t place);

    std::size_t wordLeft() const;
    std::size_t wordRight() const;
};

} // namespace ventrel
