// What reaches the screen: clipping, exposure, what is painted anew and what is not.

#include <map>
#include <random>

#include "stage.h"

namespace ventrel {
namespace {

constexpr Colour red = Colour::rgb(255, 0, 0);
constexpr Colour green = Colour::rgb(0, 255, 0);
constexpr Colour blue = Colour::rgb(0, 0, 255);

WindowHandlers paintedIn(Colour colour) {
    return {.paint = [colour](Canvas& canvas, const Rect& update) { canvas.fill(update, colour); }};
}

Colour screenAt(const Stage& stage, Point p) {
    return toColour(stage.backend.screen().at(p.x, p.y));
}

/// Makes windows at random and changes them at random.
class Vandal {
public:
    explicit Vandal(Stage& stage) : stage_(stage) {}

    void act() {
        std::erase_if(windows_, [](const Window& window) { return !window.exists(); });
        if (windows_.size() < 3 || (windows_.size() < 14 && draw(4) == 0)) {
            create();
            return;
        }
        const Window window = any();
        switch (draw(8)) {
        case 0: window.destroy(); break;
        case 1: window.hide(); break;
        case 2:
        case 3: window.show(); break;
        case 4: window.raise(); break;
        case 5: window.setBounds(randomRect()); break;
        case 6: window.setBounds(window.bounds().movedBy({draw(21) - 10, draw(21) - 10})); break;
        default: window.invalidate(randomRect()); break;
        }
    }

    /// The picture as somebody paints it who paints every window whole, from bottom to top.
    Bitmap expected() const {
        Bitmap picture(stage_.desktop.size());
        for (const Window& window : stage_.desktop.topLevels()) {
            paintWhole(window, stage_.desktop.area(), picture);
        }
        return picture;
    }

private:
    void paintWhole(const Window& window, const Rect& open, Bitmap& picture) const {
        const Rect visible = window.screenBounds().intersectedWith(open);
        if (!window.isVisible() || visible.isEmpty()) {
            return;
        }
        Canvas(picture).fill(visible, colours_.at(window.id()));
        for (const Window& child : window.children()) {
            paintWhole(child, visible, picture);
        }
    }

    void create() {
        const int id = nextId_++;
        const Colour colour = Colour::rgb(static_cast<unsigned>(40 + draw(200)),
                                          static_cast<unsigned>(draw(256)), static_cast<unsigned>(id) & 255U);
        colours_[id] = colour;
        windows_.push_back(
            stage_.desktop.create({.parent = draw(3) == 0 || windows_.empty() ? Window() : any(),
                                   .id = id,
                                   .bounds = randomRect(),
                                   .visible = draw(4) != 0,
                                   .handlers = paintedIn(colour)}));
    }

    Window any() { return windows_[static_cast<std::size_t>(draw(static_cast<int>(windows_.size())))]; }
    int draw(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    Rect randomRect() { return Rect::at({draw(180) - 20, draw(140) - 20}, {draw(120), draw(90)}); }

    Stage& stage_;
    std::mt19937 random_{20};
    std::vector<Window> windows_;
    std::map<int, Colour> colours_;
    int nextId_ = 1;
};

TEST(Painting, TheScreenAlwaysShowsWhatLiesOnTop) {
    Stage stage;
    Vandal vandal(stage);
    int differences = 0;
    for (int round = 0; round < 400; ++round) {
        stage.script.wait(1).then([&, round] {
            for (int change = 0; change <= round % 3; ++change) {
                vandal.act();
            }
        });
        stage.script.wait(1);
        stage.script.then([&] { differences += stage.backend.screen() == vandal.expected() ? 0 : 1; });
    }
    stage.play();
    EXPECT_EQ(differences, 0);
    EXPECT_GT(stage.backend.sendings(), 150U);
}

TEST(Painting, DrawingBetweenPaintsStaysAndSendsOnlyItsOwnPixels) {
    Stage stage;
    const Window main = stage.open(paintedIn(red));
    stage.desktop.create({.parent = main, .bounds = {20, 20, 40, 40}, .handlers = paintedIn(green)});
    stage.script.then([&] { main.canvas().invert(Rect{10, 30, 50, 32}); });
    stage.script.wait(5).then([&] {
        EXPECT_EQ(screenAt(stage, {15, 31}), Colour::rgb(0, 255, 255));
        EXPECT_EQ(screenAt(stage, {25, 31}), green) << "the child lies on top";
        EXPECT_EQ(stage.backend.lastSending().changed, (std::vector<Rect>{{10, 30, 50, 32}}));
        main.invalidate({0, 0, 200, 31});
    });
    stage.script.wait(5).then([&] {
        EXPECT_EQ(screenAt(stage, {15, 30}), red);
        EXPECT_EQ(screenAt(stage, {15, 31}), Colour::rgb(0, 255, 255)) << "not painted since";
        EXPECT_EQ(stage.backend.sendings(), 3U);
    });
    stage.play();
}

TEST(Painting, WhatIsPaintedAsItWasIsNotSent) {
    Stage stage;
    const Window main = stage.open(paintedIn(red));
    stage.script.then([&] {
        main.invalidate();
        main.canvas().fill({10, 30, 11, 31}, green);
    });
    stage.script.wait(5).then([&] {
        EXPECT_EQ(stage.backend.sendings(), 1U) << "painted over in red again";
        main.canvas().fill({0, 0, 90, 90}, red);
        main.canvas().fill({10, 30, 12, 31}, green);
        main.canvas().fill({40, 30, 41, 31}, green);
    });
    stage.script.wait(5).then(
        [&] { EXPECT_EQ(stage.backend.lastSending().changed, (std::vector<Rect>{{10, 30, 41, 31}})); });
    stage.play();
}

TEST(Painting, OnlyWhatWasMarkedIsPaintedAndOnce) {
    Stage stage;
    std::vector<Rect> painted;
    int childPaints = 0;
    const Window main =
        stage.open({.paint = [&](Canvas&, const Rect& update) { painted.push_back(update); }});
    stage.desktop.create({.parent = main,
                          .bounds = {100, 100, 150, 150},
                          .background = blue,
                          .handlers = {.paint = [&](Canvas&, const Rect&) { ++childPaints; }}});
    stage.script.then([&] {
        painted.clear();
        childPaints = 0;
        main.invalidate({10, 10, 20, 20});
        main.invalidate({40, 10, 50, 30});
    });
    stage.script.wait(1).then([&] {
        EXPECT_EQ(painted, (std::vector<Rect>{{10, 10, 50, 30}}));
        EXPECT_EQ(childPaints, 0);
        main.invalidateAll();
        main.hide();
    });
    stage.script.wait(1).then([&] {
        EXPECT_EQ(childPaints, 0) << "a hidden window paints nothing";
        main.show();
        main.update();
        EXPECT_EQ(childPaints, 1) << "update does not wait for the loop";
    });
    stage.script.wait(1).then([&] {
        EXPECT_EQ(childPaints, 1);
        EXPECT_EQ(screenAt(stage, {120, 120}), blue) << "the background needs no handler";
    });
    stage.play();
}

TEST(Painting, WhatADialogUncoversNeedsNoPainting) {
    Stage stage;
    int paints = 0;
    stage.open({.paint = [&](Canvas&, const Rect&) { ++paints; }});
    Window dialog;
    stage.script.then([&] { dialog = stage.open({}, {50, 50, 100, 100}); }).wait(1);
    stage.script.then([&] { dialog.setBounds({60, 60, 110, 110}); }).wait(1);
    stage.script.then([&] { dialog.destroy(); }).wait(1);
    stage.play();
    EXPECT_EQ(paints, 1);
}

TEST(Painting, APaintHandlerMayResizeOrDestroyItsWindow) {
    Stage stage;
    Window first;
    Window second;
    first = stage.open({.paint = [&](Canvas& canvas, const Rect& update) {
        first.setBounds({0, 0, 10, 10});
        canvas.fill(update, red);
    }});
    second = stage.open({.paint = [&](Canvas&, const Rect&) { second.destroy(); }});
    stage.script.wait(5).then([&] {
        EXPECT_EQ(screenAt(stage, {5, 5}), red);
        EXPECT_EQ(screenAt(stage, {50, 50}), Colour{});
    });
    stage.play();
    EXPECT_FALSE(second.exists());
    second.canvas().fill(Rect{0, 0, 10, 10}, blue);
    EXPECT_EQ(second.canvas().pixel({1, 1}), Colour{});
}

TEST(Painting, AnExposedScreenIsSentWhole) {
    Stage stage;
    stage.open(paintedIn(red));
    stage.script.wait(1).window(WindowEvent::exposed).wait(1).then([&] {
        EXPECT_EQ(stage.backend.lastSending().changed, (std::vector<Rect>{{0, 0, 200, 150}}));
    });
    stage.play();
}

} // namespace
} // namespace ventrel
