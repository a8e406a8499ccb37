#include "shell/popup_menus.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "platform/widgets/menu.h"
#include "resources/menus.h"
#include "sim/grid.h"

namespace ventrel {

namespace {

/// The items that ask for a running game.
constexpr std::array gameCommands{command::bossKey, command::schedule, command::pause};

/// Opens the menu under its button.
void popUp(Shell& shell, const Menu& menu, const Rect& button) {
    const Point place = shell.mainWindow.toScreen(menuPlaceUnder(button));
    const int chosen = trackMenu(shell.desktop, shell.widgetFonts, menu, place);
    shell.mainWindow.focus();
    if (chosen != noCommand) {
        shell.mainWindow.postCommand(chosen);
    }
}

void tickOrders(Menu& menu, const CurrentSettings& current) {
    if (current.heading) {
        checkMenuItem(menu, command::planeHeading + *current.heading / headingStep, true);
    }
    if (current.altitude) {
        checkMenuItem(menu, command::planeAltitude + *current.altitude - 1, true);
    }
    constexpr std::array speeds{command::planeSlow, command::planeNormal, command::planeFast};
    checkMenuItem(
        menu, speeds[static_cast<std::size_t>(current.speed) - static_cast<std::size_t>(Speed::slow)], true);
    if (current.holds) {
        checkMenuItem(menu, command::planeHold, true);
    } else if (current.direct) {
        checkMenuItem(menu, command::planeDirect + current.direct->number(), true);
    }
}

} // namespace

Menu fileMenu(const Shell& shell) {
    Menu menu = makeMenu(fileMenuItems);
    greyMenuItem(menu, command::endGame, !shell.game.isRunning());
    checkMenuItem(menu, command::halfSpeed, shell.isHalfSpeedOn);
    return menu;
}

void showFileMenu(Shell& shell) {
    popUp(shell, fileMenu(shell), shell.console().topBar.fileButton);
}

Menu optionsMenu(const Shell& shell) {
    Menu menu = makeMenu(optionsMenuItems);
    forEachOptionItem([&](const OptionRow& row, const OptionItem& item) {
        checkMenuItem(menu, item.command, isTicked(row, item, shell.options));
    });
    checkMenuItem(menu, command::pause, shell.paused);
    for (const int gameCommand : gameCommands) {
        greyMenuItem(menu, gameCommand, !shell.game.isRunning());
    }
    return menu;
}

void showOptionsMenu(Shell& shell) {
    popUp(shell, optionsMenu(shell), shell.console().topBar.optionsButton);
}

void showHelpMenu(Shell& shell) {
    popUp(shell, makeMenu(helpMenuItems), shell.console().topBar.helpButton);
}

void showSystemMenu(Shell& shell) {
    popUp(shell, makeMenu(systemMenuItems), shell.console().topBar.systemSquare);
}

Menu orderMenu(const Shell& shell) {
    Menu menu = makeMenu(planeMenuItems);
    const auto targets = std::min(shell.game.vors().size(), std::size_t{command::planeTargets});
    for (const PointIndex i : TablePlaces<PointIndex>{targets}) {
        const Vor& vor = shell.game.vor(i);
        MenuItem item;
        item.text = FormatText("%s - %s", {std::string_view(vor.ident), std::string_view(vor.description)});
        item.command = command::planeDirect + i.number();
        menu[planeTargetMenu].items.push_back(std::move(item));
    }
    tickOrders(menu, currentSettings(shell.panel.state, shell.game));
    return menu;
}

void showOrderMenu(Shell& shell, Point screen) {
    const int chosen = trackMenu(shell.desktop, shell.widgetFonts, orderMenu(shell), screen, true);
    shell.radar.window.focus();
    if (chosen != noCommand) {
        shell.mainWindow.postCommand(chosen);
    }
}

} // namespace ventrel
