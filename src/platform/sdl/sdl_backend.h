// The machine through SDL: one borderless window that shows the picture scaled, with keyboard, mouse and
// clipboard.
//
// The only room that includes SDL.

#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "base/result.h"
#include "platform/devices/backend.h"
#include "platform/sdl/sdl_sound.h"

namespace ventrel {

/// Where the window stands on the machine's desktop.
struct WindowPlacement {
    Rect bounds;

    friend bool operator==(const WindowPlacement&, const WindowPlacement&) = default;
};

struct SdlOptions {
    std::string title = {};
    Size picture = {};       ///< the size of the picture that is shown
    bool fullScreen = false; ///< the whole screen, without a change of its mode
    /// Of the last time; none: a comfortable size in the middle.
    std::optional<WindowPlacement> placement = {};
    const CursorImage* icon = nullptr; ///< kept by the caller until the backend is open
    /// Sounds the beeps, and is attended to while the backend waits; outlives it. None: silence.
    SdlSound* sound = nullptr;
};

class SdlBackend : public Backend {
public:
    /// Where the window stands, or comes back to when it no longer fills the screen; for the next start.
    virtual WindowPlacement placement() const = 0;
};

class VideoSystem;

/// The connection to the machine's screen, before there is a window. Kept until after the window has gone: a
/// server that nobody else uses starts anew between two connections, and refuses whoever comes meanwhile.
class Screen {
public:
    Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    ~Screen();

    /// None when there is no screen.
    std::optional<Size> size() const;

private:
    std::unique_ptr<VideoSystem> video_;
};

/// Opens the window, hidden. Fails when there is no screen to show it on.
Result<std::unique_ptr<SdlBackend>> openSdlBackend(const SdlOptions& options);

} // namespace ventrel
