#include "lessons/pupil.h"

#include <algorithm>
#include <filesystem>

#include "controller/controller.h"
#include "lessons/lesson_file.h"
#include "sim/grid.h"

namespace ventrel {

namespace {

namespace fs = std::filesystem;

constexpr int mostActs = 2000;

Lesson shippedLesson(std::size_t place) {
    return loadLesson(lessonFiles(fs::path(PROGRAM_FOLDER) / "lessons").at(place)).value();
}

Game gameOf(const Lesson& lesson, int windowWidth, int voiceSets) {
    const fs::path airport =
        fs::path(PROGRAM_FOLDER) / "apt" / (lesson.airspace + (windowWidth == 800 ? "8.apt" : "10.apt"));
    return makeLessonGame(lesson, loadAirport(airport).value(),
                          {.voiceSetCount = voiceSets, .layout = scopeLayoutFor(windowWidth).value()});
}

FlightIndex flightOf(const FactTerm& term) {
    return FlightIndex{static_cast<int>(term.flight.value_or(0))};
}

bool isIn(Fact fact, Fact first, Fact last) {
    return fact >= first && fact <= last;
}
bool isSetting(Fact fact) {
    return isIn(fact, Fact::panelAltitude, Fact::panelSpeed);
}
bool isOrder(Fact fact) {
    return isIn(fact, Fact::toldAltitude, Fact::toldSpeed);
}

} // namespace

Pupil::Pupil(std::size_t lesson, int windowWidth, int voiceSets)
    : game(gameOf(shippedLesson(lesson), windowWidth, voiceSets)), follower(shippedLesson(lesson)) {
    look();
}

const LessonNote& Pupil::look() {
    const LessonNote& note = follower.follow({game, panelFlight_, pending_, paused_});
    for (const FlightIndex flight : follower.takeBrought()) {
        bringFlight(game, flight);
    }
    return note;
}

bool Pupil::isTrue(const FactTerm& term) const {
    return follower.holds(term, {game, panelFlight_, pending_, paused_});
}

void Pupil::playTo(std::size_t step) {
    for (int act = 0; act < mostActs && follower.note().step < step; ++act) {
        const FactTerms& wanted = lesson().steps[follower.note().step].until.front();
        const auto next =
            std::ranges::find_if(wanted, [this](const FactTerm& term) { return !isTrue(term); });
        if (next != wanted.end()) {
            fulfil(*next);
        }
        look();
    }
}

void Pupil::select(FlightIndex flight) {
    if (game.flight(flight).isActive()) {
        panelFlight_ = flight;
        pending_ = game.flight(flight).current();
    }
}

void Pupil::awaitAndSelect(FlightIndex flight) {
    while (!game.flight(flight).isActive()) {
        takeStep();
    }
    select(flight);
}

void Pupil::send(FlightIndex flight) {
    executeOrder(game, flight, pending_, follower);
}

void Pupil::takeStep() {
    follower.clockSkipped();
    step(game, follower);
}

/// One act towards the term: a player's.
void Pupil::fulfil(const FactTerm& term) {
    const FlightIndex flight = flightOf(term);
    const bool isAtHand = panelFlight_ == flight;
    if (term.fact == Fact::read) {
        follower.noteRead();
    } else if (term.fact == Fact::paused) {
        paused_ = !paused_;
    } else if (term.fact == Fact::selected || (isSetting(term.fact) && term.fact != Fact::panelDirect)) {
        isAtHand&& term.fact != Fact::selected ? set(term) : select(flight);
        game.flight(flight).isActive() ? void() : takeStep();
    } else if (term.fact == Fact::panelDirect) {
        if (!isAtHand || game.flight(flight).current().directTarget.isOn()) {
            select(flight); // anew: a departure's panel still stands on the ground
        }
        set(term);
    } else if (isOrder(term.fact)) {
        isAtHand ? void() : select(flight);
        set(term);
        game.flight(flight).isActive() ? send(flight) : takeStep();
    } else if (term.fact == Fact::waiting && game.flight(flight).isActive()) {
        send(flight);
    } else if (term.fact == Fact::onFinal &&
               isTrue({.fact = Fact::inLine, .flight = term.flight, .point = term.point})) {
        send(flight);
    } else if (term.fact == Fact::gone) {
        for (const ControllerOrder& next : Controller(game).decide(game)) {
            executeOrder(game, next.flight, next.order, follower);
        }
        takeStep();
    } else {
        takeStep();
    }
}

/// Sets on the panel what the term names.
void Pupil::set(const FactTerm& term) {
    const auto point = pointOfIdent(game.vors(), term.point).value_or(PointIndex{0});
    switch (term.fact) {
    case Fact::panelAltitude:
    case Fact::toldAltitude: pending_.altitude = term.number; break;
    case Fact::panelSpeed:
    case Fact::toldSpeed: pending_.speed = term.speed; break;
    case Fact::panelHeading:
    case Fact::toldHeading:
        pending_.directTarget = DirectTarget::none();
        pending_.heading = term.number;
        break;
    case Fact::panelHold:
    case Fact::toldHold:
        pending_.directTarget = DirectTarget::holdPlace();
        pending_.hold = true;
        break;
    default:
        pending_.directTarget = point;
        pending_.hold = false;
        break;
    }
}

/// Sets anything but what the term names.
void Pupil::spoil(const FactTerm& term) {
    switch (term.fact) {
    case Fact::panelAltitude:
    case Fact::toldAltitude: pending_.altitude = term.number == 8 ? 9 : 8; break;
    case Fact::panelSpeed:
    case Fact::toldSpeed: pending_.speed = Speed::slow; break;
    default:
        pending_.directTarget = DirectTarget::none();
        pending_.hold = false;
        pending_.heading = turned(term.number, -headingStep);
        break;
    }
}

void Pupil::bringAbout(const FactTerms& terms) {
    bool isSending = false;
    for (const FactTerm& term : terms) {
        const FlightIndex flight = flightOf(term);
        if (isSetting(term.fact) || isOrder(term.fact)) {
            panelFlight_ == flight ? void() : awaitAndSelect(flight);
            term.isNegated ? spoil(term) : set(term);
            isSending = isSending || isOrder(term.fact);
        } else if (term.fact == Fact::selected && term.isNegated) {
            panelFlight_.reset();
        } else if (term.fact == Fact::selected) {
            awaitAndSelect(flight);
        }
    }
    if (isSending) {
        send(*panelFlight_);
    }
    for (const FactTerm& term : terms) {
        befall(term);
    }
}

/// What happens to a flight, or does not, whatever the player does.
void Pupil::befall(const FactTerm& term) {
    const FlightIndex index = flightOf(term);
    Flight& flight = game.flight(index);
    const auto tell = [&](Topic topic) { follower.reported({topic, index}); };
    const auto point = pointOfIdent(game.vors(), term.point);
    switch (term.fact) {
    case Fact::skipped: follower.clockSkipped(); break;
    case Fact::paused: paused_ = !term.isNegated; break;
    case Fact::lost: follower.scoreChanged({ScoreCause::lost, index}); break;
    case Fact::left: tell(Topic::leaving); break;
    case Fact::missedHeading: tell(Topic::wrongHeadingToLand); break;
    case Fact::missedAltitude: tell(Topic::tooHighToLand); break;
    case Fact::missedExit: tell(Topic::tooLowToLeave); break;
    case Fact::refusedDirect: tell(Topic::tooCloseForDirect); break;
    case Fact::nearMiss: tell(Topic::nearMiss); break;
    case Fact::collided: follower.shiftEnded(ShiftResult::collision); break;
    case Fact::ordered: follower.orderSent(index, pending_); break;
    case Fact::active: flight.activatedAt = term.isNegated ? 0_s : 15_s; break;
    case Fact::airborne: flight.groundState = GroundState::airborne; break;
    case Fact::moved:
        for (int move = 0; move < term.number; ++move) {
            flight.current().cell.y += move % 2 == 0 ? 1 : -1;
            look();
        }
        break;
    case Fact::onFinal:
    case Fact::inLine:
        if (term.isNegated) {
            flight.current().cell.y -= 3;
        } else {
            flight.current().cell = game.vor(*point).cell;
        }
        break;
    default: break;
    }
}

} // namespace ventrel
