#include "tools/sound/effect.h"

#include <algorithm>
#include <array>

namespace ventrel::sound {

namespace {

constexpr Range times{0, 60};
constexpr Range frequencies{1, 16000};
constexpr Range gains{-100, 60};
constexpr Range qualities{0.1, 100};
constexpr Range rates{0, 1000};
constexpr Range depths{0, 60};
constexpr Range counts{1, 2000};

struct WaveName {
    Wave wave;
    std::string_view name;
};

constexpr std::array<WaveName, 6> waves{{{Wave::sine, "sine"},
                                         {Wave::triangle, "triangle"},
                                         {Wave::square, "square"},
                                         {Wave::saw, "saw"},
                                         {Wave::noise, "noise"},
                                         {Wave::recording, "recording"}}};

std::vector<Note> readNotes(RecipeTable& table) {
    std::vector<Note> notes;
    for (RecipeTable& each : table.tables("notes")) {
        notes.push_back(
            {each.number("at", times), each.number("length", times), each.numbers("keys", {0, 127})});
    }
    return notes;
}

Swing readSwing(RecipeTable& table, const std::string& name) {
    return {table.number(name + "_rate", rates, 0), table.number(name + "_depth", depths, 0)};
}

Layer readLayer(RecipeTable& table) {
    Layer layer;
    const std::string name = table.text("wave");
    const auto* const known = std::ranges::find(waves, name, &WaveName::name);
    if (known == waves.end()) {
        table.refuse("wave", "is none that is known");
    } else {
        layer.wave = known->wave;
    }
    layer.gain = table.number("gain", gains, 0);
    layer.notes = readNotes(table);
    if (layer.notes.empty()) {
        layer.start = table.number("start", times, 0);
        layer.length = table.number("length", times);
    }
    if (layer.wave == Wave::recording) {
        layer.files = table.texts("files");
    } else if (layer.wave != Wave::noise && layer.notes.empty()) {
        layer.pitch = table.curve("pitch", frequencies);
        if (layer.pitch.empty()) {
            table.refuse("pitch", "is missing");
        }
    }
    layer.attack = table.number("attack", times, 0);
    layer.release = table.number("release", times, 0);
    layer.decay = table.number("decay", times, 0);
    layer.level = table.curve("level", gains);
    layer.low = table.curve("low", frequencies);
    layer.high = table.curve("high", frequencies);
    layer.band = table.curve("band", frequencies);
    layer.quality = table.number("quality", qualities, 1);
    layer.tremolo = readSwing(table, "tremolo");
    layer.vibrato = readSwing(table, "vibrato");
    layer.flutter = readSwing(table, "flutter");
    layer.drive = table.number("drive", gains, 0);
    layer.copies = static_cast<int>(table.number("copies", counts, 1));
    layer.every = table.number("every", times, 0);
    layer.scatter = table.number("scatter", times, 0);
    return layer;
}

} // namespace

Result<Effect> readEffect(const std::filesystem::path& file) {
    const auto table = readRecipe(file);
    if (!table) {
        return tl::unexpected(table.error());
    }
    RecipeTable recipe(*table, file.string());
    Effect effect;
    effect.name = file.stem().string();
    effect.length = recipe.number("length", {0.01, 60});
    effect.drive = recipe.number("drive", gains, 0);
    effect.hasRoom = recipe.has("room_gain");
    effect.roomGain = recipe.number("room_gain", gains, 0);
    effect.roomTime = recipe.number("room_time", times, 1);
    effect.fadeIn = recipe.number("fade_in", times, 0.001);
    effect.fadeOut = recipe.number("fade_out", times, 0.004);
    effect.dither = recipe.number("dither", {0, 1}, 0) > 0;
    for (RecipeTable& layer : recipe.tables("layer")) {
        effect.layers.push_back(readLayer(layer));
        if (auto sound = layer.finish(); !sound) {
            return tl::unexpected(sound.error());
        }
    }
    if (auto sound = recipe.finish(); !sound) {
        return tl::unexpected(sound.error());
    }
    return effect;
}

} // namespace ventrel::sound
