// How loud everything is against everything else. The recordings are all made to about the same loudness, so
// these few numbers are the whole balance: alarms over voices, voices over music.

#pragma once

#include <array>
#include <string_view>

namespace ventrel::balance {

/// Factors on a recording as it stands in its file.
inline constexpr float voice = 0.55F;
inline constexpr float click = 0.45F;
inline constexpr float music = 0.5F;

struct EffectLevel {
    std::string_view name;
    float gain;
};
inline constexpr float otherEffect = 0.8F;
inline constexpr std::array<EffectLevel, 4> effects{{
    {"snd\\red.snd", 0.85F},
    {"snd\\yellow.snd", 0.8F},
    {"snd\\collide.snd", 1.0F},
    {"snd\\select.snd", click},
}};

constexpr float effect(std::string_view name) {
    for (const EffectLevel& level : effects) {
        if (level.name == name) {
            return level.gain;
        }
    }
    return otherEffect;
}

} // namespace ventrel::balance
