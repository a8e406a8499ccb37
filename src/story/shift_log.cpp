#include "story/shift_log.h"

#include <algorithm>

#include "sim/reports.h"
#include "story/shift_words.h"

namespace ventrel {

namespace {

FlightStory beginningOf(const Game& game, const Flight& flight) {
    return {.callsign = std::string(std::string_view(flight.callsign)),
            .from = copyVor(game, flight.origin).ident,
            .to = game.vor(flight.destination).ident,
            .scheduled = flight.scheduledAt};
}

FlightEnd endBy(ScoreCause cause) {
    switch (cause) {
    case ScoreCause::landing: return FlightEnd::landed;
    case ScoreCause::exit: return FlightEnd::left;
    case ScoreCause::lost: return FlightEnd::lost;
    default: return FlightEnd::none;
    }
}

} // namespace

void ShiftLog::shiftBegun(Skill skill, std::uint32_t seed) {
    ++edition_;
    story_ = {.airspace = game_.airspace->name,
              .controller = game_.controllerName,
              .skill = skill,
              .seed = seed,
              .length = game_.shiftLength,
              .possibleScore = game_.possibleScore,
              .freeOrders = game_.freeOrders,
              .places = {},
              .flights = {},
              .entries = {},
              .changes = {},
              .nearMisses = {},
              .collisionCell = {},
              .clock = game_.clock};
    for (const Vor& vor : game_.vors()) {
        story_.places.push_back({vor.ident, vor.cell, vor.isAirport});
    }
    for (const Flight& flight : game_.flights) {
        story_.flights.push_back(beginningOf(game_, flight));
    }
    add(LogKind::line, std::nullopt, setUpWords(game_));
}

LogEntry& ShiftLog::add(LogKind kind, std::optional<FlightIndex> flight, std::string words) {
    story_.clock = game_.clock;
    return story_.entries.emplace_back(
        LogEntry{.kind = kind, .clock = game_.clock, .flight = flight, .words = std::move(words)});
}

void ShiftLog::addLine(std::optional<FlightIndex> flight, std::string words, MessageClass messageClass) {
    LogEntry& line = add(LogKind::line, flight, std::move(words));
    line.messageClass = messageClass;
    line.wasDropped = !hasRoom(game_.messages);
}

void ShiftLog::linePosted(std::string_view words, MessageClass messageClass) {
    addLine(std::nullopt, std::string(words), messageClass);
}

void ShiftLog::tickerCleared() {
    for (const MessageSlot& slot : game_.messages.slots) {
        const auto isWaiting = [&slot](const LogEntry& entry) {
            return entry.kind == LogKind::line && !entry.wasDropped && entry.words == slot.text;
        };
        const auto last = std::ranges::find_if(story_.entries.rbegin(), story_.entries.rend(), isWaiting);
        if (slot.inUse && last != story_.entries.rend()) {
            last->wasDropped = true;
            ++edition_;
        }
    }
}

void ShiftLog::endEarly(ShiftEnd end, std::string_view words) {
    if (story_.exists() && story_.end == ShiftEnd::running) {
        story_.end = end;
        add(LogKind::line, std::nullopt, std::string(words));
    }
}

void ShiftLog::shiftGivenUp() {
    endEarly(ShiftEnd::givenUp, "The shift was given up.");
}

void ShiftLog::replayLeft() {
    endEarly(ShiftEnd::left, "The replay was left here.");
}

void ShiftLog::reported(const Report& report) {
    addLine(report.flight, reportText(game_, report), reportClass(report.topic));
    if (report.other) {
        story_.entries.back().other = report.other;
        const PlanStep& now = game_.flight(report.flight).current();
        story_.nearMisses.push_back({game_.clock, report.flight, *report.other, now.cell, now.altitude});
    }
}

void ShiftLog::pilotSpoke(const RadioCall& call) {
    add(LogKind::call, call.flight, callWords(game_, call));
}

void ShiftLog::scoreChanged(const ScoreChange& change) {
    story_.changes.push_back({game_.clock, change, story_.score});
    story_.score = change.score;
    if (change.delta != 0) {
        add(LogKind::points, change.flight, scoreWords(change)).points = change.delta;
    }
    if (change.flight && isKnown(*change.flight)) {
        story_.flights[change.flight->place()].points += change.delta;
        if (const FlightEnd end = endBy(change.cause); end != FlightEnd::none) {
            noteEnd(*change.flight, end);
        }
    }
}

void ShiftLog::orderSent(FlightIndex flight, const PanelOrder& order) {
    if (isKnown(flight)) {
        ++story_.flights[flight.place()].orders;
    }
    add(LogKind::order, flight, orderWords(game_, flight, order));
}

void ShiftLog::flightActivated(FlightIndex flight) {
    if (isKnown(flight)) {
        story_.flights[flight.place()].appeared = game_.clock;
    }
}

void ShiftLog::noteEnd(FlightIndex flight, FlightEnd end) {
    if (isKnown(flight)) {
        story_.flights[flight.place()].end = end;
        story_.flights[flight.place()].ended = game_.clock;
    }
}

void ShiftLog::shiftEnded(ShiftResult result) {
    story_.clock = game_.clock;
    if (result != ShiftResult::collision) {
        story_.end = ShiftEnd::everyFlightHandled;
        return;
    }
    story_.end = ShiftEnd::collision;
    story_.collisionCell = game_.flight(game_.collisionFlights.front()).current().cell;
    for (const FlightIndex flight : game_.collisionFlights) {
        noteEnd(flight, FlightEnd::collided);
    }
    add(LogKind::line, std::nullopt, collisionWords(game_)).messageClass = MessageClass::emergency;
}

} // namespace ventrel
