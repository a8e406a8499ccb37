#include "sim/simulation.h"

#include "sim/phrase.h"

namespace ventrel {

void callOnRadio(SimulationEvents& events, const Flight& flight, std::initializer_list<char> words) {
    std::string phrase = flight.callsignPhrase;
    for (const char word : words) {
        VoiceAppend(phrase, word);
    }
    events.pilotSpoke({.phrase = phrase, .voice = flight.pilotVoice, .tag = flight.radioId, .noise = true});
}

void callUnlessLit(Simulation& simulation, LampLevel lamp, const Flight& flight,
                   std::initializer_list<char> words) {
    if (!isLampLit(simulation.lamps, lamp)) {
        callOnRadio(simulation.events, flight, words);
    }
}

} // namespace ventrel
