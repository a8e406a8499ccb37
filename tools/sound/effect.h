// A sound effect as its recipe describes it: layers of waves, each shaped by itself, and what happens to
// their sum.
//
// Times are in seconds, frequencies in hertz, levels in decibels.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/result.h"
#include "tools/sound/recipe.h"

namespace ventrel::sound {

enum class Wave { sine, triangle, square, saw, noise, recording };

/// A note of a layer: it sounds at each of its keys (60 is the middle C, a step is a semitone).
struct Note {
    double start;
    double length;
    std::vector<double> keys;
};

/// Something that swings around its middle.
struct Swing {
    double rate = 0;  ///< times a second
    double depth = 0; ///< of a tremolo from 0 to 1, of a vibrato in semitones, of a flutter in dB
};

struct Layer {
    Wave wave = Wave::sine;
    double start = 0;
    double length = 0;
    double gain = 0;
    Curve pitch;                    ///< of the waves that have one; moves evenly by ear
    std::vector<Note> notes;        ///< instead of a start, a length and a pitch
    std::vector<std::string> files; ///< of recordings, one after the other

    double attack = 0;
    double release = 0;
    double decay = 0; ///< in this time the sound fades by 60 dB; 0: it stays
    Curve level;

    Curve low;          ///< what lies below goes
    Curve high;         ///< what lies above goes
    Curve band;         ///< what lies around stays
    double quality = 1; ///< of the band: more is narrower

    Swing tremolo;
    Swing vibrato;
    Swing flutter;    ///< rises and falls by chance
    double drive = 0; ///< into a soft limit

    int copies = 1;
    double every = 0;   ///< from one copy to the next
    double scatter = 0; ///< how far a copy may stray from its time
};

struct Effect {
    std::string name; ///< seeds its chances
    double length = 0;
    double drive = 0;
    double roomTime = 0; ///< until the echoes have faded by 60 dB
    double roomGain = 0; ///< of the echoes
    bool hasRoom = false;
    double fadeIn = 0;
    double fadeOut = 0;
    bool dither = false;
    std::vector<Layer> layers;
};

Result<Effect> readEffect(const std::filesystem::path& file);

} // namespace ventrel::sound
