#include "platform/widgets/menu.h"

#include <algorithm>

#include "base/letters.h"

namespace ventrel {

Menu makeMenu(std::span<const MenuItemTemplate> items) {
    Menu menu;
    for (const MenuItemTemplate& item : items) {
        menu.push_back({.text = std::string(item.text),
                        .command = item.command,
                        .items = makeMenu(item.items),
                        .greyed = item.greyed});
    }
    return menu;
}

MenuItem* findMenuItem(Menu& menu, int command) {
    for (MenuItem& item : menu) {
        const bool isIt = item.items.empty() && !item.text.empty() && item.command == command;
        if (isIt) {
            return &item;
        }
        if (MenuItem* inside = findMenuItem(item.items, command)) {
            return inside;
        }
    }
    return nullptr;
}

void checkMenuItem(Menu& menu, int command, bool checked) {
    if (MenuItem* item = findMenuItem(menu, command)) {
        item->checked = checked;
    }
}

void greyMenuItem(Menu& menu, int command, bool greyed) {
    if (MenuItem* item = findMenuItem(menu, command)) {
        item->greyed = greyed;
    }
}

char mnemonicOf(std::string_view label) {
    for (std::size_t i = 0; i + 1 < label.size(); ++i) {
        if (label[i] != '&') {
            continue;
        }
        const char letter = label[i + 1];
        if (letter != '&') {
            return lowered(letter);
        }
        ++i;
    }
    return '\0';
}

char letterOf(Key key) {
    if (key >= Key::a && key <= Key::z) {
        return static_cast<char>('a' + (static_cast<int>(key) - static_cast<int>(Key::a)));
    }
    if (key >= Key::digit0 && key <= Key::digit9) {
        return static_cast<char>('0' + (static_cast<int>(key) - static_cast<int>(Key::digit0)));
    }
    return '\0';
}

} // namespace ventrel
