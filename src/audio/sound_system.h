// The game's sounds on a machine: a pool of twelve, two clicks that are always at hand, pilots and music.
//
// Owns what it has put on the device and nothing of the device itself. Driven by the shell, in the loop's
// thread.

#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "audio/game_sounds.h"
#include "platform/devices/sequencer.h"
#include "platform/devices/sound_device.h"

namespace ventrel {

class SoundSystem final : public GameSounds {
public:
    /// Device and sequencer outlive it.
    SoundSystem(SoundDevice& device, Sequencer& sequencer, std::filesystem::path programFolder);
    ~SoundSystem() override;

    Result<SoundFault> start() override;
    void choose(const SoundChoices& choices) override;
    Result<bool> playEffect(std::string_view name) override;
    void clickControl() override;
    void clickSet() override;
    Result<bool> clickSelect() override;
    Result<bool> speak(const SpokenCall& call, RandomGenerator& random) override;
    void stopEffects() override;
    bool isAnyPlaying() const override;

    bool playMusic(std::string_view name, bool repeat) override;
    void stopMusic() override;
    bool isMusicPlaying() const override { return sequencer_.isPlaying(); }

    int voiceSetCount() const override { return voiceSetCount_; }

private:
    static constexpr int untagged = -1;
    static constexpr std::size_t slotCount = 12;

    struct Slot {
        std::optional<SoundId> sound;
        int tag = untagged;
    };
    using Click = std::optional<SoundId>; ///< none without a device

    bool playData(std::vector<std::uint8_t> samples, int tag);
    std::vector<SoundId> held() const;
    void reap();
    Slot* emptySlot();
    bool isSpeaking(int tag) const;
    Result<Click> load(std::string_view name);
    void play(Click click);

    SoundDevice& device_;
    Sequencer& sequencer_;
    const std::filesystem::path programFolder_;
    SoundChoices choices_;
    int voiceSetCount_ = 0;
    std::array<Slot, slotCount> slots_{};
    Click controlClick_;
    Click setClick_;
};

} // namespace ventrel
