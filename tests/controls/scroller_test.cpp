// The ticker: its pace, the order of its lines, and the word it gives when all have passed.

#include "controls/scroller.h"

#include <gtest/gtest.h>

#include "console_stage.h"

namespace ventrel {
namespace {

struct ScrollerStage : ConsoleStage {
    explicit ScrollerStage(Size size = smallWindow) : ConsoleStage(size) {
        ScrollerCreate(scroller, main, size.width);
        main.update();
        scroller.window.update();
    }

    Scroller scroller{.sources = {desktop, options, fonts, arrow, game.messages},
                      .gameOverShown = [this] { log.emplace_back("game over"); }};

    bool post(std::string_view text, MessageClass messageClass = MessageClass::information) {
        return ScrollerPost(scroller, text, messageClass);
    }
    /// Lets time pass, in ticks of a millisecond.
    void run(Millis time) {
        for (Millis i = 0; i < time; ++i) {
            backend.wait(1);
            ScrollerTick(scroller);
        }
    }
    /// The milliseconds until the slot is free, ticking every one of them.
    Millis runUntilFree(std::size_t slot) {
        const Millis start = backend.now();
        while (scroller.sources.queue.slots[slot].inUse && backend.now() - start < 100'000) {
            run(1);
        }
        return backend.now() - start;
    }
    int inked() const {
        const Bitmap shown = picture(scroller.window);
        return shown.width() * shown.height() - count(shown, black, shown.bounds());
    }
};

void expectPace(Size window, int stripWidth, Millis step) {
    ScrollerStage stage(window);
    EXPECT_EQ(stage.scroller.window.bounds(), Rect::at({443, 19}, {stripWidth, 20}));
    stage.post("Welcome Pat");
    ScrollerTick(stage.scroller);
    const int lineWidth = stage.scroller.state.lineWidth;
    EXPECT_EQ(lineWidth, stage.fonts.font({Face::arial, -16, true}).width("Welcome Pat") + 2);
    EXPECT_EQ(stage.runUntilFree(0), step * (stripWidth + lineWidth + 1));
    EXPECT_EQ(stage.inked(), 0) << "the line takes all its pixels along";
    stage.run(1);
    EXPECT_EQ(ScrollerTick(stage.scroller), std::nullopt) << "and the ticker rests";
}

TEST(ScrollerTest, ALinePassesPixelByPixelAtThePaceOfTheWindow) {
    expectPace(smallWindow, 340, 14);
    expectPace(largeWindow, 562, 11);
}

TEST(ScrollerTest, LinesFollowEachOtherInSlotOrderEachInItsColour) {
    ScrollerStage stage;
    constexpr Colour green = Colour::rgb(0, 200, 0);
    constexpr Colour yellow = Colour::rgb(220, 220, 0);
    constexpr Colour teal = Colour::rgb(36, 190, 188);
    stage.post("first", MessageClass::success);
    stage.post("second", MessageClass::trouble);
    const auto expectOnly = [&](Colour colour) {
        stage.run(14 * 200);
        const Bitmap shown = stage.picture(stage.scroller.window);
        EXPECT_GT(count(shown, colour, shown.bounds()), 40);
        EXPECT_EQ(stage.inked(), count(shown, colour, shown.bounds()));
    };
    expectOnly(green);
    stage.runUntilFree(0);
    stage.post("third");
    expectOnly(teal);
    EXPECT_TRUE(stage.scroller.sources.queue.slots[1].inUse) << "a line in a lower slot overtakes";
    stage.runUntilFree(0);
    expectOnly(yellow);
    EXPECT_EQ(messageColour(MessageClass::emergency, usualSignals), Colour::rgb(220, 0, 0));
}

TEST(ScrollerTest, TheLineUnderWayTakesOtherColours) {
    ScrollerStage stage;
    stage.post("Landed", MessageClass::success);
    stage.run(14 * 100);
    stage.options.aidColours = 1;
    ScrollerRecolour(stage.scroller);
    stage.run(14);
    const Bitmap shown = stage.picture(stage.scroller.window);
    const Colour wanted = messageColour(MessageClass::success, signalColours(1));
    EXPECT_NE(wanted, messageColour(MessageClass::success, usualSignals));
    EXPECT_EQ(stage.inked(), count(shown, wanted, shown.bounds()));
}

TEST(ScrollerTest, ALateTickMovesOnePixelAndTheNextLineStartsAtOnce) {
    ScrollerStage stage;
    stage.post("a");
    stage.post("b");
    ScrollerTick(stage.scroller);
    EXPECT_EQ(ScrollerTick(stage.scroller), stage.backend.now() + 14);
    stage.backend.wait(5000);
    ScrollerTick(stage.scroller);
    EXPECT_EQ(stage.scroller.state.x, 339);
    stage.scroller.state.x = -stage.scroller.state.lineWidth;
    stage.backend.wait(14);
    EXPECT_EQ(ScrollerTick(stage.scroller), stage.backend.now());
}

TEST(ScrollerTest, KeepsItsPaceAndLeavesNoTrailWhereAPictureOfTheScreenTakesLonger) {
    ScrollerStage stage;
    stage.backend.setFrameTime(40);
    stage.post("Welcome Pat");
    const Millis start = stage.backend.now();
    int awakenings = 0;
    for (auto next = ScrollerTick(stage.scroller); next; next = ScrollerTick(stage.scroller)) {
        stage.backend.wait(*next - stage.backend.now());
        ++awakenings;
    }
    const Millis needed = Millis{14} * (340 + stage.scroller.state.lineWidth + 1);
    EXPECT_NEAR(static_cast<double>(stage.backend.now() - start), static_cast<double>(needed), 40);
    EXPECT_LE(awakenings, needed / 40 + 3);
    EXPECT_EQ(stage.inked(), 0) << "the line takes all its pixels along";
}

TEST(ScrollerTest, ClearingBlanksTheStripAndDropsWhatWaits) {
    ScrollerStage stage;
    stage.post("one");
    stage.post("Near miss", MessageClass::emergency);
    EXPECT_FALSE(stage.post("nobody hears of this")) << "an emergency waits";
    stage.run(14 * 100);
    EXPECT_GT(stage.inked(), 0);
    ScrollerClear(stage.scroller);
    EXPECT_EQ(stage.inked(), 0);
    stage.run(100);
    EXPECT_EQ(stage.inked(), 0);
    EXPECT_TRUE(stage.post("heard again"));
}

TEST(ScrollerTest, TheGameIsOverOnceWhenTheLastLineHasPassed) {
    ScrollerStage stage;
    stage.post("Landed", MessageClass::success);
    stage.runUntilFree(0);
    stage.run(20);
    EXPECT_EQ(stage.take(), Lines{}) << "nobody has asked";
    ScrollerClear(stage.scroller);
    stage.post("Game Over.");
    ScrollerSetPostGameOver(stage.scroller, true);
    stage.runUntilFree(0);
    EXPECT_EQ(stage.take(), Lines{});
    stage.run(100);
    EXPECT_EQ(stage.take(), Lines{"game over"});
}

} // namespace
} // namespace ventrel
