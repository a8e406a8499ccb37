// ventrel-sim: its command line, its orders file, its trace and log, and the game that another program plays.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "../base/temp_folder.h"
#include "small_airspace.h"
#include "tools/sim/arguments.h"
#include "tools/sim/careless.h"
#include "tools/sim/interactive.h"
#include "tools/sim/log_writer.h"
#include "tools/sim/prediction_account.h"
#include "tools/sim/shift_run.h"
#include "tools/sim/summary_writer.h"
#include "tools/sim/trace_writer.h"

namespace ventrel {
namespace {

std::string faultOf(std::vector<const char*> words) {
    const auto parsed = parseArguments(words);
    return parsed ? "" : parsed.error().text;
}

TEST(CommandLine, SaysWhatIsWrongWithIt) {
    EXPECT_EQ(faultOf({"a.apt", "--skill", "4", "--planes", "96", "--minutes", "24"}), "");
    EXPECT_EQ(faultOf({"--help"}), "");
    EXPECT_EQ(faultOf({}), "an airport file is needed");
    EXPECT_EQ(faultOf({"a.apt", "b.apt"}), "there is a second airport file, 'b.apt'");
    EXPECT_EQ(faultOf({"a.apt", "--speed", "1"}), "there is no option --speed");
    EXPECT_EQ(faultOf({"a.apt", "--seed"}), "--seed needs a number from 0 to 4294967295");
    EXPECT_EQ(faultOf({"a.apt", "--skill", "5"}), "--skill needs a number from 0 to 4, not '5'");
    for (const char* const wrong : {"", "1x", " 1", "-1", "4294967296", "99999999999999999999"}) {
        EXPECT_NE(faultOf({"a.apt", "--seed", wrong}), "") << wrong;
    }
    EXPECT_NE(faultOf({"a.apt", "--cloud-size", "64"}), "");
    EXPECT_NE(faultOf({"a.apt", "--width", "640"}), "");
    EXPECT_NE(faultOf({"a.apt", "--skill", "4", "--planes", "97", "--minutes", "24"}), "");
    EXPECT_EQ(faultOf({"a.apt", "--planes", "97", "--minutes", "24"}), "") << "they do not count";
    EXPECT_NE(faultOf({"a.apt", "--planes", "100"}), "");
    EXPECT_NE(faultOf({"a.apt", "--minutes", "0"}), "");
    EXPECT_EQ(faultOf({"a.apt", "--seeds", "7..7", "--controller", "--until", "900"}), "");
    for (const char* const wrong : {"", "7", "7..", "..7", "8..7", "1..4294967296", "1..2..3", "-1..2"}) {
        EXPECT_EQ(faultOf({"a.apt", "--seeds", wrong}),
                  "--seeds needs a range of numbers such as 1..500, not '" + std::string{wrong} + "'");
    }
    EXPECT_EQ(faultOf({"a.apt", "--log", "--seeds", "1..2"}),
              "--log does not go with --seeds, which plays many shifts");
}

TEST(CommandLine, AsksForTheShiftThatTheNewGameDialogWouldMake) {
    const auto setup = [](std::vector<const char*> words) { return setupFor(parseArguments(words).value()); };
    const ShiftSetup easy = setup({"a.apt", "--skill", "0", "--direct-entry", "0", "--clouds", "1"});
    EXPECT_TRUE(easy.directEntry);
    EXPECT_FALSE(easy.cloudCover);
    const ShiftSetup custom = setup({"a.apt", "--skill", "4", "--planes", "10", "--minutes", "10",
                                     "--direct-entry", "0", "--clouds", "0", "--voices", "3"});
    EXPECT_FALSE(custom.directEntry || custom.cloudCover);
    EXPECT_EQ(custom.custom.length, 600_s);
    EXPECT_EQ(custom.custom.bonus, 1200);
    EXPECT_EQ(custom.voiceSetCount, 3);
}

class OrderFile : public ::testing::Test {
protected:
    Result<std::vector<ScriptedOrder>> read(std::string_view text) {
        std::ofstream{path, std::ios::binary} << text;
        return readOrderFile(path, test.game);
    }
    void expectFault(std::string_view text, std::string_view fault) {
        const auto result = read(text);
        ASSERT_FALSE(result.has_value()) << text;
        EXPECT_NE(result.error().text.find(fault), std::string::npos) << result.error().text;
    }

    TempFolder folder; // of each test's own: they run side by side
    std::filesystem::path path = folder / "orders.txt";
    TestGame test;
};

TEST_F(OrderFile, IsReadInOrderOfTimeThenOfLines) {
    test.fly({24, 30}, 5, 90, PointIndex{1});
    test.fly({24, 40}, 5, 90, PointIndex{1});
    const auto orders = read("# comment\n30 0 1 0 0 -1 0\r\n\n15 1 10\t315 -1 5 1 # hold\n30 1 2 90 1 4 0");
    ASSERT_TRUE(orders.has_value());
    ASSERT_EQ(orders->size(), 3U);
    EXPECT_EQ((*orders)[0].clock, 15_s);
    EXPECT_EQ((*orders)[0].order.directTarget, DirectTarget::holdPlace());
    EXPECT_EQ((*orders)[1].flight, FlightIndex{0});
    EXPECT_EQ((*orders)[2].flight, FlightIndex{1});
}

TEST_F(OrderFile, WithAFaultIsRefusedByFileAndLine) {
    test.fly({24, 30}, 5, 90, PointIndex{1});
    expectFault("15 0 5 90 0 -1 0\n20 0 5 90 0 -1 0\n", "orders.txt:2: clock");
    expectFault("15 1 5 90 0 -1 0", ":1: flight");
    expectFault("15 0 11 90 0 -1 0", ":1: altitude");
    expectFault("15 0 5 360 0 -1 0", ":1: heading");
    expectFault("15 0 5 50 0 -1 0", ":1: heading");
    expectFault("15 0 5 90 2 -1 0", ":1: speed");
    expectFault("15 0 5 90 0 6 1", ":1: directTarget");
    expectFault("15 0 5 90 0 5 0", ":1: there is no map point 5");
    expectFault("15 0 5 90 0 -1 2", ":1: hold");
    expectFault("15 0 5 90 0 -1", ":1: an order has 7 fields, not 6");
    expectFault("15 0 5 90 0 -1 0.5", ":1: hold");
    std::filesystem::remove(path);
    EXPECT_FALSE(readOrderFile(path, test.game).has_value());
    EXPECT_FALSE(readOrderFile(folder.path(), test.game).has_value());
}

/// A game of one flight that enters at 15 and is soon lost.
Game shortGame() {
    TestGame test;
    Flight& flight = test.fly({46, 24}, 5, 90, PointIndex{1});
    flight.activatedAt = 0_s;
    flight.scheduledAt = 15_s;
    flight.callsign = "\xC4\"\\1";
    flight.callsignPhrase = "M<";
    flight.current().speed = Speed::fast;
    flight.pilotVoice = 2;
    test.game.bonus = 25;
    test.game.shiftLength = {};
    test.game.possibleScore = 0;
    test.game.freeOrders = 0;
    return test.game;
}

template <typename Writer>
std::string record(Game game, const RunPlan& plan) {
    Output output;
    Writer writer{output, game};
    runShift(game, writer, plan);
    return output.text();
}

TEST(Trace, IsTheSameToTheByte) {
    const std::vector<ScriptedOrder> orders{
        {0_s, FlightIndex{0}, {.altitude = 5, .heading = 90}},
        {15_s, FlightIndex{0}, {.altitude = 5, .heading = 90, .speed = Speed::fast}}};
    const std::string trace = record<TraceWriter>(shortGame(), {orders, 30_s, {}});
    const std::string expected =
        R"({"type":"step","clock":0,"score":0,"listed":1,"flights":[[0,1,0,1,0,0,46,24,5,90,1,-1,0,0,1]]}
{"type":"message","clock":15,"class":13,"text":")"
        "\xC3\x84"
        R"(\"\\1 entering airspace, proceeding to NW"}
{"type":"radio","clock":15,"voice":2,"tag":0,"phrase":"M<$+","noise":1}
{"type":"step","clock":15,"score":0,"listed":1,"flights":[[0,1,15,0,0,0,46,24,5,90,1,-1,0,0,1]]}
{"type":"score","clock":15,"delta":-5,"score":0}
{"type":"radio","clock":15,"voice":2,"tag":0,"phrase":"4","noise":0}
{"type":"order","clock":15,"flight":0,"result":0}
{"type":"step","clock":30,"score":0,"listed":1,"flights":[[0,1,15,0,0,0,47,24,5,90,1,-1,0,0,1]]}
{"type":"end","clock":30,"result":1,"score":0,"possible":0}
)";
    const auto second = trace.find('\n') + 1;
    EXPECT_EQ(trace.substr(second), expected);
    const std::string shift = trace.substr(0, second);
    EXPECT_TRUE(shift.starts_with(
        R"({"type":"shift","airport":"Testville","planes":1,"length":0,"bonus":25,"possible":0,"free":0,"clouds":0,)"
        R"("points":[{"ident":"MID","x":24,"y":24,"heading":90,"airport":1,"exit":0,"major":0},{"ident":"NW",)"))
        << shift;
    EXPECT_TRUE(shift.ends_with(
        R"("phrase":"M<","voice":2,"radio":0,"at":15,"origin":-1,"destination":1,"originKind":0,"destinationKind":1,)"
        R"("ground":0,"heavy":0,"plan":[[46,24,5,90,1,-1,0]]}]})"
        "\n"))
        << shift;
}

TEST(Summary, TellsWhatTheEndOfTheTraceTellsAndCountsWhyPointsWent) {
    const std::vector<ScriptedOrder> orders{
        {15_s, FlightIndex{0}, {.altitude = 5, .heading = 90, .speed = Speed::fast}}};
    Game game = shortGame();
    Output output;
    SummaryWriter writer{output, game, 4294967295U};
    runShift(game, writer, {.orders = orders, .until = 3000_s, .steering = {}});
    EXPECT_EQ(
        output.text(),
        R"({"seed":4294967295,"result":0,"clock":255,"score":25,"possible":0,"landed":0,"left":0,"missed":0,)"
        R"("lost":1,"nearMisses":0,"complaints":0,"orders":1})"
        "\n");
}

TEST(Trace, OfAGameThatIsHeardDrawsTheNoiseOfEachCall) {
    const auto stateAfter = [](bool isHeard) {
        Game game = shortGame(); // the flight calls when it enters
        Output output;
        TraceWriter writer{output, game};
        runShift(game, writer, {.orders = {}, .until = 15_s, .steering = {}, .hearsPilots = isHeard});
        return game.random;
    };
    RandomGenerator silent = stateAfter(false);
    drawNoises(silent);
    EXPECT_EQ(stateAfter(true).state, silent.state);
}

/// An order at every step, whatever it is and whomever it reaches.
std::vector<ScriptedOrder> anyOrders(const Game& game, RandomGenerator random) {
    std::vector<ScriptedOrder> orders;
    for (ClockSeconds clock = 60_s; clock < 3000_s; clock += stepInterval) {
        const FlightIndex flight{Random(random, game.planeCount())};
        const int target = Random(random, game.vorCount() + 5) - 5;
        orders.push_back({clock,
                          flight,
                          {.altitude = Random(random, 1, 10),
                           .heading = headingStep * Random(random, 8),
                           .directTarget = directTargetOf(target, game.vorCount()),
                           .speed = static_cast<Speed>(Random(random, 3) - 1),
                           .hold = Random(random, 4) == 0}});
    }
    return orders;
}

// What a seed tells must be the same in the next version and on every machine: draws, their order and limits,
// judgements, texts. Who changes one of them on purpose writes the new sum down here.
TEST(Trace, OfAShiftStaysWhatItWas) {
    SmallAirspace air = SmallAirspace::usual().airport("MAJ", {30, 20}, 180);
    air.last().isMajor = true;
    air.airport("BTH", {40, 30}, 45).last().reverseChance = 40;
    air.last().isExit = true;
    std::uint64_t sum = 0xCBF29CE484222325U;
    for (std::uint32_t seed = 0; seed < 60; ++seed) {
        const Game game = air.game({.skill = static_cast<Skill>(seed % 5),
                                    .directEntry = seed % 3 != 0,
                                    .voiceSetCount = static_cast<int>(seed % 4)},
                                   seed * 7919);
        const auto orders = anyOrders(game, RandomGenerator{seed});
        for (const char byte : record<TraceWriter>(game, {orders, 4000_s, {}})) {
            sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
        }
    }
    EXPECT_EQ(sum, 0x527A4D99136A5577U);
}

TEST(Log, TellsTheShiftInWords) {
    const std::vector<ScriptedOrder> orders{
        {15_s, FlightIndex{0}, {.altitude = 4, .heading = 45, .speed = Speed::slow}},
        {15_s, FlightIndex{0}, {.altitude = 4, .heading = 90, .speed = Speed::fast}}};
    const std::string log = record<LogWriter>(shortGame(), {orders, 36000_s, {}});
    for (const std::string_view part :
         {"heading 45 at 4K, slow\n", "heading 90 at 4K, fast\n",
          "00:15         \xC3\x84\"\\1 entering airspace, proceeding to NW\n",
          "00:15  radio  United one with you level at five thousand\n", "has been lost \n",
          "lamp   yellow on\n", "score  +25, now 25 (bonus)\n",
          "Game Over.   Score: 25 out of a possible 0 \n"}) {
        EXPECT_NE(log.find(part), std::string::npos) << part << log;
    }
}

/// Plays the two lines of orders that follow a step, and then none.
std::string playInteractively(Game game, const std::string& answers) {
    Output output;
    InteractiveWriter writer{output, game};
    std::istringstream input{answers};
    runShift(game, writer, {{}, 45_s, [&](Game& now, Recorder&) { takeOrders(input, now, writer); }});
    return output.text();
}

TEST(Prediction, ShowsEveryConflictAMoveAheadAndNoneInVain) {
    int ahead = 0;
    int averted = 0;
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        Game game = SmallAirspace::usual().game({.skill = Skill::hard}, seed);
        Output output;
        PredictionAccount account{output, game};
        runShift(game, account,
                 {.orders = {}, .until = 36000_s, .steering = carelessSteering(RandomGenerator{seed})});
        EXPECT_EQ(account.counts().missed, 0) << "seed " << seed;
        EXPECT_EQ(account.counts().falseAlarm, 0) << "seed " << seed;
        ahead += account.counts().ahead;
        averted += account.counts().averted;
    }
    EXPECT_GT(ahead, 100);
    EXPECT_GT(averted, 10);
}

TEST(Interactive, TellsEveryStepAndTakesOrdersAfterIt) {
    const std::string played = playInteractively(shortGame(), "\n0 7 90 1 -1 0\n# a comment\n0 7 90 1\n\n" +
                                                                  std::string(300, '1') + "\n0 7 90 0 9 0");
    const std::string expected =
        R"({"type":"step","clock":0,"score":0,"free":0,"flights":[{"flight":0,"callsign":"\u00c4\"\\1","state":"announced","from":-1,"to":1,"heavy":0}],"events":[]}
{"type":"step","clock":15,"score":0,"free":0,"flights":[{"flight":0,"callsign":"\u00c4\"\\1","state":"airborne","from":-1,"to":1,"heavy":0,"x":46,"y":24,"altitude":5,"heading":90,"speed":1,"direct":-1,"hold":0}],"events":[{"type":"message","flight":0,"text":"\u00c4\"\\1 entering airspace, proceeding to NW"}]}
{"type":"step","clock":30,"score":0,"free":0,"flights":[{"flight":0,"callsign":"\u00c4\"\\1","state":"airborne","from":-1,"to":1,"heavy":0,"x":47,"y":24,"altitude":6,"heading":90,"speed":1,"direct":-1,"hold":0}],"events":[{"type":"score","cause":"order","flight":0,"points":-5},{"type":"refused","order":"0 7 90 1","reason":"an order has 6 fields, not 4"}]}
)";
    std::string wanted = expected;
    for (auto at = wanted.find("\\u00c4"); at != std::string::npos; at = wanted.find("\\u00c4")) {
        wanted.replace(at, 6, "\xC3\x84");
    }
    const auto steps = played.substr(played.find('\n') + 1);
    EXPECT_EQ(steps.substr(0, wanted.size()), wanted);
    EXPECT_NE(steps.find(R"("reason":"the line is too long")"), std::string::npos);
    EXPECT_NE(steps.find(R"(directTarget must be a whole number)"), std::string::npos);
    EXPECT_NE(steps.find(R"({"type":"end","clock":45,"result":1)"), std::string::npos);
}

} // namespace
} // namespace ventrel
