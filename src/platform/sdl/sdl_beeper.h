// The sounds of message boxes: short tones, made here, a pitch for each kind. Private to this room.

#pragma once

#include <optional>

#include "base/failure.h"
#include "platform/devices/sound_device.h"

namespace ventrel {

class Beeper {
public:
    /// The device outlives it.
    explicit Beeper(SoundDevice& device) : device_(device) {}
    Beeper(const Beeper&) = delete;
    Beeper& operator=(const Beeper&) = delete;
    ~Beeper();

    /// Replaces a tone that still sounds.
    void beep(MessageIcon kind);

private:
    SoundDevice& device_;
    std::optional<SoundId> tone_; ///< the latest
};

} // namespace ventrel
