// The loop: order, sleep, timers, nested loops and how they end.

#include "stage.h"

namespace ventrel {
namespace {

TEST(Loop, PostedMessagesRunInOrderBeforeFurtherInput) {
    Stage stage;
    Window main;
    const auto press = [&](const MouseInput&) {
        main.post([&] {
            stage.log.emplace_back("first");
            main.postCommand(506);
        });
        main.post(stage.note("second"));
    };
    main = stage.open({.press = press, .release = stage.note("release"), .command = stage.note("command")});
    const Window doomed = stage.open();
    doomed.post(stage.note("too late"));
    doomed.destroy();
    stage.script.click({5, 5});
    stage.play();
    EXPECT_EQ(stage.log, (Log{"first", "second", "command", "release"}));
}

TEST(Loop, TheIdleOperationIsCalledWhenItWantsAndNeverSpins) {
    Stage stage;
    stage.open();
    const Millis start = stage.desktop.now();
    std::vector<Millis> calls;
    stage.desktop.setIdle([&]() -> std::optional<Millis> {
        calls.push_back(stage.desktop.now() - start);
        // After a while it asks for the past.
        return calls.size() < 4 ? stage.desktop.now() + 6 : start;
    });
    stage.script.wait(20);
    stage.play();
    EXPECT_EQ(calls, (std::vector<Millis>{0, 6, 12, 18, 19}));
}

TEST(Loop, TimersKeepTheirPeriodAlsoUnderADialogWhileIdleStandsStill) {
    Stage stage;
    const Millis start = stage.desktop.now();
    Window main;
    std::vector<Millis> ticks;
    int idleCalls = 0;
    WindowHandlers handlers{.command = [&](const CommandInput&) { stage.runDialog(main); }};
    handlers.timer = [&](int number) {
        ticks.push_back(stage.desktop.now() - start);
        if (number == 2 && ticks.size() == 3) {
            main.stopTimer(2);
        }
    };
    main = stage.open(std::move(handlers));
    main.startTimer(2, 700);
    main.startTimer(2, 100);
    stage.desktop.setIdle([&]() -> std::optional<Millis> {
        ++idleCalls;
        return stage.desktop.now() + 10;
    });
    int idleCallsBefore = 0;
    stage.script.then([&] {
        main.sendCommand(1);
        EXPECT_EQ(idleCalls, idleCallsBefore);
    });
    stage.script.then([&] { idleCallsBefore = idleCalls; }).wait(1000);
    stage.script.then([&] { stage.dialogIsFinished = true; });
    stage.play();
    EXPECT_EQ(ticks, (std::vector<Millis>{100, 200, 300}));
    EXPECT_EQ(stage.log, Log{"ended"});
}

TEST(Loop, MissedTimerPeriodsAreNotMadeUpFor) {
    Stage stage;
    const Millis start = stage.desktop.now();
    std::vector<Millis> ticks;
    Window main;
    main = stage.open({.timer = [&](int) {
        ticks.push_back(stage.desktop.now() - start);
        if (ticks.size() == 1) {
            // The machine is busy for a while, with nobody looking after the loop.
            stage.backend.wait(250);
        }
    }});
    main.startTimer(1, 100);
    stage.script.wait(450);
    stage.play();
    EXPECT_EQ(ticks, (std::vector<Millis>{100, 350, 400}));
}

TEST(Loop, ALongSequenceKeepsTheProgramMoving) {
    Stage stage;
    const Millis start = stage.desktop.now();
    int idleCalls = 0;
    int accelerated = 0;
    constexpr Accelerator table[] = {{Key::f, {}, 4042}};
    Window main;
    main = stage.open(
        {.press = stage.note("press"), .key = stage.note("key"), .command = [&](auto&) { ++accelerated; }});
    main.setAccelerators(table);
    stage.desktop.setIdle([&]() -> std::optional<Millis> {
        ++idleCalls;
        return stage.desktop.now() + 6;
    });
    main.post([&] {
        EXPECT_TRUE(stage.desktop.pumpUntil(start + 100));
        EXPECT_EQ(stage.desktop.now(), start + 100);
        EXPECT_EQ(stage.log, (Log{"press", "key", "key"}));
        EXPECT_EQ(idleCalls, 20) << "every 6 ms, once for each of the clicks, and at the end";
        EXPECT_EQ(accelerated, 0);
    });
    stage.script.wait(50).press({5, 5}).wait(25).key(Key::f).wait(100).key(Key::f);
    stage.play();
    EXPECT_EQ(accelerated, 1);
}

TEST(Loop, AScreenGetsItsPicturesNoFasterThanItShowsThemAndMissesNothing) {
    Stage stage;
    stage.backend.setFrameTime(16);
    const Window main = stage.open();
    int step = 0;
    Millis due = 0; // the loop also wakes for the screen's sake: what moves keeps its own time
    stage.desktop.setIdle([&]() -> std::optional<Millis> {
        if (step < 100 && stage.desktop.now() >= due) {
            main.canvas().fill({step, 0, step + 1, 1}, Colour::rgb(255, 255, 255));
            ++step;
            due = stage.desktop.now() + 6;
        }
        return step < 100 ? std::optional(due) : std::nullopt;
    });
    std::size_t sent = 0;
    stage.script.wait(5).then([&] { sent = stage.backend.sendings(); }).wait(1000).then([&] {
        EXPECT_EQ(step, 100) << "what moves keeps its pace";
        EXPECT_EQ(stage.backend.sendings() - sent, 33U)
            << "99 more steps, three to a picture: no waking in between for the screen alone";
        EXPECT_EQ(stage.backend.screen().at(99, 0), stage.desktop.picture().at(99, 0));
        EXPECT_NE(stage.backend.screen().at(99, 0), 0U);
        sent = stage.backend.sleeps();
    });
    stage.script.wait(1000);
    stage.play();
    EXPECT_LE(stage.backend.sleeps() - sent, 2U) << "it wakes up for nothing";
}

TEST(Loop, TellsWhenTheNextPictureIsShown) {
    Stage stage;
    stage.backend.setFrameTime(100);
    const Window main = stage.open();
    Millis sent = 0;
    stage.script.wait(150).then([&] {
        main.canvas().fill({0, 0, 1, 1}, Colour::rgb(255, 255, 255));
        sent = stage.desktop.now();
        EXPECT_EQ(stage.desktop.nextPicture(), sent + 100) << "after the one of this pass";
    });
    stage.script.wait(30).then([&] { EXPECT_EQ(stage.desktop.nextPicture(), sent + 100); });
    stage.play();
}

TEST(Loop, APressIsAnsweredBeforeTheNextPictureIsDue) {
    Stage stage;
    stage.backend.setFrameTime(1000);
    constexpr Colour white = Colour::rgb(255, 255, 255);
    Window main;
    main = stage.open({.press = [&](const MouseInput&) { main.canvas().fill({5, 0, 6, 1}, white); }});
    stage.script.wait(5).then([&] { main.canvas().fill({4, 0, 5, 1}, white); }).wait(5).then([&] {
        EXPECT_EQ(stage.backend.screen().at(4, 0), 0U) << "a change by itself waits";
    });
    stage.script.press({5, 5}).wait(1).then([&] {
        EXPECT_EQ(stage.backend.screen().at(4, 0), whitePixel);
        EXPECT_EQ(stage.backend.screen().at(5, 0), whitePixel);
    });
    stage.play();
}

TEST(Loop, QuitEndsEveryNestedLoopAtOnce) {
    Stage stage;
    Window main;
    int later = 0;
    const auto countLater = [&](const auto&...) { ++later; };
    WindowHandlers handlers{.press = countLater, .timer = countLater, .activate = countLater};
    handlers.command = [&](const CommandInput&) {
        stage.runDialog(main);
        stage.log.emplace_back(stage.desktop.pumpMessages() ? "goes on" : "stops");
    };
    handlers.destroyed = stage.note("destroyed");
    main = stage.open(std::move(handlers));
    later = 0;
    main.post([&] {
        stage.log.emplace_back(stage.desktop.pumpUntil(stage.desktop.now() + 5000) ? "reached" : "cut short");
    });
    stage.script.wait(10).then([&] { main.postCommand(1); }).wait(10).then([&] {
        later = 0;
        main.startTimer(1, 1);
        main.post([&] {
            stage.desktop.quit();
            main.post([&] { ++later; });
        });
        stage.script.click({5, 5});
    });
    stage.desktop.run();
    EXPECT_EQ(stage.log, (Log{"broken off", "stops", "cut short"}));
    main.destroy();
    EXPECT_EQ(stage.log.back(), "destroyed");
    EXPECT_EQ(later, 0) << "nothing is handled after quit";
}

TEST(Loop, AFloodOfMessagesFreezesNeitherPictureNorClock) {
    Stage stage;
    int messages = 0;
    int paints = 0;
    Window main = stage.open({.paint = [&](Canvas&, const Rect&) { ++paints; }});
    std::function<void()> again = [&] {
        if (++messages < 100'000) {
            main.post(again);
        }
        main.invalidate();
    };
    main.post(again);
    stage.script.wait(10);
    stage.play();
    EXPECT_EQ(messages, 100'000);
    EXPECT_GE(paints, 50);
}

} // namespace
} // namespace ventrel
