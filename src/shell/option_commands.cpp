#include "shell/option_commands.h"

#include <algorithm>
#include <array>

#include "resources/command_ids.h"
#include "shell/game_flow.h"

namespace ventrel {

namespace {

void repaintInGame(Shell& shell) {
    if (shell.game.isRunning()) {
        RadarRepaint(shell.radar);
    }
}

void rebuildInGame(Shell& shell) {
    if (shell.game.isRunning()) {
        RadarBuildMap(shell.radar, shell.pictures.radarFrame);
        RadarRepaint(shell.radar);
    }
}

void followMusic(Shell& shell) {
    if (shell.options.music == 0) {
        shell.sounds.stopMusic();
    } else {
        shell.sounds.playMusic(shell.game.isRunning() ? gameMusic : idleMusic, false);
    }
}

/// A menu item that turns an option over, and what follows at once.
struct Toggle {
    int command;
    int Options::*option;
    void (*follow)(Shell&);
};

void nothingFollows(Shell&) {}

constexpr std::array toggles{std::to_array<Toggle>({
    {command::autoSelect, &Options::autoSelect, nothingFollows},
    {command::grid, &Options::showGrid, rebuildInGame},
    {command::backgroundImage, &Options::mapDetails, rebuildInGame},
    {command::routes, &Options::showRoutes, repaintInGame},
    {command::sweep, &Options::radarSweep, repaintInGame},
    {command::music, &Options::music, followMusic},
    {command::soundEffects, &Options::effects, nothingFollows},
    {command::pilotVoices, &Options::voice, nothingFollows},
})};

void toggle(int& option) {
    option = option == 0 ? 1 : 0;
}

bool agreesToRestart(Shell& shell, TextId question) {
    return shell.ask(question, MessageButtons::yesNo) == MessageAnswer::yes;
}

void changeResolution(Shell& shell, int resolution) {
    if (shell.options.resolution != resolution && agreesToRestart(shell, TextId::confirmResolution)) {
        shell.options.resolution = resolution;
        saveOptions(shell);
        shell.mainWindow.destroy();
    }
}

void changeFullScreen(Shell& shell) {
    toggle(shell.options.windowed);
    saveOptions(shell);
    if (agreesToRestart(shell, TextId::confirmFullScreen)) {
        shell.mainWindow.destroy();
    }
}

void switchFullScreen(Shell& shell) {
    const bool fullScreen = !shell.desktop.isFullScreen();
    shell.desktop.setFullScreen(fullScreen);
    shell.options.windowed = fullScreen ? 0 : 1;
}

} // namespace

void changeOption(Shell& shell, int id) {
    const auto found = std::ranges::find(toggles, id, &Toggle::command);
    if (found != toggles.end()) {
        toggle(shell.options.*found->option);
        found->follow(shell);
        saveOptions(shell);
    } else if (id == command::smallResolution) {
        changeResolution(shell, smallResolution);
    } else if (id == command::largeResolution) {
        changeResolution(shell, largeResolution);
    } else if (id == command::fullScreen) {
        changeFullScreen(shell);
    } else if (id == command::switchFullScreen) {
        switchFullScreen(shell);
    }
}

} // namespace ventrel
