#include "platform/sdl/piece_renderer.h"

#include <array>
#include <string>

namespace ventrel {

namespace {

constexpr double pieceGain = 0.5; // at which the pieces have their level (assets/sound/levels.txt)
constexpr int polyphony = 96;
constexpr int on = 1;
constexpr int off = 0;
constexpr int everyChannel = -1;

void sayNothing(int, const char*, void*) {}

} // namespace

PieceRenderer::PieceRenderer(int rate) {
    // The mixer plays what is rendered here: no device of the synthesiser's own is ever looked for.
    std::array<const char*, 1> noDrivers{nullptr};
    fluid_audio_driver_register(noDrivers.data());
    for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
        fluid_set_log_function(level, sayNothing, nullptr);
    }
    settings_.reset(new_fluid_settings());
    fluid_settings_setnum(settings_.get(), "synth.sample-rate", rate);
    fluid_settings_setnum(settings_.get(), "synth.gain", pieceGain);
    fluid_settings_setint(settings_.get(), "synth.polyphony", polyphony);
    // Samples come into memory with the first piece that needs them; large fonts stay small so.
    fluid_settings_setint(settings_.get(), "synth.dynamic-sample-loading", on);
    // Time is counted in rendered samples, and a piece that begins lets the last one ring on.
    fluid_settings_setstr(settings_.get(), "player.timing-source", "sample");
    fluid_settings_setint(settings_.get(), "player.reset-synth", off);
    synth_.reset(new_fluid_synth(settings_.get()));
}

PieceRenderer::~PieceRenderer() {
    player_.reset(); // before the synthesiser that it plays on
}

bool PieceRenderer::loadInstruments(const std::vector<std::filesystem::path>& soundfonts) {
    if (!synth_) {
        return false;
    }
    for (const std::filesystem::path& font : soundfonts) {
        const std::string name = font.string();
        if (fluid_is_soundfont(name.c_str()) != 0 &&
            fluid_synth_sfload(synth_.get(), name.c_str(), on) != FLUID_FAILED) {
            return true;
        }
    }
    return false;
}

bool PieceRenderer::begin(std::span<const std::byte> midi) {
    player_.reset(new_fluid_player(synth_.get()));
    return player_ && fluid_player_add_mem(player_.get(), midi.data(), midi.size()) == FLUID_OK &&
           fluid_player_play(player_.get()) == FLUID_OK;
}

bool PieceRenderer::isAtEnd() const {
    const int total = fluid_player_get_total_ticks(player_.get());
    return fluid_player_get_status(player_.get()) == FLUID_PLAYER_DONE ||
           (total > 0 && fluid_player_get_current_tick(player_.get()) >= total);
}

void PieceRenderer::render(std::span<float> stereo) {
    constexpr int left = 0;
    constexpr int right = 1;
    constexpr int step = 2;
    fluid_synth_write_float(synth_.get(), static_cast<int>(stereo.size() / 2), stereo.data(), left, step,
                            stereo.data(), right, step);
}

void PieceRenderer::silence() {
    player_.reset();
    fluid_synth_all_sounds_off(synth_.get(), everyChannel);
    fluid_synth_system_reset(synth_.get());
}

} // namespace ventrel
