#include "tools/sim/recorder.h"

namespace ventrel {

void Recorder::send(Simulation& simulation, FlightIndex flight, const PanelOrder& order) {
    orderGiven(simulation.game, flight, order);
    orderExecuted(flight, executeOrder(simulation, flight, order));
}

} // namespace ventrel
