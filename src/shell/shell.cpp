#include "shell/shell.h"

#include "base/data_path.h"
#include "records/high_scores.h"
#include "shell/game_flow.h"
#include "shell/popup_menus.h"
#include "shell/selection.h"
#include "sim/cloud_cover.h"
#include "sim/orders.h"

namespace ventrel {

namespace {

ScrollerSources scrollerSources(Shell& shell) {
    return {shell.desktop, shell.options, shell.fonts, shell.pictures.arrow, shell.game.messages};
}

/// What is composed on the panel, if its flight could fly it.
std::optional<UnsentOrder> unsentOrder(const Shell& shell) {
    const ControlPanelState& panel = shell.panel.state;
    const Flight* flight = panelFlight(panel, shell.game);
    if (!panel.flight || flight == nullptr || !flight->isOnScope() ||
        judgeOrder(shell.game, *panel.flight, panel.pending) != OrderVerdict::accepted) {
        return std::nullopt;
    }
    return UnsentOrder{*panel.flight, panel.pending};
}

RadarCallbacks radarCallbacks(Shell& shell) {
    return {
        .isPaused = [&shell] { return shell.paused; },
        .makeFrame =
            [&shell] {
                if (isReplaying(shell)) {
                    showClouds(shell.game); // its lamps are lit as they were
                } else {
                    makeFrame(shell.game, shell.events);
                }
                shell.conflicts.follow();
            },
        .updateBlips = [&shell] { ScopeUpdateBlips(shell.topBar); },
        .reportScore = [&shell] { reportScore(shell); },
        .resetTouch = [&shell] { CtrlResetTouch(shell.panel); },
        .isTouched = [&shell] { return isPanelTouched(shell); },
        .select = [&shell](const FlightHit& hit) { selectRadarFlight(shell, hit); },
        .showOrderMenu = [&shell](Point screen) { showOrderMenu(shell, screen); },
        .unsentOrder = [&shell] { return unsentOrder(shell); },
        .isEndangered = [&shell](FlightIndex flight) { return shell.conflicts.isEndangered(flight); },
    };
}

void showOrderLine(Shell& shell) {
    if (shell.options.aidOrderLine != 0) {
        RadarRefresh(shell.radar);
    }
}

ControlPanelCallbacks panelCallbacks(Shell& shell) {
    return {
        .click = [&shell] { shell.sounds.clickControl(); },
        .enableExec = [&shell](bool enabled) { shell.exec.enable(enabled); },
        .changed = [&shell] { showOrderLine(shell); },
    };
}

} // namespace

Shell::Shell(ShellParts parts)
    : desktop(parts.desktop), sounds(parts.sounds), fonts(parts.fonts), widgetFonts(widgetFontsOf(fonts)),
      store(parts.store), programFolder(std::move(parts.programFolder)),
      playerFolder(std::move(parts.playerFolder)),
      highScorePath(DataPath(playerFolder.empty() ? programFolder : playerFolder, highScoreFileName)),
      playersAirports(std::move(parts.playersAirports)), pictures(std::move(parts.pictures)),
      options(parts.options), utcNow(std::move(parts.utcNow)),
      airports(airportFolder(programFolder), playersAirports, windowSize().width),
      topBar{.sources = {desktop, game, fonts, pictures.hand, pictures.arrow},
             .skip = [this] { skipClock(*this); }},
      scroller{.sources = scrollerSources(*this)}, captions{.sources = {desktop, fonts, pictures.arrow}},
      strips{.sources = {game, options, fonts, pictures.arrow},
             .callbacks = {.press = [this](int slot) { StripsPress(*this, slot); }}},
      panel{.sources = {game, options, fonts, pictures.hand, pictures.arrow},
            .callbacks = panelCallbacks(*this)},
      radar{.desktop = desktop,
            .sources = {game, options, fonts, pictures.hand},
            .callbacks = radarCallbacks(*this),
            .layout = radarLayoutFor(windowSize().width)},
      player(*this), conflicts(*this), log(game), logWindow{.view = {.log = log, .font = widgetFonts.text}},
      replayWriter(game) {
    events.add(log);
    events.add(player);
    events.add(conflicts);
    events.add(replayWriter);
    events.add(eventSkip.watch);
    game.random = parts.random;
    game.lastStepTime = 0_s; // of the first game alone: its clock does not stand still at 0
    scroller.gameOverShown = [this] { mainWindow.post([this] { onGameOver(*this); }); };
}

MessageAnswer Shell::showMessage(std::string_view text, MessageIcon icon, MessageButtons buttons) {
    return showMessageBox(desktop, widgetFonts, mainWindow,
                          {.text = text, .title = programTitle, .icon = icon, .buttons = buttons});
}

MessageAnswer Shell::ask(TextId question, MessageButtons buttons) {
    return showMessage(StringTableText(question), MessageIcon::exclamation, buttons);
}

void Shell::report(std::string_view text, MessageIcon icon) {
    showMessage(text, icon, MessageButtons::ok);
}

void Shell::report(const Failure& failure) {
    if (!failure.text.empty()) {
        report(failure.text, failure.icon);
    }
}

void Shell::tellLater(const Result<bool>& sound) {
    if (!sound) {
        mainWindow.post([this, failure = sound.error()] { report(failure); });
    }
}

} // namespace ventrel
