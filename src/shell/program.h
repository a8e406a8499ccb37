// The program from start-up to shutdown, over a machine that it is handed.
//
// main.cpp runs one on a real screen, tests run theirs in memory. Everything that lives between calls is
// owned here.

#pragma once

#include <filesystem>
#include <future>
#include <memory>

#include "audio/game_sounds.h"
#include "platform/desktop/desktop.h"
#include "shell/shell.h"

namespace ventrel {

/// Where the program finds its data and the player's own (see Shell).
struct ProgramPlaces {
    std::filesystem::path programFolder;
    std::filesystem::path playerFolder = {};
    std::filesystem::path playersAirports = {}; ///< a folder, which need not be there
};

/// Whether the option `resolution` asks for a size of the main window.
bool hasWindowSize(const Options& options);

/// The size of the main window that the option `resolution` asks for; without such a wish it follows from the
/// screen's width and is noted in the option.
Size chooseWindowSize(Options& options, Size screen);

/// What a start shows first.
enum class FirstScene { opening, console, shiftOfTheDay };

/// Whether somebody starts the program for the first time, and is asked what to begin with.
enum class Player { known, newcomer };

/// The machine and what was opened on it before there is a window. All of it outlives the program.
struct ProgramParts {
    Backend& backend;
    FontSet& fonts; ///< with a face at least
    GameSounds& sounds;
    OptionsStore& store;
    std::vector<std::string> troubles = {}; ///< what is missing but not needed; told once the console stands
    FirstScene firstScene = FirstScene::console;
    Player player = Player::known;
    UtcClock utcNow = systemUtcNow;
    /// The console's, when they were begun beside the opening of the screen; else the start loads them.
    std::future<Result<LoadedPictures>> pictures = {};
};

class Program {
public:
    /// `options` have been read and their window size chosen; the backend was opened with it. `seed` starts
    /// the generator of all chance.
    Program(ProgramParts parts, ProgramPlaces places, const Options& options, std::uint32_t seed);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program() = default;

    /// Loads what the console is made of and shows it. Fails, after the player was told, when something is
    /// missing.
    Result<> startUp();

    /// Runs until the player leaves.
    void run();

    /// There is one after a successful start.
    Shell& shell() { return *shell_; }
    Desktop& desktop() { return desktop_; }
    /// As they stand now, for the options file.
    const Options& options() const { return shell_ ? shell_->options : options_; }

private:
    /// Shows why nothing can start.
    tl::unexpected<Failure> giveUp(Failure reason);
    void finishStartUp();
    void showConsole();

    ProgramParts parts_;
    ProgramPlaces places_;
    Options options_;
    std::uint32_t seed_;
    Desktop desktop_;
    std::unique_ptr<Shell> shell_;
};

} // namespace ventrel
