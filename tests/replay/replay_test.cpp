// Replays: a shift that is kept and played again, the reader's strictness, and dates.

#include <gtest/gtest.h>

#include "base/shortage.h"
#include "base/temp_folder.h"
#include "controller/controller.h"
#include "replay/other_width.h"
#include "replay/playback.h"
#include "replay/replay_airspace.h"
#include "replay/replay_reader.h"
#include "replay/replay_text.h"
#include "replay/replay_writer.h"
#include "sim/event_relay.h"
#include "sim/small_airspace.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

/// A shift as the window plays it: the clock goes in seconds, steps are sometimes passed over, frames come
/// when they like, orders also between steps, and calls are sometimes not heard.
class WindowShift {
public:
    WindowShift(const fs::path& file, Skill skill) {
        const ShiftSetup setup{.skill = skill, .voiceSetCount = 3, .cloudSizes = sizes};
        game = SmallAirspace::usual().game(setup, seed);
        game.lastStepTime = 0_s;
        ReplayHeader header = replayHeader(game, setup, seed);
        header.airspaceFile = "small.apt";
        EXPECT_TRUE(writer.begin(file, header).has_value());
        for (SimulationEvents* const receiver :
             std::initializer_list<SimulationEvents*>{&log, &voices, &writer}) {
            relay.add(*receiver);
        }
    }

    /// Until that time, or the end.
    void play(ClockSeconds until) {
        const Controller controller{game, 4};
        while (game.isRunning() && game.clock < until) {
            if (RandomPercent(chance) < 97 || !isStepDue(game)) {
                SimulationStep(game, relay);
            }
            if (game.isRunning() && RandomPercent(chance) < 20) {
                makeFrame(game, relay);
            }
            voices.areHeard = RandomPercent(chance) < 1 ? !voices.areHeard : voices.areHeard;
            if (game.isRunning() && RandomPercent(chance) < 8) {
                for (const ControllerOrder& next : controller.decide(game)) {
                    executeOrder(game, next.flight, next.order, relay);
                }
            }
            if (game.isRunning()) {
                game.clock += 1_s;
            }
        }
    }

    struct Voices final : SimulationEvents {
        explicit Voices(WindowShift& of) : shift(of) {}
        void pilotSpoke(const RadioCall& call) override {
            if (call.hasNoise()) {
                if (areHeard) {
                    drawNoises(shift.game.random);
                }
                shift.writer.callMade(areHeard);
            }
        }
        WindowShift& shift;
        bool areHeard = true;
    };

    static constexpr std::uint32_t seed = 11;
    std::vector<Size> sizes = std::vector<Size>(16, Size{64, 48});
    Game game;
    EventLog log{game};
    ReplayWriter writer{game};
    Voices voices{*this};
    RandomGenerator chance{5};
    EventRelay relay;
};

struct PlayedAgain {
    explicit PlayedAgain(Replay replay)
        : playback{std::move(replay)},
          game{replayedGame(playback.replay(), SmallAirspace::usual().load()).value()} {}

    Playback playback;
    Game game;
    EventLog log{game};
};

TEST(Replay, PlaysAShiftOfTheWindowAgainToTheLastDraw) {
    const TempFolder folder;
    WindowShift shift{folder / "a.replay", Skill::hard};
    shift.play(9000_s);
    ASSERT_FALSE(shift.game.isRunning());
    ASSERT_GT(shift.log.lines.size(), 500U);
    PlayedAgain again{readReplay(folder / "a.replay").value()};
    EXPECT_GT(again.playback.replay().noise.size(), 3U);
    again.playback.playUntil(again.game, 9000_s, again.log);
    EXPECT_EQ(again.log.lines, shift.log.lines);
    EXPECT_EQ(again.game.random.state, shift.game.random.state);
    const auto proven = again.playback.proven(again.game);
    EXPECT_TRUE(proven.has_value()) << proven.error().text;
}

TEST(Replay, IsThereUpToTheLastLineAndGoesOnFromThere) {
    const TempFolder folder;
    WindowShift shift{folder / "a.replay", Skill::hard};
    shift.play(1500_s);
    // Nobody has closed the file, and a full disk has cut its last line.
    const std::string text = readText(folder / "a.replay");
    PlayedAgain again{readReplay(text + "1500 order 3 1", "a.replay").value()};
    again.playback.playUntil(again.game, shift.game.clock, again.log);
    EXPECT_EQ(again.log.lines, shift.log.lines);
    EXPECT_EQ(again.playback.proven(again.game).error().text, "The replay tells no end of its shift.");

    ReplayWriter writer{again.game};
    ASSERT_TRUE(
        writer.resume(folder / "b.replay", again.playback.past(), again.playback.calls()).has_value());
    EventRelay relay;
    relay.add(writer);
    while (step(again.game, relay)) {
    }
    PlayedAgain third{readReplay(folder / "b.replay").value()};
    third.playback.playUntil(third.game, 36000_s, third.log);
    EXPECT_TRUE(third.playback.proven(third.game).has_value());
    EXPECT_EQ(third.game.score, again.game.score);
}

TEST(Replay, ThatWasTamperedWithIsFoundOut) {
    const TempFolder folder;
    WindowShift shift{folder / "a.replay", Skill::easy};
    shift.play(9000_s);
    const std::string text = readText(folder / "a.replay");
    const auto outcome = [&](std::string_view from, std::string_view to) {
        std::string changed = text;
        changed.replace(changed.find(from), from.size(), to);
        PlayedAgain again{readReplay(changed, "a.replay").value()};
        again.playback.playUntil(again.game, 9000_s, again.log);
        const auto proven = again.playback.proven(again.game);
        return proven ? std::string{} : proven.error().text;
    };
    EXPECT_EQ(outcome("shift", "shift"), "");
    EXPECT_NE(outcome("handled ", "handled 1"), "");
    EXPECT_NE(outcome("handled", "given-up"), "");
    EXPECT_NE(outcome("order 0 ", "order 2 "), "");
    EXPECT_NE(outcome("noise 0 1", "noise 0 0"), "");
    EXPECT_NE(outcome("\n15 step", "\n14 step"), "");
    SmallAirspace other = SmallAirspace::usual();
    other.last().pixel.x += 1;
    EXPECT_FALSE(replayedGame(readReplay(text, "a").value(), other.load()).has_value());
}

TEST(Replay, IsRefusedByFileAndLineWhereNoWriterWroteIt) {
    ReplayHeader plain;
    plain.begun = readMoment("2026-02-28T23:59:59Z").value();
    plain.airspaceFile = "small.apt";
    const std::string header = replayHeaderText(plain);
    const auto faultOf = [](const std::string& text) {
        const auto read = readReplay(text, "x/a.replay");
        return read ? std::string{"none"} : read.error().text;
    };
    EXPECT_EQ(faultOf(header), "none");
    struct Case {
        std::string_view text;
        std::string_view fault;
    };
    for (const auto& [text, fault] : std::to_array<Case>({
             {"15 step 1 0\n15 lamp 3\n16 practice\n20 order 0 1 45 -1 0 1\n20 noise 3 1\n21 end collision "
              "5\n",
              "none"},
             {"15 step 1 0\n14 lamp 3\n", "a.replay:21: the clock goes back"},
             {"15 step 1\n", "a.replay:20: step has 2 numbers, not 1"},
             {"15 step 4294967296 0\n", "random must be"},
             {"15 lamp 4\n", "level must be"},
             {"15 order 99 1 45 0 -1 0\n", "flight must be"},
             {"15 order 0 11 45 0 -1 0\n", "altitude must be"},
             {"15 noise 3 1\n15 noise 3 0\n", "a.replay:21: the calls"},
             {"15 end lost 0\n", "the outcome must be"},
             {"15 end handled 0\n16 lamp 0\n", "a.replay:21: there is a line after the end"},
             {"2000000001 lamp 0\n", "clock must be"},
             {"15 \x1b[2J 0\n", "cannot tell of"},
             {"15\n", "a line has a clock"},
         })) {
        EXPECT_NE(faultOf(header + std::string{text}).find(fault), std::string::npos)
            << text << faultOf(header + std::string{text});
    }
    for (std::size_t length = 0; length < header.size(); ++length) {
        EXPECT_NE(faultOf(header.substr(0, length)), "none") << length;
    }
    for (const std::string_view wrong :
         {"file ../a.apt", "file ", "width 640", "skill 5", "seed -1", "voices 22", "cloud-sizes 1x",
          "begun 2026-02-29T00:00:00Z", "kind best", "checksum 12", "last-step -2", "clouds yes"}) {
        const auto key = std::string{wrong.substr(0, wrong.find(' ') + 1)};
        std::string changed = header;
        const auto start = changed.find('\n' + key) + 1;
        changed.replace(start, changed.find('\n', start) - start, wrong);
        EXPECT_NE(faultOf(changed).find(key + "must be"), std::string::npos) << wrong << faultOf(changed);
    }
}

TEST(Replay, FindsItsAirspaceByNameAndContent) {
    const TempFolder folder;
    ReplayHeader header = replayHeader(SmallAirspace::usual().game(), {}, 1);
    header.airspaceFile = "small.apt";
    const std::vector<fs::path> folders{"", folder / "a", folder / "b"};
    const auto keep = [](const fs::path& file, const SmallAirspace& airspace) {
        fs::create_directories(file.parent_path());
        const auto bytes = airspace.file();
        writeText(file, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    };
    EXPECT_NE(findReplayAirspace(header, folders).error().text.find("is not there"), std::string::npos);
    SmallAirspace other = SmallAirspace::usual();
    other.last().runwayHeading += 45;
    keep(folder / "a" / "small.apt", other);
    EXPECT_NE(findReplayAirspace(header, folders).error().text.find("is not as it was"), std::string::npos);
    keep(folder / "b" / "small.apt", SmallAirspace::usual());
    EXPECT_TRUE(findReplayAirspace(header, folders).has_value());
}

TEST(Replay, IsDrawnInAWindowOfTheOtherWidthAndPlaysTheSame) {
    const TempFolder folder;
    WindowShift shift{folder / "a.replay", Skill::hard};
    shift.play(1500_s);
    PlayedAgain again{readReplay(folder / "a.replay").value()};
    const std::vector<Vor> points = *again.game.points;
    const Cloud inSight = again.game.clouds.front();
    again.game.clouds[1].position = {-20, -20}; // half in sight
    const std::vector<Size> sizes(16, Size{90, 60});
    const std::array picture{std::byte{1}};
    moveToLayout(again.game, largeLayout, sizes, picture);
    EXPECT_EQ(again.game.airspace->picture.size(), 1U);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Vor& moved = again.game.vors()[i];
        EXPECT_EQ(moved.cell, points[i].cell);
        EXPECT_EQ((Cell{moved.pixel.x / largeLayout.cellSize, moved.pixel.y / largeLayout.cellSize}),
                  moved.cell);
        EXPECT_EQ(moved.runwayHeading, points[i].runwayHeading);
    }
    for (const Cloud& cloud : again.game.clouds) {
        EXPECT_EQ(cloud.size, sizes.front());
        EXPECT_GE(cloud.position.x, -cloud.size.width) << "out of sight for ever";
        EXPECT_LE(cloud.position.x, largeLayout.pictureSize());
    }
    EXPECT_EQ(again.game.clouds.front().position.x, inSight.position.x * 14 / 11);
    EXPECT_EQ(again.game.clouds[1].position, (Point{-20 * 14 / 11, -20 * 14 / 11}));
    again.playback.playUntil(again.game, shift.game.clock, again.log);
    EXPECT_EQ(again.log.lines, shift.log.lines);
    EXPECT_FALSE(again.playback.deviation().has_value());
}

TEST(ReplayWriter, TellsOnceOfADiskThatCannotBeWritten) {
    const TempFolder folder;
    const Game game = SmallAirspace::usual().game();
    ReplayWriter writer{game};
    int failures = 0;
    writer.onFailure = [&](const Failure&) { ++failures; };
    const ReplayHeader header = replayHeader(game, {}, 1);
    writeText(folder / "file", "");
    EXPECT_FALSE(writer.begin(folder / "file" / "a.replay", header).has_value());
    EXPECT_FALSE(writer.begin(folder / "file", header).has_value()) << "it is there already";
    writer.stepBegun();
    EXPECT_EQ(failures, 0) << "nothing is written";
    ASSERT_TRUE(writer.begin(folder / "a.replay", header).has_value());
    {
        const FullDisk full;
        EXPECT_FALSE(ReplayWriter{game}.begin(folder / "b.replay", header).has_value());
        writer.stepBegun();
        writer.stepBegun();
    }
    EXPECT_EQ(failures, 1);
    EXPECT_FALSE(fs::exists(folder / "b.replay")) << "nobody could watch it";
}

} // namespace
} // namespace ventrel
