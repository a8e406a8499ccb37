// ventrel-sim: one shift without a window, written to standard output.

#include <array>
#include <cstdio>
#include <exception>
#include <iostream>
#include <span>

#include "base/windows1252.h"
#include "tools/sim/arguments.h"
#include "tools/sim/careless.h"
#include "tools/sim/interactive.h"
#include "tools/sim/log_writer.h"
#include "tools/sim/prediction_account.h"
#include "tools/sim/shift_run.h"
#include "tools/sim/trace_writer.h"

namespace ventrel {

namespace {

enum ExitStatus { played = 0, scenarioRefused = 1, wrongUsage = 2 };

/// `text` is Windows-1252, and may hold what a file holds.
void complain(std::string_view text) {
    std::fprintf(stderr, "ventrel-sim: %s\n", toTerminal(text).c_str());
}

/// The controller's, somebody careless, one after the other, or nobody's.
Steering steeringOf(const Game& game, const Arguments& arguments) {
    const Steering controller =
        arguments.controller ? automaticSteering(game, arguments.lookAhead) : Steering{};
    if (!arguments.careless) {
        return controller;
    }
    return [controller, careless = carelessSteering(RandomGenerator{arguments.seed})](Game& now,
                                                                                      Recorder& recorder) {
        if (controller) {
            controller(now, recorder);
        }
        careless(now, recorder);
    };
}

void playShift(Game& game, Output& output, const Arguments& arguments,
               std::span<const ScriptedOrder> orders) {
    RunPlan plan{
        .orders = orders, .until = arguments.until, .steering = {}, .hearsPilots = arguments.speaking};
    plan.steering = steeringOf(game, arguments);
    if (arguments.interactive) {
        InteractiveWriter writer{output, game};
        if (!plan.steering) {
            plan.steering = [&writer](Game& now, Recorder&) { takeOrders(std::cin, now, writer); };
        }
        runShift(game, writer, plan);
    } else if (arguments.prediction) {
        PredictionAccount account{output, game};
        runShift(game, account, plan);
    } else if (arguments.log) {
        LogWriter writer{output, game};
        runShift(game, writer, plan);
    } else {
        TraceWriter writer{output, game};
        runShift(game, writer, plan);
    }
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
    Game game{*airspace, setup, RandomGenerator{arguments.seed}};

    std::vector<ScriptedOrder> orders;
    if (arguments.orders) {
        auto read = readOrderFile(*arguments.orders, game);
        if (const auto* const fault = std::get_if<std::string>(&read)) {
            complain(*fault);
            return wrongUsage;
        }
        orders = std::get<std::vector<ScriptedOrder>>(std::move(read));
    }
    Output output{stdout};
    playShift(game, output, arguments, orders);
    if (!output.finish()) {
        complain("the output could not be written");
        return scenarioRefused;
    }
    return played;
}

int runTool(std::span<const char* const> words) {
    std::ios::sync_with_stdio(false);
    const auto parsed = parseArguments(words);
    if (const auto* const fault = std::get_if<std::string>(&parsed)) {
        complain(fromUtf8(*fault) + " (see --help)");
        return wrongUsage;
    }
    const auto& arguments = std::get<Arguments>(parsed);
    if (arguments.help) {
        std::fwrite(helpText().data(), 1, helpText().size(), stdout);
        return played;
    }
    return play(arguments);
}

} // namespace

} // namespace ventrel

int main(int count, char** words) {
    using namespace ventrel;
    try {
        return runTool({words + 1, words + count});
    } catch (const std::exception& error) { // such as memory that ran out
        std::fprintf(stderr, "ventrel-sim: %s\n", error.what());
        return scenarioRefused;
    }
}
