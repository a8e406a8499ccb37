#include "shell/watch_dialog.h"

#include "resources/dialogs.h"
#include "shell/custom_skill_dialog.h"
#include "shell/shift_choice.h"

namespace ventrel {

namespace {

/// So that every order can be followed, and a shift does not take half an hour.
constexpr ClockPace firstPace = ClockPace::twice;

/// Who is welcomed on the ticker.
constexpr std::string_view automaticName = "Automatic Controller";

/// The dialog while it is open.
struct Watch {
    Shell& shell;
    std::vector<CatalogueEntry> catalogue = {};
    WatchWish wish = {};
};

void open(const Watch& watch, Dialog& dialog) {
    checkLastSkill(watch.shell, dialog);
    dialog.setChecked(watch_shift::firstPace + static_cast<int>(firstPace), true);
    dialog.setText(watch_shift::airport, chosenAirport(watch.shell, watch.catalogue).name);
    dialog.focus(okId);
}

ClockPace checkedPace(const Dialog& dialog) {
    for (const ClockPace pace : clockPaces) {
        if (dialog.isChecked(watch_shift::firstPace + static_cast<int>(pace))) {
            return pace;
        }
    }
    return firstPace;
}

/// Takes what the dialog shows. The dialog stays open when something is missing.
void accept(Watch& watch, Dialog& dialog) {
    const CatalogueEntry airport = chosenAirport(watch.shell, watch.catalogue);
    const Skill skill = checkedSkill(dialog);
    if (airport.name.empty()) {
        watch.shell.report(StringTableText(TextId::chooseAirport), MessageIcon::information);
        return;
    }
    if (skill == Skill::custom && !runCustomSkillDialog(watch.shell, dialog.frame())) {
        return;
    }
    watch.wish = {.setup = {.kind = ShiftKind::practice,
                            .skill = skill,
                            .controllerName = std::string(automaticName),
                            .airportName = airport.name,
                            .airportFile = airport.file},
                  .pace = checkedPace(dialog)};
    dialog.end(okId);
}

void onCommand(Watch& watch, Dialog& dialog, int id) {
    switch (id) {
    case watch_shift::choose:
        chooseAirport(watch.shell, watch.catalogue, dialog, watch_shift::airport);
        break;
    case okId: accept(watch, dialog); break;
    case cancelId: dialog.end(cancelId); break;
    default: break;
    }
}

} // namespace

std::optional<WatchWish> runWatchDialog(Shell& shell) {
    Watch watch{.shell = shell, .catalogue = openAirportCatalogue(shell)};
    if (watch.catalogue.empty()) {
        shell.report(StringTableText(TextId::noAirports), MessageIcon::information);
        return std::nullopt;
    }
    const int result =
        runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, watch_shift::shape,
                  {.init = [&watch](Dialog& dialog) { open(watch, dialog); },
                   .command = [&watch](Dialog& dialog,
                                       const CommandInput& input) { onCommand(watch, dialog, input.id); }});
    return result == okId ? std::optional(std::move(watch.wish)) : std::nullopt;
}

} // namespace ventrel
