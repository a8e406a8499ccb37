#include "lessons/lesson_shift.h"

#include <algorithm>

#include "sim/course_planner.h"
#include "sim/schedule.h"
#include "sim/scoring.h"

namespace ventrel {

namespace {

constexpr ClockSeconds lessonLength = 900_s;
constexpr ClockSeconds notYet = 5985_s; // for flights that a step brings: nobody waits that long

/// Calls `use` with what stands between each pair of braces of the text.
void forEachPlaceholder(std::string_view text, const auto& use) {
    while (true) {
        const auto open = text.find('{');
        if (open == std::string_view::npos) {
            return;
        }
        const auto close = text.find('}', open);
        use(text.substr(open + 1, close == std::string_view::npos ? close : close - open - 1));
        text.remove_prefix(close == std::string_view::npos ? text.size() : close + 1);
    }
}

bool isFlightLetter(std::string_view name, std::size_t flights) {
    return name.size() == 1 && name.front() >= 'A' && static_cast<std::size_t>(name.front() - 'A') < flights;
}

class LessonChecker {
public:
    LessonChecker(const Lesson& lesson, const Airspace& airspace) : lesson_(lesson), airspace_(airspace) {}

    Result<> check() {
        for (const LessonFlight& flight : lesson_.flights) {
            checkFlight(flight);
        }
        checkAnswers(lesson_.answers);
        for (const LessonStep& step : lesson_.steps) {
            checkText(step.text);
            for (const LessonShow& show : step.shows) {
                checkSpot(show.spot);
                checkCondition(show.when);
            }
            checkCondition(step.until);
            checkAnswers(step.answers);
        }
        return fault_.empty() ? Result<>{} : failed("lesson '" + lesson_.name + "': " + fault_);
    }

private:
    void note(std::string fault) {
        if (fault_.empty()) {
            fault_ = std::move(fault);
        }
    }

    const Vor* pointOf(const std::string& ident) {
        const auto found = pointOfIdent(airspace_.points, ident);
        if (!found) {
            note("there is no point '" + ident + "' in " + airspace_.name);
        }
        return found ? &airspace_.points[found->place()] : nullptr;
    }

    void checkFlight(const LessonFlight& flight) {
        const std::string who = std::string("flight ") + flight.letter;
        const Vor* to = pointOf(flight.to);
        if (to != nullptr && !to->isAirport && !to->isExit) {
            note(who + " cannot end at " + flight.to);
        }
        if (flight.from.empty()) {
            return;
        }
        const Vor* from = pointOf(flight.from);
        if (from != nullptr && !from->isAirport) {
            note(who + " cannot depart from " + flight.from + ", which is no airport");
        }
        if (flight.from == flight.to) {
            note(who + " ends where it begins");
        }
    }

    void checkAnswers(const std::vector<LessonAnswer>& answers) {
        for (const LessonAnswer& answer : answers) {
            checkCondition(answer.when);
            checkText(answer.text);
        }
    }

    void checkCondition(const Condition& condition) {
        for (const FactTerms& terms : condition) {
            for (const FactTerm& term : terms) {
                checkTerm(term);
            }
        }
    }

    void checkTerm(const FactTerm& term) {
        if (term.point.empty()) {
            return;
        }
        const Vor* point = pointOf(term.point);
        const bool needsRunway = term.fact == Fact::onFinal || term.fact == Fact::inLine;
        if (needsRunway && point != nullptr && !point->isAirport) {
            note(term.point + " has no runway");
        }
    }

    void checkSpot(const LessonSpot& spot) {
        if (spot.point.empty()) {
            return;
        }
        const Vor* point = pointOf(spot.point);
        if (spot.part == DeskPart::cone && point != nullptr && !point->isAirport) {
            note(spot.point + " has no approach cone");
        }
    }

    void checkText(const std::string& text) {
        forEachPlaceholder(text, [this](std::string_view name) {
            if (isFlightLetter(name, lesson_.flights.size())) {
                return;
            }
            const Vor* point = pointOf(std::string(name));
            if (point != nullptr && !point->isAirport) {
                note(std::string(name) + " has no runway");
            }
        });
    }

    const Lesson& lesson_;
    const Airspace& airspace_;
    std::string fault_;
};

/// The flight of the schedule becomes the lesson's.
void writeFlight(Game& game, FlightIndex index, const LessonFlight& written) {
    const auto point = [&game](const std::string& ident) { return pointOfIdent(game.vors(), ident); };
    Flight& flight = game.flight(index);
    const int voice = flight.pilotVoice;
    flight = Flight{};
    flight.inPlay = true;
    flight.scheduledAt = written.at.value_or(notYet);
    flight.pilotVoice = voice;
    flight.destination = point(written.to).value_or(PointIndex{0});
    flight.destinationKind =
        game.vor(flight.destination).isAirport ? DestinationKind::airport : DestinationKind::exit;
    if (written.from.empty()) {
        flight.plan = Plan{{.cell = written.cell, .altitude = written.altitude, .heading = written.heading}};
        if (written.isDirect) {
            buildCourse(flight, game.vors(), flight.destination, written.altitude);
        }
    } else {
        flight.origin = point(written.from);
        flight.originKind = OriginKind::airport;
        flight.groundState = GroundState::waiting;
        placeFlight(game, flight, false);
    }
}

/// Draws until the flight is heavy or not, as it is written. Where no flight may be heavy it stays light.
void drawCallsign(Game& game, FlightIndex index, bool heavy) {
    constexpr int mostDraws = 200;
    Flight& flight = game.flight(index);
    const auto isTaken = [&] {
        return std::ranges::any_of(game.flights, [&](const Flight& other) {
            return &other != &flight && std::string_view(other.callsign) == std::string_view(flight.callsign);
        });
    };
    for (int draw = 0; draw < mostDraws; ++draw) {
        makeCallsign(game, flight);
        if (flight.heavy == heavy && !isTaken()) {
            return;
        }
    }
}

} // namespace

Result<> checkLesson(const Lesson& lesson, const Airspace& airspace) {
    return LessonChecker(lesson, airspace).check();
}

Game makeLessonGame(const Lesson& lesson, AirspacePtr airspace, const ShiftSetup& setup) {
    ShiftSetup ours = setup;
    ours.skill = Skill::custom;
    ours.custom = {static_cast<int>(lesson.flights.size()), lessonLength, 0};
    ours.cloudCover = false;
    ours.directEntry = false;
    ours.voiceSetCount = 0; // handing voices out would draw, and give other callsigns
    ours.cloudSizes = {};
    Game game(std::move(airspace), ours, RandomGenerator{lesson.seed});
    game.possibleScore = 0;
    for (const FlightIndex i : game.flightPlaces()) {
        writeFlight(game, i, lesson.flights[i.place()]);
    }
    for (const FlightIndex i : game.flightPlaces()) {
        Flight& flight = game.flight(i);
        drawCallsign(game, i, lesson.flights[i.place()].isHeavy);
        flight.pilotVoice = setup.voiceSetCount > 0 ? i.number() % setup.voiceSetCount : 0;
        game.possibleScore +=
            flight.destinationKind == DestinationKind::airport ? points::landing : points::exit;
    }
    return game;
}

void bringFlight(Game& game, FlightIndex index) {
    Flight& flight = game.flight(index);
    if (!flight.isActive()) {
        flight.scheduledAt = std::min(flight.scheduledAt, timeOfNextStep(game));
    }
}

std::optional<PointIndex> pointOfIdent(std::span<const Vor> points, std::string_view ident) {
    const auto found = std::ranges::find(points, ident, &Vor::ident);
    return found == points.end() ? std::nullopt
                                 : std::optional(PointIndex{static_cast<int>(found - points.begin())});
}

std::string lessonText(const Game& game, std::string_view text) {
    std::string filled;
    while (true) {
        const auto open = text.find('{');
        const auto close = text.find('}', open);
        filled += text.substr(0, open);
        if (open == std::string_view::npos || close == std::string_view::npos) {
            return filled;
        }
        const std::string_view name = text.substr(open + 1, close - open - 1);
        if (isFlightLetter(name, game.flights.size())) {
            filled += std::string_view(game.flights[static_cast<std::size_t>(name.front() - 'A')].callsign);
        } else if (const auto point = pointOfIdent(game.vors(), name)) {
            filled += std::to_string(game.vor(*point).runwayHeading);
        }
        text.remove_prefix(close + 1);
    }
}

} // namespace ventrel
