#include "shell/main_window.h"

#include <array>

#include "resources/accelerators.h"
#include "shell/commands.h"
#include "shell/game_flow.h"
#include "shell/popup_menus.h"
#include "shell/selection.h"

namespace ventrel {

namespace {

constexpr FontRequest buttonFont{Face::arial, -11, false};

struct MenuButton {
    int command;
    std::string_view text;
    Rect TopBarLayout::* place;
};
constexpr std::array menuButtons{std::to_array<MenuButton>({
    {command::fileMenu, "&File", &TopBarLayout::fileButton},
    {command::optionsMenu, "&Options", &TopBarLayout::optionsButton},
    {command::helpMenu, "&Help", &TopBarLayout::helpButton},
})};

constexpr std::string_view execText = "E\rX\rE\rC";

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
    if (shell.console().topBar.systemSquare.contains(p)) {
        showSystemMenu(shell);
        return;
    }
    if (isSteered(shell) && shell.console().controlPanel.contains(p)) {
        askToTakeOver(shell);
        return;
    }
    const int slot = StripsButtonAt(shell, p);
    if (StripsSlotSelectable(shell.strips, slot)) {
        SelectStripFlight(shell, slot);
    } else if (shell.console().strips.scrollUp.contains(p)) {
        StripsScrollUp(shell.strips);
    } else if (shell.console().strips.scrollDown.contains(p)) {
        StripsScrollDown(shell.strips);
    }
}

Cursor cursorAt(const Shell& shell, Point p) {
    const ConsoleLayout& places = shell.console();
    const bool isHot = places.topBar.systemSquare.contains(p) || places.strips.scrollUp.contains(p) ||
                       places.strips.scrollDown.contains(p) ||
                       StripsSlotSelectable(shell.strips, StripsButtonAt(shell, p));
    return shell.game.isRunning() && isHot ? &shell.pictures.hand : &shell.pictures.arrow;
}

bool onWheel(Shell& shell, int notches) {
    const Rect area = shell.console().strips.wheelArea(shell.windowSize());
    if (!area.contains(shell.mainWindow.fromScreen(shell.desktop.mousePosition()))) {
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
    const ConsoleLayout& places = shell.console();
    for (const MenuButton& button : menuButtons) {
        createButton(shell.desktop, {.parent = shell.mainWindow,
                                     .id = button.command,
                                     .bounds = places.topBar.*button.place,
                                     .text = std::string(button.text),
                                     .font = &font,
                                     .takesFocus = false,
                                     .cursor = &shell.pictures.arrow});
    }
    shell.exec = createButton(shell.desktop, {.parent = shell.mainWindow,
                                              .id = command::executeOrder,
                                              .bounds = places.execButton,
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
    CaptionsCreate(shell.captions, shell.mainWindow, window.width);
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
    const TopBarLayout& places = shell.console().topBar;
    shell.desktop.setDragStrip(DragStrip{places.dragStrip, places.systemSquare});
    shell.mainWindow.setAccelerators(mainAccelerators);
    createButtons(shell);
    createInstruments(shell);
}

} // namespace ventrel
