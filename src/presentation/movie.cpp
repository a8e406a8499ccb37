#include "presentation/movie.h"

#include <cassert>
#include <memory>

#include "presentation/framed_picture.h"
#include "presentation/full_screen_window.h"

namespace ventrel {

namespace {

constexpr int filmLeft = 280; // within the frame, at its top

constexpr Millis movieLockedFor = 5000;
constexpr int filmTimer = 2;
constexpr Millis filmTick = 10; // finer than any frame is long

/// One showing; lives as long as its window.
struct Showing {
    MovieParts parts;
    Window window = {};
    Window film = {};
    Bitmap picture = {}; ///< the film's present frame
    std::size_t nextFrame = 0;
    Millis begun = 0;
    bool mayClose = false;

    Point corner() const { return centredCorner(parts.desktop.size(), movieFrameSize); }
    void paint(Canvas& canvas) const;
    void beginFilm();
    void showDueFrame();
    void onTimer(int timer);
    void dismiss() const;
    void end() const;
};

void Showing::paint(Canvas& canvas) const {
    canvas.draw(corner(), parts.framePicture);
    drawNavyFrames(canvas, Rect::at(corner(), movieFrameSize));
}

void Showing::beginFilm() {
    if (!parts.movie) {
        return;
    }
    const Point place = corner() + Point{filmLeft, 0};
    WindowHandlers handlers;
    handlers.paint = [this](Canvas& canvas, const Rect&) { canvas.draw({0, 0}, picture); };
    film = parts.desktop.create({.parent = window,
                                 .bounds = Rect::at(place, parts.movie->size),
                                 .enabled = false, // a press on it is one on the window
                                 .background = screenBlack,
                                 .handlers = std::move(handlers)});
    begun = parts.desktop.now();
    window.startTimer(filmTimer, filmTick);
    showDueFrame();
    parts.playSound();
}

/// Frames that are late are passed over; one that cannot be decoded leaves the picture before it.
void Showing::showDueFrame() {
    assert(parts.movie); // the film's timer runs with a film alone
    const MovieFile& movie = *parts.movie;
    const auto played = std::chrono::microseconds(std::chrono::milliseconds(parts.desktop.now() - begun));
    const auto due = static_cast<std::size_t>(played / movie.frameTime);
    if (due >= movie.frames.size()) {
        window.destroy();
        return;
    }
    if (due < nextFrame) {
        return;
    }
    nextFrame = due + 1;
    if (auto decoded = decodeFrame(movie, due)) {
        picture = std::move(*decoded);
        film.invalidate();
    }
}

void Showing::onTimer(int timer) {
    if (timer == filmTimer) {
        showDueFrame();
    } else {
        window.stopTimer(lockTimer);
        mayClose = true;
        parts.desktop.setCursor(StandardCursor::arrow);
    }
}

void Showing::dismiss() const {
    if (mayClose) {
        window.destroy();
    }
}

/// A film may be shorter than the time for which the pointer is hidden.
void Showing::end() const {
    parts.desktop.setCursor(StandardCursor::arrow);
    parts.closed();
}

} // namespace

void MovieStart(MovieParts parts) {
    const auto showing = std::make_shared<Showing>(Showing{std::move(parts)});
    showing->window = createFullScreenWindow(showing->parts.desktop,
                                             {.background = screenBlack,
                                              .paint = [showing](Canvas& canvas) { showing->paint(canvas); },
                                              .timer = [showing](int timer) { showing->onTimer(timer); },
                                              .dismiss = [showing](const auto&) { showing->dismiss(); },
                                              .destroyed = [showing] { showing->end(); }});
    showing->window.capture();
    hidePointer(showing->parts.desktop);
    showing->window.startTimer(lockTimer, movieLockedFor);
    showing->beginFilm();
}

} // namespace ventrel
