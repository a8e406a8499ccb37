#include "sim/event_relay.h"

namespace ventrel {

void EventRelay::tellAll(auto tell) {
    for (SimulationEvents* receiver : receivers_) {
        tell(*receiver);
    }
}

void EventRelay::stepBegun() {
    tellAll([](SimulationEvents& to) { to.stepBegun(); });
}

void EventRelay::reported(const Report& report) {
    tellAll([&](SimulationEvents& to) { to.reported(report); });
}

void EventRelay::pilotSpoke(const RadioCall& call) {
    tellAll([&](SimulationEvents& to) { to.pilotSpoke(call); });
}

void EventRelay::lampChanged(LampLevel lit) {
    tellAll([=](SimulationEvents& to) { to.lampChanged(lit); });
}

void EventRelay::scoreChanged(const ScoreChange& change) {
    tellAll([&](SimulationEvents& to) { to.scoreChanged(change); });
}

void EventRelay::orderSent(FlightIndex flight, const PanelOrder& order) {
    tellAll([&](SimulationEvents& to) { to.orderSent(flight, order); });
}

void EventRelay::panelChanged() {
    tellAll([](SimulationEvents& to) { to.panelChanged(); });
}

void EventRelay::stripsChanged() {
    tellAll([](SimulationEvents& to) { to.stripsChanged(); });
}

void EventRelay::flightActivated(FlightIndex flight) {
    tellAll([=](SimulationEvents& to) { to.flightActivated(flight); });
}

void EventRelay::shiftEnded(ShiftResult result) {
    tellAll([=](SimulationEvents& to) { to.shiftEnded(result); });
}

} // namespace ventrel
