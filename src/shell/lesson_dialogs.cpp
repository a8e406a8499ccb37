#include "shell/lesson_dialogs.h"

#include <algorithm>

#include "lessons/lesson_file.h"
#include "platform/widgets/dialog.h"
#include "resources/command_ids.h"
#include "resources/lesson_dialogs.h"
#include "shell/option_commands.h"
#include "shell/trouble_text.h"

namespace ventrel {

namespace {

constexpr std::string_view doneMark = "   (done)";

struct ListedLesson {
    std::string title;
    std::string about;
    bool isDone = false;
};

/// One that cannot be read is told of, and none is listed: their numbers would be wrong. That there are none
/// is told, too.
std::vector<ListedLesson> listLessons(Shell& shell) {
    std::vector<ListedLesson> lessons;
    std::vector<std::string> troubles;
    for (const auto& file : programLessons(shell)) {
        const auto lesson = loadLesson(file);
        if (!lesson) {
            troubles.push_back(lesson.error().text);
            continue;
        }
        const std::string number = std::to_string(lessons.size() + 1);
        lessons.push_back({number + ". " + lesson->name, lesson->about, isLessonDone(shell, file)});
    }
    if (!troubles.empty()) {
        shell.report(troubleText(troubles), MessageIcon::stop);
        return {};
    }
    if (lessons.empty()) {
        shell.report("There are no lessons in the program's folder.", MessageIcon::information);
    }
    return lessons;
}

/// The first that has not been done; the first of all when all have.
int firstUndone(const std::vector<ListedLesson>& lessons) {
    const auto found = std::ranges::find(lessons, false, &ListedLesson::isDone);
    return found == lessons.end() ? 0 : static_cast<int>(found - lessons.begin());
}

void open(const std::vector<ListedLesson>& lessons, Dialog& dialog) {
    const ListBox list = dialog.list(lesson_list::list);
    for (const ListedLesson& lesson : lessons) {
        list.add(lesson.title + std::string(lesson.isDone ? doneMark : ""));
    }
    const int first = firstUndone(lessons);
    list.select(first);
    dialog.setText(lesson_list::about, lessons[static_cast<std::size_t>(first)].about);
    dialog.focus(lesson_list::list);
}

} // namespace

std::optional<std::size_t> runLessonsDialog(Shell& shell) {
    const std::vector<ListedLesson> lessons = listLessons(shell);
    if (lessons.empty()) {
        return std::nullopt;
    }
    int chosen = noListItem;
    const auto onCommand = [&](Dialog& dialog, const CommandInput& input) {
        if (input.id == cancelId) {
            dialog.end(cancelId);
            return;
        }
        chosen = dialog.list(lesson_list::list).selected();
        if (chosen == noListItem) {
            return;
        }
        dialog.setText(lesson_list::about, lessons[static_cast<std::size_t>(chosen)].about);
        if (input.id == okId || input.notification == listDoubleClicked) {
            dialog.end(okId);
        }
    };
    const int result =
        runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, lesson_list::shape,
                  {.init = [&lessons](Dialog& dialog) { open(lessons, dialog); }, .command = onCommand});
    return result == okId && chosen != noListItem ? std::optional(static_cast<std::size_t>(chosen))
                                                  : std::nullopt;
}

void welcomeNewcomer(Shell& shell) {
    saveOptions(shell);
    const auto onCommand = [](Dialog& dialog, const CommandInput& input) { dialog.end(input.id); };
    const int answer = runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, first_start::shape,
                                 {.command = onCommand});
    if (answer == first_start::lesson) {
        startLesson(shell, 0);
    } else if (answer == first_start::newGame) {
        shell.mainWindow.postCommand(command::newGame);
    }
}

} // namespace ventrel
