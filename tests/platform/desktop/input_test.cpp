// Mouse, keys, pointers and menus: who gets what.

#include "stage.h"

namespace ventrel {
namespace {

std::string at(const std::string& what, Point p) {
    return what + " " + std::to_string(p.x) + "," + std::to_string(p.y);
}

/// Logs presses, releases and moves under a name.
WindowHandlers mouseLogged(Stage& stage, const std::string& name) {
    const auto note = [&stage, name](const std::string& what) {
        return [&stage, text = name + " " + what](const MouseInput& input) {
            stage.log.push_back(at(input.doubleClick ? text + " double" : text, input.position));
        };
    };
    return {.press = note("press"), .release = note("release"), .captureLost = [&stage, name] {
                stage.log.push_back(name + " lost");
            }};
}

struct Family : Stage {
    Window main = open(mouseLogged(*this, "main"));
    Window panel = desktop.create(
        {.parent = main, .id = 7, .bounds = {20, 30, 120, 130}, .handlers = mouseLogged(*this, "panel")});
    Window button = desktop.create(
        {.parent = panel, .id = 8, .bounds = {10, 10, 60, 30}, .handlers = mouseLogged(*this, "button")});
};

TEST(Mouse, ReachesTheInnermostWindowThatTakesIt) {
    Family stage;
    EXPECT_EQ(stage.main.child(7).child(8), stage.button);
    stage.script.press({35, 45}).then([&] { stage.button.enable(false); });
    stage.script.press({35, 45}).then([&] { stage.panel.enable(false); });
    stage.script.press({35, 45}).then([&] { stage.panel.hide(); }).press({36, 46});
    stage.play();
    EXPECT_EQ(stage.log,
              (Log{"button press 5,5", "panel press 15,15", "main press 35,45", "main press 36,46"}));
}

TEST(Mouse, TheCaptureFollowsThePointerEverywhereUntilItIsLost) {
    Family stage;
    stage.script.then([&] { stage.button.capture(); }).release({-10, 500}).then([&] {
        EXPECT_TRUE(stage.backend.isCaptured());
        stage.panel.capture();
    });
    stage.script.press({0, 0}).then([&] { stage.panel.releaseCapture(); });
    stage.script.press({0, 0}).then([&] {
        EXPECT_FALSE(stage.backend.isCaptured());
        stage.button.capture();
        stage.panel.hide();
        EXPECT_FALSE(stage.button.hasCapture());
        stage.main.capture();
    });
    stage.script.window(WindowEvent::deactivated).then([&] { EXPECT_FALSE(stage.main.hasCapture()); });
    stage.script.window(WindowEvent::activated).then([&] {
        stage.main.capture();
        const Window dialog = stage.open({}, {0, 0, 50, 50});
        EXPECT_FALSE(stage.backend.isCaptured());
        dialog.capture();
        dialog.destroy();
        EXPECT_FALSE(stage.backend.isCaptured());
    });
    stage.play();
    EXPECT_EQ(stage.log, (Log{"button release -40,460", "button lost", "panel press -20,-30",
                              "main press 0,0", "button lost", "main lost", "main lost"}));
}

TEST(Mouse, ASecondPressIsADoubleClickOnlyOnTheSameWindow) {
    Family stage;
    stage.script.doubleClick({35, 45}).then([&] { stage.button.hide(); }).doubleClick({35, 45});
    stage.script.press({35, 45}).then([&] { stage.panel.hide(); });
    // The second press of a double click whose first one closed what it hit.
    MouseEvent second;
    second.position = {35, 45};
    second.button = MouseButton::left;
    second.down = true;
    second.doubleClick = true;
    stage.backend.addInput(0, second);
    stage.play();
    EXPECT_EQ(stage.log,
              (Log{"button press 5,5", "button release 5,5", "button press double 5,5", "button release 5,5",
                   "panel press 15,15", "panel release 15,15", "panel press double 15,15",
                   "panel release 15,15", "panel press 15,15", "main press 35,45"}));
}

TEST(Mouse, TheWheelIsPassedOnToTheParent) {
    Stage stage;
    const Window main = stage.open({.wheel = [&](int notches) {
        stage.log.push_back("main " + std::to_string(notches));
        return true;
    }});
    const auto upOnly = [&](int notches) {
        stage.log.push_back("list " + std::to_string(notches));
        return notches > 0;
    };
    stage.desktop.create({.parent = main, .bounds = {0, 0, 50, 50}, .handlers = {.wheel = upOnly}});
    stage.script.wheel({10, 10}, 1).wheel({10, 10}, -2);
    stage.play();
    EXPECT_EQ(stage.log, (Log{"list 1", "list -2", "main -2"}));
}

TEST(Pointer, EachWindowIsAskedAndItsParentAnswersForIt) {
    Stage stage;
    CursorImage hand;
    const CursorImage* arrow = stage.backend.cursor();
    const Window main = stage.open({.cursor = [&](Point p) -> std::optional<Cursor> {
        return p.x >= 50 ? std::optional<Cursor>(&hand) : std::nullopt;
    }});
    const Window silent = stage.desktop.create({.parent = main, .bounds = {40, 0, 100, 50}});
    WindowHandlers beamed{.cursor = [](Point) -> std::optional<Cursor> { return StandardCursor::beam; }};
    const Window edit =
        stage.desktop.create({.parent = main, .bounds = {0, 50, 40, 100}, .handlers = std::move(beamed)});
    const auto shows = [&](const CursorImage* image, const char* where) {
        return [&stage, image, where] { EXPECT_EQ(stage.backend.cursor(), image) << where; };
    };
    stage.script.moveTo({45, 5}).then(shows(arrow, "nobody answers"));
    stage.script.moveTo({60, 5}).then(shows(&hand, "the parent, in its own coordinates"));
    stage.script.moveTo({5, 60}).then([&] {
        EXPECT_NE(stage.backend.cursor(), arrow);
        EXPECT_NE(stage.backend.cursor(), &hand);
        edit.hide();
    });
    stage.script.wait(1).then(shows(arrow, "the window under the pointer went away"));
    stage.script.moveTo({60, 5}).then([&] {
        silent.capture();
        stage.desktop.setCursor(StandardCursor::hidden);
    });
    stage.script.moveTo({5, 60}).then(shows(nullptr, "nobody is asked while the mouse is captured"));
    stage.script.then([&] { stage.open({}, {0, 0, 20, 20}).destroy(); }).wait(1);
    stage.script.then([&] { stage.runDialog(main); });
    stage.script.moveTo({60, 5}).then(shows(arrow, "locked by the dialog"));
    stage.script.then([&] { stage.dialogIsFinished = true; });
    stage.play();
}

TEST(Keys, GoToTheFocusAndUpAndTheirTextIsSpentWhenHandled) {
    Stage stage;
    const auto keys = [&](const std::string& name, Key handled) {
        WindowHandlers handlers;
        handlers.key = [&stage, name, handled](const KeyEvent& key) {
            if (key.down) {
                stage.log.push_back(name);
            }
            return key.key == handled;
        };
        handlers.text = [&stage, name](std::string_view text) {
            stage.log.push_back(name + " " + std::string(text));
            return name == "edit";
        };
        return handlers;
    };
    const Window dialog = stage.open(keys("dialog", Key::a));
    const Window edit =
        stage.desktop.create({.parent = dialog, .bounds = {0, 0, 50, 20}, .handlers = keys("edit", Key::b)});
    edit.focus();
    stage.script.type("abc").then([&] { dialog.focus(); }).type("c");
    stage.play();
    EXPECT_EQ(stage.log, (Log{"edit", "dialog", "edit", "edit", "dialog", "edit c", "dialog", "dialog c"}));
}

TEST(Keys, TheWindowUnderThePointerIsOfferedThemFirstUnlessADialogWaits) {
    Stage stage;
    const Window main = stage.open({.key = stage.note("focus")}, {0, 0, 90, 150});
    WindowHandlers beside;
    beside.hoverKey = stage.note("hovered");
    const Window other = stage.open(std::move(beside), {100, 0, 150, 50});
    main.focus();
    stage.script.moveTo({120, 20}).key(Key::c).moveTo({20, 20}).key(Key::c);
    stage.script.then([&] { stage.runDialog(main, {.key = stage.note("dialog")}); });
    stage.script.moveTo({120, 20}).key(Key::c).then([&] { stage.dialogIsFinished = true; });
    stage.play();
    const auto firsts = [&stage](std::string_view word) { return std::ranges::count(stage.log, word); };
    EXPECT_GT(firsts("hovered"), 0);
    EXPECT_GT(firsts("focus"), 0);
    const auto waits = std::ranges::find(stage.log, "dialog");
    ASSERT_NE(waits, stage.log.end());
    EXPECT_EQ(std::count(waits, stage.log.end(), "hovered"), 0);
}

TEST(Keys, AcceleratorsAreForTheirOwnWindowAndExactKeys) {
    Stage stage;
    constexpr Accelerator table[] = {
        {Key::f, withAlt, 500}, {Key::f, {}, 4042}, {Key::keypad8, {}, 4026}, {Key::s, withControl, 4006}};
    Window main;
    WindowHandlers handlers{.text = stage.note("text")};
    handlers.key = [&](const KeyEvent& key) {
        if (key.down) {
            stage.log.emplace_back("key");
        }
        return false;
    };
    handlers.command = [&](const CommandInput& command) {
        stage.log.push_back(std::to_string(command.id));
        if (command.id == 4006) {
            stage.runDialog(main, {.text = stage.note("typed into the dialog")});
        }
    };
    main = stage.open(std::move(handlers));
    main.setAccelerators(table);
    const Window button = stage.desktop.create({.parent = main, .bounds = {0, 0, 50, 20}});
    button.focus();
    stage.script.type("f").key(Key::f, withAlt).keyDown(Key::keypad8).keyDown(Key::keypad8, {}, true);
    stage.script.key(Key::digit8).key(Key::f, withControl);
    // The text of the very key that opened a dialog does not land in it.
    stage.script.keyDown(Key::s, withControl).then([&] { stage.backend.addInput(0, TextEvent{"s"}); });
    stage.script.then(
        [&] { stage.script.key(Key::f).then([&] { stage.dialogIsFinished = true; }).type("x"); });
    stage.script.then([&] {});
    stage.backend.whenTimelineEnds = [&] { stage.desktop.quit(); };
    stage.desktop.run();
    EXPECT_EQ(stage.log, (Log{"4042", "500", "4026", "4026", "key", "key", "4006", "ended", "key", "text"}));
}

TEST(Keys, AnAcceleratorGoesByTheNameOfItsKeyOrByItsPlace) {
    Stage stage;
    constexpr Accelerator table[] = {
        {Key::comma, {}, 180, KeyBy::place}, {Key::l, {}, 90, KeyBy::place}, {Key::n, {}, 4041}};
    const Window main = stage.open(
        {.command = [&](const CommandInput& command) { stage.log.push_back(std::to_string(command.id)); }});
    main.setAccelerators(table);
    const auto press = [&](Key key, Key place) {
        KeyEvent event{.key = key, .modifiers = {}};
        event.place = place;
        stage.backend.addInput(stage.backend.now(), event);
    };
    press(Key::semicolon, Key::comma); // French
    press(Key::comma, Key::m);
    press(Key::n, Key::n);
    press(Key::n, Key::l); // Dvorak
    press(Key::b, Key::n);
    stage.play();
    EXPECT_EQ(stage.log, (Log{"180", "4041", "90"}));
}

} // namespace
} // namespace ventrel
