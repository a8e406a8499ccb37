// Ventrel: the game on this machine's screen.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <future>
#include <span>
#include <string>
#include <string_view>

#include "audio/sound_system.h"
#include "base/letters.h"
#include "base/version.h"
#include "base/whole_number.h"
#include "base/windows1252.h"
#include "platform/machine/instance_lock.h"
#include "platform/machine/places.h"
#include "platform/machine/sudden_end.h"
#include "platform/sdl/sdl_backend.h"
#include "platform/sdl/soundfont.h"
#include "records/options_file.h"
#include "records/window_memory.h"
#include "shell/program.h"
#include "shell/program_data.h"

namespace ventrel {

namespace {

constexpr std::string_view programName = "ventrel";
constexpr std::string_view lockName = "VNTL_MUTEX";
constexpr std::uint32_t seedMask = 0xFFFF;

constexpr int ended = 0;
constexpr int cannotStart = 1;
constexpr int wrongUsage = 2;

constexpr std::string_view usage =
    "Ventrel, an air-traffic-control game.\n"
    "\n"
    "    ventrel              plays\n"
    "    ventrel /NOSPLASH    plays without the opening\n"
    "    ventrel --daily      plays the Shift of the Day at once, the same for everybody on a date (UTC)\n"
    "    ventrel --seed N     starts chance at N, from 0 to 4294967295, so that the same shifts come\n"
    "    ventrel --version    tells its version\n"
    "    ventrel --help       tells this\n"
    "\n"
    "Keys and rules: F1 in the game. A copy whose folder you may write keeps options and scores beside the\n"
    "program; installed, it keeps them in ~/.config/ventrel and ~/.local/share/ventrel.\n"
    "\n"
    "Exit status: 0 played, also when another copy runs already or a picture is missing; 1 there is no "
    "screen,\n"
    "or no face to write with; 2 wrong usage.\n";

/// `text` is Windows-1252, and may hold what a file or the command line has brought along.
void complain(std::string_view text) {
    std::fprintf(stderr, "ventrel: %s\n", toTerminal(text).c_str());
}

/// Exactly this word leaves the opening out, in any case.
constexpr std::string_view skipSplash = "/NOSPLASH";

/// What the command line says of the start.
struct Wishes {
    FirstScene firstScene = FirstScene::opening;
    std::optional<std::uint32_t> seed = {}; ///< none: another one at every start
};

/// What the options file says of the start.
struct Settings {
    Options options = {};
    Size window = {}; ///< of the picture
    std::optional<Rect> windowPlace = {};
};

/// Begins to load the console's pictures, which takes as long as a screen takes to open.
std::future<Result<LoadedPictures>> beginPictures(const std::filesystem::path& programFolder, Size window) {
    return std::async(std::launch::async, loadPictures, programFolder, window.width);
}

Settings readSettings(const ProfileFile& profile, Options options, const Screen& screen) {
    Settings settings{.options = options};
    settings.window = chooseWindowSize(settings.options, screen.size().value_or(Size{}));
    settings.windowPlace = readWindowPlace(profile, settings.window.width);
    return settings;
}

Result<std::unique_ptr<SdlBackend>> openScreen(const Settings& settings,
                                               const std::optional<CursorImage>& icon, SdlSound& sound) {
    SdlOptions options{.title = std::string(programTitle), .picture = settings.window};
    options.fullScreen = settings.options.windowed == 0;
    if (settings.windowPlace) {
        options.placement = WindowPlacement{*settings.windowPlace};
    }
    options.icon = icon ? &*icon : nullptr;
    options.sound = &sound;
    return openSdlBackend(options);
}

/// Another one at every start: milliseconds since the machine was started.
std::uint32_t seedOfTheMoment() {
    using namespace std::chrono;
    const auto sinceStart = duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
    return static_cast<std::uint32_t>(sinceStart.count()) & seedMask;
}

/// Empty where the player has no folder to keep it in. Earlier versions kept it among the player's data.
std::filesystem::path optionsFile(const std::filesystem::path& executable, const PlayerPlaces& player) {
    if (player.options.empty()) {
        return {};
    }
    const std::string name = executable.stem().string() + ".ini";
    if (!player.data.empty()) {
        bringFile(player.data / name, player.options / name);
    }
    return player.options / name;
}

/// Where the player's own airspaces lie, also beside a portable copy. Empty for nowhere.
std::filesystem::path playersAirports() {
    const std::filesystem::path folder = userDataFolder(programName);
    return folder.empty() ? folder : folder / "apt";
}

/// Writes what the next start begins with.
void keepSettings(OptionsStore& store, const Options& options, Size window, const SdlBackend& backend) {
    store.update([&](ProfileFile& profile) {
        WriteOptions(options, profile);
        writeWindowPlace(backend.placement().bounds, window.width, profile);
    });
    if (const auto failure = store.takeFailure()) {
        complain(failure->text);
    }
}

/// From start-up to shutdown, within the program's own folder.
int play(const std::filesystem::path& executable, const Wishes& wishes) {
    const std::filesystem::path programFolder = programDataFolder(executable, programName);
    const PlayerPlaces player = playerPlaces(executable, programFolder, programName);
    OptionsStore store(optionsFile(executable, player));
    Options options = ReadOptions(store.atStart());
    std::future<Result<LoadedPictures>> pictures;
    if (hasWindowSize(options)) {
        pictures = beginPictures(programFolder, chooseWindowSize(options, {}));
    }
    const Screen screen;
    const Settings settings = readSettings(store.atStart(), options, screen);
    if (!pictures.valid()) {
        pictures = beginPictures(programFolder, settings.window);
    }

    ProgramData data = openProgramData(programFolder);
    if (!data.fonts.hasFaces()) {
        complain(data.troubles.front());
        return cannotStart;
    }
    const auto device = openSdlSound(soundfontCandidates(programFolder));
    const auto screenBackend = openScreen(settings, data.icon, *device);
    if (!screenBackend) {
        complain(screenBackend.error().text);
        return cannotStart;
    }
    SdlBackend& backend = **screenBackend;
    SoundSystem sounds(*device, device->sequencer(), programFolder);
    const Player who = store.isFirstStart() ? Player::newcomer : Player::known;
    Program program({.backend = backend,
                     .fonts = data.fonts,
                     .sounds = sounds,
                     .store = store,
                     .troubles = std::move(data.troubles),
                     .firstScene = wishes.firstScene,
                     .player = who,
                     .pictures = std::move(pictures)},
                    {programFolder, player.data, playersAirports()}, settings.options,
                    wishes.seed.value_or(seedOfTheMoment()));
    const auto keep = [&] { keepSettings(store, program.options(), settings.window, backend); };
    {
        const SuddenEnd whenTheScreenIsLost(keep);
        if (const auto started = program.startUp()) {
            program.run();
        } else {
            complain(started.error().text);
        }
    }
    keep();
    return ended;
}

/// Whether the command line asks for something in place of playing, which is told then.
bool isAnswered(std::span<char*> words) {
    const std::string_view word = words.size() == 1 ? words.front() : "";
    if (word == "--help") {
        std::fwrite(usage.data(), 1, usage.size(), stdout);
    } else if (word == "--version") {
        std::puts(("ventrel " + std::string(programVersion)).c_str());
    } else {
        return false;
    }
    return true;
}

/// What the command line wants of the game; none, after a complaint, for what it cannot mean.
std::optional<Wishes> readWishes(std::span<char*> words) {
    Wishes wishes;
    while (!words.empty()) {
        const std::string_view word = words.front();
        words = words.subspan(1);
        if (sameWithoutCase(word, skipSplash)) {
            wishes.firstScene = std::max(wishes.firstScene, FirstScene::console);
        } else if (word == "--daily") {
            wishes.firstScene = FirstScene::shiftOfTheDay;
        } else if (word == "--seed") {
            const std::string_view digits = words.empty() ? "" : words.front();
            words = words.subspan(words.empty() ? 0 : 1);
            wishes.seed = wholeNumber<std::uint32_t>(digits);
            if (!wishes.seed) {
                complain("--seed needs a whole number from 0 to 4294967295, not '" + fromUtf8(digits) +
                         "'; see ventrel --help");
                return std::nullopt;
            }
        } else {
            // What stands alone is known: then it is the next that is too much.
            const bool isKnown = (word == "--help" || word == "--version") && !words.empty();
            complain("unknown argument '" + fromUtf8(isKnown ? words.front() : word) +
                     "'; see ventrel --help");
            return std::nullopt;
        }
    }
    return wishes;
}

} // namespace

} // namespace ventrel

int main(int count, char** words) {
    using namespace ventrel;
    const std::span<char*> rest{words + 1, words + count};
    if (isAnswered(rest)) {
        return ended;
    }
    const auto wishes = readWishes(rest);
    if (!wishes) {
        return wrongUsage;
    }
    const std::filesystem::path lockFolder = userDataFolder(programName);
    const InstanceLock lock(lockFolder.empty() ? lockFolder : lockFolder / lockName);
    if (lock.isTaken()) {
        complain("another copy is running already");
        return ended;
    }
    return play(executableFile(words[0]), *wishes);
}
