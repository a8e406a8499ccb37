#include "shell/day_dialog.h"

#include "base/format.h"
#include "platform/widgets/dialog.h"
#include "records/airport_catalogue.h"
#include "resources/dialogs.h"
#include "shell/game_flow.h"
#include "shell/shift_choice.h"
#include "story/shift_report.h"

namespace ventrel {

namespace {

constexpr std::string_view daySection = "Day";
constexpr std::string_view dateKey = "Date";
constexpr std::string_view scoreKey = "Score";

ShiftOfTheDay today(const Shell& shell) {
    return shiftOfTheDay(std::chrono::floor<std::chrono::days>(shell.utcNow()));
}

/// Of that day, on this machine.
std::optional<int> bestScore(const Shell& shell, const ShiftOfTheDay& day) {
    const ProfileFile profile = shell.store.now();
    if (profile.text(daySection, dateKey, "") != dateText(day.date)) {
        return std::nullopt;
    }
    return profile.integer(daySection, scoreKey, 0);
}

void keepScore(Shell& shell, const ShiftOfTheDay& day, int score) {
    if (score <= bestScore(shell, day).value_or(-1)) {
        return;
    }
    shell.store.update([&](ProfileFile& profile) {
        profile.set(daySection, dateKey, dateText(day.date));
        profile.set(daySection, scoreKey, std::to_string(score));
    });
}

} // namespace

std::optional<GameSetup> setUpOfToday(Shell& shell) {
    const ShiftOfTheDay day = today(shell);
    const auto file = airportFolder(shell.programFolder) / airspaceFileOf(day, shell.windowSize().width);
    const auto airspace = loadAirport(file);
    if (!airspace) {
        shell.report(airspace.error());
        return std::nullopt;
    }
    return GameSetup{.skill = day.skill,
                     .controllerName = lastControllerName(shell),
                     .airportName = (*airspace)->name,
                     .airportFile = file,
                     .day = day.date};
}

bool isOfToday(const Shell& shell, const GameSetup& setup) {
    return setup.day == today(shell).date;
}

std::optional<GameSetup> runDayDialog(Shell& shell) {
    auto setup = setUpOfToday(shell);
    if (!setup) {
        return std::nullopt;
    }
    const auto open = [&](Dialog& dialog) {
        const ShiftOfTheDay day = shiftOfTheDay(*setup->day);
        const auto best = bestScore(shell, day);
        dialog.setText(shift_of_day::date, dateText(day.date));
        dialog.setText(shift_of_day::airspace, setup->airportName);
        dialog.setText(shift_of_day::level, std::string(skillName(day.skill)));
        dialog.setText(shift_of_day::best, best ? std::to_string(*best) : "no score yet");
    };
    DialogTemplate shape = shift_of_day::shape;
    if (shell.isHalfSpeedOn) {
        shape.title = shift_of_day::halfSpeedTitle;
    }
    const int result = runDialog(
        shell.desktop, shell.widgetFonts, shell.mainWindow, shape,
        {.init = open, .command = [](Dialog& dialog, const CommandInput& input) { dialog.end(input.id); }});
    return result == okId ? std::move(setup) : std::nullopt;
}

void startDay(Shell& shell, const GameSetup& setup) {
    shell.game.controllerName = setup.controllerName;
    startGame(shell, setup);
}

void keepScoreOfTheDay(Shell& shell) {
    if (shell.day && shell.shiftKind == ShiftKind::scored) {
        keepScore(shell, shiftOfTheDay(*shell.day), shell.game.score);
    }
}

void tellOfTheDay(Shell& shell) {
    const auto date = shell.day;
    if (!date || shell.shiftKind != ShiftKind::scored) {
        return;
    }
    const Game& game = shell.game;
    const ShiftOfTheDay day = shiftOfTheDay(*date);
    const bool isCollision = shell.log.story().end == ShiftEnd::collision;
    if (!isCollision) {
        keepScoreOfTheDay(shell);
    }
    shell.day = std::nullopt;
    const std::string line =
        dayResultText(day, game.airspace->name, game.score, game.possibleScore, isCollision);
    const auto open = [&line](Dialog& dialog) {
        dialog.setText(day_result::line, line);
        dialog.focus(okId);
    };
    const auto onCommand = [&](Dialog& dialog, const CommandInput& input) {
        if (input.id == day_result::copy) {
            shell.desktop.backend().setClipboard(line);
        } else {
            dialog.end(input.id);
        }
    };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, day_result::shape,
              {.init = open, .command = onCommand});
}

} // namespace ventrel
