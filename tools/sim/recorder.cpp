#include "tools/sim/recorder.h"

#include "sim/phrase.h"

namespace ventrel {

void Recorder::send(Game& game, FlightIndex flight, const PanelOrder& order) {
    orderGiven(flight, order);
    orderExecuted(flight, executeOrder(game, flight, order, *this));
}

void Recorder::pilotSpoke(const RadioCall& call) {
    called(call);
    if (noise_ != nullptr && call.hasNoise()) {
        drawNoises(*noise_);
    }
}

} // namespace ventrel
