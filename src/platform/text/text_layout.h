// Where the lines of a text break. The drawing and the measuring of text boxes both start here.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/text/text.h"

namespace ventrel {

/// A piece of the laid out text.
struct TextLine {
    std::size_t first = 0;
    std::size_t count = 0;
    int width = 0; ///< pixels

    bool holds(std::size_t index) const { return index >= first && index < first + count; }
};

struct LaidOutText {
    std::string text;                      ///< what is drawn: without marks of mnemonics
    std::optional<std::size_t> underlined; ///< the character with a line under it
    std::vector<TextLine> lines;           ///< at least one, perhaps empty

    std::string_view line(const TextLine& line) const {
        return std::string_view(text).substr(line.first, line.count);
    }
};

/// `width` counts when the layout wraps. However narrow, a line holds at least one character.
LaidOutText layOutText(const Font& font, std::string_view text, int width, const TextLayout& layout);

} // namespace ventrel
