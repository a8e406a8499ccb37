#include "shell/lesson_run.h"

#include <utility>

#include "console/window_size.h"
#include "lessons/lesson_file.h"
#include "lessons/lesson_shift.h"
#include "records/airport_catalogue.h"
#include "shell/game_flow.h"
#include "shell/shell.h"

namespace ventrel {

namespace {

constexpr std::string_view lessonsFolder = "lessons";
constexpr std::string_view lessonsSection = "Lessons";

std::string keyOf(const std::filesystem::path& file) {
    return file.stem().string();
}

std::filesystem::path airportOf(const Shell& shell, const Lesson& lesson) {
    return airportFolder(shell.programFolder) /
           (lesson.airspace + (isLarge(shell.windowSize()) ? "10.apt" : "8.apt"));
}

/// The lesson with its airspace, in which it can be played.
struct PlayableLesson {
    Lesson lesson;
    AirspacePtr airspace;
};

Result<PlayableLesson> loadPlayable(const Shell& shell, const std::filesystem::path& file) {
    auto lesson = loadLesson(file);
    if (!lesson) {
        return tl::unexpected(std::move(lesson.error()));
    }
    auto airspace = loadAirport(airportOf(shell, *lesson));
    if (!airspace) {
        return tl::unexpected(std::move(airspace.error()));
    }
    if (auto checked = checkLesson(*lesson, **airspace); !checked) {
        return tl::unexpected(std::move(checked.error()));
    }
    return PlayableLesson{std::move(*lesson), std::move(*airspace)};
}

NoteHead headOf(const Shell& shell, const Lesson& lesson, std::size_t number) {
    return {.title = std::to_string(number + 1) + ". " + lesson.name,
            .steps = lesson.steps.size(),
            .hasNextLesson = number + 1 < programLessons(shell).size()};
}

LessonFacts factsOf(const Shell& shell) {
    return {.game = shell.game,
            .panelFlight = shell.panel.state.flight,
            .pending = shell.panel.state.pending,
            .paused = shell.paused};
}

void remember(Shell& shell, LessonRun& run) {
    if (std::exchange(run.isRemembered, true)) {
        return;
    }
    const std::string key = keyOf(programLessons(shell).at(run.number));
    shell.store.update([&key](ProfileFile& profile) { profile.set(lessonsSection, key, "1"); });
    if (const auto failure = shell.store.takeFailure()) {
        shell.report(*failure);
    }
}

} // namespace

LessonRun::LessonRun(Shell& shell, const Lesson& lesson, std::size_t place)
    : number(place), follower(lesson), note(shell, headOf(shell, lesson, place)) {}

std::vector<std::filesystem::path> programLessons(const Shell& shell) {
    return lessonFiles(shell.programFolder / lessonsFolder);
}

bool isLessonDone(const Shell& shell, const std::filesystem::path& file) {
    return shell.store.now().integer(lessonsSection, keyOf(file), 0) != 0;
}

void startLesson(Shell& shell, std::size_t number) {
    const auto files = programLessons(shell);
    if (number >= files.size()) {
        return;
    }
    auto playable = loadPlayable(shell, files[number]);
    if (!playable) {
        shell.report(playable.error());
        return;
    }
    closeLesson(shell);
    auto run = std::make_unique<LessonRun>(shell, playable->lesson, number);
    run->otherwise = shell.game.random;
    run->skipsSeen = shell.topBar.clock.skips;
    startPreparedGame(shell, [&playable](const ShiftSetup& setup) {
        return makeLessonGame(playable->lesson, playable->airspace, setup);
    });
    shell.lesson = std::move(run);
    shell.events.add(shell.lesson->follower);
    followLesson(shell);
}

void followLesson(Shell& shell) {
    if (!shell.lesson) {
        return;
    }
    LessonRun& run = *shell.lesson;
    if (run.skipsSeen != shell.topBar.clock.skips) {
        run.skipsSeen = shell.topBar.clock.skips;
        run.follower.clockSkipped();
    }
    const LessonNote& note = run.follower.follow(factsOf(shell));
    const auto brought = run.follower.takeBrought();
    for (const FlightIndex flight : brought) {
        bringFlight(shell.game, flight);
    }
    if (!brought.empty()) {
        RadarRefresh(shell.radar); // the note points at it at once
    }
    run.note.show(note);
    if (note.kind == NoteKind::done) {
        remember(shell, run);
    }
}

void goOnInLesson(Shell& shell) {
    if (!shell.lesson) {
        return;
    }
    const std::size_t number = shell.lesson->number;
    switch (shell.lesson->follower.note().kind) {
    case NoteKind::task:
    case NoteKind::answer: shell.lesson->follower.noteRead(); break;
    case NoteKind::stop:
        leaveLesson(shell);
        startLesson(shell, number);
        break;
    case NoteKind::done:
        if (number + 1 < programLessons(shell).size()) {
            leaveLesson(shell);
            startLesson(shell, number + 1);
        }
        break;
    }
}

void leaveLesson(Shell& shell) {
    if (shell.lesson) {
        SetPause(shell, false);
        abandonGame(shell);
    }
}

void closeLesson(Shell& shell) {
    if (shell.lesson) {
        shell.events.remove(shell.lesson->follower);
        shell.game.random = shell.lesson->otherwise;
        shell.lesson.reset();
    }
}

} // namespace ventrel
