// A small desktop with the fonts of the widgets, for tests to put controls on.

#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/headless/script.h"
#include "platform/widgets/dialog.h"

namespace ventrel {

struct WidgetStage {
    static constexpr Size size{400, 300};

    HeadlessBackend backend{size};
    Desktop desktop{backend, size};
    FontSet faces{std::string(PROGRAM_FOLDER) + "/fonts"};
    WidgetFonts fonts{faces.font({Face::msSansSerif, -11, false}),
                      faces.font({Face::msSansSerif, -11, true})};
    Script script{backend};
    std::vector<int> commands; ///< what reached the main window, by the sender's number
    Window main = desktop.create(
        {.bounds = {0, 0, size.width, size.height},
         .handlers = {.command = [this](const CommandInput& input) { commands.push_back(input.id); }}});

    /// Runs `program` and the script beside it, to the end of both.
    void play(const std::function<void()>& program = nullptr) {
        main.post([this, program] {
            if (program) {
                program();
            }
            script.then([this] { desktop.quit(); });
        });
        desktop.run();
    }

    std::size_t openWindows() const { return desktop.topLevels().size(); }
};

} // namespace ventrel
