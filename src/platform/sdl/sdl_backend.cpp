#include "platform/sdl/sdl_backend.h"

#include <SDL.h>

#include <array>
#include <cstdlib>
#include <deque>
#include <limits>
#include <map>
#include <string_view>
#include <vector>

#include "base/windows1252.h"
#include "platform/sdl/picture_scaling.h"
#include "platform/sdl/scaled_picture.h"
#include "platform/sdl/sdl_keys.h"

namespace ventrel {

namespace {

constexpr int resizeEdge = 4; // pixels of the window by which a person resizes it
constexpr int notShared = 0;

struct WindowDeleter {
    void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
};
struct SurfaceDeleter {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
struct CursorDeleter {
    void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
};
using SurfacePointer = std::unique_ptr<SDL_Surface, SurfaceDeleter>;
using CursorPointer = std::unique_ptr<SDL_Cursor, CursorDeleter>;

/// SDL's video part, for as long as the object lives.
class VideoSystem {
public:
    VideoSystem() {
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        // Plain pictures in memory: through a graphics driver every small change would cost a whole frame.
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
        SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
        SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
        isOpen_ = SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
    }
    VideoSystem(const VideoSystem&) = delete;
    VideoSystem& operator=(const VideoSystem&) = delete;
    ~VideoSystem() {
        if (isOpen_) {
            SDL_QuitSubSystem(SDL_INIT_VIDEO);
        }
    }

    /// Whether there is a screen. Without one SDL falls back to drivers that show nothing; these count only
    /// when they were asked for by name.
    bool hasScreen() const {
        if (!isOpen_) {
            return false;
        }
        const std::string_view driver = SDL_GetCurrentVideoDriver();
        const bool showsNothing = driver == "dummy" || driver == "offscreen" || driver == "evdev";
        const char* wanted = std::getenv("SDL_VIDEODRIVER");
        return !showsNothing || (wanted != nullptr && driver == wanted);
    }

private:
    bool isOpen_ = false;
};

/// A picture with clear parts, `multiple` times as large.
SurfacePointer surfaceOf(const CursorImage& image, int multiple) {
    const Size size{image.picture.width() * multiple, image.picture.height() * multiple};
    SurfacePointer surface(
        SDL_CreateRGBSurfaceWithFormat(notShared, size.width, size.height, 32, SDL_PIXELFORMAT_ARGB8888));
    if (!surface) {
        return nullptr;
    }
    constexpr std::uint32_t opaque = 0xFF000000;
    for (int y = 0; y < size.height; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(static_cast<std::uint8_t*>(surface->pixels) +
                                                     static_cast<std::ptrdiff_t>(y) * surface->pitch);
        for (int x = 0; x < size.width; ++x) {
            const Point from{x / multiple, y / multiple};
            const bool isDrawn = image.mask.at(from.x, from.y) != 0;
            row[x] = isDrawn ? image.picture.at(from.x, from.y) | opaque : 0;
        }
    }
    return surface;
}

MouseButton buttonOf(std::uint8_t button) {
    switch (button) {
    case SDL_BUTTON_LEFT: return MouseButton::left;
    case SDL_BUTTON_RIGHT: return MouseButton::right;
    case SDL_BUTTON_MIDDLE: return MouseButton::middle;
    default: return MouseButton::none;
    }
}

class SdlWindow final : public SdlBackend {
public:
    SdlWindow(std::unique_ptr<VideoSystem> video, const SdlOptions& options)
        : video_(std::move(video)), picture_(options.picture) {
        constexpr auto flags = SDL_WINDOW_HIDDEN | SDL_WINDOW_BORDERLESS | SDL_WINDOW_RESIZABLE;
        const Rect bounds = firstBounds(options);
        window_.reset(SDL_CreateWindow(toUtf8(options.title).c_str(), bounds.left, bounds.top, bounds.width(),
                                       bounds.height(), flags));
        if (!window_) {
            return;
        }
        SDL_SetWindowHitTest(window_.get(), &SdlWindow::hitTest, this);
        SDL_SetWindowMinimumSize(window_.get(), picture_.width / 2, picture_.height / 2);
        if (options.icon != nullptr) {
            const SurfacePointer icon = surfaceOf(*options.icon, 1);
            SDL_SetWindowIcon(window_.get(), icon.get());
        }
        if (options.fullScreen) {
            setFullScreen(true);
        }
        SDL_StartTextInput();
    }

    bool isOpen() const { return window_ != nullptr; }

    std::optional<WindowPlacement> placement() const override {
        if ((SDL_GetWindowFlags(window_.get()) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0) {
            return std::nullopt;
        }
        Point corner;
        SDL_GetWindowPosition(window_.get(), &corner.x, &corner.y);
        return WindowPlacement{Rect::at(corner, windowSize())};
    }

    Millis now() override { return static_cast<Millis>(SDL_GetTicks64()); }

    std::optional<InputEvent> wait(std::optional<Millis> limit) override {
        const std::optional<Millis> end = limit ? std::optional(now() + *limit) : std::nullopt;
        for (;;) {
            SDL_Event event;
            if (!waitFor(event, end)) {
                return std::nullopt;
            }
            if (const auto input = translate(event)) {
                return input;
            }
        }
    }

    DisplayInfo display() override {
        DisplayInfo info;
        SDL_DisplayMode mode;
        if (SDL_GetDesktopDisplayMode(0, &mode) == 0) {
            info.desktop = {mode.w, mode.h};
            info.bitsPerPixel = SDL_BITSPERPIXEL(mode.format);
        }
        return info;
    }

    void present(const Bitmap& picture, std::span<const Rect> changed) override {
        SDL_Surface* screen = SDL_GetWindowSurface(window_.get());
        if (screen == nullptr || !prepareScaled(screen)) {
            return;
        }
        const PixelRows rows{
            static_cast<std::uint32_t*>(scaled_->pixels), scaled_->pitch / 4, {scaled_->w, scaled_->h}};
        const Rect area = pictureArea(rows.size, picture_);
        std::vector<SDL_Rect> sent;
        for (const Rect& part : changed) {
            const Rect shown = scalePicture(rows, area, picture, part);
            if (!shown.isEmpty()) {
                sent.push_back({shown.left, shown.top, shown.width(), shown.height()});
            }
        }
        if (showsBars_) {
            sent.assign(1, {0, 0, scaled_->w, scaled_->h});
            showsBars_ = false;
        }
        for (SDL_Rect part : sent) {
            SDL_BlitSurface(scaled_.get(), &part, screen, &part);
        }
        if (!sent.empty()) {
            SDL_UpdateWindowSurfaceRects(window_.get(), sent.data(), static_cast<int>(sent.size()));
        }
    }

    void show(bool visible) override {
        if (visible) {
            SDL_ShowWindow(window_.get());
            SDL_RaiseWindow(window_.get());
        } else {
            SDL_HideWindow(window_.get());
        }
    }

    void setTitle(std::string_view title) override {
        SDL_SetWindowTitle(window_.get(), toUtf8(title).c_str());
    }

    void setCursor(const CursorImage* cursor) override {
        if (cursor == nullptr) {
            SDL_ShowCursor(SDL_DISABLE);
            return;
        }
        SDL_SetCursor(shownCursor(*cursor));
        SDL_ShowCursor(SDL_ENABLE);
    }

    void captureMouse(bool captured) override {
        captured_ = captured;
        SDL_CaptureMouse(captured ? SDL_TRUE : SDL_FALSE);
    }

    Point mousePosition() override {
        Point p;
        SDL_GetMouseState(&p.x, &p.y);
        return toPicture(p, area(), picture_);
    }

    void setDragStrip(std::optional<Rect> strip) override { dragStrip_ = strip; }

    void setFullScreen(bool fullScreen) override {
        SDL_SetWindowFullscreen(window_.get(), fullScreen ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
    }

    void minimise() override { SDL_MinimizeWindow(window_.get()); }
    void restore() override {
        SDL_RestoreWindow(window_.get());
        SDL_RaiseWindow(window_.get());
    }

    std::string clipboard() override {
        char* text = SDL_GetClipboardText();
        const std::string result = fromUtf8(text == nullptr ? "" : text, '\0');
        SDL_free(text);
        return result;
    }

    void setClipboard(std::string_view text) override { SDL_SetClipboardText(toUtf8(text).c_str()); }

    /// The machine has no sounds for message boxes: SDL knows none.
    void beep(MessageIcon) override {}

private:
    Rect firstBounds(const SdlOptions& options) const {
        if (options.placement && isOnScreen(options.placement->bounds)) {
            return options.placement->bounds;
        }
        SDL_Rect usable{0, 0, picture_.width, picture_.height};
        SDL_GetDisplayUsableBounds(0, &usable);
        const Size size = firstWindowSize({usable.w, usable.h}, picture_);
        return Rect::at({usable.x + (usable.w - size.width) / 2, usable.y + (usable.h - size.height) / 2},
                        size);
    }

    /// Whether a person could get hold of a window that stands there.
    static bool isOnScreen(const Rect& bounds) {
        for (int i = 0; i < SDL_GetNumVideoDisplays(); ++i) {
            SDL_Rect display;
            const bool isKnown = SDL_GetDisplayBounds(i, &display) == 0;
            const Rect screen = Rect::at({display.x, display.y}, {display.w, display.h});
            const Point grip{(bounds.left + bounds.right) / 2, bounds.top};
            if (isKnown && screen.contains(grip) && bounds.width() > resizeEdge &&
                bounds.height() > resizeEdge) {
                return true;
            }
        }
        return false;
    }

    Size windowSize() const {
        Size size;
        SDL_GetWindowSize(window_.get(), &size.width, &size.height);
        return size;
    }

    Rect area() const { return pictureArea(windowSize(), picture_); }

    /// The next event of SDL; false when there was none until `end`.
    bool waitFor(SDL_Event& event, std::optional<Millis> end) {
        if (!end) {
            return SDL_WaitEvent(&event) == 1;
        }
        // The clock counts whole milliseconds: waiting one less than asked for would spin through the rest.
        const Millis left = std::clamp<Millis>(*end - now(), 0, std::numeric_limits<int>::max());
        return left == 0 ? SDL_PollEvent(&event) == 1
                         : SDL_WaitEventTimeout(&event, static_cast<int>(left)) == 1;
    }

    std::optional<InputEvent> translate(const SDL_Event& event) {
        switch (event.type) {
        case SDL_QUIT: return WindowEvent::closeRequested;
        case SDL_KEYDOWN:
        case SDL_KEYUP: return keyEvent(event.key);
        case SDL_TEXTINPUT: return textEvent(event.text);
        case SDL_MOUSEMOTION: return mouseAt({event.motion.x, event.motion.y});
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP: return buttonEvent(event.button);
        case SDL_MOUSEWHEEL: return wheelEvent(event.wheel);
        case SDL_WINDOWEVENT: return windowEvent(event.window);
        case SDL_DISPLAYEVENT: return WindowEvent::displayChanged;
        default: return std::nullopt;
        }
    }

    static std::optional<InputEvent> keyEvent(const SDL_KeyboardEvent& event) {
        return KeyEvent{keyOf(event.keysym), modifiersOf(static_cast<SDL_Keymod>(event.keysym.mod)),
                        event.type == SDL_KEYDOWN, event.repeat != 0};
    }

    static std::optional<InputEvent> textEvent(const SDL_TextInputEvent& event) {
        const bool isCommand = (SDL_GetModState() & (KMOD_LALT | KMOD_CTRL)) != 0;
        std::string text = isCommand ? std::string() : fromUtf8(event.text, '\0');
        return text.empty() ? std::nullopt : std::optional<InputEvent>(TextEvent{std::move(text)});
    }

    /// A move of the mouse, or the start of anything else it does there. Beside the picture it counts only
    /// while it is captured.
    std::optional<MouseEvent> mouseAt(Point window) const {
        const Point position = toPicture(window, area(), picture_);
        if (!captured_ && !Rect::at({}, picture_).contains(position)) {
            return std::nullopt;
        }
        return MouseEvent{.position = position, .modifiers = modifiersOf(SDL_GetModState())};
    }

    std::optional<InputEvent> buttonEvent(const SDL_MouseButtonEvent& event) const {
        auto mouse = mouseAt({event.x, event.y});
        const MouseButton button = buttonOf(event.button);
        if (!mouse || button == MouseButton::none) {
            return std::nullopt;
        }
        mouse->button = button;
        mouse->down = event.type == SDL_MOUSEBUTTONDOWN;
        mouse->doubleClick = mouse->down && event.clicks % 2 == 0;
        return *mouse;
    }

    std::optional<InputEvent> wheelEvent(const SDL_MouseWheelEvent& event) {
        Point at;
        SDL_GetMouseState(&at.x, &at.y);
        auto mouse = mouseAt(at);
        const int notches = event.direction == SDL_MOUSEWHEEL_FLIPPED ? -event.y : event.y;
        if (!mouse || notches == 0) {
            return std::nullopt;
        }
        mouse->wheel = notches;
        return *mouse;
    }

    std::optional<InputEvent> windowEvent(const SDL_WindowEvent& event) {
        switch (event.event) {
        case SDL_WINDOWEVENT_SIZE_CHANGED:
        case SDL_WINDOWEVENT_EXPOSED:
            cursors_.clear();
            showsBars_ = true;
            return WindowEvent::exposed;
        case SDL_WINDOWEVENT_FOCUS_GAINED: return WindowEvent::activated;
        case SDL_WINDOWEVENT_FOCUS_LOST: return WindowEvent::deactivated;
        case SDL_WINDOWEVENT_MINIMIZED: return WindowEvent::minimised;
        case SDL_WINDOWEVENT_RESTORED: return WindowEvent::restored;
        case SDL_WINDOWEVENT_CLOSE: return std::nullopt; // SDL asks to quit after its last window
        case SDL_WINDOWEVENT_DISPLAY_CHANGED: return WindowEvent::displayChanged;
        default: return std::nullopt;
        }
    }

    /// A picture of the window's own size, with black beside the shown one.
    bool prepareScaled(const SDL_Surface* screen) {
        if (scaled_ && scaled_->w == screen->w && scaled_->h == screen->h) {
            return true;
        }
        scaled_.reset(
            SDL_CreateRGBSurfaceWithFormat(notShared, screen->w, screen->h, 32, SDL_PIXELFORMAT_RGB888));
        showsBars_ = true;
        return scaled_ != nullptr;
    }

    SDL_Cursor* shownCursor(const CursorImage& image) {
        CursorPointer& cursor = cursors_[&image];
        if (!cursor) {
            const int multiple = std::max(1, area().width() / picture_.width);
            const SurfacePointer surface = surfaceOf(image, multiple);
            cursor.reset(
                SDL_CreateColorCursor(surface.get(), image.hotSpot.x * multiple, image.hotSpot.y * multiple));
        }
        return cursor.get();
    }

    static SDL_HitTestResult hitTest(SDL_Window*, const SDL_Point* point, void* data) {
        return static_cast<const SdlWindow*>(data)->partAt({point->x, point->y});
    }

    SDL_HitTestResult partAt(Point p) const {
        if ((SDL_GetWindowFlags(window_.get()) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0) {
            return SDL_HITTEST_NORMAL;
        }
        if (dragStrip_ && dragStrip_->contains(toPicture(p, area(), picture_))) {
            return SDL_HITTEST_DRAGGABLE;
        }
        const Size size = windowSize();
        const bool isBottom = p.y >= size.height - resizeEdge;
        if (p.x >= size.width - resizeEdge) {
            return isBottom ? SDL_HITTEST_RESIZE_BOTTOMRIGHT : SDL_HITTEST_RESIZE_RIGHT;
        }
        if (p.x < resizeEdge) {
            return isBottom ? SDL_HITTEST_RESIZE_BOTTOMLEFT : SDL_HITTEST_RESIZE_LEFT;
        }
        return isBottom ? SDL_HITTEST_RESIZE_BOTTOM : SDL_HITTEST_NORMAL;
    }

    std::unique_ptr<VideoSystem> video_;
    Size picture_;
    std::unique_ptr<SDL_Window, WindowDeleter> window_;
    SurfacePointer scaled_;
    bool showsBars_ = true; // the whole window is to be sent, also beside the picture
    std::map<const CursorImage*, CursorPointer> cursors_;
    std::optional<Rect> dragStrip_;
    bool captured_ = false;
};

constexpr std::string_view noScreenText = "There is no screen to show Ventrel on: no window system answers "
                                          "here (is DISPLAY or WAYLAND_DISPLAY set?).";

} // namespace

std::optional<Size> screenSize() {
    const VideoSystem video;
    SDL_DisplayMode mode;
    if (!video.hasScreen() || SDL_GetDesktopDisplayMode(0, &mode) != 0) {
        return std::nullopt;
    }
    return Size{mode.w, mode.h};
}

std::unique_ptr<SdlBackend> openSdlBackend(const SdlOptions& options, const FailureReporter& report) {
    auto video = std::make_unique<VideoSystem>();
    if (!video->hasScreen()) {
        report(noScreenText, MessageIcon::stop);
        return nullptr;
    }
    auto backend = std::make_unique<SdlWindow>(std::move(video), options);
    if (!backend->isOpen()) {
        report(std::string("The window cannot be opened: ") + SDL_GetError(), MessageIcon::stop);
        return nullptr;
    }
    return backend;
}

} // namespace ventrel
