// A game that something else plays in the player's place (see StandIn), on the same console.
//
// Each order is seen on its way: in the last seconds of the game clock before it is due its flight is
// selected and the panel set, then EXEC goes down and it is sent, at its very time. The player may look
// around, pause, and change the pace; who sets the panel or presses EXEC is asked whether to take over.
// Whatever pace the clock runs at, the same orders are sent at the same clock.
//
//     startGame(shell, setup);
//     beginSteering(shell, std::make_unique<ControllerStandIn>(shell.game), {.title = "Watching"});

#pragma once

#include <memory>
#include <string>

#include "shell/steering_bar.h"
#include "sim/game_clock.h"
#include "sim/simulation_events.h"
#include "sim/stand_in.h"

namespace ventrel {

/// How a steered game is shown.
struct SteeringSetup {
    std::string title; ///< one word, for the bar (there in capitals) and the window's title
    ClockPace pace = ClockPace::normal;
    SteeringBarExtra extra = {};
};

struct SteeredPlay {
    std::unique_ptr<StandIn> standIn = nullptr; ///< none while the player plays
    SteeringSetup setup = {};
    ClockSeconds lastStepSeen = {};
    std::optional<SteeredOrder> shown = {}; ///< of which parts are on the panel
    int shownParts = 0;
    std::optional<ClockSeconds> execDown = {}; ///< EXEC is drawn pressed since then
};

/// Has the player's choices of sound heard, as far as the pace leaves calls to be understood.
void followPaceInSound(Shell& shell);

/// Whether something else plays the game.
bool isSteered(const Shell& shell);

/// Whether the game, which may be ending, is one that enters no high scores.
bool isPractice(const Shell& shell);

/// Hands the running game over. It is a practice shift from now on.
void beginSteering(Shell& shell, std::unique_ptr<StandIn> standIn, SteeringSetup setup);

/// The player plays on, at the pace of a practice shift. Nothing unless it is steered.
void takeOver(Shell& shell);
/// The same when the player agrees.
void askToTakeOver(Shell& shell);

/// Nobody steers any more, as when the game ends.
void endSteering(Shell& shell);

/// Before and after the simulation's turn in a tick: what is due is shown and sent.
void steerBeforeStep(Shell& shell);
void steerAfterStep(Shell& shell);

/// In place of both and of the step between: a record of a whole game plays on, showing its orders. False
/// where none does.
bool steerWhole(Shell& shell);

/// The Space key: on to the next multiple of 15, with every order that is due before it.
void skipClock(Shell& shell);

/// The window's title and the bar tell what the present game is: called when that has changed, or the pause.
void showKindOfPlay(Shell& shell);

/// What follows the end of a steered shift, in place of the table and the press release.
void tellOfSteeredEnd(Shell& shell, ShiftResult result);

/// One pace slower or faster, within the paces there are; only of a steered game.
void slowDown(Shell& shell);
void speedUp(Shell& shell);

} // namespace ventrel
