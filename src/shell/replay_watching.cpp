#include "shell/replay_watching.h"

#include "base/format.h"
#include "platform/widgets/dialog.h"
#include "records/airport_catalogue.h"
#include "replay/other_width.h"
#include "replay/replay_airspace.h"
#include "replay/replay_folder.h"
#include "replay/replay_stand_in.h"
#include "resources/command_ids.h"
#include "resources/dialogs.h"
#include "shell/game_flow.h"
#include "shell/replay_keeping.h"
#include "shell/selection.h"
#include "shell/shell.h"
#include "sim/cloud_cover.h"
#include "sim/shift_texts.h"

namespace ventrel {

namespace {

constexpr std::string_view barTitle = "Replay";
constexpr std::string_view jumpText = "Jump...";

constexpr std::string_view givenUpText = "Here the shift was given up.\n\nScore: %d of %d possible.";
constexpr std::string_view cutText =
    "Here the program ended, and the replay with it.\n\nScore: %d of %d possible.";
constexpr std::string_view otherEndText =
    "Here the replay tells of the end of its shift, which this one has not come to.\n\n"
    "Score: %d of %d possible.";
constexpr std::string_view partedText =
    "This is not the shift that was played.\n\n%s\n\n"
    "The replay is damaged or has been changed, or another version of the program has made it.";

/// A frame of the radar is painted that often, which moves clouds on.
constexpr ClockSeconds frameInterval = 5_s;

Result<AirspacePtr> airspaceOf(const Shell& shell, const ReplayHeader& header) {
    const std::array folders{shell.playersAirports, airportFolder(shell.programFolder)};
    return findReplayAirspace(header, folders);
}

/// What lies under the map in a window of this width, where the replay was made in one of the other: the
/// picture of the airspace of that name. Empty without one.
std::vector<std::byte> otherPicture(Shell& shell, const Airspace& airspace) {
    for (const CatalogueEntry& entry : shell.airports.catalogue().entries) {
        if (entry.name != airspace.name) {
            continue;
        }
        if (const auto other = loadAirport(entry.file); other && hasSamePoints(airspace, **other)) {
            return (*other)->picture;
        }
    }
    return {};
}

/// Sets the game up as it was at the beginning, for this window, with a log of its own.
void setGameUp(Shell& shell, const ReplayWatch& watch) {
    const ReplayHeader& header = watch.playback->replay().header;
    Game game = replayedGame(watch.playback->replay(), watch.airspace).value(); // as it could be prepared
    if (const ScopeLayout& layout = scopeLayout(shell); layout.windowWidth != header.width) {
        moveToLayout(game, layout, cloudSizes(shell), watch.otherPicture);
    }
    shell.game = std::move(game);
    shell.log.shiftBegun(header.skill, header.seed);
}

std::unique_ptr<StandIn> standInFor(const Shell& shell) {
    return std::make_unique<ReplayStandIn>(shell.replayWatch.playback, shell.game);
}

void letCloudsDrift(Game& game, ClockSeconds from, ClockSeconds to) {
    const ClockSeconds now = game.clock;
    for (game.clock = from; game.clock < to; game.clock += frameInterval) {
        showClouds(game);
    }
    game.clock = now;
}

/// Plays all that was there until that time, with the lines that the console itself puts on the ticker.
void playUntil(Shell& shell, ClockSeconds goal) {
    const auto post = [&shell](std::string_view words) {
        shell.log.linePosted(words, MessageClass::information);
    };
    Playback& playback = *shell.replayWatch.playback;
    post(welcomeText(shell.game));
    for (ClockSeconds told = scoreReportInterval; told <= goal; told += scoreReportInterval) {
        playback.playUntil(shell.game, told, shell.log);
        post(scoreSoFarText(shell.game));
    }
    playback.playUntil(shell.game, goal, shell.log);
}

/// Everything on the console tells of another moment.
void showAnew(Shell& shell) {
    ScrollerClear(shell.scroller);
    CaptionsClear(shell.captions);
    shell.radar.aids = {};
    shell.conflicts.gameReplaced();
    shell.sounds.stopEffects();
    CtrlClearFlight(shell.panel);
    StripsPress(shell, noSlot);
    StripsReset(shell.strips);
    StripsRebuild(shell.strips);
    ScopeUpdateBlips(shell.topBar);
    LampsRepaint(shell.topBar);
    RadarRepaint(shell.radar);
    shell.mainWindow.invalidate();
    shell.steered.shown.reset();
}

std::string_view endTextOf(const Replay& replay) {
    if (!replay.end) {
        return cutText;
    }
    return replay.end->outcome == ReplayOutcome::givenUp ? givenUpText : otherEndText;
}

void endHere(Shell& shell) {
    if (!isReplaying(shell) || !shell.game.isRunning()) {
        return;
    }
    const Game& game = shell.game;
    const std::string text = FormatText(endTextOf(shell.replayWatch.playback->replay()),
                                        {long{game.score}, long{game.possibleScore}});
    abandonGame(shell);
    shell.report(text, MessageIcon::information);
}

std::string partingText(const Failure& parting) {
    return FormatText(partedText, {std::string_view(parting.text)});
}

/// Tells, once, where the game has parted from the replay.
void tellOfParting(Shell& shell) {
    ReplayWatch& watch = shell.replayWatch;
    const auto& deviation = watch.playback->deviation();
    if (deviation && !watch.isPartingTold) {
        watch.isPartingTold = true;
        shell.mainWindow.post(
            [&shell, text = partingText(*deviation)] { shell.report(text, MessageIcon::exclamation); });
    }
}

/// "12:30" or "12" as minutes and seconds of the clock; none for anything else.
std::optional<ClockSeconds> readClock(std::string_view text) {
    constexpr int mostMinutes = 99'999;
    const auto colon = text.find(':');
    const auto digits = [](std::string_view word, int most) -> std::optional<int> {
        int number = 0;
        for (const char c : word) {
            if (c < '0' || c > '9' || number > most) {
                return std::nullopt;
            }
            number = number * 10 + (c - '0');
        }
        return word.empty() || number > most ? std::nullopt : std::optional{number};
    };
    const auto minutes = digits(text.substr(0, colon), mostMinutes);
    const auto seconds = colon == std::string_view::npos
                             ? std::optional{0}
                             : digits(text.substr(colon + 1), clockMinute.count() - 1);
    if (!minutes || !seconds) {
        return std::nullopt;
    }
    return *minutes * clockMinute + ClockSeconds{*seconds};
}

} // namespace

bool isReplaying(const Shell& shell) {
    return isSteered(shell) && shell.steered.standIn->isWhole();
}

bool isShiftLeft(const Shell& shell) {
    if (!isReplaying(shell)) {
        return false;
    }
    const Playback& playback = *shell.replayWatch.playback;
    return playback.next() != nullptr || !playback.replay().end;
}

Result<ReplayWatch> prepareReplay(Shell& shell, Replay replay) {
    auto airspace = airspaceOf(shell, replay.header);
    if (!airspace) {
        return tl::unexpected(std::move(airspace.error()));
    }
    if (auto game = replayedGame(replay, *airspace); !game) {
        return tl::unexpected(std::move(game.error()));
    }
    ReplayWatch watch{.airspace = std::move(*airspace)};
    if (replay.header.width != shell.windowSize().width) {
        watch.otherPicture = otherPicture(shell, *watch.airspace);
    }
    watch.playback = std::make_shared<Playback>(std::move(replay));
    return watch;
}

void watchReplay(Shell& shell, ReplayWatch watch) {
    putLastGameAway(shell);
    watch.random = shell.game.random;
    watch.lastStepTime = shell.game.lastStepTime;
    const std::string begun = localTime(watch.playback->replay().header.begun);
    setGameUp(shell, watch);
    shell.replayWatch = std::move(watch);
    shell.shiftKind = ShiftKind::practice;
    showShift(shell);
    shell.keeping.replayed = begun;
    beginSteering(shell, standInFor(shell),
                  {.title = std::string(barTitle),
                   .extra = {.text = std::string(jumpText), .command = command::jumpInReplay}});
}

void jumpInReplay(Shell& shell, ClockSeconds clock) {
    if (!isReplaying(shell)) {
        return;
    }
    ReplayWatch& watch = shell.replayWatch;
    Replay replay = watch.playback->replay();
    const ClockSeconds goal = std::clamp(clock, 0_s, std::max(replay.until - 1_s, 0_s));
    watch.playback = std::make_shared<Playback>(std::move(replay));
    setGameUp(shell, watch);
    playUntil(shell, goal);
    letCloudsDrift(shell.game, 0_s, goal);
    if (isStepDue(shell.game)) {
        shell.game.lastStepTime = goal;
    }
    shell.steered.standIn = standInFor(shell);
    showAnew(shell);
}

void askWhereToJump(Shell& shell) {
    if (!isReplaying(shell)) {
        return;
    }
    std::optional<ClockSeconds> goal;
    const auto onCommand = [&](Dialog& dialog, const CommandInput& input) {
        if (input.id == cancelId) {
            dialog.end(cancelId);
        } else if (input.id == okId) {
            goal = readClock(dialog.text(jump_to::clock));
            if (goal) {
                dialog.end(okId);
            } else {
                shell.report("Please type a time of the clock, such as 12:30.", MessageIcon::information);
            }
        }
    };
    const auto open = [&](Dialog& dialog) {
        const Replay& replay = shell.replayWatch.playback->replay();
        dialog.setText(jump_to::clock, FormatMinutesSeconds(shell.game.clock.count()));
        dialog.setText(jump_to::end,
                       FormatText("The replay ends at %s.", {FormatMinutesSeconds(replay.until.count())}));
        dialog.focus(jump_to::clock);
        dialog.edit(jump_to::clock).selectAll();
    };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, jump_to::shape,
              {.init = open, .command = onCommand});
    if (goal) {
        jumpInReplay(shell, *goal);
    }
}

std::optional<std::string> untoldParting(const Shell& shell) {
    if (!isReplaying(shell) || shell.replayWatch.isPartingTold) {
        return std::nullopt;
    }
    const Playback& playback = *shell.replayWatch.playback;
    const auto proven = playback.proven(shell.game);
    const bool hasParted = !proven && (playback.replay().end || playback.deviation());
    return hasParted ? std::optional(partingText(proven.error())) : std::nullopt;
}

void followReplayEnd(Shell& shell) {
    if (!isReplaying(shell) || !shell.game.isRunning()) {
        return;
    }
    tellOfParting(shell);
    const Playback& playback = *shell.replayWatch.playback;
    if (playback.next() == nullptr && shell.game.clock > playback.replay().until) {
        shell.mainWindow.post([&shell] { endHere(shell); });
    }
}

void keepTakenOver(Shell& shell) {
    const auto playback = std::exchange(shell.replayWatch, {}).playback;
    if (playback != nullptr) {
        shell.keeping.replayed.clear(); // it is today's shift now
        resumeReplay(shell, playback->past(), playback->calls());
    }
}

void forgetReplay(Shell& shell) {
    if (shell.replayWatch.playback != nullptr) {
        shell.game.random = shell.replayWatch.random;
        shell.game.lastStepTime = shell.replayWatch.lastStepTime;
        shell.replayWatch = {};
    }
}

} // namespace ventrel
