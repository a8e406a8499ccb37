#include "controls/tight_line.h"

#include <algorithm>
#include <vector>

namespace ventrel {

namespace {

constexpr char blank = ' ';

/// How far each character moves the next one on.
using Advances = std::vector<int>;

int sum(const Advances& advances) {
    int total = 0;
    for (const int advance : advances) {
        total += advance;
    }
    return total;
}

Advances naturalAdvances(const Font& font, std::string_view text) {
    Advances advances;
    for (std::size_t i = 0; i < text.size(); ++i) {
        advances.push_back(font.width(text.substr(i, 1)));
    }
    return advances;
}

/// Takes up to `excess` pixels from the blanks, one after the other; returns what is still too much.
int narrowBlanks(Advances& advances, std::string_view text, int excess) {
    constexpr int narrowest = 1;
    bool hasNarrowed = true;
    while (excess > 0 && hasNarrowed) {
        hasNarrowed = false;
        for (std::size_t i = 0; i < text.size() && excess > 0; ++i) {
            if (text[i] == blank && advances[i] > narrowest) {
                --advances[i];
                --excess;
                hasNarrowed = true;
            }
        }
    }
    return excess;
}

/// Takes a pixel from as many letters as needed, spread over the line. The last one has none after it.
void moveLettersCloser(Advances& advances, std::string_view text, int excess) {
    const int letters = static_cast<int>(text.size() - std::ranges::count(text, blank)) - 1;
    int passed = 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == blank) {
            continue;
        }
        const bool isChosen = (passed + 1) * excess / letters > passed * excess / letters;
        advances[i] -= isChosen ? 1 : 0;
        ++passed;
    }
}

/// The one place that decides what gives way.
Advances fittedAdvances(const Font& font, std::string_view text, int width) {
    Advances advances = naturalAdvances(font, text);
    const int excess = narrowBlanks(advances, text, sum(advances) - width);
    const int letters = static_cast<int>(text.size() - std::ranges::count(text, blank)) - 1;
    if (excess > 0 && letters > 0) {
        moveLettersCloser(advances, text, std::min(excess, letters));
    }
    return advances;
}

} // namespace

void drawTightLine(Canvas& canvas, const Font& font, const Rect& box, std::string_view text,
                   const TextStyle& style) {
    if (font.width(text) <= box.width()) {
        drawTextInside(canvas, font, box.topLeft(), text, style, box);
        return;
    }
    drawTextInside(canvas, font, box.topLeft(), {}, style, box);
    int x = box.left;
    const Advances advances = fittedAdvances(font, text, box.width());
    for (std::size_t i = 0; i < text.size(); ++i) {
        drawTextInside(canvas, font, {x, box.top}, text.substr(i, 1), {style.colour, {}}, box);
        x += advances[i];
    }
}

int tightLineWidth(const Font& font, std::string_view text, int width) {
    return font.width(text) <= width ? font.width(text) : sum(fittedAdvances(font, text, width));
}

} // namespace ventrel
