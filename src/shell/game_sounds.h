// What the game asks to be heard: effects, pilots and music.
//
// The shell owns one and hands it out. A machine without sound has the silent one: the game plays on all the
// same.

#pragma once

#include <string_view>

namespace ventrel {

/// A pilot's call, ready to be spoken.
struct SpokenCall {
    std::string_view phrase; ///< phrase characters, valid during the call only
    int voice = 0;           ///< the pilot's voice set
    int tag = 0;             ///< the flight's radio id
    bool noise = true;       ///< radio noise first, its kind drawn from the game's generator when it is heard
};

class GameSounds {
public:
    GameSounds() = default;
    GameSounds(const GameSounds&) = delete;
    GameSounds& operator=(const GameSounds&) = delete;
    virtual ~GameSounds() = default;

    /// An effect by its name in the program folder, such as "snd\red.snd".
    virtual void playEffect(std::string_view name) = 0;
    virtual void clickControl() = 0; ///< a setting of the control panel was touched
    virtual void clickSet() = 0;     ///< an order was sent
    virtual void clickSelect() = 0;  ///< a flight was chosen
    virtual void speak(const SpokenCall& call) = 0;
    virtual void stopEffects() = 0;

    /// Starts a piece, such as "mci\idle.mci", in place of the present one; once, or again and again.
    virtual void playMusic(std::string_view name, bool repeat) = 0;
    virtual void stopMusic() = 0;

    /// Installed pilot voices, 0 to 21.
    virtual int voiceSetCount() const = 0;
};

/// For machines without sound.
class SilentSounds final : public GameSounds {
public:
    void playEffect(std::string_view) override {}
    void clickControl() override {}
    void clickSet() override {}
    void clickSelect() override {}
    void speak(const SpokenCall&) override {}
    void stopEffects() override {}
    void playMusic(std::string_view, bool) override {}
    void stopMusic() override {}
    int voiceSetCount() const override { return 0; }
};

} // namespace ventrel
