// The keys of the main window. Keypad keys are the keypad's own; each has a companion for keyboards without
// one.
//
// A command that is named by its letter goes by the letter, wherever the person's layout has it. The
// companions of the keypad lie as the keypad does: they go by their places, whatever is written there.

#pragma once

#include <array>

#include "platform/desktop/window.h"
#include "resources/command_ids.h"

namespace ventrel {

inline constexpr Modifiers noModifiers{};
inline constexpr Modifiers altKey{false, false, true};
inline constexpr Modifiers controlKey{false, true, false};
inline constexpr Modifiers shiftKey{true, false, false};

inline constexpr std::array mainAccelerators{std::to_array<Accelerator>({
    {Key::f, altKey, command::fileMenu},
    {Key::o, altKey, command::optionsMenu},
    {Key::h, altKey, command::helpMenu},
    {Key::s, controlKey, command::schedule},
    {Key::l, controlKey, command::shiftLog},
    {Key::f4, altKey, command::exitProgram},
    {Key::escape, noModifiers, command::bossKey},
    {Key::pause, noModifiers, command::pause},
    {Key::enter, noModifiers, command::executeOrder},
    {Key::keypadEnter, noModifiers, command::executeOrder},
    {Key::space, noModifiers, command::skipClock},
    {Key::space, shiftKey, command::skipToEvent},
    {Key::down, noModifiers, command::nextStrip},
    {Key::up, noModifiers, command::previousStrip},
    {Key::tab, noModifiers, command::nextFlight},
    {Key::tab, shiftKey, command::previousFlight},
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
    // Without a keypad: its block of digits, as it lies, on the keys around K ...
    {Key::i, noModifiers, command::heading0, KeyBy::place},
    {Key::o, noModifiers, command::heading45, KeyBy::place},
    {Key::l, noModifiers, command::heading90, KeyBy::place},
    {Key::period, noModifiers, command::heading135, KeyBy::place},
    {Key::comma, noModifiers, command::heading180, KeyBy::place},
    {Key::m, noModifiers, command::heading225, KeyBy::place},
    {Key::j, noModifiers, command::heading270, KeyBy::place},
    {Key::u, noModifiers, command::heading315, KeyBy::place},
    {Key::k, noModifiers, command::toggleDirect, KeyBy::place},
    // ... and the rest on keys beside it.
    {Key::leftBracket, noModifiers, command::directUp, KeyBy::place},
    {Key::rightBracket, noModifiers, command::directDown, KeyBy::place},
    {Key::pageUp, noModifiers, command::altitudeUp, KeyBy::place},
    {Key::pageDown, noModifiers, command::altitudeDown, KeyBy::place},
    {Key::p, noModifiers, command::pause, KeyBy::place},
    {Key::f, noModifiers, command::fast},
    {Key::n, noModifiers, command::normal},
    {Key::s, noModifiers, command::slow},
    // A layout that has one of these letters on a key of the block (Dvorak its N on the L) still reaches the
    // command, at the letter's place in the United States.
    {Key::f, noModifiers, command::fast, KeyBy::place},
    {Key::n, noModifiers, command::normal, KeyBy::place},
    {Key::s, noModifiers, command::slow, KeyBy::place},
    {Key::p, noModifiers, command::pause},
    {Key::f1, noModifiers, command::help},
    {Key::f2, noModifiers, command::lessonGoOn},
    {Key::f5, noModifiers, command::musicSofter},
    {Key::f6, noModifiers, command::musicLouder},
    {Key::f7, noModifiers, command::soundSofter},
    {Key::f8, noModifiers, command::soundLouder},
    {Key::left, controlKey, command::slowDown},
    {Key::right, controlKey, command::speedUp},
    {Key::t, controlKey, command::takeOver},
    {Key::f11, noModifiers, command::switchFullScreen},
    {Key::enter, altKey, command::switchFullScreen},
})};

} // namespace ventrel
