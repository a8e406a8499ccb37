#include "tools/sim/recorder.h"

namespace ventrel {

void Recorder::send(Game& game, FlightIndex flight, const PanelOrder& order) {
    orderGiven(flight, order);
    orderExecuted(flight, executeOrder(game, flight, order, *this));
}

} // namespace ventrel
