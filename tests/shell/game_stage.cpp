#include "shell/game_stage.h"

#include <algorithm>

#include "records/options_file.h"
#include "shell/selection.h"

namespace ventrel {

namespace {

/// When every stage begins.
constexpr UtcMoment stageBegins = UtcDate{std::chrono::year{2026} / 11 / 25} + std::chrono::hours{9};

constexpr Millis aMoment = 20; // in which the program does what was asked of it

Size windowOf(int width) {
    return width == 800 ? Size{800, 600} : Size{1024, 768};
}

Options optionsOf(const std::filesystem::path& profile, int width) {
    Options options = ReadOptions(OptionsStore(profile).atStart());
    options.resolution = width == 800 ? 2 : 3;
    return options;
}

/// Where a press on the dial chooses a heading.
Point dialPoint(int heading) {
    switch (heading) {
    case 0: return {46, 20};
    case 45: return {65, 15};
    case 90: return {60, 35};
    case 135: return {65, 55};
    case 180: return {46, 50};
    case 225: return {25, 55};
    case 270: return {30, 35};
    default: return {25, 15};
    }
}

} // namespace

int HeardSounds::count(std::string_view sound) const {
    return static_cast<int>(std::ranges::count(heard, sound));
}

Bitmap pictureOf(const Bitmap& screen, const Rect& part) {
    Bitmap piece(part.size());
    Canvas(piece).draw(piece.bounds(), screen, part);
    return piece;
}

Rect differenceOf(const Bitmap& before, const Bitmap& after) {
    Rect box;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.at(x, y) != after.at(x, y)) {
                const bool isFirst = box.isEmpty();
                box = isFirst ? Rect{x, y, x + 1, y + 1}
                              : Rect{std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
                                     std::max(box.bottom, y + 1)};
            }
        }
    }
    return box;
}

GameStage::GameStage(int windowWidth, std::string_view profileText,
                     const std::filesystem::path& programFolder, FirstScene firstScene,
                     GameSounds* otherSounds)
    : backend(windowOf(windowWidth)), profile_(folder_ / "ventrel.ini"),
      fonts_(std::filesystem::path(PROGRAM_FOLDER) / "fonts") {
    writeText(profile_, profileText);
    store_ = std::make_unique<OptionsStore>(profile_);
    program_ = std::make_unique<Program>(
        ProgramParts{.backend = backend,
                     .fonts = fonts_,
                     .sounds = otherSounds != nullptr ? *otherSounds : sounds,
                     .store = *store_,
                     .firstScene = firstScene,
                     .utcNow =
                         [this] {
                             return stageBegins + clockGoesBy +
                                    std::chrono::floor<std::chrono::seconds>(
                                        std::chrono::milliseconds{backend.now()});
                         }},
        ProgramPlaces{programFolder, folder_.path(), playersAirports()}, optionsOf(profile_, windowWidth), 1);
}

void GameStage::startNewGame(std::uint32_t seed) {
    look([this, seed] { game().random.state = seed; });
    todo([](Script& script) { script.key(Key::f, withAlt).type("n").key(Key::enter).wait(aMoment); });
    look([this] { ASSERT_TRUE(game().isRunning()) << "no game was started"; });
}

void GameStage::skip() {
    todo([](Script& script) { script.key(Key::space).wait(aMoment); });
}

void GameStage::skipTo(ClockSeconds clock) {
    todo([this, clock](Script& script) {
        if (shell().game.clock < clock && game().isRunning()) {
            script.key(Key::space).wait(aMoment);
            skipTo(clock);
        }
    });
}

void GameStage::selectByStrip(FlightIndex flight) {
    todo([this, flight](Script& script) {
        const StripList& list = shell().strips.list;
        const auto& flights = game().flights;
        const auto place =
            static_cast<int>(std::count_if(flights.begin(), flights.begin() + flight.number(), isListed));
        const int width = shell().windowSize().width;
        const Point up{width - 170, 72};
        const Point down{width - 170, width == 800 ? 440 : 608};
        for (int i = place; i < list.scrollOffset; ++i) {
            script.click(up);
        }
        for (int i = list.scrollOffset + shell().stripSlots(); i <= place; ++i) {
            script.click(down);
        }
    });
    todo([this, flight](Script& script) {
        const int slot = StripsFlightSlot(shell().strips, flight);
        ASSERT_NE(slot, noSlot) << "flight " << flight.number() << " is on no strip";
        const Rect button = stripButtonRect(shell(), slot);
        script.click({button.left + 3, button.top + 3}).wait(1);
    });
}

void GameStage::sendByPanel(const PlanStep& order) {
    todo([this, order](Script& script) {
        const Flight& flight = game().flight(shell().panel.state.flight.value());
        if (!flight.isAirborne()) {
            script.key(Key::enter);
            return;
        }
        const PlanStep& pending = shell().panel.state.pending;
        if (!order.directTarget.isOn()) {
            script.click(onPanel(dialPoint(order.heading)));
        } else {
            const int points = game().vorCount();
            const int start = std::max(directTargetNumber(pending.directTarget, points), 0);
            if (!pending.directTarget.isOn()) {
                script.click(onPanel({10, 80})); // the direct button
            }
            const int wanted = directTargetNumber(order.directTarget, points);
            for (int i = start; i != wanted; i = (i + 1) % (points + 1)) {
                script.click(onPanel({84, 87})); // the arrow down
            }
        }
        script.click(onPanel({130, (10 - order.altitude) * 9 + 4}));
        if (!flight.heavy) {
            script.click(onPanel({97, 35 - 20 * static_cast<int>(order.speed)}));
        }
        script.key(Key::enter);
    });
}

void GameStage::play() {
    ASSERT_TRUE(program_->startUp().has_value());
    Script(backend).wait(aMoment).then([this] { perform(); });
    program_->run();
}

void GameStage::perform() {
    if (::testing::Test::HasFatalFailure()) {
        tasks_.clear();
    }
    if (tasks_.empty()) {
        desktop().quit();
        return;
    }
    const Task task = std::move(tasks_.front());
    tasks_.pop_front();
    Script script(backend);
    // What a task adds to the list comes right after it.
    std::deque<Task> rest;
    rest.swap(tasks_);
    task(script);
    std::ranges::move(rest, std::back_inserter(tasks_));
    script.then([this] { perform(); });
}

Point GameStage::onRadar(Cell cell) {
    const RadarLayout& layout = shell().radar.layout;
    return layout.corner + radarPoint(layout, cell);
}

Point GameStage::onPanel(Point panel) {
    return shell().console().controlPanel.topLeft() + panel;
}

Point GameStage::onFlight(FlightIndex flight) {
    return onRadar(game().flight(flight).current().cell);
}

bool GameStage::isDialogOpen() {
    return desktop().activeWindow() != shell().mainWindow;
}

} // namespace ventrel
