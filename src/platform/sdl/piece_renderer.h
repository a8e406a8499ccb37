// One piece of music as samples, block by block, through FluidSynth. Private to this room.

#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include <fluidsynth.h>

namespace ventrel {

class PieceRenderer {
public:
    /// `rate`: frames a second.
    explicit PieceRenderer(int rate);
    ~PieceRenderer();

    /// Loads the first of the fonts that is one. False when none is.
    bool loadInstruments(const std::vector<std::filesystem::path>& soundfonts);

    /// Begins a piece from its start while the one before may ring on. False when it is no piece.
    bool begin(std::span<const std::byte> midi);
    /// Whether the last bar has passed.
    bool isAtEnd() const;
    /// Renders the next frames, left and right in turn.
    void render(std::span<float> stereo);
    /// Ends every note and sound.
    void silence();

    /// Frames that the synthesiser makes at once: between two of these a piece may begin.
    static constexpr std::size_t grain = 64;

private:
    struct Deleter {
        void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
        void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
        void operator()(fluid_player_t* player) const { delete_fluid_player(player); }
    };

    std::unique_ptr<fluid_settings_t, Deleter> settings_;
    std::unique_ptr<fluid_synth_t, Deleter> synth_;
    std::unique_ptr<fluid_player_t, Deleter> player_;
};

} // namespace ventrel
