#include "platform/text/text_layout.h"

namespace ventrel {

namespace {

constexpr std::string_view lineBreaks = "\r\n";
constexpr char mnemonicMark = '&';
constexpr char blank = ' ';

/// The length of the line break at the start of `text`: two for both characters together, 0 for none.
std::size_t lineBreakSize(std::string_view text) {
    if (text.starts_with(lineBreaks)) {
        return lineBreaks.size();
    }
    return !text.empty() && lineBreaks.find(text.front()) != std::string_view::npos ? 1 : 0;
}

/// Takes the marks of mnemonics out and turns line breaks into blanks, as the layout asks.
LaidOutText withoutMarks(std::string_view text, const TextLayout& layout) {
    LaidOutText result;
    while (!text.empty()) {
        if (const std::size_t size = layout.singleLine ? lineBreakSize(text) : 0; size > 0) {
            result.text += blank;
            text.remove_prefix(size);
            continue;
        }
        if (layout.mnemonics && text.front() == mnemonicMark) {
            text.remove_prefix(1);
            if (text.empty()) {
                break;
            }
            if (text.front() != mnemonicMark) {
                result.underlined = result.text.size();
            }
        }
        result.text += text.front();
        text.remove_prefix(1);
    }
    return result;
}

/// How many characters from the start of `text` stand within `width`; at least 1 of a text that is not empty.
std::size_t fittingCount(const Font& font, std::string_view text, int width) {
    std::size_t count = 0;
    for (int used = 0; count < text.size(); ++count) {
        used += font.width(text.substr(count, 1));
        if (used > width && count > 0) {
            break;
        }
    }
    return count;
}

/// The length of the first line of `text`: up to the last word that fits, or broken inside the first word.
std::size_t wrappedCount(const Font& font, std::string_view text, int width) {
    const std::size_t fitting = fittingCount(font, text, width);
    if (fitting == text.size()) {
        return fitting;
    }
    const std::size_t lastBlank = text.rfind(blank, fitting);
    const std::size_t lastLetter =
        lastBlank == std::string_view::npos ? lastBlank : text.find_last_not_of(blank, lastBlank);
    return lastLetter == std::string_view::npos ? fitting : lastLetter + 1;
}

/// Appends the lines of one paragraph, which holds no line breaks and starts at `first`. The blanks at which
/// a line was wrapped belong to no line.
void wrapParagraph(const Font& font, std::string_view paragraph, std::size_t first, int width,
                   std::vector<TextLine>& lines) {
    std::size_t start = 0;
    do {
        const std::string_view rest = paragraph.substr(start);
        const std::size_t count = wrappedCount(font, rest, width);
        lines.push_back({first + start, count, font.width(rest.substr(0, count))});
        start = paragraph.find_first_not_of(blank, start + count);
    } while (start < paragraph.size());
}

} // namespace

LaidOutText layOutText(const Font& font, std::string_view text, int width, const TextLayout& layout) {
    LaidOutText result = withoutMarks(text, layout);
    const std::string_view all = result.text;
    const bool wraps = layout.wrap && !layout.singleLine;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = std::min(all.find_first_of(lineBreaks, start), all.size());
        const std::string_view paragraph = all.substr(start, end - start);
        if (wraps) {
            wrapParagraph(font, paragraph, start, width, result.lines);
        } else {
            result.lines.push_back({start, paragraph.size(), font.width(paragraph)});
        }
        if (end == all.size()) {
            return result;
        }
        start = end + lineBreakSize(all.substr(end));
    }
}

} // namespace ventrel
