// A person's hands on the gallery: menus, dialogs, lists and boxes, by mouse and by keys.

#include <gtest/gtest.h>

#include "golden.h"
#include "platform/headless/script.h"
#include "tools/gallery/gallery.h"

namespace ventrel {
namespace {

class GalleryTest : public ::testing::Test {
protected:
    static constexpr Size size{800, 600};

    HeadlessBackend backend{size};
    Desktop desktop{backend, size};
    FontSet fonts{std::string(PROGRAM_FOLDER) + "/fonts", [](std::string_view, MessageIcon) {}};
    Gallery gallery{desktop, fonts};
    Script script{backend};

    void play() {
        script.then([this] { desktop.quit(); });
        desktop.run();
    }
};

constexpr Millis longEnough = 400; // for a submenu to open by itself

TEST_F(GalleryTest, LooksAsItDid) {
    script.moveTo({700, 500}).then([this] { expectGolden(backend.screen(), "gallery_800"); });
    play();
}

TEST_F(GalleryTest, OpenMenusLookAsTheyDid) {
    script.key(Key::f, withAlt).type("d").then([this] { expectGolden(backend.screen(), "gallery_menu"); });
    script.key(Key::escape).key(Key::escape).key(Key::d, withAlt);
    script.then([this] { expectGolden(backend.screen(), "gallery_dialog"); }).key(Key::escape);
    script.key(Key::b, withAlt)
        .then([this] { expectGolden(backend.screen(), "gallery_box"); })
        .key(Key::escape);
    play();
}

TEST_F(GalleryTest, AMenuIsWalkedByMnemonicsAndKeys) {
    script.key(Key::f, withAlt).type("d").type("g");
    script.then([this] { EXPECT_EQ(gallery.lastCommand, galleryGridCommand); });
    // Past the separator onto the submenu, and round to its last item, which is greyed: it cannot be chosen.
    script.key(Key::f, withAlt);
    for (int i = 0; i < 4; ++i) {
        script.key(Key::down);
    }
    script.key(Key::right).key(Key::up).key(Key::enter);
    script.then([this] { EXPECT_FALSE(desktop.windowAt({30, 60}).isWithin(gallery.main)) << "still open"; });
    script.key(Key::escape).key(Key::escape);
    script.then([this] { EXPECT_EQ(gallery.lastCommand, noCommand); });
    play();
}

TEST_F(GalleryTest, AMenuIsWalkedByMouseAndTicksItsItem) {
    EXPECT_TRUE(findMenuItem(gallery.menu, galleryGridCommand)->checked);
    script.click({50, 30}).moveTo({60, 114}).wait(longEnough);
    script.then([this] { EXPECT_FALSE(desktop.windowAt({200, 140}).isWithin(gallery.main)); });
    script.moveTo({180, 114}).click({190, 131});
    script.then([this] {
        EXPECT_EQ(gallery.lastCommand, galleryGridCommand);
        EXPECT_FALSE(findMenuItem(gallery.menu, galleryGridCommand)->checked);
    });
    play();
}

TEST_F(GalleryTest, APressElsewhereClosesTheMenuAndStillCounts) {
    script.click({50, 30}).click({130, 30});
    script.then([this] { EXPECT_FALSE(desktop.activeWindow() == gallery.main) << "the dialog is open"; });
    script.key(Key::escape);
    play();
    EXPECT_EQ(gallery.lastCommand, noCommand);
    EXPECT_EQ(gallery.dialogResult, 2);
}

TEST_F(GalleryTest, ADialogTakesTextTabsAndEnter) {
    script.key(Key::d, withAlt).type("mary").key(Key::left, withShift).type("Y").key(Key::tab).key(Key::tab);
    script.key(Key::down).key(Key::down).key(Key::enter);
    play();
    EXPECT_EQ(gallery.dialogResult, 1);
    EXPECT_EQ(gallery.dialogName, "marY");
    EXPECT_EQ(gallery.dialogChoice, 1);
}

TEST_F(GalleryTest, AListIsChosenByDoubleClickAndByItsLetter) {
    script.key(Key::d, withAlt).key(Key::tab).key(Key::tab).type("l").key(Key::escape);
    script.then([this] { EXPECT_EQ(gallery.dialogChoice, 4); });
    script.key(Key::d, withAlt).doubleClick({300, 345});
    play();
    EXPECT_EQ(gallery.dialogResult, 1);
    EXPECT_GE(gallery.dialogChoice, 0);
}

TEST_F(GalleryTest, AMessageBoxIsAnsweredByKeysAndBeeps) {
    script.key(Key::b, withAlt).key(Key::enter).then([this] {
        EXPECT_EQ(gallery.answer, MessageAnswer::ok);
    });
    script.key(Key::b, withAlt).key(Key::escape);
    play();
    EXPECT_EQ(gallery.answer, MessageAnswer::cancel);
    EXPECT_EQ(backend.beeps(),
              (std::vector<MessageIcon>{MessageIcon::exclamation, MessageIcon::exclamation}));
}

TEST_F(GalleryTest, QuittingInsideABoxEndsEverything) {
    script.key(Key::b, withAlt).then([this] { desktop.quit(); });
    desktop.run();
    EXPECT_EQ(gallery.answer, MessageAnswer::cancel);
}

} // namespace
} // namespace ventrel
