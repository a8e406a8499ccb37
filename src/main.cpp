// Ventrel: the game on this machine's screen.

#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/windows1252.h"
#include "platform/machine/instance_lock.h"
#include "platform/machine/places.h"
#include "platform/sdl/sdl_backend.h"
#include "shell/program.h"
#include "shell/program_data.h"
#include "shell/window_memory.h"

namespace ventrel {

namespace {

constexpr std::string_view programName = "ventrel";
constexpr std::string_view instanceName = "VNTL_MUTEX";
constexpr std::uint32_t seedMask = 0xFFFF;

constexpr int ended = 0;
constexpr int cannotStart = 1;

constexpr std::string_view usage =
    "Ventrel, an air-traffic-control game.\n"
    "\n"
    "    ventrel\n"
    "\n"
    "Keys and rules: F1 in the game. The options are kept in ventrel.ini beside the program, or in the data\n"
    "folder of the player where the program's folder cannot be written.\n";

void complain(std::string_view text, MessageIcon /*icon*/) {
    std::fprintf(stderr, "ventrel: %s\n", toUtf8(text).c_str());
}

/// The player's choices, as the options file has them and as they go back into it.
struct Settings {
    std::filesystem::path file;
    Options options = {};
    Size window = {}; ///< of the picture
    std::optional<Rect> windowPlace = {};

    void read() {
        const ProfileFile profile(file);
        options = ReadOptions(profile);
        window = chooseWindowSize(options, screenSize().value_or(Size{}));
        windowPlace = readWindowPlace(profile, window.width);
    }
    void write() const {
        ProfileFile profile(file);
        WriteOptions(options, profile);
        if (windowPlace) {
            writeWindowPlace(*windowPlace, window.width, profile);
        }
        profile.save();
    }
};

std::unique_ptr<SdlBackend> openScreen(const Settings& settings, const std::optional<CursorImage>& icon) {
    SdlOptions options{.title = std::string(programTitle), .picture = settings.window};
    options.fullScreen = settings.options.windowed == 0;
    if (settings.windowPlace) {
        options.placement = WindowPlacement{*settings.windowPlace};
    }
    options.icon = icon ? &*icon : nullptr;
    return openSdlBackend(options, complain);
}

/// The seed that the environment asks for, with which a game can be played again; none without such a wish,
/// and, after a complaint, for one that is no number.
std::optional<std::uint32_t> wantedSeed() {
    const char* wanted = std::getenv("VENTREL_SEED");
    if (wanted == nullptr) {
        return std::nullopt;
    }
    const std::string_view digits = wanted;
    std::uint32_t seed = 0;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), seed);
    if (fault != std::errc() || end != digits.data() + digits.size()) {
        complain("VENTREL_SEED must be a whole number from 0 to 4294967295, not '" + std::string(digits) +
                     "'",
                 MessageIcon::none);
        return std::nullopt;
    }
    return seed;
}

/// Another one at every start: milliseconds since the machine was started.
std::uint32_t seedOfTheMoment() {
    using namespace std::chrono;
    const auto sinceStart = duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
    return static_cast<std::uint32_t>(sinceStart.count()) & seedMask;
}

/// From start-up to shutdown, within the program's own folder.
int play(const std::filesystem::path& executable) {
    const std::filesystem::path programFolder = executable.parent_path();
    const std::string profileName = executable.stem().string() + ".ini";
    Settings settings{.file = writableFile(programFolder, programName, profileName)};
    settings.read();

    ProgramData data = openProgramData(programFolder);
    if (!data.fonts.hasFaces()) {
        complain(data.troubles.front(), MessageIcon::stop);
        return cannotStart;
    }
    const auto backend = openScreen(settings, data.icon);
    if (!backend) {
        return cannotStart;
    }
    SilentSounds sounds;
    {
        Program program({*backend, data.fonts, sounds, std::move(data.troubles)},
                        {programFolder, settings.file, userDataFolder(programName) / "apt"}, settings.options,
                        wantedSeed().value_or(seedOfTheMoment()));
        if (const auto started = program.startUp()) {
            program.run();
        } else {
            complain(started.error().text, started.error().icon);
        }
        settings.options = program.options();
    }
    if (const auto place = backend->placement()) {
        settings.windowPlace = place->bounds;
    }
    settings.write();
    return ended;
}

} // namespace

} // namespace ventrel

int main(int count, char** words) {
    using namespace ventrel;
    if (count == 2 && std::string_view(words[1]) == "--help") {
        std::fputs(usage.data(), stdout);
        return ended;
    }
    const InstanceLock lock(instanceName);
    return lock.isTaken() ? ended : play(executableFile(words[0]));
}
