#include "shell/schedule_dialog.h"

#include "base/format.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/widget_place.h"
#include "resources/dialogs.h"
#include "shell/report_dialog.h"

namespace ventrel {

namespace {

constexpr std::string_view noOrigin = "----";
constexpr std::string_view airportMark = "*";

std::string_view markOf(const Vor& vor) {
    return vor.isAirport ? airportMark : std::string_view();
}

/// Time, callsign, from where, to where, and the full name of that place, between tab characters.
std::string rowOf(const Flight& flight, const Vor& origin, const Vor& destination) {
    const std::string time = FormatMinutesSeconds(flight.scheduledAt.count());
    const std::string_view entry = origin.ident.empty() ? noOrigin : std::string_view(origin.ident);
    return FormatText("%s\t%s\t\t%s%s\t%s%s\t%s",
                      {std::string_view(time), std::string_view(flight.callsign), entry, markOf(origin),
                       std::string_view(destination.ident), markOf(destination),
                       std::string_view(destination.description)});
}

/// Flights by kind; one from airport to airport counts twice.
struct Counts {
    unsigned landings = 0;
    unsigned takeoffs = 0;
    unsigned passThroughs = 0;

    void add(const Vor& origin, const Vor& destination) {
        takeoffs += origin.isAirport ? 1 : 0;
        landings += destination.isAirport ? 1 : 0;
        passThroughs += origin.isAirport || destination.isAirport ? 0 : 1;
    }
};

Counts listFlights(const Game& game, const ListBox& list) {
    list.setTabWidth(dialogUnitsAcross(schedule::tabStop));
    Counts counts;
    for (const Flight& flight : game.flights) {
        if (flight.inPlay) {
            const Vor origin = copyVor(game, flight.origin);
            const Vor destination = copyVor(game, flight.destination);
            counts.add(origin, destination);
            list.add(rowOf(flight, origin, destination));
        }
    }
    return counts;
}

void openSchedule(const Shell& shell, Dialog& dialog) {
    const Game& game = shell.game;
    const Counts counts = listFlights(game, dialog.list(schedule::list));
    dialog.setNumber(schedule::possibleScore, static_cast<unsigned>(game.possibleScore));
    dialog.setNumber(schedule::currentScore, static_cast<unsigned>(game.score));
    dialog.setText(schedule::shiftLength, FormatText("%d:00", {long{game.shiftLength / clockMinute}}));
    dialog.setNumber(schedule::landings, counts.landings);
    dialog.setNumber(schedule::takeoffs, counts.takeoffs);
    dialog.setNumber(schedule::passThroughs, counts.passThroughs);
    dialog.window(schedule::report).show(canReportFinishedShift(shell));
}

} // namespace

void runScheduleDialog(Shell& shell) {
    const auto onCommand = [&shell](Dialog& dialog, const CommandInput& input) {
        const bool isClosed = input.id == okId || input.id == cancelId; // the latter by the close box
        if (isClosed) {
            dialog.end(okId);
        } else if (input.id == schedule::report) {
            runReportDialog(shell);
        }
    };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, schedule::shape,
              {.init = [&shell](Dialog& dialog) { openSchedule(shell, dialog); },
               .command = onCommand,
               .escapeCommand = noEscape});
}

} // namespace ventrel
