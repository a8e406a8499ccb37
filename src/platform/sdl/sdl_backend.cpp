#include "platform/sdl/sdl_backend.h"

#include <SDL.h>

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "base/windows1252.h"
#include "platform/devices/deadline.h"
#include "platform/sdl/picture_scaling.h"
#include "platform/sdl/sdl_beeper.h"
#include "platform/sdl/sdl_input.h"
#include "platform/sdl/sdl_keys.h"
#include "platform/sdl/sdl_pointers.h"
#include "platform/sdl/sdl_surface.h"
#include "platform/sdl/sdl_system.h"
#include "platform/sdl/window_grips.h"
#include "platform/sdl/x11_care.h"

namespace ventrel {

namespace {

constexpr int doubleClickRadius = 4; // pixels of the picture between two clicks that count as one

class SdlWindow final : public SdlBackend {
public:
    SdlWindow(std::unique_ptr<VideoSystem> video, const SdlOptions& options)
        : video_(std::move(video)), picture_(options.picture), sound_(options.sound) {
        if (sound_ != nullptr) {
            beeper_.emplace(*sound_);
        }
        constexpr auto flags = SDL_WINDOW_HIDDEN | SDL_WINDOW_BORDERLESS | SDL_WINDOW_RESIZABLE;
        const Rect bounds = firstBounds(options);
        window_.reset(SDL_CreateWindow(toUtf8(options.title).c_str(), bounds.left, bounds.top, bounds.width(),
                                       bounds.height(), flags));
        if (!window_) {
            return;
        }
        adaptToScale();
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

    WindowPlacement placement() const override { return isFullScreen_ ? windowed_ : placementNow(); }

    Millis now() override { return static_cast<Millis>(SDL_GetTicks64()); }

    std::optional<InputEvent> wait(std::optional<Millis> limit) override {
        const std::optional<Millis> end = limit ? std::optional(now() + *limit) : std::nullopt;
        const bool wasQuiet = std::exchange(wasQuiet_, false);
        for (;;) {
            if (const auto typed = std::exchange(typed_, std::nullopt)) {
                return *typed;
            }
            if (limit == 0 && wasQuiet) {
                return std::nullopt;
            }
            SDL_Event event;
            if (waitFor(event, end)) {
                if (auto input = translate(event)) {
                    return input;
                }
            } else if (end && now() >= *end) {
                wasQuiet_ = limit != 0;
                return std::nullopt;
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
        surface_.present(*window_, picture, changed, [this](Size window) { return areaIn(window); });
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

    void setCursor(const CursorImage* cursor) override { pointers_.set(cursor); }

    void captureMouse(bool captured) override {
        captured_ = captured;
        SDL_CaptureMouse(captured ? SDL_TRUE : SDL_FALSE);
    }

    Point mousePosition() override {
        Point p;
        SDL_GetMouseState(&p.x, &p.y);
        return toPicture(p, area(), picture_);
    }

    void setDragStrip(std::optional<DragStrip> strip) override { dragStrip_ = strip; }

    void setFullScreen(bool fullScreen) override {
        if (fullScreen == isFullScreen_) {
            return;
        }
        if (fullScreen) {
            windowed_ = placementNow();
        }
        if (!lacksWindowManager(window_.get())) {
            SDL_SetWindowFullscreen(window_.get(), fullScreen ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
        } else {
            moveTo(fullScreen ? screenBounds() : windowed_.bounds);
        }
        isFullScreen_ = fullScreen;
        surface_.sendAll();
        adaptToScale();
    }
    bool isFullScreen() const override { return isFullScreen_; }

    Millis frameTime() override {
        constexpr int usualRate = 60; // pictures a second, where the screen does not tell
        constexpr int second = 1000;
        SDL_DisplayMode mode{};
        SDL_GetCurrentDisplayMode(std::max(0, SDL_GetWindowDisplayIndex(window_.get())), &mode);
        return second / (mode.refresh_rate > 0 ? mode.refresh_rate : usualRate);
    }

    void minimise() override { SDL_MinimizeWindow(window_.get()); }
    void restore() override {
        SDL_RestoreWindow(window_.get());
        SDL_RaiseWindow(window_.get());
    }

    std::string keyName(Key place) override {
        const SDL_Scancode code = scancodeOf(place);
        const std::string name = SDL_GetKeyName(SDL_GetKeyFromScancode(code));
        return fromUtf8(name.empty() ? deadKeyName(window_.get(), code) : name, '\0');
    }

    std::string clipboard() override {
        char* text = SDL_GetClipboardText();
        std::string result = fromUtf8(text == nullptr ? "" : text, '\0');
        SDL_free(text);
        return result;
    }

    void setClipboard(std::string_view text) override { SDL_SetClipboardText(toUtf8(text).c_str()); }

    std::tm today() override {
        const std::time_t moment = std::time(nullptr);
        std::tm day{};
        ::localtime_r(&moment, &day);
        return day;
    }
    void beep(MessageIcon kind) override {
        if (beeper_) {
            beeper_->beep(kind);
        }
    }

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

    WindowPlacement placementNow() const {
        Point corner;
        SDL_GetWindowPosition(window_.get(), &corner.x, &corner.y);
        return {Rect::at(corner, windowSize())};
    }

    void moveTo(const Rect& bounds) {
        SDL_SetWindowPosition(window_.get(), bounds.left, bounds.top);
        SDL_SetWindowSize(window_.get(), bounds.width(), bounds.height());
    }

    /// All of the screen on which the window stands.
    Rect screenBounds() const {
        SDL_Rect screen{0, 0, picture_.width, picture_.height};
        SDL_GetDisplayBounds(std::max(0, SDL_GetWindowDisplayIndex(window_.get())), &screen);
        return Rect::at({screen.x, screen.y}, {screen.w, screen.h});
    }

    Size windowSize() const {
        Size size;
        SDL_GetWindowSize(window_.get(), &size.width, &size.height);
        return size;
    }

    Rect areaIn(Size window) const {
        return pictureArea(window, picture_, isFullScreen_ ? PictureFit::filling : PictureFit::sharp);
    }
    Rect area() const { return areaIn(windowSize()); }

    /// The next event of SDL. False when there was none until `end`, or before that, when something of ours
    /// was to be seen to.
    bool waitFor(SDL_Event& event, std::optional<Millis> end) {
        const std::optional<Millis> until = earlier(attendToSound(), end);
        if (!until) {
            return SDL_WaitEvent(&event) == 1;
        }
        // The clock counts whole milliseconds: waiting one less than asked for would spin through the rest.
        const Millis left = std::clamp<Millis>(*until - now(), 0, std::numeric_limits<int>::max());
        return left == 0 ? SDL_PollEvent(&event) == 1
                         : SDL_WaitEventTimeout(&event, static_cast<int>(left)) == 1;
    }

    /// When it wants to be attended to next.
    std::optional<Millis> attendToSound() {
        if (sound_ == nullptr) {
            return std::nullopt;
        }
        sound_->attend(now());
        return sound_->nextAttention();
    }

    std::optional<InputEvent> translate(const SDL_Event& event) {
        if (event.type == SDL_WINDOWEVENT) {
            noteWindowChange(event.window);
        }
        typed_ = keypadText(event);
        return inputOf(event, {area(), picture_, captured_});
    }

    void noteWindowChange(const SDL_WindowEvent& event) {
        const bool isResized = event.event == SDL_WINDOWEVENT_SIZE_CHANGED;
        if (isResized || event.event == SDL_WINDOWEVENT_EXPOSED) {
            surface_.sendAll();
        }
        if (isResized) {
            adaptToScale();
        }
    }

    /// Pointers, and how far apart two clicks may be, grow with the picture.
    void adaptToScale() {
        const int multiple = std::max(1, area().width() / picture_.width);
        if (multiple == multiple_) {
            return;
        }
        multiple_ = multiple;
        SDL_SetHint(SDL_HINT_MOUSE_DOUBLE_CLICK_RADIUS, std::to_string(doubleClickRadius * multiple).c_str());
        pointers_.enlargeBy(multiple);
    }

    static SDL_HitTestResult hitTest(SDL_Window*, const SDL_Point* point, void* data) {
        return static_cast<const SdlWindow*>(data)->partAt({point->x, point->y});
    }

    /// A press that a menu waits for must arrive, wherever it is made.
    SDL_HitTestResult partAt(Point p) const {
        if (captured_ || isFullScreen_) {
            return SDL_HITTEST_NORMAL;
        }
        return WindowGrips{windowSize(), area(), picture_, dragStrip_}.at(p);
    }

    std::unique_ptr<VideoSystem> video_;
    Size picture_;
    WindowPointer window_;
    bool isFullScreen_ = false;
    WindowPlacement windowed_; // while the screen is filled: where the window comes back to
    SdlSurface surface_;
    int multiple_ = 0; // by which pointers are drawn; 0: not known yet
    SdlPointers pointers_;
    std::optional<TextEvent> typed_; // comes after the key that typed it
    SdlSound* sound_;
    std::optional<Beeper> beeper_; // where there is sound
    std::optional<DragStrip> dragStrip_;
    bool captured_ = false;
    bool wasQuiet_ = false; // until the end of the latest wait: a look right after it would find nothing
};

constexpr std::string_view noScreenText = "There is no screen to show Ventrel on: no window system answers "
                                          "here (is DISPLAY or WAYLAND_DISPLAY set?).";

} // namespace

Screen::Screen() : video_(std::make_unique<VideoSystem>()) {}

Screen::~Screen() = default;

std::optional<Size> Screen::size() const {
    SDL_DisplayMode mode;
    if (!video_->hasScreen() || SDL_GetDesktopDisplayMode(0, &mode) != 0) {
        return std::nullopt;
    }
    return Size{mode.w, mode.h};
}

Result<std::unique_ptr<SdlBackend>> openSdlBackend(const SdlOptions& options) {
    auto video = std::make_unique<VideoSystem>();
    if (!video->hasScreen()) {
        return failed(std::string(noScreenText));
    }
    auto backend = std::make_unique<SdlWindow>(std::move(video), options);
    if (!backend->isOpen()) {
        return failed(std::string("The window cannot be opened: ") + SDL_GetError());
    }
    endOnHangUp();
    return backend;
}

} // namespace ventrel
