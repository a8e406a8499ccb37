// ventrel-sound: makes the sounds of the build from their recipes, and measures sounds.

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "base/windows1252.h"
#include "tools/sound/commands.h"

namespace {

using namespace ventrel;
namespace fs = std::filesystem;

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

int complain(const std::string& text) {
    std::fprintf(stderr, "ventrel-sound: %s\n", toTerminal(text).c_str());
    return failure;
}

int statusOf(const Result<>& result) {
    if (result) {
        return success;
    }
    return complain(result.error().text);
}

int measureAll(const std::vector<fs::path>& files) {
    int status = success;
    for (const fs::path& file : files) {
        if (const auto line = sound::measure(file)) {
            std::puts(toTerminal(*line).c_str());
        } else {
            status = statusOf(tl::unexpected(line.error()));
        }
    }
    return status;
}

int runTool(int argc, char** argv) {
    fs::path recipe;
    fs::path script;
    fs::path folder;
    fs::path target;
    double loudness = 0;
    std::vector<fs::path> files;

    CLI::App application(
        "Makes the sounds of Ventrel.\nExit status: 0 done; 1 a file cannot be read or written, or a "
        "sound cannot be made; 2 wrong usage.");
    application.require_subcommand(1);

    CLI::App& effect = *application.add_subcommand("effect", "plays an effect");
    effect.add_option("RECIPE", recipe, "its recipe")->required();
    effect.add_option("LOUDNESS", loudness, "of its loudest 400 ms, in LKFS")->required();
    effect.add_option("SOUNDS", folder, "the folder of recordings that it uses")->required();
    effect.add_option("OUT", target, "the sound")->required();

    CLI::App& voice = *application.add_subcommand("voice", "speaks all calls of one pilot");
    voice.add_option("SPEAKER", recipe, "who speaks")->required();
    voice.add_option("SCRIPT", script, "what each snippet says")->required();
    voice.add_option("LOUDNESS", loudness, "of every snippet, in LKFS")->required();
    voice.add_option("WORK", folder, "a folder for the speech program's recordings, removed afterwards")
        ->required();
    voice.add_option("FOLDER", target, "the folder of snippets")->required();

    CLI::App& music = *application.add_subcommand("music", "ends all tracks of a piece of music on one beat");
    music.add_option("PIECE", target, "a MIDI file, which is changed")->required();

    CLI::App& measure =
        *application.add_subcommand("measure", "length, peak and loudness of .snd and .wav files");
    measure.add_option("FILE", files)->required();

    try {
        application.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return application.exit(error) == 0 ? success : wrongUsage;
    }
    if (effect.parsed()) {
        return statusOf(sound::makeEffect(recipe, loudness, folder, target));
    }
    if (voice.parsed()) {
        return statusOf(sound::makeVoice(recipe, script, loudness, folder, target));
    }
    if (music.parsed()) {
        return statusOf(sound::endOnBeat(target));
    }
    return measureAll(files);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return runTool(argc, argv);
    } catch (const std::exception& error) { // such as memory that ran out
        return complain(error.what());
    }
}
