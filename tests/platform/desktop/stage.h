// A small desktop on a headless machine, with one main window, for tests to play on.

#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/desktop/desktop.h"
#include "platform/headless/script.h"

namespace ventrel {

using Log = std::vector<std::string>;

struct Stage {
    HeadlessBackend backend{Size{200, 150}};
    Desktop desktop{backend, Size{200, 150}};
    Script script{backend};
    Log log;

    /// Runs the program through the script so far, and ends it.
    void play() {
        script.then([this] { desktop.quit(); });
        desktop.run();
    }

    Window open(WindowHandlers handlers = {}, Rect bounds = {0, 0, 200, 150}) {
        return desktop.create({.bounds = bounds, .handlers = std::move(handlers)});
    }

    /// Runs a dialog until somebody sets `finished`; logs how it ended.
    void runDialog(Window owner, WindowHandlers handlers = {}) {
        const Window dialog =
            desktop.create({.owner = owner, .bounds = {50, 40, 150, 110}, .handlers = std::move(handlers)});
        dialogIsFinished = false;
        const bool ended = desktop.runModal(dialog, [this] { return dialogIsFinished; });
        log.emplace_back(ended ? "ended" : "broken off");
        dialog.destroy();
    }
    bool dialogIsFinished = false;

    /// A handler that logs a text whatever it is told, and takes what it is given.
    auto note(std::string text) {
        return [this, text = std::move(text)](const auto&...) {
            log.push_back(text);
            return true;
        };
    }

    /// Handlers that log what activation and focus do to a window of that name.
    WindowHandlers logged(const std::string& name) {
        return {.focus = [this, name](bool gained) { log.push_back(name + (gained ? " focus" : " blur")); },
                .activate =
                    [this, name](Activation activation) {
                        log.push_back(name + (activation.active      ? " active"
                                              : activation.minimised ? " minimised"
                                                                     : " inactive"));
                    }};
    }
};

} // namespace ventrel
