// ventrel-sim: a shift without a window, or many, written to standard output.

#include <array>
#include <cstdio>
#include <exception>
#include <functional>
#include <iostream>
#include <span>

#include "base/windows1252.h"
#include "platform/machine/places.h"
#include "replay/replay_airspace.h"
#include "replay/replay_reader.h"
#include "replay/shift_of_the_day.h"
#include "tools/sim/arguments.h"
#include "tools/sim/careless.h"
#include "tools/sim/interactive.h"
#include "tools/sim/log_writer.h"
#include "tools/sim/prediction_account.h"
#include "tools/sim/score_writer.h"
#include "tools/sim/shift_run.h"
#include "tools/sim/summary_writer.h"
#include "tools/sim/trace_writer.h"

namespace ventrel {

namespace {

enum ExitStatus { played = 0, scenarioRefused = 1, wrongUsage = 2, notAsTold = 3 };

constexpr std::string_view airportFolder = "apt";

/// `text` is Windows-1252, and may hold what a file holds.
void complain(std::string_view text) {
    std::fprintf(stderr, "ventrel-sim: %s\n", toTerminal(text).c_str());
}

/// The controller's, somebody careless, one after the other, or nobody's.
Steering steeringOf(const Game& game, const Arguments& arguments, ControllerPool& controllers,
                    std::uint32_t seed) {
    Steering controller = arguments.controller ? controllers.steeringOf(game) : Steering{};
    if (!arguments.careless) {
        return controller;
    }
    return [controller, careless = carelessSteering(RandomGenerator{seed})](Game& now, Recorder& recorder) {
        if (controller) {
            controller(now, recorder);
        }
        careless(now, recorder);
    };
}

/// Runs with the writer that the arguments ask for; `replay` is the header of the one that is played.
void runWritten(const Game& game, Output& output, const Arguments& arguments,
                const std::function<void(Recorder&)>& run, const ReplayHeader* replay = nullptr) {
    if (arguments.score) {
        ScoreWriter writer{output, game, replay};
        run(writer);
    } else if (arguments.prediction) {
        PredictionAccount account{output, game};
        run(account);
    } else if (arguments.log) {
        LogWriter writer{output, game};
        run(writer);
    } else {
        TraceWriter writer{output, game};
        run(writer);
    }
}

void playShift(Game& game, Output& output, const Arguments& arguments, RunPlan plan) {
    ControllerPool controllers{arguments.lookAhead};
    plan.steering = steeringOf(game, arguments, controllers, arguments.seed);
    const auto run = [&](Recorder& recorder) { runShift(game, recorder, plan); };
    if (arguments.interactive) {
        InteractiveWriter writer{output, game};
        if (!plan.steering) {
            plan.steering = [&writer](Game& now, Recorder&) { takeOrders(std::cin, now, writer); };
        }
        run(writer);
    } else {
        runWritten(game, output, arguments, run);
    }
}

ReplayHeader headerFor(const Game& game, const ShiftSetup& setup, const Arguments& arguments) {
    ReplayHeader header = replayHeader(game, setup, arguments.seed);
    header.begun = systemUtcNow();
    header.airspaceFile = arguments.airport.filename().string();
    return header;
}

ExitStatus finish(Output& output) {
    if (!output.finish()) {
        complain("the output could not be written");
        return scenarioRefused;
    }
    return played;
}

/// A shift for each of the seeds, and nothing but a summary of each.
ExitStatus playSeeds(const AirspacePtr& airspace, const ShiftSetup& setup, const Arguments& arguments,
                     const SeedRange& seeds) {
    Output output{stdout};
    ControllerPool controllers{arguments.lookAhead};
    for (std::uint64_t seed = seeds.first; seed <= seeds.last; ++seed) {
        const auto number = static_cast<std::uint32_t>(seed);
        Game game{airspace, setup, RandomGenerator{number}};
        SummaryWriter writer{output, game, number};
        runShift(game, writer,
                 {.orders = {},
                  .until = arguments.until,
                  .steering = steeringOf(game, arguments, controllers, number),
                  .hearsPilots = arguments.speaking});
    }
    return finish(output);
}

ExitStatus play(const Arguments& arguments) {
    const auto airspace = loadAirport(arguments.airport);
    if (!airspace) {
        complain(airspace.error().text);
        return scenarioRefused;
    }
    const auto layout = scopeLayoutFor(arguments.width.value_or((*airspace)->layoutWidth));
    if (!layout) {
        complain(pathText(arguments.airport) + " fits neither layout: --width 800 or --width 1024 is needed");
        return wrongUsage;
    }
    std::array<Size, largeLayout.cloudImages> cloudSizes;
    cloudSizes.fill(arguments.cloudSize);
    ShiftSetup setup = setupFor(arguments);
    setup.cloudSizes = cloudSizes;
    setup.layout = *layout;
    if (arguments.seeds) {
        return playSeeds(*airspace, setup, arguments, *arguments.seeds);
    }
    Game game{*airspace, setup, RandomGenerator{arguments.seed}};

    ReplayWriter replay{game};
    if (arguments.record) {
        if (const auto begun = replay.begin(*arguments.record, headerFor(game, setup, arguments)); !begun) {
            complain(begun.error().text);
            return scenarioRefused;
        }
    }
    std::vector<ScriptedOrder> orders;
    if (arguments.orders) {
        auto read = readOrderFile(*arguments.orders, game);
        if (!read) {
            complain(read.error().text);
            return wrongUsage;
        }
        orders = std::move(*read);
    }
    Output output{stdout};
    playShift(game, output, arguments,
              {.orders = orders,
               .until = arguments.until,
               .steering = {},
               .hearsPilots = arguments.speaking,
               .replay = arguments.record ? &replay : nullptr});
    return finish(output);
}

/// The airspace that is named, or else the one of the replay's name.
Result<AirspacePtr> airspaceFor(const Arguments& arguments, const ReplayHeader& header,
                                const std::filesystem::path& program) {
    if (!arguments.airport.empty()) {
        return loadAirport(arguments.airport);
    }
    const std::filesystem::path playersOwn = userDataFolder("ventrel");
    const std::array folders{programDataFolder(program, "ventrel") / airportFolder,
                             playersOwn.empty() ? playersOwn : playersOwn / airportFolder};
    return findReplayAirspace(header, folders);
}

ExitStatus replayShift(const Arguments& arguments, const std::filesystem::path& file,
                       const std::filesystem::path& program) {
    auto replay = readReplay(file);
    const auto airspace = replay ? airspaceFor(arguments, replay->header, program)
                                 : Result<AirspacePtr>{tl::unexpected(replay.error())};
    auto game = airspace ? replayedGame(*replay, *airspace) : Result<Game>{tl::unexpected(airspace.error())};
    if (!game) {
        complain(game.error().text);
        return scenarioRefused;
    }
    Playback playback{std::move(*replay)};
    Output output{stdout};
    runWritten(
        *game, output, arguments,
        [&](Recorder& recorder) { runReplay(*game, recorder, playback, arguments.until); },
        &playback.replay().header);
    if (const auto status = finish(output); status != played) {
        return status;
    }
    auto proven = playback.next() == nullptr ? playback.proven(*game) : Result<>{};
    if (proven) {
        proven = provenOfTheDay(playback.replay().header);
    }
    if (!proven) {
        complain(proven.error().text);
        return notAsTold;
    }
    return played;
}

int runTool(const char* program, std::span<const char* const> words) {
    std::ios::sync_with_stdio(false);
    const auto parsed = parseArguments(words);
    if (!parsed) {
        complain(fromUtf8(parsed.error().text) + " (see --help)");
        return wrongUsage;
    }
    const Arguments& arguments = *parsed;
    if (arguments.help) {
        std::fwrite(helpText().data(), 1, helpText().size(), stdout);
        return played;
    }
    return arguments.replay ? replayShift(arguments, *arguments.replay, executableFile(program))
                            : play(arguments);
}

} // namespace

} // namespace ventrel

int main(int count, char** words) {
    using namespace ventrel;
    try {
        return runTool(words[0], {words + 1, words + count});
    } catch (const std::exception& error) { // such as memory that ran out
        std::fprintf(stderr, "ventrel-sim: %s\n", toTerminal(error.what()).c_str());
        return scenarioRefused;
    }
}
