// The machine's sound through SDL: one device that plays what the mixer sums up, recordings and music alike.
//
// The device is open only while something sounds, so a program that waits is not woken for silence. When it
// is unplugged the sounds go on unheard by the clock, and another is opened as soon as there is one. On a
// machine that is too busy to fill it in time it is opened anew with longer blocks.

#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "base/millis.h"
#include "platform/devices/sequencer.h"
#include "platform/devices/sound_device.h"

namespace ventrel {

class SdlSound : public SoundDevice {
public:
    /// Plays its music on the same device; plays nothing where that is missing.
    virtual Sequencer& sequencer() = 0;

    /// Sees to the device: closes it after silence, notes its loss, looks for another. Whoever waits for
    /// events calls it (see SdlOptions).
    virtual void attend(Millis now) = 0;
    /// When `attend` wants to be called next; none while the device is closed.
    virtual std::optional<Millis> nextAttention() const = 0;
};

/// Looks for a device, which may be missing. `soundfonts`: where the music's instruments may be, tried in
/// turn (see soundfontCandidates). Used by one thread alone.
std::unique_ptr<SdlSound> openSdlSound(std::vector<std::filesystem::path> soundfonts);

} // namespace ventrel
