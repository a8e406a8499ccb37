#include "platform/mixer/mixer.h"

#include <algorithm>
#include <cmath>

namespace ventrel {

namespace {

constexpr float fullScale = 128;      // of an 8-bit sample
constexpr float fadeStep = 1.0F / 40; // of the level, each recorded sample: 5 ms
constexpr float centre = 0.7071F;     // a mono recording on each of two loudspeakers
/// By which a rate is divided for the blocks of half a second, after which silence counts.
constexpr std::uint32_t framesUntilSilence = 2 * std::uint32_t{Limiter::frames};

} // namespace

Mixer::Mixer(int rate)
    : resampler_(recordingRate, rate), music_(rate),
      blocksUntilSilence_(static_cast<std::uint32_t>(rate) / framesUntilSilence) {}

void Mixer::send(const Command& command) {
    // A device that takes nothing any more has missed seconds of play: one command more does no harm.
    static_cast<void>(commands_.put(command));
    silentBlocks_.store(0, std::memory_order_relaxed);
}

bool Mixer::isFree(std::size_t voice) const {
    const Owner& owner = owners_[voice];
    return !owner.isTaken && released_[voice].load(std::memory_order_acquire) == owner.lastRelease;
}

std::optional<SoundId> Mixer::add(Recording recording, float gain) {
    for (std::size_t voice = 0; voice < voiceCount; ++voice) {
        if (isFree(voice)) {
            owners_[voice].recording = std::move(recording);
            owners_[voice].isTaken = true;
            owners_[voice].isWanted = false;
            send({CommandKind::add, voice, 0, owners_[voice].recording.get(), gain});
            return static_cast<SoundId>(voice);
        }
    }
    return std::nullopt;
}

void Mixer::play(SoundId id) {
    if (isPlaying(id)) {
        return;
    }
    Owner& owner = owners_[indexOf(id)];
    owner.isWanted = true;
    ++owner.lastPlay;
    send({CommandKind::play, indexOf(id), owner.lastPlay});
}

void Mixer::stop(SoundId id) {
    owners_[indexOf(id)].isWanted = false;
    send({CommandKind::stop, indexOf(id)});
}

bool Mixer::isPlaying(SoundId id) const {
    const Owner& owner = owners_[indexOf(id)];
    return owner.isWanted && ended_[indexOf(id)].load(std::memory_order_acquire) != owner.lastPlay;
}

void Mixer::release(SoundId id) {
    Owner& owner = owners_[indexOf(id)];
    owner.isTaken = false;
    owner.isWanted = false;
    ++owner.lastRelease;
    send({CommandKind::release, indexOf(id), owner.lastRelease});
}

bool Mixer::isSilent() const {
    return silentBlocks_.load(std::memory_order_relaxed) >= blocksUntilSilence_ && music_.isQuiet();
}

void Mixer::obey(const Command& command) {
    Voice& voice = voices_[command.voice];
    switch (command.kind) {
    case CommandKind::add: {
        const Serial play = voice.play;
        voice = {};
        voice.play = play;
        voice.samples = command.samples;
        voice.gain = command.gain;
        break;
    }
    case CommandKind::play:
        voice.play = command.serial;
        voice.isPlaying = true;
        // A beginning is silent by itself; what goes on in the middle comes up from where it had faded to.
        voice.level = voice.position == 0 ? 1 : voice.level;
        break;
    case CommandKind::stop:
        if (voice.isPlaying) {
            voice.isPlaying = false;
            voice.stopPosition = voice.position;
        }
        break;
    case CommandKind::release:
        voice.isPlaying = false;
        voice.isReleased = true;
        voice.release = command.serial;
        break;
    }
}

/// The recording has come to its end: the next play begins at its start.
void Mixer::finish(std::size_t index) {
    Voice& voice = voices_[index];
    voice.isPlaying = false;
    voice.level = 0;
    voice.position = 0;
    voice.stopPosition = 0;
    ended_[index].store(voice.play, std::memory_order_release);
}

float Mixer::sampleOf(std::size_t index) {
    Voice& voice = voices_[index];
    voice.level =
        voice.isPlaying ? std::min(1.0F, voice.level + fadeStep) : std::max(0.0F, voice.level - fadeStep);
    if (voice.level == 0) {
        voice.position = voice.stopPosition;
        if (voice.isReleased) {
            voice.isReleased = false;
            voice.samples = nullptr;
            released_[index].store(voice.release, std::memory_order_release);
        }
        return 0;
    }
    if (voice.position >= voice.samples->size()) {
        finish(index);
        return 0;
    }
    const auto value = static_cast<float>((*voice.samples)[voice.position++]) - float{silentSample};
    return value / fullScale * voice.gain * voice.level;
}

float Mixer::nextSample() {
    float sum = 0;
    for (std::size_t index = 0; index < voiceCount; ++index) {
        const Voice& voice = voices_[index];
        if (voice.isPlaying || voice.level > 0 || voice.isReleased) {
            sum += sampleOf(index);
        }
    }
    return sum;
}

Mixer::Gains Mixer::glide(Volume& volume) {
    const float from = volume.now;
    volume.now = volume.wanted.load(std::memory_order_relaxed);
    Gains gains;
    for (std::size_t frame = 0; frame < gains.size(); ++frame) {
        gains[frame] =
            std::lerp(from, volume.now, static_cast<float>(frame + 1) / static_cast<float>(gains.size()));
    }
    return gains;
}

void Mixer::renderBlock() {
    Command command;
    while (commands_.take(command)) {
        obey(command);
    }
    std::array<float, mostInputs> recorded;
    const std::size_t inputs = resampler_.inputsFor(Limiter::frames);
    std::generate_n(recorded.begin(), inputs, [this] { return nextSample(); });
    std::array<float, Limiter::frames> mono;
    resampler_.run({recorded.data(), inputs}, mono);

    Limiter::Block sum;
    const Gains gains = glide(soundVolume_);
    for (std::size_t frame = 0; frame < Limiter::frames; ++frame) {
        sum[2 * frame] = sum[2 * frame + 1] = mono[frame] * centre * gains[frame];
    }
    music_.addTo(sum, glide(musicVolume_));
    block_ = limiter_.run(sum);
    left_ = block_.size();
    noteSilence(block_);
}

void Mixer::noteSilence(const Limiter::Block& block) {
    constexpr float inaudible = 1e-4F;
    const bool isQuiet =
        std::ranges::all_of(block, [](float sample) { return sample > -inaudible && sample < inaudible; }) &&
        std::ranges::none_of(voices_, [](const Voice& voice) { return voice.isPlaying; });
    const std::uint32_t before = silentBlocks_.load(std::memory_order_relaxed);
    silentBlocks_.store(isQuiet ? before + 1 : 0, std::memory_order_relaxed);
}

void Mixer::render(std::span<float> stereo) {
    while (!stereo.empty()) {
        if (left_ == 0) {
            renderBlock();
        }
        const std::size_t count = std::min(left_, stereo.size());
        std::copy_n(block_.end() - static_cast<std::ptrdiff_t>(left_), count, stereo.begin());
        left_ -= count;
        stereo = stereo.subspan(count);
    }
}

} // namespace ventrel
