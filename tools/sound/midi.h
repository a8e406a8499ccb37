// Standard MIDI files as abc2midi writes them: where their tracks end, and how long they last.

#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/result.h"

namespace ventrel::sound {

struct MidiTrack {
    unsigned lastEvent = 0; ///< ticks at which the last event before the end happens
    unsigned end = 0;       ///< ticks at which the track says that it ends
    int notes = 0;          ///< that are begun
    // Where the end's own wait lies in the file.
    std::size_t waitBegin = 0;
    std::size_t waitEnd = 0;
    std::size_t header = 0; ///< of the track
};

struct MidiPiece {
    unsigned ticksPerBeat = 0;
    double secondsPerBeat = 0; ///< as set first; the pieces keep their tempo
    std::vector<MidiTrack> tracks;
};

/// Fails for what is no MIDI file, or one that is cut short.
Result<MidiPiece> readMidi(const std::string& bytes);

/// The same piece with all tracks ending at one tick: the last whole beat in the piece. Fails where a note
/// sounds beyond it.
Result<std::string> endOnBeat(const std::string& bytes);

} // namespace ventrel::sound
