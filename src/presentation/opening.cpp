#include "presentation/opening.h"

#include <algorithm>
#include <array>

#include "presentation/framed_picture.h"
#include "presentation/full_screen_window.h"

namespace ventrel {

namespace {

constexpr Colour black = Colour::rgb(0, 0, 0);

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

bool isClosingKey(Key key) {
    return key == Key::escape || key == Key::enter || key == Key::keypadEnter || key == Key::space;
}

Millis holdFor(int screenWidth) {
    return std::ranges::find_if(holds, [&](const Hold& hold) { return screenWidth >= hold.leastWidth; })
        ->length;
}

class Opening {
public:
    explicit Opening(OpeningParts parts) : parts_(std::move(parts)) {
        curtain_ = createFullScreenWindow(parts_.desktop,
                                          {.paint = [this](Canvas& canvas) { paintCurtain(canvas); },
                                           .dismiss = [this](const auto& key) { dismissCurtain(key); },
                                           .destroyed = [this] { parts_.sounds.stopEffects(); }});
        title_ =
            createFullScreenWindow(parts_.desktop, {.alwaysOnTop = false,
                                                    .background = black,
                                                    .paint = [this](Canvas& canvas) { paintTitle(canvas); },
                                                    .dismiss = [this](const auto& key) { dismissTitle(key); },
                                                    .destroyed = [this] { parts_.sounds.stopMusic(); }});
        curtain_.activate();
    }
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;
    ~Opening() { close(); }

    void play() {
        if (!parts_.sounds.playScroll()) {
            return;
        }
        hasBegun_ = true;
        const Millis start = parts_.desktop.now();
        curtain_.capture();
        hidePointer(parts_.desktop);
        if (!pumpUntil(start + holdFor(parts_.desktop.size().width)) || !slide()) {
            return;
        }
        curtain_.invalidate();
        while (parts_.sounds.isAnyPlaying()) {
            if (!pumpFor(pumpInterval)) {
                return;
            }
        }
        showTitle();
    }

private:
    /// One pixel after the other until the sound ends.
    bool slide() {
        const Size screen = parts_.desktop.size();
        for (int y = 0; y < screen.height - leftHanging && parts_.sounds.isAnyPlaying(); ++y) {
            if (!pumpFor(slideInterval)) {
                return false;
            }
            curtain_.setBounds({0, y, screen.width, screen.height});
            curtain_.invalidate();
        }
        return true;
    }

    void showTitle() {
        title_.capture();
        parts_.sounds.playMusic();
        title_.invalidate();
        if (!pumpFor(titleLasts)) {
            return;
        }
        title_.releaseCapture();
        parts_.desktop.setCursor(StandardCursor::arrow);
        while (parts_.sounds.isMusicPlaying()) {
            if (!pumpFor(pumpInterval)) {
                return;
            }
        }
        for (int i = 0; i < beeps; ++i) {
            parts_.desktop.backend().beep(MessageIcon::none);
        }
    }

    bool isOpen() const { return curtain_.exists() && title_.exists() && !parts_.desktop.isQuitting(); }

    bool pumpFor(Millis time) { return pumpUntil(parts_.desktop.now() + time); }

    /// False when it has been closed meanwhile.
    bool pumpUntil(Millis moment) {
        while (isOpen() && parts_.desktop.now() < moment) {
            parts_.desktop.pumpUntil(std::min(moment, parts_.desktop.now() + pumpInterval));
        }
        return isOpen();
    }

    void close() {
        curtain_.destroy();
        title_.destroy();
        parts_.desktop.setCursor(StandardCursor::arrow);
    }

    void dismissCurtain(const std::optional<KeyEvent>& key) {
        if (hasBegun_ && (!key || isClosingKey(key->key))) {
            curtain_.destroy();
        }
    }

    void dismissTitle(const std::optional<KeyEvent>& key) {
        if (!key || isClosingKey(key->key)) {
            title_.destroy();
        }
    }

    void paintCurtain(Canvas& canvas) const {
        if (curtain_.size().height >= blackBelow) {
            canvas.draw({0, 0}, parts_.curtain);
        } else {
            canvas.fill(curtain_.area(), black);
        }
    }

    void paintTitle(Canvas& canvas) const {
        if (parts_.title) {
            const Point corner = centredCorner(parts_.desktop.size(), parts_.title->size());
            canvas.draw({std::abs(corner.x), std::abs(corner.y)}, *parts_.title);
        }
    }

    OpeningParts parts_;
    Window curtain_;
    Window title_;
    bool hasBegun_ = false;
};

} // namespace

bool playOpening(OpeningParts parts) {
    Desktop& desktop = parts.desktop;
    Opening(std::move(parts)).play();
    return !desktop.isQuitting();
}

} // namespace ventrel
