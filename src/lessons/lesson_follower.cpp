#include "lessons/lesson_follower.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "lessons/lesson_shift.h"
#include "sim/grid.h"

namespace ventrel {

namespace {

constexpr std::string_view collisionAnswer =
    "Two aircraft have met, and the shift is over. It happens to everyone once. Would you like to try the "
    "lesson again?";
constexpr std::string_view endedAnswer =
    "All flights are gone before the lesson was through. No harm done: begin it again, and take your time.";

bool isDirectTo(const Game& game, const PlanStep& step, const std::string& ident) {
    const auto target = step.directTarget.point();
    return target && !step.hold && (ident.empty() || game.vor(*target).ident == ident);
}

int distanceBetween(Cell a, Cell b) {
    return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y));
}

/// Whether a flight that flies on the runway's heading comes over the airport.
bool isInLine(Cell cell, const Vor& airport) {
    for (int move = 0; move < gridSize && cell != airport.cell; ++move) {
        cell = stepCell(cell, airport.runwayHeading);
    }
    return cell == airport.cell;
}

} // namespace

LessonFollower::LessonFollower(Lesson lesson) : lesson_(std::move(lesson)), fates_(lesson_.flights.size()) {
    beginStep(0);
}

void LessonFollower::reported(const Report& report) {
    Fate& fate = fates_.at(report.flight.place());
    switch (report.topic) {
    case Topic::landing: fate.landed = true; break;
    case Topic::leaving: fate.left = true; break;
    case Topic::tooHighToLand: fate.missedAltitude = true; break;
    case Topic::wrongHeadingToLand: fate.missedHeading = true; break;
    case Topic::tooLowToLeave: fate.missedExit = true; break;
    case Topic::tooCloseForDirect: fate.refusedDirect = true; break;
    case Topic::nearMiss:
        fate.nearMiss = true;
        if (report.other) {
            fates_.at(report.other->place()).nearMiss = true;
        }
        break;
    default: break;
    }
}

void LessonFollower::scoreChanged(const ScoreChange& change) {
    if (change.cause == ScoreCause::lost && change.flight) {
        fates_.at(change.flight->place()).lost = true;
    }
}

void LessonFollower::orderSent(FlightIndex flight, const PanelOrder&) {
    Fate& fate = fates_.at(flight.place());
    fate = {.landed = fate.landed,
            .left = fate.left,
            .lost = fate.lost,
            .ordered = true,
            .lastCell = fate.lastCell};
}

void LessonFollower::shiftEnded(ShiftResult result) {
    result_ = result;
}

const LessonNote& LessonFollower::follow(const LessonFacts& facts) {
    countMoves(facts.game);
    if (isOver_) {
        return note_;
    }
    while (!lesson_.steps[step_].until.empty() && holds(lesson_.steps[step_].until, facts)) {
        beginStep(step_ + 1);
    }
    const LessonStep& step = lesson_.steps[step_];
    if (step.until.empty()) {
        show(NoteKind::done, step.text, facts);
    } else if (const LessonAnswer* answer = answerFor(facts)) {
        show(answer->stops ? NoteKind::stop : NoteKind::answer, answer->text, facts);
    } else if (result_) {
        const bool collided = *result_ == ShiftResult::collision;
        show(NoteKind::stop, std::string(collided ? collisionAnswer : endedAnswer), facts);
    } else {
        show(NoteKind::task, step.text, facts);
    }
    return note_;
}

void LessonFollower::countMoves(const Game& game) {
    for (const FlightIndex i : game.flightPlaces()) {
        Fate& fate = fates_.at(i.place());
        const Flight& flight = game.flight(i);
        if (flight.current().cell != fate.lastCell) {
            fate.moves += flight.isOnScope() ? 1 : 0;
            fate.lastCell = flight.current().cell;
        }
    }
}

void LessonFollower::beginStep(std::size_t step) {
    step_ = step;
    for (const std::size_t flight : lesson_.steps[step].brought) {
        brought_.emplace_back(static_cast<int>(flight));
    }
    skipped_ = false;
    read_ = false;
    for (Fate& fate : fates_) {
        fate = {.landed = fate.landed, .left = fate.left, .lost = fate.lost, .lastCell = fate.lastCell};
    }
}

std::vector<FlightIndex> LessonFollower::takeBrought() {
    return std::exchange(brought_, {});
}

const LessonAnswer* LessonFollower::answerFor(const LessonFacts& facts) const {
    for (const bool stops : {true, false}) {
        for (const auto* answers : {&lesson_.steps[step_].answers, &lesson_.answers}) {
            const auto found = std::ranges::find_if(*answers, [&](const LessonAnswer& answer) {
                return answer.stops == stops && holds(answer.when, facts);
            });
            if (found != answers->end()) {
                return &*found;
            }
        }
    }
    return nullptr;
}

LessonSpot LessonFollower::spotFor(const LessonFacts& facts) const {
    LessonSpot spot;
    for (const LessonShow& show : lesson_.steps[step_].shows) {
        if (show.when.empty() || holds(show.when, facts)) {
            spot = show.spot;
        }
    }
    return spot;
}

void LessonFollower::show(NoteKind kind, const std::string& text, const LessonFacts& facts) {
    const LessonStep& step = lesson_.steps[step_];
    const auto asksToRead = [](const FactTerms& terms) {
        return std::ranges::any_of(terms, [](const FactTerm& term) { return term.fact == Fact::read; });
    };
    const bool isRead = std::ranges::any_of(step.until, asksToRead);
    note_ = {.kind = kind,
             .text = lessonText(facts.game, text),
             .spot = kind == NoteKind::stop ? LessonSpot{} : spotFor(facts),
             .needsButton = kind == NoteKind::task && isRead,
             .step = step_};
    isOver_ = kind == NoteKind::stop || kind == NoteKind::done;
}

bool LessonFollower::holds(const Condition& condition, const LessonFacts& facts) const {
    return std::ranges::any_of(condition, [&](const FactTerms& terms) {
        return std::ranges::all_of(terms, [&](const FactTerm& term) { return holds(term, facts); });
    });
}

bool LessonFollower::holds(const FactTerm& term, const LessonFacts& facts) const {
    return isSo(term, facts) != term.isNegated;
}

bool LessonFollower::isSo(const FactTerm& term, const LessonFacts& facts) const {
    switch (term.fact) {
    case Fact::paused: return facts.paused;
    case Fact::skipped: return skipped_;
    case Fact::read: return read_;
    case Fact::collided: return result_ == ShiftResult::collision;
    case Fact::ended: return result_ == ShiftResult::everyFlightHandled;
    default:
        return term.flight &&
               (isSoOfPanel(term, *term.flight, facts) || isSoOfFlight(term, *term.flight, facts));
    }
}

bool LessonFollower::isSoOfPanel(const FactTerm& term, std::size_t flight, const LessonFacts& facts) const {
    if (!facts.panelFlight || facts.panelFlight->place() != flight) {
        return false;
    }
    const PanelOrder& order = facts.pending;
    switch (term.fact) {
    case Fact::selected: return true;
    case Fact::panelAltitude: return order.altitude == term.number;
    case Fact::panelHeading: return !order.directTarget.isOn() && order.heading == term.number;
    case Fact::panelDirect: return isDirectTo(facts.game, order, term.point);
    case Fact::panelHold: return order.directTarget.isOn() && order.hold;
    case Fact::panelSpeed: return order.speed == term.speed;
    default: return false;
    }
}

bool LessonFollower::isSoOfFlight(const FactTerm& term, std::size_t place, const LessonFacts& facts) const {
    const Flight& flight = facts.game.flights.at(place);
    const Fate& fate = fates_.at(place);
    const PlanStep& now = flight.current();
    const auto point = pointOfIdent(facts.game.vors(), term.point);
    switch (term.fact) {
    case Fact::active: return flight.inPlay && flight.isActive();
    case Fact::toldAltitude: return flight.lastStep().altitude == term.number;
    case Fact::toldHeading: return !now.directTarget.isOn() && flight.lastStep().heading == term.number;
    case Fact::toldDirect: return isDirectTo(facts.game, now, term.point);
    case Fact::toldHold: return now.hold;
    case Fact::toldSpeed: return now.speed == term.speed;
    case Fact::waiting:
        return flight.inPlay && flight.isActive() && flight.groundState == GroundState::waiting;
    case Fact::rolling:
        return flight.groundState == GroundState::cleared || flight.groundState == GroundState::rolling;
    case Fact::airborne: return flight.isOnScope();
    case Fact::atAltitude: return now.altitude == term.number;
    case Fact::atHeading: return now.heading == term.number;
    case Fact::within: return point && distanceBetween(now.cell, facts.game.vor(*point).cell) <= term.number;
    case Fact::inLine: return point && flight.isOnScope() && isInLine(now.cell, facts.game.vor(*point));
    case Fact::onFinal:
        return point && flight.isOnScope() && now.heading == facts.game.vor(*point).runwayHeading &&
               isInLine(now.cell, facts.game.vor(*point));
    case Fact::moved: return fate.moves >= term.number;
    case Fact::landed: return fate.landed;
    case Fact::left: return fate.left;
    case Fact::lost: return fate.lost;
    case Fact::gone: return fate.landed || fate.left || fate.lost;
    case Fact::missedHeading: return fate.missedHeading;
    case Fact::missedAltitude: return fate.missedAltitude;
    case Fact::missedExit: return fate.missedExit;
    case Fact::refusedDirect: return fate.refusedDirect;
    case Fact::nearMiss: return fate.nearMiss;
    case Fact::ordered: return fate.ordered;
    default: return false;
    }
}

} // namespace ventrel
