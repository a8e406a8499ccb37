#include "tools/sound/speaker.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <vector>

#include "tools/sound/process.h"
#include "tools/sound/recipe.h"

namespace ventrel::sound {

namespace fs = std::filesystem;

namespace {

struct EngineName {
    Engine engine;
    std::string_view name;
};

constexpr std::array<EngineName, 3> engines{
    {{Engine::flite, "flite"}, {Engine::festival, "festival"}, {Engine::espeak, "espeak-ng"}}};

constexpr Range pitches{0, 400};
constexpr Range spreads{0, 60};
constexpr Range paces{0.5, 300};
constexpr Range tracts{0.8, 1.25};

/// A number as the programs read it.
std::string inShort(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

/// The comma keeps the end of a snippet from falling like the end of a sentence.
std::string unfinished(const std::string& words) {
    return words + ',';
}

Result<> speakByFlite(const Speaker& speaker, const Script& script, const fs::path& folder) {
    for (const auto& [name, text] : script) {
        std::vector<std::string> words{"flite", "-voice", speaker.name, "--setf",
                                       "duration_stretch=" + inShort(speaker.pace * speaker.tract)};
        if (speaker.pitch > 0) {
            words.insert(words.end(),
                         {"--setf", "int_f0_target_mean=" + inShort(speaker.pitch / speaker.tract), "--setf",
                          "int_f0_target_stddev=" + inShort(speaker.spread / speaker.tract)});
        }
        words.insert(words.end(), {"-t", unfinished(text), "-o", (folder / (name + ".wav")).string()});
        if (auto result = run(words); !result) {
            return result;
        }
    }
    return {};
}

/// Festival takes long to start: it speaks all snippets at one go.
Result<> speakByFestival(const Speaker& speaker, const Script& script, const fs::path& folder) {
    const fs::path program = folder / "words.scm";
    {
        std::ofstream commands(program);
        commands << "(voice_" << speaker.name << ")\n";
        if (speaker.pitch > 0) {
            commands << "(set! int_lr_params '((target_f0_mean " << speaker.pitch / speaker.tract
                     << ") (target_f0_std " << speaker.spread / speaker.tract
                     << ") (model_f0_mean 170) (model_f0_std 34)))\n"
                     << "(Parameter.set 'Duration_Stretch " << speaker.pace * speaker.tract << ")\n";
        }
        for (const auto& [name, text] : script) {
            commands << "(utt.save.wave (utt.synth (Utterance Text \"" << text << "\")) \""
                     << (folder / (name + ".wav")).string() << "\" 'riff)\n";
        }
        if (!commands.flush()) {
            return failed(program.string() + " cannot be written");
        }
    }
    return run({"festival", "-b", program.string()});
}

Result<> speakByEspeak(const Speaker& speaker, const Script& script, const fs::path& folder) {
    for (const auto& [name, text] : script) {
        if (auto result =
                run({"espeak-ng", "-v", speaker.name, "-p", inShort(speaker.pitch), "-s",
                     inShort(speaker.pace), "-w", (folder / (name + ".wav")).string(), unfinished(text)});
            !result) {
            return result;
        }
    }
    return {};
}

} // namespace

Result<Speaker> readSpeaker(const fs::path& file) {
    const auto table = readRecipe(file);
    if (!table) {
        return tl::unexpected(table.error());
    }
    RecipeTable recipe(*table, file.string());
    Speaker speaker;
    const std::string engine = recipe.text("engine");
    const auto* const known = std::ranges::find(engines, engine, &EngineName::name);
    if (known == engines.end()) {
        recipe.refuse("engine", "must be flite, festival or espeak-ng");
    } else {
        speaker.engine = known->engine;
    }
    speaker.name = recipe.text("speaker");
    speaker.pitch = recipe.number("pitch", pitches, 0);
    speaker.spread = recipe.number("spread", spreads, 0);
    speaker.pace = recipe.number("pace", paces);
    speaker.tract = recipe.number("tract", tracts, 1);
    if (auto sound = recipe.finish(); !sound) {
        return tl::unexpected(sound.error());
    }
    return speaker;
}

Result<Script> readScript(const fs::path& file) {
    const auto table = readRecipe(file);
    if (!table) {
        return tl::unexpected(table.error());
    }
    RecipeTable recipe(*table, file.string());
    Script script;
    for (const auto& [key, value] : *table) {
        const std::string text = recipe.text(key.str());
        const std::string letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ ,!";
        if (text.find_first_not_of(letters) != std::string::npos) {
            recipe.refuse(key.str(), "must be words of letters");
        }
        script.emplace(key.str(), text);
    }
    if (auto sound = recipe.finish(); !sound) {
        return tl::unexpected(sound.error());
    }
    return script;
}

Result<> speak(const Speaker& speaker, const Script& script, const fs::path& folder) {
    switch (speaker.engine) {
    case Engine::flite: return speakByFlite(speaker, script, folder);
    case Engine::festival: return speakByFestival(speaker, script, folder);
    case Engine::espeak: return speakByEspeak(speaker, script, folder);
    }
    return failed("there is no such engine");
}

} // namespace ventrel::sound
