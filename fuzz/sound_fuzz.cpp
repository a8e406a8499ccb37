// The reader of recordings and the mixer against any bytes: a recording is what its file holds, and whatever
// is played, stopped and let go of, the device gets sound within full scale.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "audio/recording_file.h"
#include "demand.h"
#include "platform/mixer/mixer.h"
#include "scratch_folder.h"

namespace {

using namespace ventrel;

constexpr std::array rates{8001, 22050, 44100, 48000, 192000};
constexpr std::size_t mostActions = 64;

/// Some frames, fewer or more than a block has.
void listen(Mixer& mixer, std::uint8_t action) {
    constexpr std::size_t framesPerStep = 8;
    std::vector<float> stereo(2 * framesPerStep * action);
    mixer.render(stereo);
    demand(std::ranges::all_of(stereo, [](float sample) { return sample >= -1 && sample <= 1; }));
}

/// What the low bits of `action` name is done with one of the sounds; then it is listened to.
void act(Mixer& mixer, std::vector<SoundId>& sounds, const Recording& recording, std::uint8_t action) {
    constexpr float loudest = 4;
    constexpr unsigned kinds = 5;
    const std::size_t place = sounds.empty() ? 0 : action / kinds % sounds.size();
    const unsigned kind = sounds.empty() ? 0 : action % kinds;
    const float part = static_cast<float>(action) / UINT8_MAX;
    switch (kind) {
    case 0:
        if (const auto id = mixer.add(recording, loudest * part)) {
            sounds.push_back(*id);
        }
        break;
    case 1: mixer.play(sounds[place]); break;
    case 2: mixer.stop(sounds[place]); break;
    case 3:
        mixer.release(sounds[place]);
        sounds.erase(sounds.begin() + static_cast<std::ptrdiff_t>(place));
        break;
    default: mixer.setSoundVolume(part);
    }
    listen(mixer, action);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScratchFolder folder;
    const auto file = folder.put("fuzz.snd", {reinterpret_cast<const char*>(data), size});
    auto samples = readRecording(file);
    if (!samples) {
        demand(samples.error().text.find(file.string()) != std::string::npos);
        return 0;
    }
    demand(std::ranges::equal(*samples, std::span(data, size)));
    const auto recording = std::make_shared<const std::vector<std::uint8_t>>(*std::move(samples));
    Mixer mixer{rates[size % rates.size()]};
    std::vector<SoundId> sounds;
    for (const std::uint8_t action : std::span(data, std::min(size, mostActions))) {
        act(mixer, sounds, recording, action);
    }
    return 0;
}
