#include "shell/help_dialog.h"

#include <array>

#include "base/format.h"
#include "platform/widgets/dialog.h"
#include "sim/scoring.h"

namespace ventrel {

namespace {

struct Event {
    std::string_view what;
    int points;
    std::string_view instead = {}; ///< of a number
};
constexpr std::array events{std::to_array<Event>({
    {"landing at the airport (*), on its runway, at 1,000 ft", points::landing},
    {"leaving over the exit at 10,000 ft", points::exit},
    {"over the airport on another heading, or too high", points::missedApproach},
    {"over the exit below 10,000 ft", points::missedExit},
    {"lost: out of the scope anywhere else", points::lostFlight},
    {"near miss: neighbouring cells, the same altitude", points::nearMiss},
    {"a departure has waited 10 minutes, and every 5 more", points::keptWaiting},
    {"an order beyond five for each flight of the shift", points::order},
    {"the end of the shift, with every flight handled", 0, "bonus"},
    {"collision: the same cell, the same altitude", 0, "game over"},
})};
static_assert(events.size() == help::pointRows);

/// The names of a row's places on the player's keyboard.
void fillKeys(Dialog& dialog, Backend& keyboard) {
    for (std::size_t row = 0; row < help::keyRows.size(); ++row) {
        if (help::keyRows[row].places.front().place != Key::unknown) {
            dialog.setText(help::placesControl(row), keysWithoutKeypad(help::keyRows[row], keyboard));
        }
    }
}

void fillPoints(Dialog& dialog) {
    for (std::size_t row = 0; row < events.size(); ++row) {
        const Event& event = events[row];
        const auto* const form = event.points > 0 ? "+%d" : "%d";
        dialog.setText(help::eventControl(row), std::string(event.what));
        dialog.setText(help::pointsControl(row), event.instead.empty()
                                                     ? FormatText(form, {long{event.points}})
                                                     : std::string(event.instead));
    }
}

/// The topic to whose page a control belongs; none for what is always shown.
std::optional<int> topicOf(const ControlTemplate& control) {
    constexpr int perPage = help::pageControl(1, 0) - help::pageControl(0, 0);
    const int number = control.id - help::pageControl(0, 0);
    return number < 0 ? std::nullopt : std::optional(number / perPage);
}

void showPage(Dialog& dialog, int topic) {
    for (const ControlTemplate& control : help::controls) {
        if (const auto page = topicOf(control)) {
            const Window window = dialog.window(control.id);
            *page == topic ? window.show() : window.hide();
        }
    }
}

void openHelp(Dialog& dialog) {
    const ListBox topics = dialog.list(help::topicList);
    for (const std::string_view topic : help::topics) {
        topics.add(std::string(topic));
    }
    fillKeys(dialog, dialog.desktop().backend());
    fillPoints(dialog);
    topics.select(0);
    showPage(dialog, 0);
    dialog.focus(help::topicList);
}

} // namespace

std::string keysWithoutKeypad(const help::KeyRow& row, Backend& keyboard) {
    std::string keys;
    for (const auto& [place, american] : row.places) {
        if (place == Key::unknown) {
            break;
        }
        const std::string name = keyboard.keyName(place);
        keys += keys.empty() ? "" : "  ";
        keys += name.empty() ? american : name;
    }
    return keys;
}

void runHelpDialog(Shell& shell) {
    const auto onCommand = [](Dialog& dialog, const CommandInput& input) {
        if (input.id != help::topicList) {
            dialog.end(okId);
        } else if (const int topic = dialog.list(help::topicList).selected(); topic != noListItem) {
            showPage(dialog, topic);
        }
    };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, help::shape,
              {.init = openHelp, .command = onCommand});
}

} // namespace ventrel
