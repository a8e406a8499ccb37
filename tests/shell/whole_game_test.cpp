// A whole shift played in the window by mouse and keys is the shift that the simulation alone plays.

#include <map>

#include "audio/sound_system.h"
#include "platform/headless/headless_sound.h"
#include "shell/game_stage.h"
#include "shell/plain_program.h"
#include "sim/reports.h"
#include "sim/shift_texts.h"
#include "tools/sim/shift_run.h"

namespace ventrel {
namespace {

constexpr std::uint32_t seed = 7;
constexpr ClockSeconds scoreReportInterval = 900_s;
constexpr const char* airportFile = "atlanta10.apt";

/// What a step of the simulation alone brings: the lines of the ticker, as many as its queue takes, and the
/// orders that the automatic controller then sends.
struct Step {
    std::vector<std::string> lines;
    std::vector<std::pair<FlightIndex, PanelOrder>> orders;
    int score = 0;
};

class StepRecorder final : public Recorder {
public:
    using Recorder::Recorder;

    std::map<ClockSeconds, Step> steps;
    int finalScore = 0;

    void shiftSetUp() override {}
    void stepTaken() override { now().score = game().score; }
    void runEnded(const RunResult& result) override {
        finalScore = game().score;
        EXPECT_EQ(result, ShiftResult::everyFlightHandled);
    }
    void reported(const Report& report) override {
        if (queueClock_ != game().clock) {
            queueClock_ = game().clock;
            clearMessages(queue_);
        }
        const std::string text = reportText(game(), report);
        if (postMessage(queue_, text, reportClass(report.topic))) {
            now().lines.push_back(text);
        }
    }
    void orderGiven(FlightIndex flight, const PanelOrder& order) override {
        now().orders.emplace_back(flight, order);
    }

private:
    Step& now() { return steps[game().clock]; }

    MessageQueue queue_;
    ClockSeconds queueClock_{-1};
};

/// Sound on a machine in memory, whose clock the stage turns once it stands.
struct Machine {
    GameStage* stage = nullptr;
    HeadlessSound device{[this] { return now(); }};
    HeadlessSequencer sequencer{[this] { return now(); }};
    SoundSystem sounds{device, sequencer, PROGRAM_FOLDER};

    Millis now() const { return stage == nullptr ? 0 : stage->backend.now(); }
};

Game shiftAlone(int voiceSets) {
    const auto airspace = loadAirport(std::filesystem::path(PROGRAM_FOLDER) / "apt" / airportFile);
    return {airspace.value(),
            {.skill = Skill::easy,
             .cloudCover = false,
             .voiceSetCount = voiceSets,
             .layout = largeLayout,
             .controllerName = "Mary"},
            RandomGenerator{seed}};
}

/// Plays in the window what was recorded, comparing step by step.
class Replay {
public:
    Replay(GameStage& stage, const StepRecorder& recorded) : stage_(stage), recorded_(recorded) {}

    void playOn() {
        stage_.skip();
        stage_.look([this] { compare(); });
    }

private:
    std::vector<std::string> takeLines() {
        std::vector<std::string> lines;
        for (const MessageSlot& slot : stage_.game().messages.slots) {
            if (slot.inUse) {
                lines.push_back(slot.text);
            }
        }
        ScrollerClear(stage_.shell().scroller);
        return lines;
    }

    void compare() {
        const ClockSeconds now = stage_.shell().game.clock / stepInterval * stepInterval;
        if (!stage_.game().isRunning()) {
            return;
        }
        const auto found = recorded_.steps.find(now);
        ASSERT_NE(found, recorded_.steps.end()) << "the shift in the window goes on at " << now.count();
        std::vector<std::string> lines = found->second.lines;
        if (now > 0_s && now % scoreReportInterval == 0_s) {
            lines.push_back(scoreSoFarText(stage_.game())); // the radar's own
        }
        EXPECT_EQ(takeLines(), lines) << "at " << now.count();
        ASSERT_EQ(stage_.game().score, found->second.score) << "at " << now.count();
        for (const auto& [flight, order] : found->second.orders) {
            stage_.selectByStrip(flight);
            stage_.sendByPanel(order);
        }
        stage_.look([this] { takeLines(); }); // an order may have been refused with a line
        playOn();
    }

    GameStage& stage_;
    const StepRecorder& recorded_;
};

/// The shift with its pilots heard: the noise of every call is drawn, so all that follows is another shift.
TEST(WholeGame, WithItsPilotsHeardIsWhatTheSimulationAlonePlaysWhenItHearsThem) {
    constexpr int voiceSets = 21;
    Game alone = shiftAlone(voiceSets);
    StepRecorder recorded{alone};
    runShift(alone, recorded,
             {.orders = {}, .until = 36000_s, .steering = automaticSteering(alone), .hearsPilots = true});
    Machine machine;
    GameStage stage(1024,
                    "[Options]\nAirportSelect=1\nAidConflicts=1\nAidColours=1\nAidCaptions=1\n[Game]\nName="
                    "mary\nSkill=0\n",
                    PROGRAM_FOLDER, FirstScene::console, &machine.sounds);
    machine.stage = &stage;
    Replay replay(stage, recorded);
    stage.startNewGame(seed);
    stage.look([&] { ScrollerClear(stage.shell().scroller); }); // the welcome
    replay.playOn();
    stage.look([&] {
        EXPECT_EQ(stage.game().score, recorded.finalScore);
        EXPECT_EQ(stage.game().random.state, alone.random.state);
    });
    stage.play();
    EXPECT_GT(machine.device.starts.size(), 50U);
    EXPECT_LE(machine.device.held(), 14U) << "twelve sounds and the clicks";
}

TEST(WholeGame, PlayedByMouseAndKeysIsWhatTheSimulationAlonePlays) {
    Game alone = shiftAlone(0);
    StepRecorder recorded{alone};
    runShift(alone, recorded, {.orders = {}, .until = 36000_s, .steering = automaticSteering(alone)});
    const PlainProgram program;
    GameStage stage(1024,
                    "[Options]\nAirportSelect=1\nAidConflicts=1\nAidColours=1\nAidCaptions=1\n[Game]\nName="
                    "mary\nSkill=0\n",
                    program.folder());
    Replay replay(stage, recorded);
    stage.startNewGame(seed);
    stage.look([&] { ScrollerClear(stage.shell().scroller); }); // the welcome
    replay.playOn();
    stage.look([&] {
        EXPECT_FALSE(stage.game().isRunning());
        EXPECT_EQ(stage.game().score, recorded.finalScore);
        EXPECT_TRUE(stage.shell().radar.window.isVisible()) << "the last line is still to be read";
    });
    stage.wait(20000);
    stage.look([&] {
        EXPECT_FALSE(stage.shell().radar.window.isVisible());
        EXPECT_EQ(stage.shell().game.clock, 0_s);
    });
    stage.wait(6000); // the film
    stage.todo([](Script& script) { script.key(Key::space).wait(20).key(Key::enter).wait(20); });
    stage.look([&] { EXPECT_EQ(stage.sounds.heard.back(), "mci\\idle.mci"); });
    stage.play();
}

} // namespace
} // namespace ventrel
