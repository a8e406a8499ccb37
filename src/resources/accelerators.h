// The keys of the main window. Keypad keys are the keypad's own; each has a companion for keyboards without
// one.

#pragma once

#include <array>

#include "platform/desktop/window.h"
#include "resources/command_ids.h"

namespace ventrel {

inline constexpr Modifiers noModifiers{};
inline constexpr Modifiers altKey{false, false, true};
inline constexpr Modifiers controlKey{false, true, false};

inline constexpr std::array mainAccelerators{std::to_array<Accelerator>({
    {Key::f, altKey, command::fileMenu},
    {Key::o, altKey, command::optionsMenu},
    {Key::h, altKey, command::helpMenu},
    {Key::s, controlKey, command::schedule},
    {Key::f4, altKey, command::exitProgram},
    {Key::escape, noModifiers, command::bossKey},
    {Key::pause, noModifiers, command::pause},
    {Key::enter, noModifiers, command::executeOrder},
    {Key::keypadEnter, noModifiers, command::executeOrder},
    {Key::space, noModifiers, command::skipClock},
    {Key::down, noModifiers, command::nextStrip},
    {Key::up, noModifiers, command::previousStrip},
    {Key::f, noModifiers, command::fast},
    {Key::n, noModifiers, command::normal},
    {Key::s, noModifiers, command::slow},
    {Key::keypad8, noModifiers, command::heading0},
    {Key::keypad9, noModifiers, command::heading45},
    {Key::keypad6, noModifiers, command::heading90},
    {Key::keypad3, noModifiers, command::heading135},
    {Key::keypad2, noModifiers, command::heading180},
    {Key::keypad1, noModifiers, command::heading225},
    {Key::keypad4, noModifiers, command::heading270},
    {Key::keypad7, noModifiers, command::heading315},
    {Key::keypad5, noModifiers, command::toggleDirect},
    {Key::keypadDivide, noModifiers, command::directUp},
    {Key::keypadMultiply, noModifiers, command::directDown},
    {Key::keypadMinus, noModifiers, command::altitudeUp},
    {Key::keypadPlus, noModifiers, command::altitudeDown},
    // Without a keypad: its block of digits, as it lies, on the letters around K ...
    {Key::i, noModifiers, command::heading0},
    {Key::o, noModifiers, command::heading45},
    {Key::l, noModifiers, command::heading90},
    {Key::period, noModifiers, command::heading135},
    {Key::comma, noModifiers, command::heading180},
    {Key::m, noModifiers, command::heading225},
    {Key::j, noModifiers, command::heading270},
    {Key::u, noModifiers, command::heading315},
    {Key::k, noModifiers, command::toggleDirect},
    // ... and the rest on keys beside it.
    {Key::leftBracket, noModifiers, command::directUp},
    {Key::rightBracket, noModifiers, command::directDown},
    {Key::pageUp, noModifiers, command::altitudeUp},
    {Key::pageDown, noModifiers, command::altitudeDown},
    {Key::p, noModifiers, command::pause},
    {Key::f1, noModifiers, command::help},
})};

} // namespace ventrel
