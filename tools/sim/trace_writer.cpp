#include "tools/sim/trace_writer.h"

#include "sim/reports.h"
#include "tools/sim/trace_text.h"

namespace ventrel {

namespace {

template <typename Enum>
int number(Enum value) {
    return static_cast<int>(value);
}

void writeStep(Output& output, const Game& game, const PlanStep& step) {
    output << step.cell.x << ',' << step.cell.y << ',' << step.altitude << ',' << step.heading << ','
           << number(step.speed) << ',' << directTargetNumber(step.directTarget, game.vorCount()) << ','
           << number(step.hold);
}

void writePlan(Output& output, const Game& game, const Flight& flight) {
    writeList(output, flight.plan.steps(), [&](const PlanStep& step) {
        output << '[';
        writeStep(output, game, step);
        output << ']';
    });
}

void writeFlight(Output& output, const Game& game, const Flight& flight) {
    output << R"({"callsign":)";
    output.quoted(flight.callsign) << R"(,"phrase":)";
    output.quoted(flight.callsignPhrase)
        << R"(,"voice":)" << flight.pilotVoice << R"(,"radio":)" << flight.radioId << R"(,"at":)"
        << flight.scheduledAt.count() << R"(,"origin":)" << numberOrNone(flight.origin)
        << R"(,"destination":)" << flight.destination.number() << R"(,"originKind":)"
        << number(flight.originKind) << R"(,"destinationKind":)" << number(flight.destinationKind)
        << R"(,"ground":)" << number(flight.groundState) << R"(,"heavy":)" << number(flight.heavy)
        << R"(,"plan":[)";
    writePlan(output, game, flight);
    output << "]}";
}

void writeRow(Output& output, const Game& game, FlightIndex index) {
    const Flight& flight = game.flight(index);
    output << '[' << index.number() << ',' << number(flight.inPlay) << ',' << flight.activatedAt.count()
           << ',' << number(flight.announced) << ',' << number(flight.groundState) << ','
           << number(flight.alert) << ',';
    writeStep(output, game, flight.current());
    output << ',' << flight.planIndex << ',' << flight.plan.length() << ']';
}

} // namespace

Output& TraceWriter::begin(std::string_view type) {
    return output_ << R"({"type":")" << type << R"(","clock":)" << game().clock.count();
}

void TraceWriter::end() {
    output_ << '}';
    output_.endLine();
}

void TraceWriter::reported(const Report& report) {
    begin("message") << R"(,"class":)" << number(reportClass(report.topic)) << R"(,"text":)";
    output_.quoted(reportText(game(), report));
    end();
}

void TraceWriter::called(const RadioCall& call) {
    const Flight& flight = game().flight(call.flight);
    begin("radio") << R"(,"voice":)" << flight.pilotVoice << R"(,"tag":)" << flight.radioId
                   << R"(,"phrase":)";
    output_.quoted(radioPhrase(game(), call)) << R"(,"noise":)" << number(call.hasNoise());
    end();
}

void TraceWriter::lampChanged(LampLevel lit) {
    begin("lamp") << R"(,"level":)" << number(lit);
    end();
}

void TraceWriter::scoreChanged(const ScoreChange& change) {
    begin("score") << R"(,"delta":)" << change.delta << R"(,"score":)" << change.score;
    end();
}

void TraceWriter::shiftSetUp() {
    const Game& shift = game();
    output_ << R"({"type":"shift","airport":)";
    output_.quoted(shift.airspace->name)
        << R"(,"planes":)" << shift.planeCount() << R"(,"length":)" << shift.shiftLength.count()
        << R"(,"bonus":)" << shift.bonus << R"(,"possible":)" << shift.possibleScore << R"(,"free":)"
        << shift.freeOrders << R"(,"clouds":)" << static_cast<int>(shift.clouds.size()) << R"(,"points":[)";
    writeList(output_, shift.vors(), [&](const Vor& vor) { writePoint(output_, vor); });
    output_ << R"(],"flights":[)";
    writeList(output_, shift.flights, [&](const Flight& flight) { writeFlight(output_, shift, flight); });
    output_ << ']';
    end();
}

void TraceWriter::orderExecuted(FlightIndex flight, OrderResult result) {
    begin("order") << R"(,"flight":)" << flight.number() << R"(,"result":)" << number(result);
    end();
}

void TraceWriter::stepTaken() {
    begin("step") << R"(,"score":)" << game().score << R"(,"listed":)" << game().listedCount
                  << R"(,"flights":[)";
    bool isFirst = true;
    for (const FlightIndex i : game().flightPlaces()) {
        const Flight& flight = game().flight(i);
        if (!flight.isActive() && !flight.announced) {
            continue;
        }
        if (!isFirst) {
            output_ << ',';
        }
        isFirst = false;
        writeRow(output_, game(), i);
    }
    output_ << ']';
    end();
}

void TraceWriter::runEnded(const RunResult& result) {
    begin("end") << R"(,"result":)" << resultNumber(result) << R"(,"score":)" << game().score
                 << R"(,"possible":)" << game().possibleScore;
    if (result == ShiftResult::collision) {
        output_ << R"(,"collision":[)" << game().collisionFlights[0].number() << ','
                << game().collisionFlights[1].number() << ']';
    }
    end();
}

} // namespace ventrel
