#include "replay/playback.h"

#include <array>

#include "replay/airspace_checksum.h"
#include "sim/alert_lamps.h"
#include "sim/event_relay.h"
#include "sim/phrase.h"

namespace ventrel {

/// Lets calls draw as they did.
class Playback::Noise final : public SimulationEvents {
public:
    Noise(Playback& playback, Game& game) : playback_(playback), game_(game) {}

    void pilotSpoke(const RadioCall& call) override {
        if (call.hasNoise() && playback_.countCall()) {
            drawNoises(game_.random);
        }
    }

private:
    Playback& playback_;
    Game& game_;
};

Result<Game> replayedGame(const Replay& replay, const AirspacePtr& airspace) {
    const ReplayHeader& header = replay.header;
    if (airspaceChecksum(*airspace) != header.airspaceChecksum) {
        return failed("The airspace " + airspace->name + " is not as it was when this replay was made.");
    }
    Game game{airspace, setupFrom(header), RandomGenerator{header.seed}};
    game.lastStepTime = header.lastStepTime;
    if (game.possibleScore != header.possibleScore) {
        return failed(
            "This version makes another shift of the replay's set-up: " + std::to_string(game.possibleScore) +
            " points are possible, not " + std::to_string(header.possibleScore) + ".");
    }
    return game;
}

const ReplayEvent* Playback::next() const {
    return next_ < replay_.events.size() ? &replay_.events[next_] : nullptr;
}

std::optional<OrderResult> Playback::playNext(Game& game, SimulationEvents& events) {
    const ReplayEvent& event = replay_.events[next_++];
    game.clock = event.clock;
    Noise noise{*this, game};
    EventRelay relay;
    relay.add(events);
    relay.add(noise);
    return std::visit([&](const auto& what) { return play(what, game, relay); }, event.what);
}

void Playback::playUntil(Game& game, ClockSeconds clock, SimulationEvents& events) {
    while (next() != nullptr && next()->clock <= clock) {
        playNext(game, events);
    }
    if (game.isRunning()) {
        game.clock = clock;
    }
}

Result<> Playback::proven(const Game& game) const {
    constexpr std::array phases{Phase::lastLine, Phase::rings, Phase::running};
    if (deviation_) {
        return tl::unexpected(*deviation_);
    }
    if (!replay_.end) {
        return failed("The replay tells no end of its shift.");
    }
    if (game.phase != phases.at(static_cast<std::size_t>(replay_.end->outcome))) {
        return failed("The shift did not end as the replay tells.");
    }
    if (game.score != replay_.end->score) {
        return failed("The replay tells of a score of " + std::to_string(replay_.end->score) + ", not " +
                      std::to_string(game.score) + ".");
    }
    return {};
}

Replay Playback::past() const {
    Replay past = {};
    past.header = replay_.header;
    past.events.assign(replay_.events.begin(), replay_.events.begin() + static_cast<std::ptrdiff_t>(next_));
    past.noise.assign(replay_.noise.begin(),
                      replay_.noise.begin() + static_cast<std::ptrdiff_t>(noiseChanges_));
    return past;
}

bool Playback::countCall() {
    if (noiseChanges_ < replay_.noise.size() && replay_.noise[noiseChanges_].call == calls_) {
        ++noiseChanges_;
    }
    ++calls_;
    return noiseChanges_ > 0 && replay_.noise[noiseChanges_ - 1].isDrawn;
}

Playback::Outcome Playback::play(const ReplayedStep& step, Game& game, SimulationEvents& events) {
    if (game.score != step.score || game.random.state != step.random) {
        deviate("here the score is " + std::to_string(game.score) + " and the generator stands at " +
                std::to_string(game.random.state));
    }
    if (!isStepDue(game)) {
        deviate("no step can act here");
    }
    SimulationStep(game, events);
    return std::nullopt;
}

Playback::Outcome Playback::play(const ReplayedLamp& lamp, Game& game, SimulationEvents& events) {
    // What a step has lit itself is lit already. Once the shift is over no frame lights a lamp.
    setLamp(game, events, lamp.level);
    return std::nullopt;
}

Playback::Outcome Playback::play(const ReplayedOrder& order, Game& game, SimulationEvents& events) {
    const PanelOrder sent = panelOrderFrom(order, game.vorCount());
    if (!isHeard(judgeOrder(game, order.flight, sent))) {
        deviate("this order is not heard here");
    }
    return executeOrder(game, order.flight, sent, events);
}

void Playback::deviate(const std::string& what) {
    if (!deviation_) {
        deviation_ = Failure{"Line " + std::to_string(replay_.events[next_ - 1].line) +
                             " of the replay: " + what + "."};
    }
}

} // namespace ventrel
