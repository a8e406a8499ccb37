// How a person walks through an open menu.

#include <memory>

#include "platform/widgets/menu_level.h"

namespace ventrel {

namespace {

constexpr int openTimer = 1;
constexpr Millis openDelay = 250;
constexpr int submenuOverlap = 3;

class MenuTracker {
public:
    MenuTracker(Desktop& desktop, const WidgetFonts& fonts, bool rightButtonChooses)
        : desktop_(desktop), fonts_(fonts), rightButtonChooses_(rightButtonChooses),
          openedAt_(desktop.mousePosition()) {}

    int run(const Menu& menu, Point screen) {
        open(menu, Rect::at(screen, {0, 0}), false);
        const Window root = levels_.front()->window;
        desktop_.runMenu(root, [this] { return isDone_; });
        closeFrom(0);
        if (pressElsewhere_) {
            desktop_.putBack(*pressElsewhere_);
        }
        return chosen_;
    }

private:
    MenuLevel& deepest() { return *levels_.back(); }

    /// Where a popup of that size goes: right below or beside `beside`; where there is no room, a menu above
    /// the point, a submenu on its other side or higher up.
    Rect placeFor(Size size, const Rect& beside, bool isSubmenu) const {
        const Size screen = desktop_.size();
        int x = isSubmenu ? beside.right - submenuOverlap : beside.left;
        if (x + size.width > screen.width) {
            x = isSubmenu ? beside.left + submenuOverlap - size.width : screen.width - size.width;
        }
        int y = beside.top;
        if (y + size.height > screen.height) {
            y = isSubmenu ? screen.height - size.height : beside.top - size.height;
        }
        return Rect::at({std::max(0, x), std::max(0, y)}, size);
    }

    void open(const Menu& menu, const Rect& beside, bool isSubmenu) {
        auto level = std::make_unique<MenuLevel>(makeMenuLevel(menu, fonts_));
        MenuLevel* shown = level.get();
        WindowHandlers handlers;
        handlers.paint = [shown](Canvas& canvas, const Rect&) { paintMenuLevel(canvas, *shown); };
        if (levels_.empty()) {
            addInput(handlers);
        }
        level->window = desktop_.create({.bounds = placeFor(level->size, beside, isSubmenu),
                                         .alwaysOnTop = true,
                                         .activates = false,
                                         .handlers = std::move(handlers)});
        levels_.push_back(std::move(level));
    }

    /// All input of an open menu arrives at its first popup.
    void addInput(WindowHandlers& handlers) {
        handlers.press = [this](const MouseInput& mouse) { press(mouse); };
        handlers.release = [this](const MouseInput& mouse) { release(mouse); };
        handlers.move = [this](const MouseInput& mouse) { move(mouse); };
        handlers.key = [this](const KeyEvent& event) { return event.down && key(event); };
        handlers.text = [this](std::string_view text) {
            type(text);
            return true;
        };
        handlers.timer = [this](int) { openHot(); };
        handlers.captureLost = [this] { hideAll(); };
    }

    /// The menu has ended, though the loop around it may end only later.
    void hideAll() {
        for (const auto& level : levels_) {
            level->window.hide();
        }
    }

    void closeFrom(std::size_t depth) {
        while (levels_.size() > depth) {
            levels_.back()->window.destroy();
            levels_.pop_back();
        }
        if (!levels_.empty()) {
            levels_.back()->opened = noItem;
        }
    }

    void finish(int command) {
        chosen_ = command;
        isDone_ = true;
    }

    /// The level under a point of the screen, the uppermost first.
    std::optional<std::size_t> levelAt(Point screen) const {
        for (std::size_t depth = levels_.size(); depth-- > 0;) {
            if (levels_[depth]->window.bounds().contains(screen)) {
                return depth;
            }
        }
        return std::nullopt;
    }

    void setHot(std::size_t depth, int item) {
        MenuLevel& level = *levels_[depth];
        if (level.hot != item) {
            level.hot = item;
            level.window.invalidate();
        }
    }

    void move(const MouseInput& mouse) {
        hasMoved_ = hasMoved_ || mouse.screen != openedAt_;
        const auto depth = levelAt(mouse.screen);
        if (!depth) {
            if (deepest().opened == noItem) {
                setHot(levels_.size() - 1, noItem);
            }
            return;
        }
        showWayTo(*depth);
        MenuLevel& level = *levels_[*depth];
        const int item = level.itemAt(mouse.screen);
        if (item == level.hot) {
            return;
        }
        setHot(*depth, item);
        hotDepth_ = *depth;
        levels_.front()->window.startTimer(openTimer, openDelay);
    }

    /// On its way into a popup the mouse may have crossed other items of those before it.
    void showWayTo(std::size_t depth) {
        for (std::size_t before = 0; before < depth; ++before) {
            setHot(before, levels_[before]->opened);
        }
    }

    /// The mouse has rested on an item: what it left is closed, and its own submenu opened.
    void openHot() {
        levels_.front()->window.stopTimer(openTimer);
        if (hotDepth_ >= levels_.size()) {
            return;
        }
        MenuLevel& level = *levels_[hotDepth_];
        if (level.opened == level.hot) {
            return;
        }
        closeFrom(hotDepth_ + 1);
        openItem(hotDepth_, false);
    }

    /// Opens the submenu of the hot item; by keys its first item is hot at once.
    bool openItem(std::size_t depth, bool byKeys) {
        MenuLevel& level = *levels_[depth];
        if (!level.canChoose(level.hot)) {
            return false;
        }
        const auto index = static_cast<std::size_t>(level.hot);
        const MenuItem& item = (*level.menu)[index];
        if (item.items.empty()) {
            return false;
        }
        closeFrom(depth + 1);
        const Point corner = level.window.toScreen({});
        const Rect row = level.rows[index].movedBy(corner);
        level.opened = level.hot;
        open(item.items, {corner.x, row.top - submenuOverlap, corner.x + level.size.width, row.bottom}, true);
        if (byKeys) {
            deepest().hot = deepest().neighbour(noItem, 1);
        }
        return true;
    }

    void chooseHot(std::size_t depth, bool byKeys) {
        MenuLevel& level = *levels_[depth];
        if (level.canChoose(level.hot) && !openItem(depth, byKeys)) {
            finish((*level.menu)[static_cast<std::size_t>(level.hot)].command);
        }
    }

    bool chooses(MouseButton button) const {
        return button == MouseButton::left || (rightButtonChooses_ && button == MouseButton::right);
    }

    void press(const MouseInput& mouse) {
        const auto depth = levelAt(mouse.screen);
        if (!depth) {
            pressElsewhere_ = MouseEvent{.position = mouse.screen,
                                         .button = mouse.button,
                                         .down = true,
                                         .doubleClick = mouse.doubleClick,
                                         .modifiers = mouse.modifiers};
            finish(noCommand);
            return;
        }
        hasMoved_ = true;
        setHot(*depth, levels_[*depth]->itemAt(mouse.screen));
        if (chooses(mouse.button) && levels_[*depth]->opened != levels_[*depth]->hot) {
            openItem(*depth, false);
        }
    }

    /// The release of the very press that opened the menu chooses nothing unless the mouse has moved onto an
    /// item.
    void release(const MouseInput& mouse) {
        const auto depth = levelAt(mouse.screen);
        if (!depth || !hasMoved_ || !chooses(mouse.button)) {
            return;
        }
        MenuLevel& level = *levels_[*depth];
        const bool opensMore = level.hot != noItem && level.opened == level.hot;
        if (!opensMore) {
            chooseHot(*depth, false);
        }
    }

    static bool isArrow(Key key) { return key == Key::up || key == Key::down; }

    /// Whether the key was one of those that walk a menu; others may type a mnemonic.
    bool key(const KeyEvent& event) {
        const std::size_t last = levels_.size() - 1;
        levels_.front()->window.stopTimer(openTimer);
        if (event.repeat && !isArrow(event.key)) {
            return true; // held since before the menu opened, or since it chose
        }
        switch (event.key) {
        case Key::down: setHot(last, deepest().neighbour(deepest().hot, 1)); return true;
        case Key::up: setHot(last, deepest().neighbour(deepest().hot, -1)); return true;
        case Key::home: setHot(last, deepest().neighbour(noItem, 1)); return true;
        case Key::end: setHot(last, deepest().neighbour(noItem, -1)); return true;
        case Key::right: openItem(last, true); return true;
        case Key::enter:
        case Key::keypadEnter: chooseHot(last, true); return true;
        case Key::left:
            if (last > 0) {
                closeFrom(last);
            }
            return true;
        case Key::escape:
            if (last > 0) {
                closeFrom(last);
            } else {
                finish(noCommand);
            }
            return true;
        case Key::alt:
            if (!event.repeat) {
                finish(noCommand);
            }
            return true;
        default: break;
        }
        // With Alt held no text follows.
        if (event.modifiers.alt) {
            takeLetter(letterOf(event.key));
        }
        return event.modifiers.alt;
    }

    void type(std::string_view text) {
        for (const char typed : text) {
            const std::size_t depth = levels_.size();
            takeLetter(mnemonicOf(std::string("&") + typed));
            if (isDone_ || levels_.size() != depth) {
                return;
            }
        }
    }

    /// The only item with that letter is chosen; among several the next one becomes hot.
    void takeLetter(char letter) {
        const std::size_t last = levels_.size() - 1;
        const int item = deepest().itemWith(letter, deepest().hot);
        if (item == noItem) {
            return;
        }
        setHot(last, item);
        if (deepest().itemWith(letter, item) == item) {
            chooseHot(last, true);
        }
    }

    Desktop& desktop_;
    const WidgetFonts& fonts_;
    bool rightButtonChooses_;
    Point openedAt_;
    std::vector<std::unique_ptr<MenuLevel>> levels_; // the first is the menu itself
    std::size_t hotDepth_ = 0;
    bool hasMoved_ = false;
    bool isDone_ = false;
    int chosen_ = noCommand;
    std::optional<MouseEvent> pressElsewhere_;
};

} // namespace

int trackMenu(Desktop& desktop, const WidgetFonts& fonts, const Menu& menu, Point screen,
              bool rightButtonChooses) {
    return menu.empty() ? noCommand : MenuTracker(desktop, fonts, rightButtonChooses).run(menu, screen);
}

} // namespace ventrel
