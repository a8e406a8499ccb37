// What the game asks to be heard: effects, pilots and music.
//
// The shell is handed one and hands it on. An answer says whether something was started; a file that cannot
// be read is the failure, which the caller tells the player (Shell::tellLater). One piece of music plays at a
// time; nothing stops by itself but what has come to its end, so each scene ends what it has begun:
//
//     the opening       plays the scroll sound and lives while isAnyPlaying, then the title's piece while
//                       isMusicPlaying; stopEffects and stopMusic as its windows close
//     a collision       stopMusic, stopEffects, its sound; its piece once the rings have spread; the report
//                       that is closed starts the idle piece
//     the movie         plays its sound, which goes on into the table
//     the high scores   stopMusic, their piece; stopMusic, and the piece of the game or the idle one

#pragma once

#include <string_view>

#include "base/random.h"
#include "base/result.h"
#include "platform/devices/sound_device.h"

namespace ventrel {

/// A pilot's call, ready to be spoken.
struct SpokenCall {
    std::string_view phrase; ///< phrase characters, valid during the call only
    int voice = 0;           ///< the pilot's voice set
    int tag = 0;             ///< the flight's radio id: it never talks over itself
    bool noise = true;       ///< radio noise first
};

/// Steps of a volume, from 0 (silent) to this.
inline constexpr int fullVolume = 5;

/// What the player wants to hear.
struct SoundChoices {
    bool effects = true;
    bool voices = true;
    bool music = true;
    int singleVoice = -1; ///< the one voice set of all pilots; -1: each his own
    int soundVolume = fullVolume;
    int musicVolume = fullVolume;

    friend bool operator==(const SoundChoices&, const SoundChoices&) = default;
};

class GameSounds {
public:
    GameSounds() = default;
    GameSounds(const GameSounds&) = delete;
    GameSounds& operator=(const GameSounds&) = delete;
    virtual ~GameSounds() = default;

    /// Once, at the start: counts the voices and has the clicks at hand. Tells what keeps the machine silent,
    /// if anything does; fails when a click cannot be read: then the program does not start.
    virtual Result<SoundFault> start() = 0;

    /// What is wanted counts from the next sound on, volumes at once. Stops no piece.
    virtual void choose(const SoundChoices& choices) = 0;

    /// An effect by its name in the program folder, such as "snd\red.snd".
    virtual Result<bool> playEffect(std::string_view name) = 0;
    virtual void clickControl() = 0;        ///< a setting of the control panel was touched
    virtual void clickSet() = 0;            ///< an order was sent
    virtual Result<bool> clickSelect() = 0; ///< a flight was chosen
    /// A call with radio noise draws how long that lasts from `random`; one that is not spoken draws nothing.
    virtual Result<bool> speak(const SpokenCall& call, RandomGenerator& random) = 0;
    /// Effects, calls and clicks.
    virtual void stopEffects() = 0;
    /// Whether any effect or call sounds; clicks do not count.
    virtual bool isAnyPlaying() const = 0;

    /// Starts a piece, such as "mci\idle.mci", in place of the present one; once, or again and again. A piece
    /// that cannot be played is no failure: then there is no music.
    virtual bool playMusic(std::string_view name, bool repeat) = 0;
    virtual void stopMusic() = 0;
    virtual bool isMusicPlaying() const = 0;

    /// Installed pilot voices, 0 to 21; 0 without a sound device.
    virtual int voiceSetCount() const = 0;
};

} // namespace ventrel
