#include "platform/widgets/edit_text.h"

#include <algorithm>

namespace ventrel {

std::string_view EditText::selected() const {
    return std::string_view(text).substr(selectionStart(), selectionEnd() - selectionStart());
}

void EditText::moveTo(std::size_t place, bool extend) {
    caret = std::min(place, text.size());
    if (!extend) {
        anchor = caret;
    }
}

void EditText::selectAll() {
    anchor = 0;
    caret = text.size();
}

void EditText::insert(std::string_view words) {
    std::string fitting;
    std::ranges::copy_if(words, std::back_inserter(fitting),
                         [](char c) { return static_cast<unsigned char>(c) >= ' '; });
    const std::size_t start = selectionStart();
    const std::size_t kept = text.size() - (selectionEnd() - start);
    fitting.resize(std::min(fitting.size(), limit > kept ? limit - kept : 0));
    text.replace(start, selectionEnd() - start, fitting);
    moveTo(start + fitting.size(), false);
}

void EditText::erase(bool forward) {
    if (hasSelection()) {
        insert({});
    } else if (forward && caret < text.size()) {
        text.erase(caret, 1);
    } else if (!forward && caret > 0) {
        text.erase(caret - 1, 1);
        moveTo(caret - 1, false);
    }
}

void EditText::selectWordAt(std::size_t place) {
    // From behind the word's first letter, or the place before it would count.
    moveTo(place + 1, false);
    moveTo(wordLeft(), false);
    moveTo(wordRight(), true);
}

std::size_t EditText::wordLeft() const {
    std::size_t place = caret;
    while (place > 0 && text[place - 1] == ' ') {
        --place;
    }
    while (place > 0 && text[place - 1] != ' ') {
        --place;
    }
    return place;
}

std::size_t EditText::wordRight() const {
    std::size_t place = caret;
    while (place < text.size() && text[place] != ' ') {
        ++place;
    }
    while (place < text.size() && text[place] == ' ') {
        ++place;
    }
    return place;
}

} // namespace ventrel
