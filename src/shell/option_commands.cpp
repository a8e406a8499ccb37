#include "shell/option_commands.h"

#include <algorithm>
#include <array>

#include "records/options_file.h"
#include "resources/option_rows.h"
#include "shell/game_flow.h"
#include "shell/steered_play.h"

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

bool agreesToRestart(Shell& shell, TextId question) {
    return shell.ask(question, MessageButtons::yesNo) == MessageAnswer::yes;
}

void follow(Shell& shell, OptionEffect effect) {
    switch (effect) {
    case OptionEffect::none: break;
    case OptionEffect::repaintRadar: repaintInGame(shell); break;
    case OptionEffect::rebuildMap: rebuildInGame(shell); break;
    case OptionEffect::startOrStopMusic: followMusic(shell); break;
    case OptionEffect::click: shell.sounds.clickControl(); break;
    case OptionEffect::sizeAtNextStart: shell.mainWindow.destroy(); break;
    case OptionEffect::screenAtNextStart:
        if (agreesToRestart(shell, TextId::confirmFullScreen)) {
            shell.mainWindow.destroy();
        }
        break;
    }
}

void choose(Shell& shell, const OptionRow& row, const OptionItem& item) {
    const int chosen = chosenValue(row, item, shell.options);
    const bool isAskedFirst = row.effect == OptionEffect::sizeAtNextStart;
    if (isAskedFirst &&
        (shell.options.*row.value == chosen || !agreesToRestart(shell, TextId::confirmResolution))) {
        return;
    }
    shell.options.*row.value = chosen;
    saveOptions(shell);
    followPaceInSound(shell);
    follow(shell, row.effect);
}

/// A key that takes a volume one step down or up.
struct VolumeKey {
    int command;
    int Options::* volume;
    int step;
};
constexpr std::array volumeKeys{std::to_array<VolumeKey>({
    {command::musicSofter, &Options::musicVolume, -1},
    {command::musicLouder, &Options::musicVolume, 1},
    {command::soundSofter, &Options::soundVolume, -1},
    {command::soundLouder, &Options::soundVolume, 1},
})};

/// Chooses the item of the next step, if there is one.
void stepVolume(Shell& shell, const VolumeKey& key) {
    const int wanted = std::clamp(shell.options.*key.volume, 0, fullVolume) + key.step;
    forEachOptionItem([&](const OptionRow& row, const OptionItem& item) {
        if (row.value == key.volume && item.value == wanted) {
            choose(shell, row, item);
        }
    });
}

void switchFullScreen(Shell& shell) {
    const bool fullScreen = !shell.desktop.isFullScreen();
    shell.desktop.setFullScreen(fullScreen);
    shell.options.windowed = fullScreen ? 0 : 1;
    saveOptions(shell);
}

} // namespace

void chooseAids(Shell& shell, const Options& chosen) {
    if (shell.options == chosen) {
        return;
    }
    shell.options = chosen;
    saveOptions(shell);
    rebuildInGame(shell);
    CtrlRepaint(shell.panel);
    StripsRepaint(shell.strips);
    ScrollerRecolour(shell.scroller);
}

SoundChoices soundChoices(const Options& options) {
    return {.effects = options.effects != 0,
            .voices = options.voice != 0,
            .music = options.music != 0,
            .singleVoice = options.singleSound,
            .soundVolume = options.soundVolume,
            .musicVolume = options.musicVolume};
}

void changeOption(Shell& shell, int id) {
    if (id == command::switchFullScreen) {
        switchFullScreen(shell);
        return;
    }
    for (const VolumeKey& key : volumeKeys) {
        if (key.command == id) {
            stepVolume(shell, key);
        }
    }
    forEachOptionItem([&shell, id](const OptionRow& row, const OptionItem& item) {
        if (item.command == id) {
            choose(shell, row, item);
        }
    });
}

void saveOptions(Shell& shell) {
    shell.store.update([&shell](ProfileFile& profile) { WriteOptions(shell.options, profile); });
    if (const auto failure = shell.store.takeFailure()) {
        shell.report(*failure);
    }
}

} // namespace ventrel
