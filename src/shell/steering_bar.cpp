#include "shell/steering_bar.h"

#include <array>

#include "console/steering_bar_layout.h"
#include "platform/text/text.h"
#include "resources/command_ids.h"
#include "shell/shell.h"

namespace ventrel {

namespace {

constexpr FontRequest barButtonFont{Face::arial, -11, false};
constexpr FontRequest barTitleFont{Face::arial, -10, true};
constexpr FontRequest paceFont{Face::arial, -12, true};

constexpr Colour metalTop = Colour::rgb(0x72, 0x7C, 0x7F);
constexpr Colour metalBottom = Colour::rgb(0x4C, 0x54, 0x57);
constexpr Colour metalLight = Colour::rgb(0x9E, 0xA8, 0xAB);
constexpr Colour metalDark = Colour::rgb(0x20, 0x24, 0x26);
constexpr Colour wellGround = Colour::rgb(0, 0, 0);
constexpr Colour amber = Colour::rgb(255, 159, 82);

constexpr std::string_view practicePlate = "PRACTICE";
constexpr std::string_view halfSpeedPlate = "PRACTICE  \xBD \xD7";

constexpr std::array<std::string_view, clockPaces.size()> paceTexts{
    "\xBD \xD7", "1 \xD7", "2 \xD7", "4 \xD7", "8 \xD7", "16 \xD7", "Fastest"};

struct BarButton {
    int command;
    std::string_view text;
    Rect SteeringBarLayout::* place;
};
constexpr std::array barButtons{std::to_array<BarButton>({
    {command::slowDown, "-", &SteeringBarLayout::slower},
    {command::speedUp, "+", &SteeringBarLayout::faster},
    {command::pause, "Pause", &SteeringBarLayout::pause},
    {command::takeOver, "Take Over", &SteeringBarLayout::takeOver},
    {command::stopWatching, "Stop", &SteeringBarLayout::stop},
})};

const SteeringBarLayout& places(const Shell& shell) {
    return steeringBarFor(shell.windowSize().width);
}

Colour between(Colour from, Colour to, int part, int whole) {
    const auto mixed = [part, whole](int a, int b) {
        return static_cast<unsigned>(a + (b - a) * part / whole);
    };
    return Colour::rgb(mixed(from.red(), to.red()), mixed(from.green(), to.green()),
                       mixed(from.blue(), to.blue()));
}

void paintMetal(Canvas& canvas, const Rect& whole) {
    for (int y = whole.top; y < whole.bottom; ++y) {
        canvas.fill({whole.left, y, whole.right, y + 1},
                    between(metalTop, metalBottom, y - whole.top, whole.height()));
    }
    canvas.frame(whole, metalDark);
    canvas.fill({whole.left + 1, whole.top + 1, whole.right - 1, whole.top + 2}, metalLight);
}

void paintBar(const Shell& shell, Canvas& canvas) {
    const SteeringBar& bar = shell.steeringBar;
    const TextLayout middle{.across = Align::middle, .down = Align::middle};
    const TextStyle ink{amber, std::nullopt};
    paintMetal(canvas, bar.window.area());
    const Font& title = shell.fonts.font(barTitleFont);
    drawTextBox(canvas, title, places(shell).title, bar.title, ink, middle);
    if (!bar.pace.empty()) {
        const Rect& well = places(shell).pace;
        canvas.fill(well, wellGround);
        drawTextBox(canvas, shell.fonts.font(paceFont), well, bar.pace, ink, middle);
    }
}

void addButton(Shell& shell, int command, std::string text, const Rect& place) {
    shell.steeringBar.buttons.push_back(createButton(shell.desktop, {.parent = shell.steeringBar.window,
                                                                     .id = command,
                                                                     .bounds = place,
                                                                     .text = std::move(text),
                                                                     .font = &shell.fonts.font(barButtonFont),
                                                                     .takesFocus = false,
                                                                     .cursor = &shell.pictures.arrow}));
}

void addButtons(Shell& shell) {
    const SteeringBarExtra& extra = shell.steered.setup.extra;
    const SteeringBarLayout& layout = places(shell);
    for (const BarButton& button : barButtons) {
        const bool isNarrow = button.command == command::pause && !extra.text.empty();
        addButton(shell, button.command, std::string(button.text),
                  isNarrow ? layout.pauseBesideMore : layout.*button.place);
    }
    if (!extra.text.empty()) {
        addButton(shell, extra.command, extra.text, layout.more);
    }
}

void create(Shell& shell, const Rect& place) {
    WindowHandlers handlers;
    handlers.paint = [&shell](Canvas& canvas, const Rect&) { paintBar(shell, canvas); };
    handlers.press = [](const MouseInput&) {};
    handlers.cursor = [&shell](Point) { return std::optional<Cursor>(&shell.pictures.arrow); };
    shell.steeringBar.window =
        shell.desktop.create({.parent = shell.mainWindow, .bounds = place, .handlers = std::move(handlers)});
}

/// Nothing is taken down and built anew for a mere change of the pace.
void show(Shell& shell, const Rect& place, std::string title, std::string pace) {
    SteeringBar& bar = shell.steeringBar;
    if (bar.window.exists() && bar.window.bounds() != place) {
        bar.window.destroy();
    }
    if (!bar.window.exists()) {
        bar = {};
        create(shell, place);
        if (!pace.empty()) {
            addButtons(shell);
        }
    }
    bar.title = std::move(title);
    bar.pace = std::move(pace);
    bar.window.invalidate();
}

void showPause(const Shell& shell) {
    for (const Button& button : shell.steeringBar.buttons) {
        if (button.window.id() == command::pause) {
            button.setText(shell.paused ? "Go On" : "Pause");
        }
    }
}

/// Of the letters of ASCII alone.
std::string inCapitals(std::string text) {
    for (char& letter : text) {
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    return text;
}

} // namespace

std::string_view paceText(ClockPace pace) {
    return paceTexts[static_cast<std::size_t>(pace)];
}

void SteeringBarFollow(Shell& shell) {
    const SteeringBarLayout& layout = places(shell);
    if (isSteered(shell)) {
        show(shell, layout.whole, inCapitals(shell.steered.setup.title),
             std::string(paceText(shell.topBar.clock.pace)));
        showPause(shell);
    } else if (isPractice(shell)) {
        const bool isHalf = shell.topBar.clock.pace == ClockPace::half;
        show(shell, layout.plate, std::string(isHalf ? halfSpeedPlate : practicePlate), {});
    } else {
        shell.steeringBar.window.destroy();
    }
}

} // namespace ventrel
