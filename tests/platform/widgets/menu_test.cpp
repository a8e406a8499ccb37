// How a person's hands walk through menus.

#include "platform/widgets/menu.h"

#include <array>

#include "widget_stage.h"

namespace ventrel {
namespace {

constexpr Millis longEnough = 400; // for a submenu to open by itself
constexpr Point corner{20, 20};

constexpr std::array headings{std::to_array<MenuItemTemplate>({{"0", 10}, {"45", 11}})};
constexpr std::array speeds{std::to_array<MenuItemTemplate>({{"Fast", 12}, {"Slow", 13}})};
/// Rows of 17 pixels from 3 below the corner, the separator's of 9.
constexpr std::array orders{std::to_array<MenuItemTemplate>({
    {"Heading", 0, headings},
    {"Hold", 2},
    {"&Direct", 3},
    {"&Never", 4, {}, true},
    {""},
    {"Speed", 0, speeds},
    {"Done", 5},
})};

struct MenuTest : ::testing::Test {
    WidgetStage stage;

    int track(Point at = corner) {
        int chosen = -1;
        const Menu menu = makeMenu(orders);
        stage.play([&] { chosen = trackMenu(stage.desktop, stage.fonts, menu, at, false); });
        return chosen;
    }
    void expectWindows(std::size_t count) {
        stage.script.then([this, count] { EXPECT_EQ(stage.openWindows(), 1 + count); });
    }
};

TEST_F(MenuTest, AMarkedLetterChoosesAtOnceWhateverElseBeginsWithIt) {
    stage.script.type("D");
    EXPECT_EQ(track(), 3);
}

TEST_F(MenuTest, FirstLettersWalkItemsThatShareThemAndChooseTheOnlyOne) {
    stage.script.type("hh").key(Key::enter);
    EXPECT_EQ(track(), 2);
}

TEST_F(MenuTest, LettersWorkWithAltHeldAndInSubmenus) {
    stage.script.key(Key::s, withAlt);
    expectWindows(2);
    stage.script.type("s");
    EXPECT_EQ(track(), 13);
}

TEST_F(MenuTest, ArrowsSkipSeparatorsStopAtNeitherEndAndLikeEscLeaveOneLevel) {
    // From the last item round to the first, back past the last onto "Speed", into it, and out again.
    stage.script.key(Key::end).key(Key::down).key(Key::up).key(Key::up).key(Key::right);
    expectWindows(2);
    stage.script.key(Key::left);
    expectWindows(1);
    stage.script.key(Key::right).key(Key::escape);
    expectWindows(1);
    stage.script.key(Key::right).key(Key::down).key(Key::enter);
    EXPECT_EQ(track(), 13);
}

TEST_F(MenuTest, GreyedItemsAndSeparatorsCannotBeChosen) {
    stage.script.type("n").key(Key::enter).click({40, 83}).click({40, 95});
    expectWindows(1);
    stage.script.key(Key::escape);
    EXPECT_EQ(track(), noCommand);
}

TEST_F(MenuTest, ARestingMouseOpensSubmenusAndMayCrossOthersOnItsWay) {
    stage.script.moveTo({40, 31}).wait(longEnough);
    expectWindows(2);
    // Slantwise over "Hold" into the submenu, faster than that would close it.
    stage.script.moveTo({70, 48}).wait(50).moveTo({110, 50}).wait(longEnough);
    expectWindows(2);
    stage.script.click({110, 50});
    EXPECT_EQ(track(), 11);
}

TEST_F(MenuTest, AHeldButtonChoosesWhereItIsReleased) {
    stage.script.press(corner).moveTo({40, 48}).release({40, 48});
    EXPECT_EQ(track(), 2);
}

TEST_F(MenuTest, TheRightButtonChoosesOnlyWhereAsked) {
    const Menu menu = makeMenu(orders);
    const auto track = [&](bool chooses) {
        return trackMenu(stage.desktop, stage.fonts, menu, corner, chooses);
    };
    stage.script.click({40, 48}, MouseButton::right);
    expectWindows(1);
    stage.script.key(Key::escape).click({40, 48}, MouseButton::right);
    stage.play([&] {
        EXPECT_EQ(track(false), noCommand);
        EXPECT_EQ(track(true), 2);
    });
}

TEST_F(MenuTest, OpensInsideTheScreenWithItsSubmenus) {
    stage.script.type("s").then([this] {
        for (const Window& window : stage.desktop.topLevels()) {
            EXPECT_TRUE(stage.desktop.area().contains(window.bounds()));
        }
        EXPECT_FALSE(stage.desktop.topLevels()[1].bounds().contains(
            stage.desktop.topLevels()[2].bounds().topLeft() + Point{5, 0}))
            << "the submenu hides its own menu";
    });
    stage.script.key(Key::alt);
    track({395, 295});
}

TEST_F(MenuTest, AKeyHeldSinceBeforeChoosesNothing) {
    stage.script.keyDown(Key::d, withAlt, true).keyDown(Key::enter, {}, true).keyDown(Key::down);
    stage.script.keyDown(Key::down, {}, true).keyDown(Key::enter, {}, true);
    expectWindows(1);
    stage.script.key(Key::enter);
    EXPECT_EQ(track(), 2);
}

TEST_F(MenuTest, VanishesWhenTheProgramIsLeft) {
    stage.script.window(WindowEvent::deactivated).then([this] { EXPECT_EQ(stage.openWindows(), 1U); });
    EXPECT_EQ(track(), noCommand);
}

} // namespace
} // namespace ventrel
