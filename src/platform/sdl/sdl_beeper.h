// The sounds of message boxes: short tones, made here, a pitch for each kind. Private to this room.
//
// The sound device is open only while a tone sounds, so a program that waits is not woken for silence. A
// machine without one stays silent, and is not asked again.

#pragma once

#include <SDL.h>

#include <optional>

#include "base/failure.h"
#include "platform/devices/backend.h"

namespace ventrel {

class Beeper {
public:
    Beeper() = default;
    Beeper(const Beeper&) = delete;
    Beeper& operator=(const Beeper&) = delete;
    ~Beeper();

    /// Replaces a tone that still sounds.
    void beep(MessageIcon kind, Millis now);

    /// When `rest` wants to be called; none while nothing sounds.
    std::optional<Millis> end() const { return end_; }
    /// Closes the device once the tone has ended.
    void rest(Millis now);

private:
    bool open();
    void close();

    SDL_AudioDeviceID device_ = 0;
    std::optional<Millis> end_;
    bool isOpen_ = false;
    bool isMissing_ = false;
};

} // namespace ventrel
