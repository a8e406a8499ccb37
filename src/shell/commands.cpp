#include "shell/commands.h"

#include <algorithm>
#include <array>

#include "controller/controller_stand_in.h"
#include "shell/about_dialog.h"
#include "shell/aids_dialog.h"
#include "shell/day_dialog.h"
#include "shell/game_flow.h"
#include "shell/half_speed.h"
#include "shell/help_dialog.h"
#include "shell/high_score_dialog.h"
#include "shell/lesson_dialogs.h"
#include "shell/new_game_dialog.h"
#include "shell/option_commands.h"
#include "shell/popup_menus.h"
#include "shell/replay_dialog.h"
#include "shell/schedule_dialog.h"
#include "shell/selection.h"
#include "shell/watch_dialog.h"
#include "sim/grid.h"
#include "sim/orders.h"

namespace ventrel {

namespace {

/// Whether a running game may be thrown away; the player is asked, but for one that is watched, or a lesson.
/// Without one there is nothing to ask.
bool mayQuitGame(Shell& shell) {
    return !shell.game.isRunning() || isSteered(shell) || shell.lesson ||
           shell.ask(TextId::confirmQuitGame, MessageButtons::okCancel) == MessageAnswer::ok;
}

/// Gives a running game up, if the player agrees. Whether none runs any more.
bool clearDesk(Shell& shell) {
    if (!mayQuitGame(shell)) {
        return false;
    }
    if (shell.game.isRunning() || shell.lesson) {
        abandonGame(shell);
    }
    return true;
}

void newGame(Shell& shell) {
    if (!clearDesk(shell)) {
        return;
    }
    if (const auto setup = runNewGameDialog(shell)) {
        putLastGameAway(shell); // under the name of who played it
        shell.game.controllerName = setup->controllerName;
        startGame(shell, *setup);
    }
}

// What is not a new game asks for the running one only once the player has chosen.

void watchShift(Shell& shell) {
    const auto wish = runWatchDialog(shell);
    if (wish && clearDesk(shell)) {
        putLastGameAway(shell);
        shell.game.controllerName = wish->setup.controllerName;
        startGame(shell, wish->setup);
        if (shell.game.isRunning()) {
            beginSteering(shell, std::make_unique<ControllerStandIn>(shell.game),
                          {.title = "Watching", .pace = wish->pace});
        }
    }
}

void showReplays(Shell& shell) {
    auto replay = runReplayDialog(shell);
    if (!replay) {
        return;
    }
    if (auto watch = prepareReplay(shell, std::move(*replay)); !watch) {
        shell.report(watch.error());
    } else if (clearDesk(shell)) {
        watchReplay(shell, std::move(*watch));
    }
}

void takeLesson(Shell& shell) {
    const auto number = runLessonsDialog(shell);
    if (number && clearDesk(shell)) {
        putLastGameAway(shell);
        startLesson(shell, *number);
    }
}

void playShiftOfTheDay(Shell& shell) {
    const auto setup = runDayDialog(shell);
    if (!setup || !clearDesk(shell)) {
        return;
    }
    putLastGameAway(shell);
    if (isOfToday(shell, *setup)) {
        startDay(shell, *setup);
    } else { // midnight has passed meanwhile
        playShiftOfTheDay(shell);
    }
}

void askToEndGame(Shell& shell) {
    if (mayQuitGame(shell)) {
        abandonGame(shell);
    }
}

void exitProgram(Shell& shell) {
    if (mayQuitGame(shell)) {
        shell.mainWindow.destroy();
    }
}

void stopWatching(Shell& shell) {
    if (isSteered(shell)) {
        abandonGame(shell);
    }
}

void execute(Shell& shell) {
    const ControlPanelState& panel = shell.panel.state;
    if (panel.flight) {
        executeOrder(shell.game, *panel.flight, panel.pending, shell.events);
    }
    shell.mainWindow.focus();
}

void hideFromBoss(Shell& shell) {
    if (shell.game.isRunning()) {
        shell.desktop.minimise();
    }
}

void openHighScores(Shell& shell) {
    ShowHighScores(shell);
    if (shell.game.isRunning()) {
        shell.sounds.playMusic(gameMusic, false);
    }
}

struct Action {
    int command;
    void (*run)(Shell&);
};

constexpr std::array actions{std::to_array<Action>({
    {command::fileMenu, showFileMenu},
    {command::optionsMenu, showOptionsMenu},
    {command::helpMenu, showHelpMenu},
    {command::executeOrder, execute},
    {command::newGame, newGame},
    {command::endGame, askToEndGame},
    {command::replays, showReplays},
    {command::shiftOfTheDay, playShiftOfTheDay},
    {command::jumpInReplay, askWhereToJump},
    {command::exitProgram, exitProgram},
    {command::minimise, [](Shell& shell) { shell.desktop.minimise(); }},
    {command::schedule, runScheduleDialog},
    {command::highScores, openHighScores},
    {command::about, runAboutDialog},
    {command::help, runHelpDialog},
    {command::lessons, takeLesson},
    {command::lessonGoOn, goOnInLesson},
    {command::leaveLesson, leaveLesson},
    {command::aids, runAidsDialog},
    {command::shiftLog, LogWindowToggle},
    {command::bossKey, hideFromBoss},
    {command::pause, [](Shell& shell) { SetPause(shell, !shell.paused); }},
    {command::toggleDirect, [](Shell& shell) { CtrlToggleDirect(shell.panel); }},
    {command::nextStrip, selectNextStrip},
    {command::previousStrip, selectPreviousStrip},
    {command::nextFlight, selectNextFlight},
    {command::previousFlight, selectPreviousFlight},
    {command::directUp, [](Shell& shell) { CtrlStepDirect(shell.panel, true); }},
    {command::directDown, [](Shell& shell) { CtrlStepDirect(shell.panel, false); }},
    {command::altitudeUp, [](Shell& shell) { CtrlStepAltitude(shell.panel, true); }},
    {command::altitudeDown, [](Shell& shell) { CtrlStepAltitude(shell.panel, false); }},
    {command::skipClock, skipClock},
    {command::skipToEvent, skipToEvent},
    {command::watchShift, watchShift},
    {command::halfSpeed, switchHalfSpeed},
    {command::slowDown, slowDown},
    {command::speedUp, speedUp},
    {command::takeOver, takeOver},
    {command::stopWatching, stopWatching},
})};

/// Commands that give the panel one value.
template <typename Value>
struct Setting {
    int command;
    Value value;
};

constexpr std::array headings{std::to_array<Setting<int>>({
    {command::heading0, 0},
    {command::heading45, 45},
    {command::heading90, 90},
    {command::heading135, 135},
    {command::heading180, 180},
    {command::heading225, 225},
    {command::heading270, 270},
    {command::heading315, 315},
})};
constexpr std::array speeds{std::to_array<Setting<Speed>>({
    {command::slow, Speed::slow},
    {command::normal, Speed::normal},
    {command::fast, Speed::fast},
})};

template <typename Table>
auto findCommand(const Table& table, int id) {
    const auto found = std::ranges::find_if(table, [id](const auto& row) { return row.command == id; });
    return found == table.end() ? nullptr : &*found;
}

/// The number of a command within a series of `count` that starts at `first`.
std::optional<int> placeInSeries(int id, int first, int count) {
    return id >= first && id < first + count ? std::optional(id - first) : std::nullopt;
}

/// The order menu sets one thing on the panel and presses EXEC. False for a command of another kind.
bool giveOrder(Shell& shell, int id) {
    if (const auto heading = placeInSeries(id, command::planeHeading, command::planeHeadings)) {
        CtrlSetHeading(shell.panel, *heading * headingStep);
    } else if (const auto target = placeInSeries(id, command::planeDirect, command::planeTargets)) {
        CtrlSetDirect(shell.panel, PointIndex{*target});
    } else if (const auto altitude = placeInSeries(id, command::planeAltitude, command::planeAltitudes)) {
        CtrlSetAltitude(shell.panel, *altitude + 1);
    } else if (const auto speed = placeInSeries(id, command::planeSlow, command::planeSpeeds)) {
        CtrlSetSpeed(shell.panel, speeds[static_cast<std::size_t>(*speed)].value);
    } else if (id == command::planeHold) {
        CtrlSetHold(shell.panel);
    } else {
        return false;
    }
    shell.mainWindow.postCommand(command::executeOrder);
    return true;
}

constexpr std::array panelCommands{
    command::executeOrder, command::toggleDirect, command::directUp,
    command::directDown,   command::altitudeUp,   command::altitudeDown,
};

/// Whether the command sets the panel or sends what is on it.
bool isOfPanel(int id) {
    return std::ranges::find(panelCommands, id) != panelCommands.end() ||
           findCommand(headings, id) != nullptr || findCommand(speeds, id) != nullptr ||
           (id >= command::planeHeading && id <= command::planeHold);
}

} // namespace

void onCommand(Shell& shell, int id) {
    endEventSkip(shell);
    if (isSteered(shell) && isOfPanel(id)) {
        askToTakeOver(shell);
    } else if (const auto* action = findCommand(actions, id)) {
        action->run(shell);
    } else if (const auto* heading = findCommand(headings, id)) {
        CtrlSetHeading(shell.panel, heading->value);
    } else if (const auto* speed = findCommand(speeds, id)) {
        CtrlSetSpeed(shell.panel, speed->value);
    } else if (!giveOrder(shell, id)) {
        changeOption(shell, id);
    }
}

} // namespace ventrel
