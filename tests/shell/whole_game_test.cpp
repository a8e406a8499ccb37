// A whole shift played in the window by mouse and keys is the shift that the simulation alone plays.

#include <map>

#include "shell/game_stage.h"
#include "sim/airport_loading.h"
#include "sim/schedule.h"
#include "sim/shift_texts.h"
#include "tools/sim/shift_run.h"

namespace ventrel {
namespace {

constexpr std::uint32_t seed = 7;
constexpr ClockSeconds scoreReportInterval = 900;
constexpr const char* airportFile = "atlanta10.apt";

/// What a step of the simulation alone brings: the lines of the ticker, as many as its queue takes, and the
/// orders that the autopilot then sends.
struct Step {
    std::vector<std::string> lines;
    std::vector<std::pair<FlightIndex, PanelOrder>> orders;
    int score = 0;
};

class StepRecorder final : public Recorder {
public:
    std::map<ClockSeconds, Step> steps;
    int finalScore = 0;

    void shiftSetUp(const GameState&) override {}
    void stepTaken(const GameState& game) override { steps[clock()].score = game.score; }
    void runEnded(const GameState& game, const RunResult& result) override {
        finalScore = game.score;
        EXPECT_EQ(result, ShiftResult::everyFlightHandled);
    }
    void messagePosted(std::string_view text, MessageClass messageClass) override {
        if (queueClock_ != clock()) {
            queueClock_ = clock();
            clearMessages(queue_);
        }
        if (postMessage(queue_, text, messageClass, [](std::string_view) { return 0; })) {
            steps[clock()].lines.emplace_back(text);
        }
    }
    void orderGiven(const GameState&, FlightIndex flight, const PanelOrder& order) override {
        steps[clock()].orders.emplace_back(flight, order);
    }

private:
    MessageQueue queue_;
    ClockSeconds queueClock_ = -1;
};

void simulateAlone(StepRecorder& recorder) {
    GameState game;
    RandomGenerator random{seed};
    const auto file = std::filesystem::path(PROGRAM_FOLDER) / "apt" / airportFile;
    const bool isLoaded = loadAirport(game, file, largeLayout, random,
                                      [](std::string_view text, MessageIcon) { ADD_FAILURE() << text; });
    EXPECT_TRUE(isLoaded);
    game.controllerName = "Mary";
    setUpShift(game, {.skill = Skill::easy}, Options{.stormTrak = 0, .directEntry = 1}, random);
    runShift(game, random, recorder, {.orders = {}, .until = 36000, .autopilot = true});
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
        for (const MessageSlot& slot : stage_.shell().scroller.queue.slots) {
            if (slot.inUse) {
                lines.push_back(slot.text);
            }
        }
        ScrollerClear(stage_.shell().scroller);
        return lines;
    }

    void compare() {
        const ClockSeconds now = stage_.shell().topBar.clock.now / stepInterval * stepInterval;
        if (!stage_.game().gameRunning) {
            return;
        }
        const auto found = recorded_.steps.find(now);
        ASSERT_NE(found, recorded_.steps.end()) << "the shift in the window goes on at " << now;
        std::vector<std::string> lines = found->second.lines;
        if (now > 0 && now % scoreReportInterval == 0) {
            lines.push_back(scoreSoFarText(stage_.game())); // the radar's own
        }
        EXPECT_EQ(takeLines(), lines) << "at " << now;
        ASSERT_EQ(stage_.game().score, found->second.score) << "at " << now;
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

TEST(WholeGame, PlayedByMouseAndKeysIsWhatTheSimulationAlonePlays) {
    StepRecorder recorded;
    simulateAlone(recorded);
    GameStage stage(1024, "[Game]\nName=mary\nSkill=0\n");
    Replay replay(stage, recorded);
    stage.startNewGame(seed);
    stage.look([&] { ScrollerClear(stage.shell().scroller); }); // the welcome
    replay.playOn();
    stage.look([&] {
        EXPECT_FALSE(stage.game().gameRunning);
        EXPECT_EQ(stage.game().score, recorded.finalScore);
        EXPECT_TRUE(stage.shell().radar.window.isVisible()) << "the last line is still to be read";
    });
    stage.wait(20000);
    stage.look([&] {
        EXPECT_FALSE(stage.shell().radar.window.isVisible());
        EXPECT_EQ(stage.shell().topBar.clock.now, 0);
        EXPECT_EQ(stage.sounds.heard.back(), "mci\\idle.mci");
    });
    stage.play();
}

} // namespace
} // namespace ventrel
