#include "shell/program.h"

#include <algorithm>
#include <iterator>

#include "console/window_size.h"
#include "platform/widgets/message_box.h"
#include "records/high_scores.h"
#include "shell/day_dialog.h"
#include "shell/game_flow.h"
#include "shell/lesson_dialogs.h"
#include "shell/main_window.h"
#include "shell/option_commands.h"
#include "shell/presentations.h"
#include "shell/tick.h"
#include "shell/trouble_text.h"

namespace ventrel {

namespace {

/// Fewer bits for a pixel cannot show the console's colours.
constexpr int leastColourDepth = 16;

void tellOfSilence(Shell& shell, SoundFault fault) {
    switch (fault) {
    case SoundFault::none: break;
    case SoundFault::missing:
        shell.report(StringTableText(TextId::soundFailed), MessageIcon::exclamation);
        break;
    case SoundFault::inUse:
        shell.report(StringTableText(TextId::soundInUse), MessageIcon::exclamation);
        break;
    }
}

} // namespace

bool hasWindowSize(const Options& options) {
    return options.resolution == smallResolution || options.resolution == largeResolution;
}

Size chooseWindowSize(Options& options, Size screen) {
    if (!hasWindowSize(options)) {
        options.resolution = screen.width < largeWindow.width ? smallResolution : largeResolution;
    }
    return options.resolution == smallResolution ? smallWindow : largeWindow;
}

Program::Program(ProgramParts parts, ProgramPlaces places, const Options& options, std::uint32_t seed)
    : parts_(std::move(parts)), places_(std::move(places)), options_(options), seed_(seed),
      desktop_(parts_.backend, options.resolution == smallResolution ? smallWindow : largeWindow) {}

tl::unexpected<Failure> Program::giveUp(Failure reason) {
    showMessageBox(desktop_, widgetFontsOf(parts_.fonts), {},
                   {.text = reason.text, .title = programTitle, .icon = reason.icon});
    return tl::unexpected(std::move(reason));
}

Result<> Program::startUp() {
    auto loaded = parts_.pictures.valid() ? parts_.pictures.get()
                                          : loadPictures(places_.programFolder, desktop_.size().width);
    if (!loaded) {
        return giveUp(std::move(loaded.error()));
    }
    parts_.sounds.choose(soundChoices(options_));
    auto soundFault = parts_.sounds.start();
    if (!soundFault) {
        return giveUp(std::move(soundFault.error()));
    }
    std::ranges::move(loaded->troubles, std::back_inserter(parts_.troubles));
    shell_ = std::make_unique<Shell>(ShellParts{.desktop = desktop_,
                                                .sounds = parts_.sounds,
                                                .fonts = parts_.fonts,
                                                .store = parts_.store,
                                                .programFolder = places_.programFolder,
                                                .playerFolder = places_.playerFolder,
                                                .playersAirports = places_.playersAirports,
                                                .pictures = std::move(loaded->pictures),
                                                .options = options_,
                                                .random = {seed_},
                                                .utcNow = parts_.utcNow});
    if (auto made = makeHighScoreFile(shell_->highScorePath); !made) {
        parts_.troubles.push_back(std::move(made.error().text));
    }
    createMainWindow(*shell_);
    tellOfSilence(*shell_, *soundFault);
    desktop_.setIdle([this] { return Tick(*shell_); });
    if (parts_.firstScene == FirstScene::opening) {
        if (auto checked = checkOpening(places_.programFolder); !checked) {
            return giveUp(std::move(checked.error()));
        }
    }
    shell_->mainWindow.post([this] { finishStartUp(); });
    return {};
}

void Program::finishStartUp() {
    if (parts_.firstScene != FirstScene::opening || showOpening(*shell_)) {
        showConsole();
    }
}

void Program::showConsole() {
    shell_->mainWindow.releaseCapture();
    const bool isWindowed = shell_->options.windowed != 0;
    if (isWindowed && parts_.backend.display().bitsPerPixel < leastColourDepth) {
        shell_->report(StringTableText(TextId::colourDepthTooLow), MessageIcon::exclamation);
    }
    shell_->mainWindow.show();
    if (const auto failure = parts_.store.takeFailure()) {
        shell_->report(*failure);
    }
    shell_->sounds.stopMusic();
    shell_->sounds.playMusic(idleMusic, true);
    if (!parts_.troubles.empty()) {
        shell_->report(troubleText(parts_.troubles), MessageIcon::stop);
    }
    if (parts_.firstScene == FirstScene::shiftOfTheDay) {
        if (const auto setup = setUpOfToday(*shell_)) {
            startDay(*shell_, *setup);
        }
    } else if (parts_.player == Player::newcomer) {
        shell_->mainWindow.post([this] { welcomeNewcomer(*shell_); });
    }
}

void Program::run() {
    desktop_.run();
}

} // namespace ventrel
