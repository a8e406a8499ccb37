#include "shell/game_flow.h"

#include "console/window_size.h"
#include "records/high_scores.h"
#include "replay/shift_of_the_day.h"
#include "shell/day_dialog.h"
#include "shell/half_speed.h"
#include "shell/high_score_dialog.h"
#include "shell/presentations.h"
#include "shell/replay_keeping.h"
#include "shell/shift_choice.h"
#include "sim/shift_texts.h"

namespace ventrel {

namespace {

constexpr std::string_view collisionMusic = "mci\\faa.mci";
constexpr std::string_view collisionSound = "snd\\collide.snd";

ShiftSetup setupForShift(const Shell& shell, const GameSetup& setup, std::span<const Size> sizes) {
    const Options& options = shell.options;
    const bool isEasy = setup.skill == Skill::easy;
    return {.skill = setup.skill,
            .custom = {options.customPlanes, ClockSeconds{options.customSched}, options.customBonus},
            .cloudCover = options.stormTrak != 0 && !isEasy,
            .directEntry = options.directEntry != 0 || isEasy,
            .voiceSetCount = shell.sounds.voiceSetCount(),
            .cloudSizes = sizes,
            .layout = scopeLayout(shell),
            .controllerName = shell.game.controllerName};
}

/// A line for the ticker, written down before its queue may drop it.
void postLine(Shell& shell, std::string_view words) {
    shell.log.linePosted(words, MessageClass::information);
    ScrollerPost(shell.scroller, words, MessageClass::information);
}

/// The end of a shift leaves no line of it on the ticker.
void clearTicker(Shell& shell) {
    shell.log.tickerCleared();
    ScrollerClear(shell.scroller);
}

/// The game that has been set up appears on the console.
void showSetUp(Shell& shell) {
    shell.keeping = {};
    RadarDecodePicture(shell.radar);
    RadarBuildMap(shell.radar, shell.pictures.radarFrame);
    ClockReset(shell.topBar);
    LampsRepaint(shell.topBar);
    SetPause(shell, false);
    showKindOfPlay(shell);
    postLine(shell, welcomeText(shell.game));
}

void beginSounds(Shell& shell) {
    shell.sounds.stopEffects();
    shell.sounds.playMusic(gameMusic, true);
    shell.mainWindow.releaseCapture();
}

/// The next game takes the generator on, and the time of the last step, at which it does not act again.
void beginShift(Shell& shell, const AirspacePtr& airspace, const GameSetup& setup) {
    closeLesson(shell);
    const auto sizes = cloudSizes(shell);
    const ClockSeconds lastStepTime = shell.game.lastStepTime;
    ShiftSetup shift = setupForShift(shell, setup, sizes);
    if (setup.day) {
        const ShiftOfTheDay day = shiftOfTheDay(*setup.day);
        setUpAsOfTheDay(shift, day);
        shell.game.random = RandomGenerator{day.seed};
    }
    shell.day = setup.day;
    const std::uint32_t seed = shell.game.random.state;
    shell.game = Game{airspace, shift, shell.game.random};
    shell.game.lastStepTime = lastStepTime;
    shell.log.shiftBegun(setup.skill, seed);
    shell.shiftKind = kindOfShift(shell, setup.kind);
    shell.topBar.clock.pace = paceOfShift(shell);
    keepReplay(shell, setup, shift, seed);
    showSetUp(shell);
}

void endWithCollision(Shell& shell) {
    shell.sounds.stopEffects();
    clearTicker(shell);
    shell.tellLater(shell.sounds.playEffect(collisionSound));
    if (!RadarCollisionRings(shell.radar, shell.game.collisionFlights.front())) {
        return; // the program is quitting
    }
    if (shell.game.isRunning()) {
        return; // the player has begun the next game meanwhile
    }
    shell.sounds.playMusic(collisionMusic, false);
    shell.mainWindow.releaseCapture();
    EndGame(shell);
    reportCollision(shell);
}

/// Nobody's feat and nobody's fault: no line, no page and no table.
void endSteered(Shell& shell, ShiftResult result) {
    if (result == ShiftResult::collision) {
        shell.sounds.stopEffects();
        shell.tellLater(shell.sounds.playEffect(collisionSound));
        if (!RadarCollisionRings(shell.radar, shell.game.collisionFlights.front())) {
            return; // the program is quitting
        }
    }
    shell.mainWindow.releaseCapture();
    if (!isSteered(shell) || shell.game.isRunning()) {
        return; // the player has gone on to something else meanwhile
    }
    if (result != ShiftResult::collision) {
        postLine(shell, gameOverText(shell.game)); // for the log alone
    }
    clearTicker(shell);
    LogWindowTick(shell);
    const auto parting = untoldParting(shell);
    EndGame(shell);
    tellOfSteeredEnd(shell, result);
    if (parting) {
        shell.report(*parting, MessageIcon::exclamation);
    }
}

/// Its note tells the rest, and stays until the player has read it.
void endLessonShift(Shell& shell, ShiftResult result) {
    if (result == ShiftResult::collision) {
        shell.sounds.stopEffects();
        clearTicker(shell);
        shell.tellLater(shell.sounds.playEffect(collisionSound));
        RadarCollisionRings(shell.radar, shell.game.collisionFlights.front());
    }
}

void emptyStrips(Shell& shell) {
    shell.game.listedCount = 0;
    StripsReset(shell.strips);
}

void endWithScore(Shell& shell) {
    clearTicker(shell);
    emptyStrips(shell);
    postLine(shell, gameOverText(shell.game));
    ScrollerSetPostGameOver(shell.scroller, true);
    keepScoreOfTheDay(shell);
}

HighScoreEntry finishedEntry(const Game& game) {
    return {game.controllerName, game.score, game.airspace->name};
}

} // namespace

const ScopeLayout& scopeLayout(const Shell& shell) {
    return isLarge(shell.windowSize()) ? largeLayout : smallLayout;
}

std::vector<Size> cloudSizes(const Shell& shell) {
    std::vector<Size> sizes;
    sizes.reserve(shell.radar.clouds.size());
    for (const Bitmap& cloud : shell.radar.clouds) {
        sizes.push_back(cloud.size());
    }
    return sizes;
}

void startGame(Shell& shell, const GameSetup& setup) {
    if (const auto airspace = loadAirport(setup.airportFile)) {
        beginShift(shell, *airspace, setup);
    } else {
        shell.report(airspace.error().text, airspace.error().icon);
    }
    beginSounds(shell);
}

void showShift(Shell& shell) {
    showSetUp(shell);
    beginSounds(shell);
}

void startPreparedGame(Shell& shell, const std::function<Game(const ShiftSetup&)>& make) {
    GameSetup setup;
    setup.kind = ShiftKind::practice;
    setup.skill = Skill::custom;
    ShiftSetup wanted = setupForShift(shell, setup, {});
    wanted.controllerName = lastControllerName(shell);
    const ClockSeconds lastStepTime = shell.game.lastStepTime;
    shell.game = make(wanted);
    shell.game.lastStepTime = lastStepTime;
    shell.log.shiftBegun(setup.skill, shell.game.random.state);
    shell.shiftKind = kindOfShift(shell, setup.kind);
    shell.topBar.clock.pace = paceOfShift(shell);
    showShift(shell);
}

void SetPause(Shell& shell, bool on) {
    if (!shell.game.isRunning() || shell.paused == on) {
        return;
    }
    endEventSkip(shell);
    if (on) {
        shell.sounds.stopMusic();
    } else {
        shell.sounds.playMusic(gameMusic, false);
    }
    shell.paused = on;
    showKindOfPlay(shell);
    RadarRepaint(shell.radar);
}

void EndGame(Shell& shell) {
    shell.replayWriter.giveUp();
    closeLesson(shell);
    shell.game.phase = Phase::idle;
    shell.mainWindow.invalidate();
    ScrollerClear(shell.scroller);
    CaptionsClear(shell.captions);
    emptyStrips(shell);
    ClockReset(shell.topBar);
    CtrlClearFlight(shell.panel);
    CtrlResetTouch(shell.panel);
    LampsReset(shell.topBar);
    RadarHide(shell.radar);
    endSteering(shell);
    forgetReplay(shell);
    showKindOfPlay(shell);
}

void putLastGameAway(Shell& shell) {
    const bool isOver = isShiftEnding(shell) || shell.game.phase == Phase::rings;
    if (!isShiftEnding(shell)) {
        EndGame(shell); // the rings of a collision may still spread, with all that belongs to its game
    } else if (const auto row = enterFinishedScore(shell)) {
        ShowHighScores(shell, row);
    }
    if (isOver) {
        tellOfTheDay(shell);
    }
}

void abandonGame(Shell& shell) {
    shell.sounds.stopMusic();
    shell.day = std::nullopt;
    if (isShiftLeft(shell)) {
        shell.log.replayLeft();
    } else {
        shell.log.shiftGivenUp();
    }
    EndGame(shell);
    shell.sounds.playMusic(idleMusic, false);
}

void endShift(Shell& shell, ShiftResult result) {
    keepFinishedShift(shell);
    if (!shell.lesson) {
        shell.mainWindow.capture();
    }
    shell.sounds.stopMusic();
    RadarRepaint(shell.radar);
    shell.radar.window.update(); // the sweep has stopped: nothing would take its line away later
    if (isSteered(shell)) {
        endSteered(shell, result);
    } else if (shell.lesson) {
        endLessonShift(shell, result);
    } else if (result == ShiftResult::collision) {
        endWithCollision(shell);
    } else {
        endWithScore(shell);
    }
}

bool isShiftEnding(const Shell& shell) {
    return shell.game.phase == Phase::lastLine;
}

void onGameOver(Shell& shell) {
    if (!isShiftEnding(shell)) {
        return; // it has been cut short
    }
    if (const auto row = enterFinishedScore(shell)) {
        celebrate(shell, *row);
    } else if (shell.shiftKind == ShiftKind::scored) {
        ShowHighScores(shell);
        tellOfTheDay(shell);
    } else {
        shell.sounds.playMusic(idleMusic, false);
    }
}

std::optional<int> enterFinishedScore(Shell& shell) {
    ScrollerSetPostGameOver(shell.scroller, false);
    shell.mainWindow.releaseCapture();
    EndGame(shell);
    if (shell.shiftKind == ShiftKind::practice) {
        return std::nullopt;
    }
    const auto place = InsertHighScore(shell.highScorePath, finishedEntry(shell.game));
    if (!place) {
        shell.report(place.error());
        return std::nullopt;
    }
    if (!place->saved) {
        shell.report(place->saved.error());
    }
    return place->row;
}

void reportScore(Shell& shell) {
    postLine(shell, scoreSoFarText(shell.game));
}

} // namespace ventrel
