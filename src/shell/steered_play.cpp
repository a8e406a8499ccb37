#include "shell/steered_play.h"

#include <array>

#include "base/format.h"
#include "shell/game_flow.h"
#include "shell/half_speed.h"
#include "shell/option_commands.h"
#include "shell/selection.h"
#include "shell/shell.h"
#include "sim/flight_step.h"

namespace ventrel {

namespace {

/// From that pace on orders come too fast to be followed: each is seen at once, and not heard on its way.
constexpr ClockPace fleeting = ClockPace::eightTimes;

constexpr std::string_view practiceTitle = "Practice";
constexpr std::string_view pausedTitle = "Paused";

constexpr std::string_view takeOverQuestion =
    "Take over, and play on from here?\n\nThe shift enters no high scores.";

constexpr std::string_view everyFlightText =
    "The shift is over: all %d flights were handled.\n\nScore: %d of %d possible.";
constexpr std::string_view collisionText =
    "The shift of %d flights has ended with a collision.\n\nScore: %d of %d possible.";

void showCourse(Shell& shell, const PanelOrder& order) {
    const PanelOrder& pending = shell.panel.state.pending;
    const auto target = order.directTarget.point();
    if (order.directTarget.isOn() && order.hold) {
        if (!pending.hold) {
            CtrlSetHold(shell.panel);
        }
    } else if (target) {
        if (pending.directTarget != order.directTarget || pending.hold) {
            CtrlSetDirect(shell.panel, *target);
        }
    } else if (pending.directTarget.isOn() || pending.heading != order.heading) {
        CtrlSetHeading(shell.panel, order.heading);
    }
}

void showLevel(Shell& shell, const PanelOrder& order) {
    if (shell.panel.state.pending.altitude != order.altitude) {
        CtrlSetAltitude(shell.panel, order.altitude);
    }
    if (shell.panel.state.pending.speed != order.speed) {
        CtrlSetSpeed(shell.panel, order.speed);
    }
}

/// What is seen of an order before it is sent, and how long before.
struct Part {
    ClockSeconds ahead;
    void (*show)(Shell& shell, const PanelOrder& order);
};
constexpr std::array parts{std::to_array<Part>({
    {3_s, [](Shell&, const PanelOrder&) {}}, // the flight alone
    {2_s, showCourse},
    {1_s, showLevel},
})};

void putOnPanel(Shell& shell, FlightIndex index) {
    const Flight& flight = shell.game.flight(index);
    const bool isThere = shell.panel.state.flight == index && flight.selected;
    if (!isThere && flight.inPlay && flight.isActive()) {
        selectListedFlight(shell, index);
    }
}

bool isFleeting(const Shell& shell) {
    return shell.topBar.clock.pace >= fleeting;
}

/// Shows what of the next order is to be seen by now.
void showNext(Shell& shell) {
    SteeredPlay& play = shell.steered;
    const auto next = play.standIn->next();
    if (!next || isFleeting(shell)) {
        return;
    }
    if (play.shown != next) {
        play.shown = next;
        play.shownParts = 0;
    }
    const ClockSeconds left = next->at - shell.game.clock;
    for (; play.shownParts < static_cast<int>(parts.size()); ++play.shownParts) {
        const Part& part = parts[static_cast<std::size_t>(play.shownParts)];
        if (left > part.ahead) {
            return;
        }
        putOnPanel(shell, next->flight);
        part.show(shell, next->order);
    }
}

void pressExec(Shell& shell) {
    shell.exec.showPressed(true);
    shell.steered.execDown = shell.game.clock;
}

void letGoOfExec(Shell& shell) {
    SteeredPlay& play = shell.steered;
    if (play.execDown && *play.execDown != shell.game.clock) {
        shell.exec.showPressed(false);
        play.execDown.reset();
    }
}

/// As it is sent: on the panel, with EXEC down.
void showSent(Shell& shell, const SteeredOrder& order) {
    shell.steered.shown.reset();
    putOnPanel(shell, order.flight);
    if (shell.panel.state.flight == order.flight) {
        shell.panel.state.pending = order.order;
        CtrlRepaint(shell.panel);
        pressExec(shell);
    }
}

void send(Shell& shell, const SteeredOrder& order) {
    shell.steered.standIn->nextIsDone();
    showSent(shell, order);
    executeOrder(shell.game, order.flight, order.order, shell.events);
}

bool isDue(const SteeredOrder& order, ClockSeconds now, OrderMoment moment) {
    return order.at < now ||
           (order.at == now && (moment == OrderMoment::afterStep || order.moment == moment));
}

void sendDue(Shell& shell, OrderMoment moment) {
    for (auto next = shell.steered.standIn->next(); next && isDue(*next, shell.game.clock, moment);
         next = shell.steered.standIn->next()) {
        send(shell, *next);
    }
}

bool isPlaying(const Shell& shell) {
    return isSteered(shell) && shell.game.isRunning();
}

void setPace(Shell& shell, ClockPace pace) {
    shell.topBar.clock.pace = pace;
    followPaceInSound(shell);
    showKindOfPlay(shell);
}

void stepPace(Shell& shell, int step) {
    const int wanted = static_cast<int>(shell.topBar.clock.pace) + step;
    if (isSteered(shell) && wanted >= 0 && wanted < static_cast<int>(clockPaces.size())) {
        setPace(shell, clockPaces[static_cast<std::size_t>(wanted)]);
    }
}

} // namespace

void followPaceInSound(Shell& shell) {
    SoundChoices choices = soundChoices(shell.options);
    if (isSteered(shell) && isFleeting(shell)) {
        // Calls that run into each other are spoken all the same, with what they draw.
        choices.soundVolume = 0;
    }
    shell.sounds.choose(choices);
}

bool isSteered(const Shell& shell) {
    return shell.steered.standIn != nullptr;
}

bool isPractice(const Shell& shell) {
    return shell.shiftKind == ShiftKind::practice && shell.game.phase != Phase::idle;
}

void beginSteering(Shell& shell, std::unique_ptr<StandIn> standIn, SteeringSetup setup) {
    endSteering(shell);
    const ClockPace pace = setup.pace;
    shell.steered = {
        .standIn = std::move(standIn), .setup = std::move(setup), .lastStepSeen = shell.game.lastStepTime};
    shell.shiftKind = ShiftKind::practice;
    shell.replayWriter.becomePractice();
    shell.panel.window.enable(false); // its presses go to the main window, which asks
    setPace(shell, pace);
}

void takeOver(Shell& shell) {
    if (!isPlaying(shell)) {
        return;
    }
    keepTakenOver(shell);
    endSteering(shell);
    if (const auto flight = shell.panel.state.flight) {
        CtrlSetFlight(shell.panel, *flight); // nothing half set is left
    }
}

void askToTakeOver(Shell& shell) {
    if (isPlaying(shell) && shell.showMessage(takeOverQuestion, MessageIcon::exclamation,
                                              MessageButtons::okCancel) == MessageAnswer::ok) {
        takeOver(shell);
    }
}

void endSteering(Shell& shell) {
    if (isSteered(shell)) {
        shell.steered = {};
        shell.exec.showPressed(false);
        shell.panel.window.enable();
        setPace(shell, paceOfShift(shell));
    }
}

void steerBeforeStep(Shell& shell) {
    if (isPlaying(shell)) {
        sendDue(shell, OrderMoment::beforeStep);
    }
}

void steerAfterStep(Shell& shell) {
    if (!isPlaying(shell)) {
        return;
    }
    SteeredPlay& play = shell.steered;
    letGoOfExec(shell);
    if (play.lastStepSeen != shell.game.lastStepTime) {
        play.lastStepSeen = shell.game.lastStepTime;
        play.standIn->stepActed(shell.game);
    }
    sendDue(shell, OrderMoment::afterStep);
    showNext(shell);
}

bool steerWhole(Shell& shell) {
    if (!isReplaying(shell)) {
        return false;
    }
    if (shell.game.isRunning()) {
        shell.steered.standIn->play(shell.game, shell.events,
                                    [&shell](const SteeredOrder& order) { showSent(shell, order); });
        followReplayEnd(shell);
    }
    return true;
}

void skipClock(Shell& shell) {
    if (isPlaying(shell) && !isReplaying(shell)) {
        const ClockSeconds goal = nextStepTime(shell.game.clock);
        for (auto next = shell.steered.standIn->next(); next && next->at < goal;
             next = shell.steered.standIn->next()) {
            shell.game.clock = std::max(shell.game.clock, next->at);
            send(shell, *next);
        }
    }
    ClockSkip(shell.topBar);
}

void showKindOfPlay(Shell& shell) {
    std::string words;
    if (isSteered(shell)) {
        words = shell.steered.setup.title;
    } else if (isPractice(shell)) {
        words = practiceTitle;
    }
    if (shell.paused) {
        words += words.empty() ? "" : ", ";
        words += pausedTitle;
    }
    const std::string title(programTitle);
    shell.desktop.setTitle(words.empty() ? title : title + " (" + words + ")");
    SteeringBarFollow(shell);
}

void tellOfSteeredEnd(Shell& shell, ShiftResult result) {
    const Game& game = shell.game;
    const std::string_view text = result == ShiftResult::collision ? collisionText : everyFlightText;
    shell.sounds.playMusic(idleMusic, false);
    shell.report(FormatText(text, {long{game.planeCount()}, long{game.score}, long{game.possibleScore}}),
                 MessageIcon::information);
}

void slowDown(Shell& shell) {
    stepPace(shell, -1);
}

void speedUp(Shell& shell) {
    stepPace(shell, 1);
}

} // namespace ventrel
