#include "presentation/opening.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "presentation/framed_picture.h"
#include "presentation/full_screen_window.h"

namespace ventrel {

namespace {

/// How long the curtain hangs still: the wider the screen, the shorter, for the way down is longer.
struct Hold {
    int leastWidth;
    Millis length;
};
constexpr std::array holds{Hold{1024, 9000}, Hold{800, 13000}, Hold{0, 17000}};

constexpr Millis slideInterval = 20; // for each pixel
constexpr int leftHanging = 10;      // pixels of the curtain that stay
constexpr int blackBelow = 200;      // a curtain lower than that is a black strip
constexpr Millis titleLasts = 2000;
constexpr Millis pumpInterval = 20; // between two looks whether somebody has closed it
constexpr int beeps = 5;

bool isClosingKey(const KeyEvent& event) {
    constexpr std::array keys{Key::escape, Key::enter, Key::keypadEnter, Key::space};
    const bool isAlone = !event.modifiers.control && !event.modifiers.alt;
    return isAlone && std::ranges::find(keys, event.key) != keys.end();
}

Millis holdFor(int screenWidth) {
    return std::ranges::find_if(holds, [&](const Hold& hold) { return screenWidth >= hold.leastWidth; })
        ->length;
}

class Opening {
public:
    Opening(Desktop& desktop, const OpeningSounds& sounds, OpeningPictures pictures)
        : desktop_(desktop), sounds_(sounds), pictures_(std::move(pictures)) {
        title_ =
            createFullScreenWindow(desktop, {.alwaysOnTop = false,
                                             .background = screenBlack,
                                             .paint = [this](Canvas& canvas) { paintTitle(canvas); },
                                             .dismiss = [this](const auto& key) { dismiss(title_, key); },
                                             .destroyed = [this] { sounds_.stopMusic(); }});
        curtain_ =
            createFullScreenWindow(desktop, {.paint = [this](Canvas& canvas) { paintCurtain(canvas); },
                                             .dismiss = [this](const auto& key) { dismiss(curtain_, key); },
                                             .destroyed = [this] { sounds_.stopEffects(); }});
    }
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;
    ~Opening() {
        curtain_.destroy();
        title_.destroy();
        desktop_.setCursor(StandardCursor::arrow);
    }

    /// The sound has begun at `start`.
    void play(Millis start) {
        curtain_.capture();
        hidePointer(desktop_);
        if (!pumpUntil(start + holdFor(desktop_.size().width)) || !slide()) {
            return;
        }
        curtain_.invalidate();
        if (pumpWhile(sounds_.isAnyPlaying)) {
            showTitle();
        }
    }

private:
    /// One pixel after the other until the sound ends. A machine that is late passes some over: the way down
    /// must not take longer than the sound.
    bool slide() {
        const Size screen = desktop_.size();
        const int lowest = screen.height - leftHanging - 1;
        const Millis start = desktop_.now();
        for (int y = -1; y < lowest && sounds_.isAnyPlaying();) {
            if (!pumpUntil(start + (y + 2) * slideInterval)) {
                return false;
            }
            const Millis due = (desktop_.now() - start) / slideInterval - 1;
            y = static_cast<int>(std::min<Millis>(due, lowest));
            curtain_.setBounds({0, y, screen.width, screen.height});
            curtain_.invalidate();
        }
        return true;
    }

    void showTitle() {
        title_.capture();
        sounds_.playMusic();
        title_.invalidate();
        if (!pumpFor(titleLasts)) {
            return;
        }
        title_.releaseCapture();
        desktop_.setCursor(StandardCursor::arrow);
        if (pumpWhile(sounds_.isMusicPlaying)) {
            for (int i = 0; i < beeps; ++i) {
                desktop_.backend().beep(MessageIcon::none);
            }
        }
    }

    bool isOpen() const { return curtain_.exists() && title_.exists() && !desktop_.isQuitting(); }

    // Each false when it has been closed meanwhile.

    bool pumpUntil(Millis moment) {
        while (isOpen() && desktop_.now() < moment) {
            desktop_.pumpUntil(std::min(moment, desktop_.now() + pumpInterval));
        }
        return isOpen();
    }

    bool pumpFor(Millis time) { return pumpUntil(desktop_.now() + time); }

    bool pumpWhile(const std::function<bool()>& isSo) {
        while (isOpen() && isSo()) {
            pumpFor(pumpInterval);
        }
        return isOpen();
    }

    static void dismiss(const Window& window, const std::optional<KeyEvent>& key) {
        if (!key || isClosingKey(*key)) {
            window.destroy();
        }
    }

    void paintCurtain(Canvas& canvas) const {
        if (curtain_.size().height >= blackBelow && !pictures_.curtain.isEmpty()) {
            canvas.draw({0, 0}, pictures_.curtain);
        } else {
            canvas.fill(curtain_.area(), screenBlack);
        }
    }

    void paintTitle(Canvas& canvas) const {
        const Point corner = centredCorner(desktop_.size(), pictures_.title.size());
        canvas.draw({std::abs(corner.x), std::abs(corner.y)}, pictures_.title);
    }

    Desktop& desktop_;
    const OpeningSounds& sounds_;
    OpeningPictures pictures_;
    Window title_;
    Window curtain_;
};

} // namespace

bool playOpening(OpeningParts parts) {
    const Millis start = parts.desktop.now();
    if (parts.sounds.playScroll()) {
        Opening(parts.desktop, parts.sounds, parts.loadPictures()).play(start);
    }
    return !parts.desktop.isQuitting();
}

} // namespace ventrel
