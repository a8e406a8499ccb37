#include "tools/sim/interactive.h"

#include <algorithm>

#include "base/windows1252.h"
#include "sim/reports.h"
#include "tools/sim/order_text.h"
#include "tools/sim/trace_text.h"

namespace ventrel {

namespace {

constexpr std::size_t longestLine = 200;

std::string_view stateOf(const Flight& flight) {
    if (flight.announced) {
        return "announced";
    }
    switch (flight.groundState) {
    case GroundState::waiting: return "waiting";
    case GroundState::cleared: return "cleared";
    case GroundState::rolling: return "rolling";
    case GroundState::airborne: break;
    }
    return "airborne";
}

std::string_view causeName(ScoreCause cause) {
    switch (cause) {
    case ScoreCause::landing: return "landing";
    case ScoreCause::exit: return "exit";
    case ScoreCause::missedApproach: return "missed approach";
    case ScoreCause::missedExit: return "missed exit";
    case ScoreCause::lost: return "lost";
    case ScoreCause::nearMiss: return "near miss";
    case ScoreCause::keptWaiting: return "kept waiting";
    case ScoreCause::order: return "order";
    case ScoreCause::bonus: break;
    }
    return "bonus";
}

/// What came from outside, as text that can stand in a line.
std::string printable(std::string_view text) {
    constexpr unsigned char firstLetter = ' ';
    constexpr unsigned char rubout = 0x7F;
    std::string shown = fromUtf8(text);
    std::ranges::replace_if(
        shown,
        [](char letter) {
            const auto code = static_cast<unsigned char>(letter);
            return code < firstLetter || code == rubout;
        },
        '?');
    return shown;
}

/// Why an order is not sent; nothing for one that the pilot will hear.
std::string_view reasonAgainst(OrderVerdict verdict) {
    switch (verdict) {
    case OrderVerdict::accepted:
    case OrderVerdict::tooCloseForDirect: return {}; // the pilot refuses the second
    case OrderVerdict::noGame: return "the shift is over";
    case OrderVerdict::unknownFlight: return "there is no such flight";
    case OrderVerdict::notInPlay: return "the flight has landed, left or is lost";
    case OrderVerdict::unknownTarget: return "there is no such map point";
    case OrderVerdict::altitudeOutOfRange: return "the altitude is out of range";
    case OrderVerdict::headingOutOfRange: return "the heading is out of range";
    case OrderVerdict::speedOutOfRange: return "the speed is out of range";
    case OrderVerdict::notActive: return "the flight is not here yet";
    case OrderVerdict::speedOfHeavy: break;
    }
    return "the speed of a heavy cannot be changed";
}

/// Where it is and how it flies; nobody knows that of a flight that is only announced.
void writePosition(Output& output, const Game& game, const PlanStep& now) {
    output << R"(,"x":)" << now.cell.x << R"(,"y":)" << now.cell.y << R"(,"altitude":)" << now.altitude
           << R"(,"heading":)" << now.heading << R"(,"speed":)" << static_cast<int>(now.speed)
           << R"(,"direct":)" << directTargetNumber(now.directTarget, game.vorCount()) << R"(,"hold":)"
           << static_cast<int>(now.hold);
}

void writeFlight(Output& output, const Game& game, FlightIndex index) {
    const Flight& flight = game.flight(index);
    output << R"({"flight":)" << index.number() << R"(,"callsign":)";
    output.quoted(flight.callsign) << R"(,"state":")" << stateOf(flight) << R"(","from":)"
                                   << numberOrNone(flight.origin) << R"(,"to":)"
                                   << flight.destination.number() << R"(,"heavy":)"
                                   << static_cast<int>(flight.heavy);
    if (!flight.announced) {
        writePosition(output, game, flight.current());
    }
    output << '}';
}

bool isKnown(const Flight& flight) {
    return flight.inPlay && (flight.isActive() || flight.announced);
}

/// A line without its end; what a line is longer than allowed is passed over. False at the input's end.
bool readLine(std::istream& input, std::string& line) {
    line.clear();
    for (int next = input.get(); next != '\n'; next = input.get()) {
        if (next == std::istream::traits_type::eof()) {
            return !line.empty();
        }
        if (line.size() <= longestLine) {
            line += static_cast<char>(next);
        }
    }
    return true;
}

} // namespace

Output& InteractiveWriter::event(std::string_view type) {
    events_ << (events_.text().empty() ? "" : ",");
    return events_ << R"({"type":")" << type << '"';
}

void InteractiveWriter::refused(std::string_view order, std::string_view reason) {
    event("refused") << R"(,"order":)";
    events_.quoted(printable(order)) << R"(,"reason":)";
    events_.quoted(printable(reason)) << '}';
}

void InteractiveWriter::reported(const Report& report) {
    event("message") << R"(,"flight":)" << report.flight.number() << R"(,"text":)";
    events_.quoted(reportText(game(), report)) << '}';
}

void InteractiveWriter::scoreChanged(const ScoreChange& change) {
    event("score") << R"(,"cause":")" << causeName(change.cause) << R"(","flight":)"
                   << numberOrNone(change.flight) << R"(,"points":)" << change.delta << '}';
}

void InteractiveWriter::writeEvents() {
    output_ << R"(,"events":[)" << events_.text() << ']';
    events_ = Output{};
}

void InteractiveWriter::endLine() {
    output_ << '}';
    output_.endLine();
    // Whoever plays waits for it.
    output_.finish();
}

void InteractiveWriter::shiftSetUp() {
    const Game& shift = game();
    output_ << R"({"type":"shift","airport":)";
    output_.quoted(shift.airspace->name)
        << R"(,"planes":)" << shift.planeCount() << R"(,"length":)" << shift.shiftLength.count()
        << R"(,"possible":)" << shift.possibleScore << R"(,"free":)" << shift.freeOrders << R"(,"points":[)";
    writeList(output_, shift.vors(), [&](const Vor& vor) { writePoint(output_, vor); });
    output_ << ']';
    endLine();
}

void InteractiveWriter::stepTaken() {
    output_ << R"({"type":"step","clock":)" << game().clock.count() << R"(,"score":)" << game().score
            << R"(,"free":)" << game().freeOrders << R"(,"flights":[)";
    bool isFirst = true;
    for (const FlightIndex i : game().flightPlaces()) {
        if (isKnown(game().flight(i))) {
            output_ << (isFirst ? "" : ",");
            isFirst = false;
            writeFlight(output_, game(), i);
        }
    }
    output_ << ']';
    writeEvents();
    endLine();
}

void InteractiveWriter::runEnded(const RunResult& result) {
    output_ << R"({"type":"end","clock":)" << game().clock.count() << R"(,"result":)" << resultNumber(result)
            << R"(,"score":)" << game().score << R"(,"possible":)" << game().possibleScore;
    writeEvents();
    endLine();
}

void takeOrders(std::istream& input, Game& game, InteractiveWriter& writer) {
    std::string line;
    while (readLine(input, line)) {
        if (line.size() > longestLine) {
            writer.refused(line.substr(0, longestLine), "the line is too long");
            continue;
        }
        const auto read = readOrderLine(line, game);
        if (!read) {
            writer.refused(line, read.error().text);
            continue;
        }
        const auto& next = *read;
        if (!next && line.find('#') != std::string::npos) {
            continue;
        }
        if (!next) {
            return;
        }
        const std::string_view reason = reasonAgainst(judgeOrder(game, next->flight, next->order));
        if (reason.empty()) {
            writer.send(game, next->flight, next->order);
        } else {
            writer.refused(line, reason);
        }
    }
}

} // namespace ventrel
