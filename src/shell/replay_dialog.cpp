#include "shell/replay_dialog.h"

#include "base/format.h"
#include "base/windows1252.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/widget_place.h"
#include "replay/replay_folder.h"
#include "replay/shift_of_the_day.h"
#include "resources/dialogs.h"
#include "shell/replay_keeping.h"
#include "story/shift_report.h"

namespace ventrel {

namespace {

constexpr std::array<std::string_view, 3> kindNames{"Scored", "Practice", "Shift of the Day"};
constexpr std::string_view noFolderText = "There is no folder to keep your replays in.";
constexpr std::string_view noneText = "There are no replays yet: each shift that you play becomes one.";
constexpr std::string_view deleteText = "Delete this replay?";
constexpr std::string_view chooseText = "Please choose a replay.";

/// The dialog while it is open.
struct Replays {
    Shell& shell;
    std::vector<KeptReplay> kept = {};
    std::optional<Replay> chosen = {};
};

std::string outcomeOf(const Replay& replay) {
    if (!replay.end) {
        return "cut off";
    }
    switch (replay.end->outcome) {
    case ReplayOutcome::handled: return "finished";
    case ReplayOutcome::collision: return "collision";
    case ReplayOutcome::givenUp: return "given up";
    }
    return {};
}

/// As much of the text as fits before the next column, and the tabs that lead there.
std::string cell(const Font& font, std::string text, std::size_t column) {
    const int tab = dialogUnitsAcross(replay_list::tabStop);
    const auto& stops = replay_list::columnStops;
    const bool isLast = column + 1 == stops.size();
    const int next = isLast ? replay_list::pastLastStop : stops.at(column + 1);
    const int room = (next - stops.at(column)) * tab;
    while (!text.empty() && font.width(text) >= room) {
        text.pop_back();
    }
    const int tabs = isLast ? 0 : (room - font.width(text) + tab - 1) / tab;
    return text + std::string(static_cast<std::size_t>(tabs), '\t');
}

/// Date, airspace, level, score, outcome and what it is.
std::string rowOf(const Font& font, const KeptReplay& kept) {
    const std::string name = pathText(kept.file.stem());
    if (!kept.replay) {
        return name + " cannot be read";
    }
    const ReplayHeader& header = kept.replay->header;
    const std::string_view kind = kindNames.at(static_cast<std::size_t>(header.kind));
    const std::array columns{
        localTime(header.begun),
        header.airspaceName,
        std::string(skillName(header.skill)),
        FormatText("%d of %d", {long{kept.replay->lastScore}, long{header.possibleScore}}),
        outcomeOf(*kept.replay),
        kept.isKeptByName ? name : std::string(kind)};
    std::string row;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        row += cell(font, columns.at(column), column);
    }
    return row;
}

/// But for the shift that is being played, of which the player sees more on his console.
std::vector<KeptReplay> finishedReplays(const Shell& shell) {
    std::vector<KeptReplay> kept = listReplays(replayFolder(shell));
    std::erase_if(kept, [&writer = shell.replayWriter](const KeptReplay& replay) {
        return writer.isWriting() && replay.file == writer.file();
    });
    return kept;
}

/// Lists them, and chooses the one at that place.
void list(Replays& replays, Dialog& dialog, int chosen) {
    replays.kept = finishedReplays(replays.shell);
    const ListBox box = dialog.list(replay_list::list);
    box.clear();
    box.setTabWidth(dialogUnitsAcross(replay_list::tabStop));
    for (const KeptReplay& kept : replays.kept) {
        box.add(rowOf(replays.shell.widgetFonts.text, kept));
    }
    const bool isAny = !replays.kept.empty();
    box.select(isAny ? std::min(chosen, static_cast<int>(replays.kept.size()) - 1) : noListItem);
    for (const int button : {okId, replay_list::keep, replay_list::remove}) {
        dialog.enable(button, isAny);
    }
    dialog.focus(isAny ? replay_list::list : cancelId);
}

/// None, after the player was told, where none is chosen.
const KeptReplay* chosenOf(const Replays& replays, const Dialog& dialog) {
    const int chosen = dialog.list(replay_list::list).selected();
    if (chosen == noListItem) {
        replays.shell.report(chooseText, MessageIcon::information);
        return nullptr;
    }
    return &replays.kept[static_cast<std::size_t>(chosen)];
}

void watch(Replays& replays, Dialog& dialog) {
    const KeptReplay* const kept = chosenOf(replays, dialog);
    if (kept == nullptr) {
        return;
    }
    if (kept->replay) {
        replays.chosen = *kept->replay;
        dialog.end(okId);
    } else {
        replays.shell.report(kept->replay.error());
    }
}

/// Keeps it under the name that is typed. Whether the dialog is done.
bool keepAs(Shell& shell, const KeptReplay& kept, const Dialog& dialog) {
    const auto renamed = keepReplayAs(kept.file, toUtf8(dialog.text(keep_replay::name)));
    if (!renamed) {
        shell.report(renamed.error());
    }
    return renamed.has_value();
}

void askForName(Replays& replays, const Dialog& owner, const KeptReplay& kept) {
    const auto onCommand = [&](Dialog& dialog, const CommandInput& input) {
        if (input.id == cancelId) {
            dialog.end(cancelId);
        } else if (input.id == okId && keepAs(replays.shell, kept, dialog)) {
            dialog.end(okId);
        }
    };
    runDialog(replays.shell.desktop, replays.shell.widgetFonts, owner.frame(), keep_replay::shape,
              {.init =
                   [&kept](Dialog& dialog) {
                       if (kept.isKeptByName) {
                           dialog.setText(keep_replay::name, fromUtf8(kept.file.stem().string()));
                       }
                       dialog.focus(keep_replay::name);
                       dialog.edit(keep_replay::name).selectAll();
                   },
               .command = onCommand});
}

void remove(const Replays& replays, const KeptReplay& kept) {
    Shell& shell = replays.shell;
    if (shell.showMessage(deleteText, MessageIcon::exclamation, MessageButtons::yesNo) !=
        MessageAnswer::yes) {
        return;
    }
    if (const auto deleted = deleteReplay(kept.file); !deleted) {
        shell.report(deleted.error());
    }
}

void change(Replays& replays, Dialog& dialog, int id) {
    if (const KeptReplay* const kept = chosenOf(replays, dialog)) {
        const int place = dialog.list(replay_list::list).selected();
        if (id == replay_list::keep) {
            askForName(replays, dialog, *kept);
        } else {
            remove(replays, *kept);
        }
        list(replays, dialog, place);
    }
}

void onCommand(Replays& replays, Dialog& dialog, const CommandInput& input) {
    const bool isDoubleClick = input.id == replay_list::list && input.notification == listDoubleClicked;
    if (isDoubleClick || input.id == okId) {
        watch(replays, dialog);
    } else if (input.id == replay_list::keep || input.id == replay_list::remove) {
        change(replays, dialog, input.id);
    } else if (input.id == cancelId) {
        dialog.end(cancelId);
    }
}

} // namespace

std::optional<Replay> runReplayDialog(Shell& shell) {
    Replays replays{.shell = shell};
    if (replayFolder(shell).empty()) {
        shell.report(noFolderText, MessageIcon::information);
        return std::nullopt;
    }
    if (finishedReplays(shell).empty()) {
        shell.report(noneText, MessageIcon::information);
        return std::nullopt;
    }
    runDialog(
        shell.desktop, shell.widgetFonts, shell.mainWindow, replay_list::shape,
        {.init = [&](Dialog& dialog) { list(replays, dialog, 0); },
         .command = [&](Dialog& dialog, const CommandInput& input) { onCommand(replays, dialog, input); }});
    return std::move(replays.chosen);
}

} // namespace ventrel
