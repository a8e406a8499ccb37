#include "shell/main_window.h"

#include <array>

#include "resources/accelerators.h"
#include "shell/commands.h"
#include "shell/game_flow.h"
#include "shell/popup_menus.h"
#include "shell/selection.h"
#include "shell/window_size.h"

namespace ventrel {

namespace {

constexpr FontRequest buttonFont{Face::arial, -11, false};

struct MenuButton {
    int command;
    std::string_view text;
    Rect place;
};
constexpr std::array menuButtons{std::to_array<MenuButton>({
    {command::fileMenu, "&File", {31, 20, 83, 39}},
    {command::optionsMenu, "&Options", {93, 20, 145, 39}},
    {command::helpMenu, "&Help", {155, 20, 207, 39}},
})};

constexpr std::string_view execText = "E\rX\rE\rC";
constexpr Point execFromCorner{-32, -112}; // from the lower right corner of the window
constexpr Size execSize{14, 68};

constexpr Rect systemSquare{2, 1, 8, 7};
constexpr int dragStripHeight = 5;

// The arrows that scroll the strips; their places depend on the size of the window.
constexpr int arrowFromRight = 172;
constexpr Size arrowSize{11, 9};
constexpr int upArrowTop = 69;
constexpr int smallDownArrowTop = 436;
constexpr int largeDownArrowTop = 604;

Rect arrowAt(Size window, int top) {
    return Rect::at({window.width - arrowFromRight, top}, arrowSize);
}

Rect upArrow(const Shell& shell) {
    return arrowAt(shell.windowSize(), upArrowTop);
}

Rect downArrow(const Shell& shell) {
    return arrowAt(shell.windowSize(), isLarge(shell.windowSize()) ? largeDownArrowTop : smallDownArrowTop);
}

/// The buttons and strips together, between the arrows: where the wheel scrolls.
Rect stripArea(const Shell& shell) {
    const int left = stripButtonRect(shell, 0).left;
    return {left, upArrow(shell).top, shell.windowSize().width, downArrow(shell).bottom};
}

void paint(const Shell& shell, Canvas& canvas, const Rect& update) {
    canvas.draw(update, shell.pictures.console, update);
    for (int slot = 0; slot < shell.stripSlots(); ++slot) {
        const Rect place = stripButtonRect(shell, slot);
        if (place.intersects(update)) {
            const Bitmap& picture =
                slot == shell.pressedStrip ? shell.pictures.stripButtonDown : shell.pictures.stripButtonUp;
            canvas.draw(place.topLeft(), picture);
        }
    }
}

void onPress(Shell& shell, const MouseInput& mouse) {
    if (mouse.button != MouseButton::left) {
        return;
    }
    const Point p = mouse.position;
    if (systemSquare.contains(p)) {
        showSystemMenu(shell);
        return;
    }
    const int slot = StripsButtonAt(shell, p);
    if (StripsSlotSelectable(shell.strips, slot)) {
        SelectStripFlight(shell, slot);
    } else if (upArrow(shell).contains(p)) {
        StripsScrollUp(shell.strips);
    } else if (downArrow(shell).contains(p)) {
        StripsScrollDown(shell.strips);
    }
}

Cursor cursorAt(const Shell& shell, Point p) {
    const bool isHot = systemSquare.contains(p) || upArrow(shell).contains(p) ||
                       downArrow(shell).contains(p) ||
                       StripsSlotSelectable(shell.strips, StripsButtonAt(shell, p));
    return shell.game.gameRunning && isHot ? &shell.pictures.hand : &shell.pictures.arrow;
}

bool onWheel(Shell& shell, int notches) {
    if (!stripArea(shell).contains(shell.mainWindow.fromScreen(shell.desktop.mousePosition()))) {
        return false;
    }
    for (; notches > 0; --notches) {
        StripsScrollUp(shell.strips);
    }
    for (; notches < 0; ++notches) {
        StripsScrollDown(shell.strips);
    }
    return true;
}

void onDestroyed(Shell& shell) {
    shell.sounds.stopMusic();
    shell.sounds.stopEffects();
    shell.desktop.quit();
}

WindowHandlers handlersOf(Shell& shell) {
    WindowHandlers handlers;
    handlers.paint = [&shell](Canvas& canvas, const Rect& update) { paint(shell, canvas, update); };
    handlers.press = [&shell](const MouseInput& mouse) { onPress(shell, mouse); };
    handlers.wheel = [&shell](int notches) { return onWheel(shell, notches); };
    handlers.cursor = [&shell](Point p) { return std::optional(cursorAt(shell, p)); };
    handlers.command = [&shell](const CommandInput& input) { onCommand(shell, input.id); };
    handlers.activate = [&shell](Activation activation) { SetPause(shell, !activation.active); };
    handlers.minimise = [&shell](bool minimised) {
        if (minimised) {
            SetPause(shell, true);
        }
    };
    handlers.close = [&shell] { onCommand(shell, command::exitProgram); };
    handlers.destroyed = [&shell] { onDestroyed(shell); };
    return handlers;
}

void createButtons(Shell& shell) {
    const Font& font = shell.fonts.font(buttonFont);
    for (const MenuButton& button : menuButtons) {
        createButton(shell.desktop, {.parent = shell.mainWindow,
                                     .id = button.command,
                                     .bounds = button.place,
                                     .text = std::string(button.text),
                                     .font = &font,
                                     .takesFocus = false,
                                     .cursor = &shell.pictures.arrow});
    }
    const Size window = shell.windowSize();
    const Point execCorner = Point{window.width, window.height} + execFromCorner;
    shell.exec = createButton(shell.desktop, {.parent = shell.mainWindow,
                                              .id = command::executeOrder,
                                              .bounds = Rect::at(execCorner, execSize),
                                              .text = std::string(execText),
                                              .font = &font,
                                              .enabled = false,
                                              .takesFocus = false,
                                              .cursor = &shell.pictures.arrow});
}

void createInstruments(Shell& shell) {
    const Bitmap& console = shell.pictures.console;
    const Size window = shell.windowSize();
    ScrollerCreate(shell.scroller, shell.mainWindow, window.width);
    TopBarCreate(shell.topBar, shell.mainWindow, console, shell.pictures.lamps);
    StripsCreate(shell.strips, shell.mainWindow, window);
    CtrlCreate(shell.panel, shell.mainWindow, console);
    RadarCreate(shell.radar, shell.mainWindow, shell.pictures.clouds);
}

} // namespace

void createMainWindow(Shell& shell) {
    shell.mainWindow = shell.desktop.create(
        {.bounds = shell.desktop.area(), .visible = false, .handlers = handlersOf(shell)});
    shell.desktop.setMainWindow(shell.mainWindow);
    shell.desktop.setTitle(programTitle);
    // The system square lies in the strip's corner and takes its own clicks.
    shell.desktop.setDragStrip(Rect{systemSquare.right, 0, shell.windowSize().width, dragStripHeight});
    shell.mainWindow.setAccelerators(mainAccelerators);
    createButtons(shell);
    createInstruments(shell);
}

} // namespace ventrel
