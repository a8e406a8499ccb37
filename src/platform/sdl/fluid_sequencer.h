// Music by FluidSynth: a thread of its own renders the wanted piece ahead of the device.
//
// The thread sleeps while no piece is wanted. The soundfont is loaded by the first piece, in that thread, so
// that nobody waits for it. See https://www.fluidsynth.org/api/.

#pragma once

#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/devices/sequencer.h"
#include "platform/mixer/mixer.h"

namespace ventrel {

class FluidSequencer final : public Sequencer {
public:
    /// Plays into the mixer, which outlives it, at the device's rate, with the first of the soundfonts that
    /// can be loaded; without any it plays nothing, quietly. `wake` is called when a piece begins: the device
    /// is to take samples.
    FluidSequencer(Mixer& mixer, int rate, std::vector<std::filesystem::path> soundfonts,
                   std::function<void()> wake);
    ~FluidSequencer() override;

    bool play(std::span<const std::byte> midi, bool repeat) override;
    void stop() override;
    bool isPlaying() const override;
    void setVolume(float volume) override { mixer_.setMusicVolume(volume); }

private:
    struct Order {
        MusicStream::Piece piece = MusicStream::silence;
        std::vector<std::byte> midi;
        bool repeat = false;
    };

    void run();
    bool waitBeforeLoading();
    Order waitForOrder();
    void renderPiece(class PieceRenderer& renderer, const Order& order);
    bool isWanted(MusicStream::Piece piece) const;

    Mixer& mixer_;
    const int rate_;
    const std::vector<std::filesystem::path> soundfonts_;
    const std::function<void()> wake_;
    MusicStream::Piece lastPiece_ = MusicStream::silence;
    std::atomic<MusicStream::Piece> failed_{
        MusicStream::silence}; ///< the latest piece that could not be played

    std::mutex mutex_; ///< guards the two below
    Order order_;
    bool isQuitting_ = false;
    std::condition_variable changed_;
    std::thread thread_; ///< started by the first piece
};

} // namespace ventrel
