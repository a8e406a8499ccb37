#include "tools/sim/trace_writer.h"

namespace ventrel {

namespace {

constexpr int timeWasUp = 1;

template <typename Enum>
int number(Enum value) {
    return static_cast<int>(value);
}

/// Writes the elements with commas between them.
template <typename Range, typename Write>
void writeList(Output& output, const Range& range, Write write) {
    bool isFirst = true;
    for (const auto& element : range) {
        if (!isFirst) {
            output << ',';
        }
        isFirst = false;
        write(element);
    }
}

void writeStep(Output& output, const PlanStep& step) {
    output << step.x << ',' << step.y << ',' << step.altitude << ',' << step.heading << ',' << step.speed
           << ',' << step.directTarget << ',' << step.hold;
}

void writePoint(Output& output, const Vor& vor) {
    output << R"({"ident":)";
    output.quoted(vor.ident) << R"(,"x":)" << vor.cell.x << R"(,"y":)" << vor.cell.y << R"(,"heading":)"
                             << vor.runwayHeading << R"(,"airport":)" << number(vor.isAirport)
                             << R"(,"exit":)" << number(vor.isExit) << R"(,"major":)" << number(vor.isMajor)
                             << '}';
}

void writePlan(Output& output, const Flight& flight) {
    const auto steps = std::span{flight.plan}.first(static_cast<std::size_t>(flight.planLength));
    writeList(output, steps, [&](const PlanStep& step) {
        output << '[';
        writeStep(output, step);
        output << ']';
    });
}

void writeFlight(Output& output, const Flight& flight) {
    output << R"({"callsign":)";
    output.quoted(flight.callsign) << R"(,"phrase":)";
    output.quoted(flight.callsignPhrase)
        << R"(,"voice":)" << flight.pilotVoice << R"(,"radio":)" << flight.radioId << R"(,"at":)"
        << flight.scheduledAt << R"(,"origin":)" << flight.origin << R"(,"destination":)"
        << flight.destination << R"(,"originKind":)" << number(flight.originKind) << R"(,"destinationKind":)"
        << number(flight.destinationKind) << R"(,"ground":)" << number(flight.groundState) << R"(,"heavy":)"
        << number(flight.heavy) << R"(,"plan":[)";
    writePlan(output, flight);
    output << "]}";
}

void writeRow(Output& output, FlightIndex index, const Flight& flight) {
    output << '[' << index << ',' << number(flight.inPlay) << ',' << flight.activatedAt << ','
           << number(flight.announced) << ',' << number(flight.groundState) << ',' << number(flight.alert)
           << ',';
    writeStep(output, flight.current());
    output << ',' << flight.planIndex << ',' << flight.planLength << ']';
}

} // namespace

Output& TraceWriter::begin(std::string_view type) {
    return output_ << R"({"type":")" << type << R"(","clock":)" << clock();
}

void TraceWriter::end() {
    output_ << '}';
    output_.endLine();
}

void TraceWriter::messagePosted(std::string_view text, MessageClass messageClass) {
    begin("message") << R"(,"class":)" << number(messageClass) << R"(,"text":)";
    output_.quoted(text);
    end();
}

void TraceWriter::pilotSpoke(const RadioCall& call) {
    begin("radio") << R"(,"voice":)" << call.voice << R"(,"tag":)" << call.tag << R"(,"phrase":)";
    output_.quoted(call.phrase) << R"(,"noise":)" << number(call.noise);
    end();
}

void TraceWriter::lampChanged(LampLevel lit) {
    begin("lamp") << R"(,"level":)" << number(lit);
    end();
}

void TraceWriter::scoreChanged(int delta, int score) {
    begin("score") << R"(,"delta":)" << delta << R"(,"score":)" << score;
    end();
}

void TraceWriter::shiftSetUp(const GameState& game) {
    output_ << R"({"type":"shift","airport":)";
    output_.quoted(game.airport.name)
        << R"(,"planes":)" << game.planeCount() << R"(,"length":)" << game.shiftLength << R"(,"bonus":)"
        << game.bonus << R"(,"possible":)" << game.possibleScore << R"(,"free":)" << game.freeOrders
        << R"(,"clouds":)" << static_cast<int>(game.clouds.size()) << R"(,"points":[)";
    writeList(output_, game.vors, [&](const Vor& vor) { writePoint(output_, vor); });
    output_ << R"(],"flights":[)";
    writeList(output_, game.flights, [&](const Flight& flight) { writeFlight(output_, flight); });
    output_ << ']';
    end();
}

void TraceWriter::orderExecuted(FlightIndex flight, OrderResult result) {
    begin("order") << R"(,"flight":)" << flight << R"(,"result":)" << number(result);
    end();
}

void TraceWriter::stepTaken(const GameState& game) {
    begin("step") << R"(,"score":)" << game.score << R"(,"listed":)" << game.listedCount << R"(,"flights":[)";
    bool isFirst = true;
    for (FlightIndex i = 0; i < game.planeCount(); ++i) {
        const Flight& flight = game.flight(i);
        if (!flight.isActive() && !flight.announced) {
            continue;
        }
        if (!isFirst) {
            output_ << ',';
        }
        isFirst = false;
        writeRow(output_, i, flight);
    }
    output_ << ']';
    end();
}

void TraceWriter::runEnded(const GameState& game, const RunResult& result) {
    begin("end") << R"(,"result":)" << (result ? number(*result) : timeWasUp) << R"(,"score":)" << game.score
                 << R"(,"possible":)" << game.possibleScore;
    if (result == ShiftResult::collision) {
        output_ << R"(,"collision":[)" << game.collisionFlights[0] << ',' << game.collisionFlights[1] << ']';
    }
    end();
}

} // namespace ventrel
