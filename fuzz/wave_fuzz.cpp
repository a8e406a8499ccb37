// The sound tool's readers of recordings against any file: all channels of a WAV file are as long, a sound of
// the program is written as it was read, and all samples lie within full scale.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "base/whole_file.h"
#include "demand.h"
#include "scratch_folder.h"
#include "tools/sound/sound_file.h"

namespace {

using namespace ventrel;

void demandWithinScale(sound::SignalView signal) {
    demand(std::ranges::all_of(signal, [](double sample) { return std::abs(sample) <= 1; }));
}

void tryWave(const std::filesystem::path& file) {
    const auto wave = sound::readWave(file);
    if (!wave) {
        demand(wave.error().text.starts_with(file.string()));
        return;
    }
    demand(!wave->channels.empty());
    for (const sound::Signal& channel : wave->channels) {
        demand(channel.size() == wave->channels.front().size());
        demandWithinScale(channel);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScratchFolder folder;
    const auto file = folder.put("fuzz.wav", {reinterpret_cast<const char*>(data), size});
    tryWave(file);
    const auto signal = sound::readSound(file);
    demand(signal.has_value());
    demandWithinScale(*signal);
    const auto again = folder.path / "again.snd";
    demand(sound::writeSound(again, *signal).has_value());
    const auto bytes = readWholeFile(again, size);
    demand(bytes.has_value() && std::ranges::equal(*bytes, std::as_bytes(std::span(data, size))));
    return 0;
}
