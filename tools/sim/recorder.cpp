#include "tools/sim/recorder.h"

#include "sim/phrase.h"

namespace ventrel {

void Recorder::send(Game& game, FlightIndex flight, const PanelOrder& order) {
    orderGiven(flight, order);
    orderExecuted(flight, executeOrder(game, flight, order, relay_));
}

void Recorder::keepReplay(ReplayWriter& replay) {
    replay_ = &replay;
    relay_.add(replay);
}

void Recorder::pilotSpoke(const RadioCall& call) {
    called(call);
    if (!call.hasNoise()) {
        return;
    }
    if (noise_ != nullptr) {
        drawNoises(*noise_);
    }
    if (replay_ != nullptr) {
        replay_->callMade(noise_ != nullptr);
    }
}

} // namespace ventrel
