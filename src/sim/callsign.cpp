// Callsigns are part of the schedule; they stand in a file of their own because of their own small rules.

#include "sim/phrase.h"
#include "sim/schedule.h"

namespace ventrel {

namespace {

constexpr int radioIds = 32768;
constexpr int threeDigitsBelow = 80; // percent of the flights with a three-digit number
constexpr int heavyBelow = 25;       // percent of the candidates that are heavy

int drawDigitOtherThan(int other, RandomGenerator& random) {
    for (;;) {
        const int digit = Random(random, 1, 9);
        if (digit != other) {
            return digit;
        }
    }
}

void appendDigit(Flight& flight, int digit) {
    flight.callsign += static_cast<char>('0' + digit);
    flight.callsignPhrase += VoiceDigitCode(digit);
}

/// Pass-throughs, arrivals at a major airport, and departures from one out of the area.
bool mayBeHeavy(const Game& game, const Flight& flight) {
    const bool leaves = flight.destinationKind == DestinationKind::exit;
    if (flight.originKind == OriginKind::scopeEdge) {
        return leaves || game.vor(flight.destination).isMajor;
    }
    return leaves && copyVor(game, flight.origin).isMajor;
}

} // namespace

void makeCallsign(Game& game, Flight& flight) {
    RandomGenerator& random = game.random;
    constexpr int noDigit = 0;
    const int row = Random(random, airlineCount);
    const int first = drawDigitOtherThan(noDigit, random);
    const int second = drawDigitOtherThan(first, random);
    const int third = drawDigitOtherThan(second, random);
    flight.radioId = Random(random, radioIds);
    const bool threeDigits = RandomPercent(random) < threeDigitsBelow;

    flight.callsign = airlines[static_cast<std::size_t>(row)].code;
    flight.callsignPhrase = {};
    flight.callsignPhrase += VoiceAirlineCode(row);
    appendDigit(flight, first);
    appendDigit(flight, second);
    if (threeDigits) {
        appendDigit(flight, third);
    }
    // Light aircraft are never heavy, and nothing is drawn for them.
    flight.heavy = row < firstLightAircraft && RandomPercent(random) < heavyBelow && mayBeHeavy(game, flight);
    if (flight.heavy) {
        flight.callsign += 'H';
        flight.callsignPhrase += snippet::heavy;
    }
}

} // namespace ventrel
