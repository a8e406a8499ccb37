// The gallery: what everything looks like, and the play that its real window is put through.

#include "tools/gallery/gallery.h"

#include <gtest/gtest.h>

#include "golden.h"
#include "platform/headless/script.h"
#include "window_play.h"

namespace ventrel {
namespace {

struct Stage {
    explicit Stage(Size screen) : size(screen) {}

    Size size;
    HeadlessBackend backend{size};
    Desktop desktop{backend, size};
    FontSet fonts{std::string(PROGRAM_FOLDER) + "/fonts"};
    std::vector<std::string> said;
    Gallery gallery{desktop, fonts, [this](const std::string& line) { said.push_back(line); }};
    Script script{backend};

    void play() {
        script.then([this] { desktop.quit(); });
        desktop.run();
    }
};

TEST(Gallery, LooksAsItDidAtBothSizes) {
    for (const auto& [size, name] :
         {std::pair{Size{800, 600}, "gallery_800"}, {{1024, 768}, "gallery_1024"}}) {
        Stage stage(size);
        stage.play();
        expectGolden(stage.backend.screen(), name);
    }
}

TEST(Gallery, LooksAsItDidWithSomethingOpen) {
    Stage stage({800, 600});
    const auto expect = [&](std::string_view name) {
        stage.script.then([&stage, name] { expectGolden(stage.backend.screen(), name); });
    };
    stage.script.key(Key::f, withAlt).type("d");
    expect("gallery_menu");
    stage.script.key(Key::escape).key(Key::escape).key(Key::d, withAlt).key(Key::a, withAlt);
    expect("gallery_box");
    stage.play();
}

TEST(Gallery, PlaysWithoutAWindowAsInOne) {
    Stage stage({800, 600});
    const int steps = addWindowPlay({stage.backend, stage.said}, PLAYS_FOLDER "/gallery.play");
    EXPECT_GT(steps, 0);
    stage.desktop.run();
    EXPECT_TRUE(stage.backend.timelineIsEmpty());
}

} // namespace
} // namespace ventrel
