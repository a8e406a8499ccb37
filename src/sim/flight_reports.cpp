#include "sim/flight_reports.h"

#include <array>

#include "base/string_table.h"
#include "sim/phrase.h"

namespace ventrel {

namespace {

constexpr int repeatAbove = 50;

/// What is posted and said about an arrival, and the lamp that belongs to it.
struct ArrivalReport {
    Arrival arrival;
    TextId text;
    MessageClass messageClass;
    LampLevel lamp;
    std::array<char, 2> words;
    Alert alert;
};

constexpr std::array<ArrivalReport, 5> arrivalReports{{
    {Arrival::landing,
     TextId::landing,
     MessageClass::success,
     LampLevel::green,
     {snippet::landing, snippet::goodDay},
     Alert::success},
    {Arrival::exit,
     TextId::leavingAirspace,
     MessageClass::success,
     LampLevel::green,
     {snippet::leaving, snippet::goodDay},
     Alert::success},
    {Arrival::tooHigh,
     TextId::missedApproachTooHigh,
     MessageClass::trouble,
     LampLevel::yellow,
     {snippet::requestAirport, snippet::hell},
     Alert::failure},
    {Arrival::wrongHeading,
     TextId::missedApproachHeading,
     MessageClass::trouble,
     LampLevel::yellow,
     {snippet::requestAirport, snippet::hell},
     Alert::failure},
    {Arrival::tooLowToExit,
     TextId::cannotExit,
     MessageClass::trouble,
     LampLevel::yellow,
     {snippet::requestVor, snippet::hell},
     Alert::failure},
}};

void post(Simulation& simulation, TextId text, const Flight& flight, VorIndex place,
          MessageClass messageClass) {
    simulation.events.messagePosted(FormatStringId(text, {flight.callsign, simulation.game.vor(place).ident}),
                                    messageClass);
}

TextId drawComplaint(RandomGenerator& random) {
    const int draw = RandomPercent(random);
    if (draw < 30) {
        return TextId::towerWaiting;
    }
    return draw < 60 ? TextId::stillWaiting : TextId::immediateDeparture;
}

} // namespace

Arrival arrivalOf(const GameState& game, const Flight& flight) {
    const Vor& destination = game.vor(flight.destination);
    const PlanStep& step = flight.current();
    if (step.cell() != destination.cell) {
        return Arrival::none;
    }
    if (!destination.isAirport) {
        return step.altitude >= exitAltitude ? Arrival::exit : Arrival::tooLowToExit;
    }
    if (step.heading != destination.runwayHeading) {
        return Arrival::wrongHeading;
    }
    return step.altitude <= approachAltitude ? Arrival::landing : Arrival::tooHigh;
}

void reportArrival(Simulation& simulation, Flight& flight) {
    const Arrival arrival = arrivalOf(simulation.game, flight);
    for (const ArrivalReport& report : arrivalReports) {
        if (report.arrival == arrival) {
            post(simulation, report.text, flight, flight.destination, report.messageClass);
            callUnlessLit(simulation, report.lamp, flight, {report.words[0], report.words[1]});
            flight.alert = report.alert;
        }
    }
}

void reportLost(Simulation& simulation, const Flight& flight) {
    simulation.events.messagePosted(FormatStringId(TextId::flightLost, {flight.callsign}),
                                    MessageClass::trouble);
}

void reportDepartureRequest(Simulation& simulation, const Flight& flight) {
    post(simulation, TextId::requestDeparture, flight, flight.origin, MessageClass::information);
    callOnRadio(simulation.events, flight, {snippet::request});
}

void reportEntry(Simulation& simulation, const Flight& flight) {
    post(simulation, TextId::enteringAirspace, flight, flight.destination, MessageClass::information);
    callOnRadio(simulation.events, flight, {snippet::levelAt, VoiceAltitudeCode(flight.current().altitude)});
}

void reportComplaint(Simulation& simulation, const Flight& flight) {
    post(simulation, drawComplaint(simulation.random), flight, flight.origin, MessageClass::trouble);
    if (isLampLit(simulation.lamps, LampLevel::yellow)) {
        return;
    }
    // The word is drawn only when the call is made.
    if (RandomPercent(simulation.random) > repeatAbove) {
        callOnRadio(simulation.events, flight, {snippet::repeat, snippet::still});
    } else {
        callOnRadio(simulation.events, flight, {snippet::still});
    }
}

} // namespace ventrel
