#include "tests/soak/gestures.h"

#include <array>

#include "resources/accelerators.h"

namespace ventrel {

namespace {

constexpr Millis aMoment = 20;
constexpr int firstPrintable = 0x20;
constexpr int lastCharacter = 0xFF; // of Windows-1252

void press(Scene& scene, Key key, int times) {
    for (int i = 0; i < times; ++i) {
        scene.hand.key(key);
    }
}

// The mouse -------------------------------------------------------------------------------------------------

void clickAnywhere(Scene& scene) {
    scene.hand.click(anywhere(scene));
}

void clickSomething(Scene& scene) {
    scene.hand.click(onSomething(scene));
}

void doubleClickSomething(Scene& scene) {
    scene.hand.doubleClick(onSomething(scene));
}

void clickWithAnotherButton(Scene& scene) {
    scene.hand.click(onSomething(scene), scene.chance.oneIn(4) ? MouseButton::middle : MouseButton::right);
}

void dragSomewhere(Scene& scene) {
    scene.hand.drag(onSomething(scene), anywhere(scene));
}

/// A button that is let go of only after something else has happened.
void holdAndGoOn(Scene& scene) {
    const Point place = onSomething(scene);
    scene.hand.press(place, MouseButton::left);
    scene.hand.key(scene.chance.oneOf(mainAccelerators).key);
    scene.hand.moveTo(anywhere(scene));
    scene.hand.release(place, MouseButton::left);
}

void turnWheel(Scene& scene) {
    const Point place = onSomething(scene);
    scene.hand.moveTo(place);
    scene.hand.wheel(place, scene.chance.between(-5, 5));
}

// The keyboard ----------------------------------------------------------------------------------------------

void pressCommandKey(Scene& scene) {
    const Accelerator& chosen = scene.chance.oneOf(mainAccelerators);
    if (chosen.command != command::exitProgram || scene.chance.oneIn(4)) {
        scene.hand.key(chosen.key, chosen.modifiers);
    }
}

void pressAnyKey(Scene& scene) {
    const Modifiers modifiers{scene.chance.oneIn(5), scene.chance.oneIn(6), scene.chance.oneIn(8)};
    const auto keys = static_cast<int>(Key::keypadPeriod) + 1;
    scene.hand.key(static_cast<Key>(scene.chance.below(keys)), modifiers);
}

void pressDialogKey(Scene& scene) {
    constexpr std::array keys{Key::tab,   Key::tab,  Key::space, Key::up,  Key::down,   Key::left,
                              Key::right, Key::home, Key::end,   Key::del, Key::pageUp, Key::pageDown};
    press(scene, scene.chance.oneOf(keys), scene.chance.between(1, 4));
}

void typeText(Scene& scene) {
    std::string text;
    for (int length = scene.chance.between(1, 12); length > 0; --length) {
        const int last = scene.chance.oneIn(3) ? lastCharacter : 'z';
        text.push_back(static_cast<char>(scene.chance.between(firstPrintable, last)));
    }
    scene.hand.type(text);
}

void typeNumber(Scene& scene) {
    scene.hand.type(std::to_string(scene.chance.below(scene.chance.oneIn(3) ? 100000 : 60)));
}

void confirm(Scene& scene) {
    scene.hand.key(Key::enter);
}

void dismiss(Scene& scene) {
    scene.hand.key(Key::escape);
}

// Menus and what they open ----------------------------------------------------------------------------------

void walkMenu(Scene& scene) {
    constexpr std::array menus{Key::f, Key::o, Key::o, Key::h};
    scene.hand.key(scene.chance.oneOf(menus), withAlt);
    press(scene, Key::down, scene.chance.between(1, 12));
    if (scene.chance.oneIn(3)) {
        scene.hand.key(Key::right);
        press(scene, Key::down, scene.chance.below(4));
    }
    scene.hand.key(scene.chance.oneIn(6) ? Key::escape : Key::enter);
}

void open(Scene& scene, Key menu, std::string_view item) {
    scene.hand.key(menu, withAlt);
    scene.hand.type(item);
    scene.hand.wait(aMoment);
}

void newGame(Scene& scene) {
    open(scene, Key::f, "n");
    if (scene.chance.oneIn(3)) {
        pressDialogKey(scene);
    }
    scene.hand.key(Key::enter);
}

void openReplays(Scene& scene) {
    open(scene, Key::f, "r");
}

void watchReplay(Scene& scene) {
    open(scene, Key::f, "r");
    press(scene, Key::down, scene.chance.below(4));
    scene.hand.key(Key::enter);
}

void playShiftOfTheDay(Scene& scene) {
    open(scene, Key::f, "d");
    scene.hand.key(Key::enter);
}

void takeLesson(Scene& scene) {
    open(scene, Key::h, "l");
    press(scene, Key::down, scene.chance.below(8));
    scene.hand.key(Key::enter);
}

void watchShift(Scene& scene) {
    open(scene, Key::h, "w");
    scene.hand.key(Key::enter);
    for (int faster = scene.chance.below(6); faster > 0; --faster) {
        scene.hand.key(Key::right, withControl);
    }
}

// In a game -------------------------------------------------------------------------------------------------

void skip(Scene& scene) {
    for (int times = scene.chance.between(1, 16); times > 0; --times) {
        scene.hand.key(Key::space);
        scene.hand.wait(aMoment);
    }
}

void skipToEvent(Scene& scene) {
    scene.hand.key(Key::space, withShift);
    scene.hand.wait(scene.chance.between(aMoment, 500));
}

void giveOrder(Scene& scene) {
    constexpr std::array settings{
        Key::i,      Key::o,        Key::l,      Key::period,      Key::comma,
        Key::m,      Key::j,        Key::u,      Key::leftBracket, Key::rightBracket,
        Key::pageUp, Key::pageDown, Key::pageUp, Key::pageUp,      Key::f,
        Key::s,      Key::n,        Key::k,      Key::keypadPlus,  Key::keypadMinus};
    press(scene, Key::tab, scene.chance.below(4));
    for (int changes = scene.chance.between(1, 5); changes > 0; --changes) {
        scene.hand.key(scene.chance.oneOf(settings));
    }
    scene.hand.key(Key::enter);
}

void orderByMenu(Scene& scene) {
    if (const auto place = onSomeFlight(scene)) {
        scene.hand.click(*place, MouseButton::right);
        scene.hand.wait(aMoment);
        press(scene, Key::down, scene.chance.between(1, 4));
        scene.hand.key(Key::right);
        press(scene, Key::down, scene.chance.below(10));
        scene.hand.key(Key::enter);
    }
}

/// Nobody plays on in a pause for long.
void pause(Scene& scene) {
    scene.hand.key(Key::pause);
    scene.hand.wait(scene.chance.below(2000));
    if (!scene.chance.oneIn(8)) {
        scene.hand.key(Key::pause);
    }
}

void takeOver(Scene& scene) {
    scene.hand.key(Key::t, withControl);
    scene.hand.wait(aMoment);
}

// The machine -----------------------------------------------------------------------------------------------

void waitAMoment(Scene& scene) {
    scene.hand.wait(scene.chance.between(1, 3000));
}

/// On a machine that wakes the program late: what takes long passes in a few steps.
void waitLong(Scene& scene) {
    scene.hand.wait(scene.chance.between(3000, 40000));
}

void lookAway(Scene& scene) {
    scene.hand.window(WindowEvent::deactivated);
    scene.hand.wait(scene.chance.below(3000));
    if (!scene.chance.oneIn(8)) {
        scene.hand.window(WindowEvent::activated);
    }
}

void minimiseAndRestore(Scene& scene) {
    scene.hand.window(WindowEvent::minimised);
    scene.hand.window(WindowEvent::deactivated);
    scene.hand.wait(scene.chance.below(3000));
    scene.hand.window(WindowEvent::restored);
    if (!scene.chance.oneIn(8)) {
        scene.hand.window(WindowEvent::activated);
    }
}

void expose(Scene& scene) {
    scene.hand.window(scene.chance.oneIn(3) ? WindowEvent::displayChanged : WindowEvent::exposed);
}

void requestClose(Scene& scene) {
    scene.hand.window(WindowEvent::closeRequested);
}

void requireEnd(Scene& scene) {
    scene.hand.window(WindowEvent::endRequired);
}

void unplugSound(Scene& scene) {
    scene.machine.plugSound(scene.chance.oneIn(2));
}

void bringToFront(Scene& scene) {
    scene.hand.window(WindowEvent::restored);
    scene.hand.window(WindowEvent::activated);
}

struct Gesture {
    int console;
    int game;
    int elsewhere;
    int behind;
    void (*make)(Scene&);
};
constexpr std::array gestures{std::to_array<Gesture>({
    // console, game, elsewhere, behind
    {5, 8, 5, 0, clickAnywhere},
    {8, 12, 60, 0, clickSomething},
    {3, 4, 8, 0, doubleClickSomething},
    {3, 5, 2, 0, clickWithAnotherButton},
    {2, 4, 4, 0, dragSomewhere},
    {1, 2, 2, 0, holdAndGoOn},
    {3, 6, 6, 4, turnWheel},
    {14, 30, 8, 0, pressCommandKey},
    {4, 8, 10, 0, pressAnyKey},
    {2, 1, 20, 0, pressDialogKey},
    {2, 1, 10, 0, typeText},
    {0, 0, 6, 0, typeNumber},
    {2, 4, 44, 0, confirm},
    {0, 1, 12, 0, dismiss},
    {24, 5, 3, 0, walkMenu},
    {60, 1, 0, 0, newGame},
    {5, 0, 0, 0, openReplays},
    {8, 1, 0, 0, watchReplay},
    {4, 1, 0, 0, playShiftOfTheDay},
    {8, 1, 0, 0, takeLesson},
    {8, 1, 0, 0, watchShift},
    {0, 320, 2, 0, skip},
    {0, 40, 0, 0, skipToEvent},
    {0, 90, 0, 0, giveOrder},
    {0, 20, 0, 0, orderByMenu},
    {0, 6, 0, 0, pause},
    {0, 2, 0, 0, takeOver},
    {8, 16, 16, 4, waitAMoment},
    {5, 8, 8, 4, waitLong},
    {2, 3, 2, 0, lookAway},
    {2, 2, 2, 0, minimiseAndRestore},
    {2, 2, 2, 3, expose},
    {2, 1, 8, 1, requestClose},
    {1, 0, 0, 0, requireEnd},
    {2, 2, 2, 2, unplugSound},
    {0, 0, 0, 12, bringToFront},
})};

int weightOf(const Gesture& gesture, Standing standing) {
    switch (standing) {
    case Standing::console: return gesture.console;
    case Standing::game: return gesture.game;
    case Standing::elsewhere: return gesture.elsewhere;
    case Standing::behind: break;
    }
    return gesture.behind;
}

} // namespace

Standing standingOf(const Scene& scene) {
    const Shell& shell = scene.program.shell();
    if (!scene.machine.backend.isInFront()) {
        return Standing::behind;
    }
    if (!shell.mainWindow.isActive()) {
        return Standing::elsewhere;
    }
    return shell.game.isRunning() ? Standing::game : Standing::console;
}

void makeGesture(Scene& scene) {
    const Standing standing = standingOf(scene);
    int all = 0;
    for (const Gesture& gesture : gestures) {
        all += weightOf(gesture, standing);
    }
    int drawn = scene.chance.below(all);
    for (const Gesture& gesture : gestures) {
        drawn -= weightOf(gesture, standing);
        if (drawn < 0) {
            gesture.make(scene);
            return;
        }
    }
}

void tryToLeave(Scene& scene, int number) {
    constexpr Millis untilAnyFilmCloses = 7000;
    static constexpr auto tries = std::to_array<void (*)(Scene&)>({
        [](Scene& at) { at.hand.key(Key::escape); },
        requestClose,
        confirm,
        [](Scene& at) { at.hand.wait(untilAnyFilmCloses); },
        [](Scene& at) { at.hand.key(Key::space); },
    });
    if (standingOf(scene) == Standing::behind) {
        bringToFront(scene);
        return;
    }
    tries[static_cast<std::size_t>(number) % tries.size()](scene);
}

} // namespace ventrel
