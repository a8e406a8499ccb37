#include "shell/program.h"

#include <algorithm>
#include <iterator>

#include "console/window_size.h"
#include "platform/widgets/message_box.h"
#include "shell/game_flow.h"
#include "shell/main_window.h"
#include "shell/tick.h"
#include "shell/trouble_text.h"

namespace ventrel {

namespace {

/// Fewer bits for a pixel cannot show the console's colours.
constexpr int leastColourDepth = 16;

} // namespace

Size chooseWindowSize(Options& options, Size screen) {
    if (options.resolution != smallResolution && options.resolution != largeResolution) {
        options.resolution = screen.width < largeWindow.width ? smallResolution : largeResolution;
    }
    return options.resolution == smallResolution ? smallWindow : largeWindow;
}

Program::Program(ProgramParts parts, ProgramPlaces places, const Options& options, std::uint32_t seed)
    : parts_(std::move(parts)), places_(std::move(places)), options_(options), seed_(seed),
      desktop_(parts_.backend, options.resolution == smallResolution ? smallWindow : largeWindow) {}

Result<> Program::startUp() {
    auto loaded = loadPictures(places_.programFolder, desktop_.size().width);
    if (!loaded) {
        showMessageBox(desktop_, widgetFontsOf(parts_.fonts), {},
                       {.text = loaded.error().text, .title = programTitle, .icon = loaded.error().icon});
        return tl::unexpected(std::move(loaded.error()));
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
                                                .random = {seed_}});
    createMainWindow(*shell_);
    desktop_.setIdle([this] { return Tick(*shell_); });
    shell_->mainWindow.post([this] { finishStartUp(); });
    return {};
}

/// Whatever is shown before the console comes first; then the console appears.
void Program::finishStartUp() {
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
}

void Program::run() {
    desktop_.run();
}

} // namespace ventrel
