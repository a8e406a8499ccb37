// Who is active, who has the focus, what dialogs lock, and windows that go while they are at work.

#include "stage.h"

namespace ventrel {
namespace {

TEST(Activation, ADialogTakesItFromItsOwnerAndGivesItBack) {
    Stage stage;
    Window main;
    main = stage.open(stage.logged("main"));
    const Window field =
        stage.desktop.create({.parent = main, .bounds = {0, 0, 9, 9}, .handlers = stage.logged("field")});
    field.focus();
    stage.script.then([&] { stage.runDialog(main, stage.logged("dialog")); }).then([&] {
        EXPECT_FALSE(main.isActive());
        stage.dialogIsFinished = true;
    });
    stage.play();
    EXPECT_EQ(stage.log,
              (Log{"main active", "main focus", "main blur", "field focus", "field blur", "main inactive",
                   "dialog active", "dialog focus", "ended", "main active", "field focus"}));
    EXPECT_TRUE(field.hasFocus());
}

TEST(Activation, ALockedWindowOnlyBeeps) {
    Stage stage;
    WindowHandlers handlers = stage.logged("main");
    handlers.press = stage.note("main press");
    handlers.key = stage.note("main key");
    const Window main = stage.open(std::move(handlers));
    // Always on top, and yet no dialog may lie hidden under it.
    const Window splash = stage.desktop.create({.bounds = {0, 0, 200, 150}, .alwaysOnTop = true});
    stage.log.clear();
    stage.script.then([&] { stage.runDialog(main, {.lockedOut = stage.note("locked out")}); });
    stage.script.click({10, 10}).key(Key::a).then([&] {
        EXPECT_EQ(stage.desktop.topLevels().back(), stage.desktop.activeWindow());
        main.activate();
        EXPECT_EQ(stage.desktop.topLevels().back(), stage.desktop.activeWindow());
        splash.destroy();
        stage.dialogIsFinished = true;
    });
    stage.script.click({10, 10});
    stage.play();
    EXPECT_EQ(stage.log, (Log{"locked out", "ended", "main active", "main focus", "main press"}));
    EXPECT_EQ(stage.backend.beeps().size(), 1U);
}

TEST(Activation, ComingBackFromMinimisingIsToldOnceInWhateverOrderItIsReported) {
    for (const bool minimisedFirst : {true, false}) {
        Stage stage;
        WindowHandlers handlers = stage.logged("main");
        handlers.minimise = [&](bool minimised) {
            stage.log.emplace_back(minimised ? "iconic" : "restored");
        };
        const Window main = stage.open(std::move(handlers));
        stage.desktop.setMainWindow(main);
        stage.log.clear();
        const auto both = [&](WindowEvent a, WindowEvent b) {
            stage.script.window(minimisedFirst ? a : b).window(minimisedFirst ? b : a);
        };
        both(WindowEvent::minimised, WindowEvent::deactivated);
        both(WindowEvent::restored, WindowEvent::activated);
        stage.play();
        const Log first{"iconic", "main blur", "main minimised", "restored", "main active", "main focus"};
        const Log second{"main blur", "main inactive", "iconic", "restored", "main active", "main focus"};
        EXPECT_EQ(stage.log, minimisedFirst ? first : second);
    }
}

TEST(Activation, SwitchingProgramsUnderADialogConcernsTheDialogAlone) {
    Stage stage;
    const Window main = stage.open(stage.logged("main"));
    stage.desktop.setMainWindow(main);
    stage.script.then([&] { stage.runDialog(main, stage.logged("dialog")); });
    stage.script.then([&] { stage.log.clear(); }).then([&] { stage.desktop.minimise(); });
    stage.script.then([&] { stage.desktop.restore(); }).wait(5);
    stage.script.then([&] { EXPECT_FALSE(stage.backend.isMinimised()); });
    stage.play();
    EXPECT_EQ(stage.log,
              (Log{"dialog blur", "dialog minimised", "dialog active", "dialog focus", "broken off"}));
}

TEST(Close, AsksTheOwnersInTurnOrTheDialogAlone) {
    Stage stage;
    const Window main = stage.open({.close = [&] { stage.log.emplace_back("main asked"); }});
    stage.desktop.setMainWindow(main);
    const Window owned = stage.desktop.create({.owner = main, .bounds = {20, 20, 60, 60}});
    stage.script.window(WindowEvent::closeRequested).then([&] {
        EXPECT_EQ(stage.desktop.activeWindow(), owned);
        main.post([&] { stage.runDialog(main, {.close = [&] { stage.dialogIsFinished = true; }}); });
    });
    // The dialog alone is asked; one that cannot be asked ends with the program.
    stage.script.wait(1).window(WindowEvent::closeRequested).then([&] {
        main.post([&] { stage.runDialog(main, {.close = [&] { stage.dialogIsFinished = true; }}); });
        main.post([&] { stage.runDialog(main); });
    });
    stage.script.wait(1).window(WindowEvent::closeRequested);
    stage.desktop.run();
    EXPECT_EQ(stage.log, (Log{"main asked", "ended", "broken off", "broken off"}));

    Stage bare;
    bare.open();
    bare.script.window(WindowEvent::closeRequested);
    bare.desktop.run();
    EXPECT_TRUE(bare.desktop.isQuitting());
}

TEST(Focus, FallsToTheWindowWhenItsHolderCannotKeepItAndDoesNotJumpBack) {
    Stage stage;
    const Window main = stage.open();
    const Window panel = stage.desktop.create({.parent = main, .bounds = {0, 0, 90, 90}});
    const Window button = stage.desktop.create({.parent = panel, .bounds = {0, 0, 9, 9}});
    for (const auto& take : {std::function<void(bool)>([&](bool give) { button.enable(give); }),
                             std::function<void(bool)>([&](bool give) { panel.show(give); })}) {
        button.focus();
        EXPECT_EQ(stage.desktop.focusWindow(), button);
        take(false);
        EXPECT_EQ(stage.desktop.focusWindow(), main);
        button.focus();
        EXPECT_EQ(stage.desktop.focusWindow(), main);
        take(true);
        EXPECT_EQ(stage.desktop.focusWindow(), main);
    }
}

TEST(Destroying, TakesEverythingAlongAndTellsFromTheTopDown) {
    Stage stage;
    const auto named = [&](const std::string& name) {
        return WindowHandlers{.timer = stage.note("timer"), .destroyed = stage.note(name)};
    };
    const Window main = stage.open(named("main"));
    const Window child =
        stage.desktop.create({.parent = main, .bounds = {0, 0, 90, 90}, .handlers = named("child")});
    const Window owned =
        stage.desktop.create({.owner = child, .bounds = {0, 0, 9, 9}, .handlers = named("owned")});
    EXPECT_EQ(owned.owner(), main) << "a child stands for its top-level";
    child.startTimer(1, 10);
    main.destroy();
    stage.script.wait(50);
    stage.play();
    EXPECT_EQ(stage.log, (Log{"main", "child", "owned"}));
    EXPECT_FALSE(stage.desktop.activeWindow());
    EXPECT_FALSE(stage.desktop.create({.parent = child, .bounds = {0, 0, 9, 9}}).exists());
    EXPECT_EQ(child.bounds(), Rect{});
    child.show();
    child.post([] {});
    child.destroy();
}

TEST(Destroying, IsSafeInsideAnyHandlerOfTheWindow) {
    Stage stage;
    Window main;
    Window child;
    const auto farewell = [&] {
        stage.runDialog({}); // a last dialog, after the window itself is gone
        stage.log.emplace_back("farewell");
    };
    main = stage.open({.close = [&] { main.destroy(); }, .destroyed = farewell});
    std::string held = "what the handler holds on to is still there";
    const auto kill = [&, held](auto&&...) {
        child.parent().destroy();
        stage.log.push_back(held.substr(0, 4));
        return true;
    };
    child = stage.desktop.create(
        {.parent = main, .bounds = {0, 0, 90, 90}, .handlers = {.press = kill, .key = kill, .timer = kill}});
    child.startTimer(1, 30);
    stage.script.click({10, 10}).then([&] { stage.dialogIsFinished = true; });
    stage.play();
    EXPECT_EQ(stage.log, (Log{"ended", "farewell", "what"}));
    EXPECT_FALSE(child.exists());
}

} // namespace
} // namespace ventrel
