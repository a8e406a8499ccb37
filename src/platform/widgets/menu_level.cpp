#include "platform/widgets/menu_level.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr int menuBorder = 3;
constexpr int markColumn = 18;  // left of the texts, for check marks
constexpr int arrowColumn = 18; // right of them, for submenus
constexpr int keyGap = 16;      // between a text and its key
constexpr int rowPadding = 4;
constexpr int separatorHeight = 9;

struct ItemTexts {
    std::string_view label;
    std::string_view key;
};

ItemTexts textsOf(const MenuItem& item) {
    const std::string_view text = item.text;
    const std::size_t tab = text.find('\t');
    return {text.substr(0, tab), tab == std::string_view::npos ? std::string_view() : text.substr(tab + 1)};
}

constexpr TextLayout labelLayout{.down = Align::middle, .singleLine = true, .mnemonics = true};

int widthOf(const Font& font, const MenuItem& item) {
    const ItemTexts texts = textsOf(item);
    const int label = measureText(font, texts.label, 0, labelLayout).width;
    return label + (texts.key.empty() ? 0 : keyGap + font.width(texts.key));
}

void paintItem(Canvas& canvas, const MenuLevel& level, const MenuItem& item, const Rect& row, bool isHot) {
    const Font& font = level.fonts->text;
    const ItemTexts texts = textsOf(item);
    const Colour colour = isHot ? look::selectedText : look::text;
    const Rect label{row.left + markColumn, row.top, row.right - arrowColumn, row.bottom};
    const TextLayout keyLayout{.across = Align::far, .down = Align::middle, .singleLine = true};
    if (isHot) {
        canvas.fill(row, look::selection);
    }
    if (item.greyed && !isHot) {
        drawLabel(canvas, font, label, texts.label, false, labelLayout);
        drawLabel(canvas, font, label, texts.key, false, keyLayout);
    } else {
        const TextStyle style{item.greyed ? look::greyText : colour, {}};
        drawTextBox(canvas, font, label, texts.label, style, labelLayout);
        drawTextBox(canvas, font, label, texts.key, style, keyLayout);
    }
    if (item.checked) {
        drawCheckMark(canvas, {row.left + 6, (row.top + row.bottom) / 2 - 4}, colour);
    }
    if (!item.items.empty()) {
        drawArrow(canvas, {row.right - arrowColumn, row.top, row.right, row.bottom}, ArrowDirection::right,
                  colour);
    }
}

} // namespace

bool MenuLevel::canChoose(int item) const {
    return item != noItem && !(*menu)[static_cast<std::size_t>(item)].greyed &&
           !(*menu)[static_cast<std::size_t>(item)].text.empty();
}

int MenuLevel::neighbour(int item, int direction) const {
    const int count = static_cast<int>(menu->size());
    int next = item == noItem && direction < 0 ? 0 : item;
    for (int step = 0; step < count; ++step) {
        next = (next + direction + count) % count;
        if (!(*menu)[static_cast<std::size_t>(next)].text.empty()) {
            return next;
        }
    }
    return noItem;
}

int MenuLevel::itemWith(char letter, int item) const {
    const auto isMarked = [letter](const MenuItem& each) { return mnemonicOf(each.text) == letter; };
    const auto begins = [letter](const MenuItem& each) {
        return mnemonicOf(each.text) == '\0' && mnemonicOf("&" + each.text.substr(0, 1)) == letter;
    };
    const bool byMark = std::ranges::any_of(*menu, isMarked);
    const int count = static_cast<int>(menu->size());
    for (int step = 1; step <= count && letter != '\0'; ++step) {
        const int next = (item + step) % count;
        const MenuItem& each = (*menu)[static_cast<std::size_t>(next)];
        if (byMark ? isMarked(each) : begins(each)) {
            return next;
        }
    }
    return noItem;
}

int MenuLevel::itemAt(Point screen) const {
    const Point own = window.fromScreen(screen);
    const auto found = std::ranges::find_if(rows, [&](const Rect& row) { return row.contains(own); });
    return found == rows.end() ? noItem : static_cast<int>(found - rows.begin());
}

MenuLevel makeMenuLevel(const Menu& menu, const WidgetFonts& fonts) {
    MenuLevel level;
    level.menu = &menu;
    level.fonts = &fonts;
    int width = 0;
    for (const MenuItem& item : menu) {
        width = std::max(width, widthOf(fonts.text, item));
    }
    width += markColumn + arrowColumn;
    int y = menuBorder;
    for (const MenuItem& item : menu) {
        const int height = item.text.empty() ? separatorHeight : fonts.text.lineHeight() + rowPadding;
        level.rows.push_back({menuBorder, y, menuBorder + width, y + height});
        y += height;
    }
    level.size = {width + 2 * menuBorder, y + menuBorder};
    return level;
}

void paintMenuLevel(Canvas& canvas, const MenuLevel& level) {
    const Rect area = Rect::at({}, level.size);
    canvas.fill(area, look::face);
    drawRaisedEdge(canvas, area);
    for (std::size_t i = 0; i < level.rows.size(); ++i) {
        const MenuItem& item = (*level.menu)[i];
        const Rect& row = level.rows[i];
        if (item.text.empty()) {
            drawSeparator(canvas, row.left + 1, row.right - 1, (row.top + row.bottom) / 2 - 1);
        } else {
            paintItem(canvas, level, item, row, static_cast<int>(i) == level.hot);
        }
    }
}

} // namespace ventrel
