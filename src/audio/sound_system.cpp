#include "audio/sound_system.h"

#include <algorithm>

#include "audio/recording_file.h"
#include "audio/voice.h"
#include "base/data_path.h"
#include "base/whole_file.h"
#include "base/windows1252.h"

namespace ventrel {

namespace {

constexpr std::string_view controlName = "snd\\control.snd";
constexpr std::string_view setName = "snd\\set.snd";
constexpr std::string_view selectName = "snd\\select.snd";
constexpr std::size_t largestPiece = std::size_t{1} << 20; // bytes; a long piece has a hundredth of it

/// How loud each sound is against the others was settled when it was made (assets/sound/levels.txt).
constexpr float asRecorded = 1;

/// Each step of a volume control sounds about as large as the next.
float volumeGain(int volume) {
    const float part = static_cast<float>(std::clamp(volume, 0, fullVolume)) / float{fullVolume};
    return part * part;
}

Recording asRecording(std::vector<std::uint8_t> samples) {
    return std::make_shared<const std::vector<std::uint8_t>>(std::move(samples));
}

} // namespace

SoundSystem::SoundSystem(SoundDevice& device, Sequencer& sequencer, std::filesystem::path programFolder)
    : device_(device), sequencer_(sequencer), programFolder_(std::move(programFolder)) {
    choose({});
}

SoundSystem::~SoundSystem() {
    sequencer_.stop();
    for (const SoundId id : held()) {
        device_.release(id);
    }
}

Result<SoundFault> SoundSystem::start() {
    if (!device_.isPresent()) {
        return device_.fault();
    }
    voiceSetCount_ = countVoiceSets(programFolder_);
    for (const auto& [click, name] : {std::pair(&controlClick_, controlName), {&setClick_, setName}}) {
        auto loaded = load(name);
        if (!loaded) {
            return tl::unexpected(std::move(loaded.error()));
        }
        *click = *loaded;
    }
    return SoundFault::none;
}

Result<SoundSystem::Click> SoundSystem::load(std::string_view name) {
    const auto file = DataPath(programFolder_, name);
    auto samples = readRecording(file);
    if (!samples) {
        return tl::unexpected(std::move(samples.error()));
    }
    if (samples->empty()) {
        return failed(pathText(file) + " is empty.");
    }
    return device_.add(asRecording(std::move(*samples)), asRecorded);
}

void SoundSystem::choose(const SoundChoices& choices) {
    choices_ = choices;
    device_.setVolume(volumeGain(choices.soundVolume));
    sequencer_.setVolume(volumeGain(choices.musicVolume));
}

std::vector<SoundId> SoundSystem::held() const {
    std::vector<SoundId> ids;
    for (const Slot& slot : slots_) {
        if (slot.sound) {
            ids.push_back(*slot.sound);
        }
    }
    for (const Click click : {controlClick_, setClick_}) {
        if (click) {
            ids.push_back(*click);
        }
    }
    return ids;
}

void SoundSystem::reap() {
    for (Slot& slot : slots_) {
        if (slot.sound && !device_.isPlaying(*slot.sound)) {
            device_.release(*slot.sound);
            slot = {};
        }
    }
}

SoundSystem::Slot* SoundSystem::emptySlot() {
    const auto found = std::ranges::find_if(slots_, [](const Slot& slot) { return !slot.sound; });
    return found == slots_.end() ? nullptr : &*found;
}

bool SoundSystem::isSpeaking(int tag) const {
    return tag != untagged && std::ranges::any_of(slots_, [&](const Slot& slot) {
               return slot.sound && slot.tag == tag && device_.isPlaying(*slot.sound);
           });
}

bool SoundSystem::playData(std::vector<std::uint8_t> samples, int tag) {
    if (samples.empty()) {
        return false;
    }
    reap();
    Slot* const slot = emptySlot();
    if (slot == nullptr) {
        return false;
    }
    if (isSpeaking(tag)) {
        return true;
    }
    slot->sound = device_.add(asRecording(std::move(samples)), asRecorded);
    if (!slot->sound) {
        return false;
    }
    slot->tag = tag;
    device_.play(*slot->sound);
    return true;
}

Result<bool> SoundSystem::playEffect(std::string_view name) {
    if (!device_.isPresent() || !choices_.effects) {
        return false;
    }
    auto samples = readRecording(DataPath(programFolder_, name));
    if (!samples) {
        return tl::unexpected(samples.error());
    }
    return playData(std::move(*samples), untagged);
}

void SoundSystem::play(Click click) {
    if (choices_.effects && click) {
        device_.play(*click);
    }
}

void SoundSystem::clickControl() {
    play(controlClick_);
}

void SoundSystem::clickSet() {
    play(setClick_);
}

Result<bool> SoundSystem::clickSelect() {
    return playEffect(selectName);
}

Result<bool> SoundSystem::speak(const SpokenCall& call, RandomGenerator& random) {
    if (call.phrase.empty() || !device_.isPresent() || !choices_.voices) {
        return false;
    }
    SpokenCall spoken = call;
    spoken.voice = choices_.singleVoice == -1 ? call.voice : choices_.singleVoice;
    auto samples = assembleCall(programFolder_, spoken, random);
    if (!samples) {
        return tl::unexpected(samples.error());
    }
    return playData(std::move(*samples), call.tag);
}

void SoundSystem::stopEffects() {
    for (const SoundId id : held()) {
        device_.stop(id);
    }
}

bool SoundSystem::isAnyPlaying() const {
    return std::ranges::any_of(
        slots_, [&](const Slot& slot) { return slot.sound && device_.isPlaying(*slot.sound); });
}

bool SoundSystem::playMusic(std::string_view name, bool repeat) {
    if (!choices_.music) {
        return false;
    }
    sequencer_.stop();
    const auto piece = readFileStart(DataPath(programFolder_, name), largestPiece);
    return piece && sequencer_.play(*piece, repeat);
}

void SoundSystem::stopMusic() {
    sequencer_.stop();
}

} // namespace ventrel
