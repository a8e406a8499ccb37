#include "shell/new_game_dialog.h"

#include "platform/widgets/dialog.h"
#include "records/controller_name.h"
#include "resources/dialogs.h"
#include "shell/custom_skill_dialog.h"
#include "shell/option_commands.h"
#include "shell/shift_choice.h"

namespace ventrel {

namespace {

constexpr int easySkill = 0;
constexpr int customSkill = 4;

/// The dialog while it is open.
struct NewGame {
    Shell& shell;
    std::vector<CatalogueEntry> catalogue = {};
    GameSetup setup = {};
    // How the bonus boxes stood before Easy took them away.
    bool wantsClouds = false;
    bool wantsDirectEntry = false;
};

void setBonusBoxes(Dialog& dialog, bool clouds, bool directEntry, bool enabled) {
    dialog.setChecked(new_game::clouds, clouds);
    dialog.setChecked(new_game::directEntry, directEntry);
    dialog.enable(new_game::clouds, enabled);
    dialog.enable(new_game::directEntry, enabled);
}

void showSkill(const NewGame& game, Dialog& dialog, int skill) {
    if (skill == easySkill) {
        setBonusBoxes(dialog, false, true, false);
    } else {
        setBonusBoxes(dialog, game.wantsClouds, game.wantsDirectEntry, true);
    }
}

void open(NewGame& game, Dialog& dialog) {
    const int skill = checkLastSkill(game.shell, dialog);
    const ProfileFile profile = game.shell.store.now();
    const std::string lastName = profile.text(gameSection, nameKey, "").substr(0, new_game::nameLimit);
    dialog.setText(new_game::name, properName(lastName));
    dialog.setText(new_game::airport, chosenAirport(game.shell, game.catalogue).name);
    game.wantsClouds = game.shell.options.stormTrak != 0;
    game.wantsDirectEntry = game.shell.options.directEntry != 0;
    showSkill(game, dialog, skill);
    dialog.focus(new_game::name);
    dialog.edit(new_game::name).selectAll();
}

void chooseSkill(NewGame& game, Dialog& dialog, int skill) {
    if (skill == easySkill) {
        game.wantsClouds = dialog.isChecked(new_game::clouds);
        game.wantsDirectEntry = dialog.isChecked(new_game::directEntry);
    }
    showSkill(game, dialog, skill);
}

/// The name and the level are kept for the next time.
void remember(const GameSetup& setup, Shell& shell) {
    shell.store.update([&setup](ProfileFile& profile) {
        profile.set(gameSection, nameKey, setup.controllerName);
        profile.set(gameSection, skillKey, std::to_string(static_cast<int>(setup.skill)));
    });
}

/// Takes what the dialog shows. The dialog stays open when something is missing.
void accept(NewGame& game, Dialog& dialog) {
    Shell& shell = game.shell;
    const bool isCustom = dialog.isChecked(new_game::firstSkill + customSkill);
    if (isCustom && !runCustomSkillDialog(shell, dialog.frame())) {
        return;
    }
    game.setup.controllerName = properName(dialog.text(new_game::name).substr(0, longestControllerName));
    if (game.setup.controllerName.empty()) {
        shell.report(StringTableText(TextId::pleaseEnterName), MessageIcon::information);
        return;
    }
    game.setup.skill = checkedSkill(dialog);
    remember(game.setup, shell);
    shell.options.stormTrak = dialog.isChecked(new_game::clouds) ? 1 : 0;
    shell.options.directEntry = dialog.isChecked(new_game::directEntry) ? 1 : 0;
    saveOptions(shell);
    const CatalogueEntry airport = chosenAirport(game.shell, game.catalogue);
    if (airport.name.empty()) {
        shell.report(StringTableText(TextId::chooseAirport), MessageIcon::information);
        return;
    }
    game.setup.airportName = airport.name;
    game.setup.airportFile = airport.file;
    dialog.end(okId);
}

void onCommand(NewGame& game, Dialog& dialog, int id) {
    const int skill = id - new_game::firstSkill;
    if (skill >= 0 && skill < new_game::skillCount) {
        chooseSkill(game, dialog, skill);
    } else if (id == new_game::choose) {
        chooseAirport(game.shell, game.catalogue, dialog, new_game::airport);
    } else if (id == okId) {
        accept(game, dialog);
    } else if (id == cancelId) {
        dialog.end(cancelId);
    }
}

} // namespace

std::optional<GameSetup> runNewGameDialog(Shell& shell) {
    NewGame game{.shell = shell, .catalogue = openAirportCatalogue(shell)};
    if (game.catalogue.empty()) {
        shell.report(StringTableText(TextId::noAirports), MessageIcon::information);
        return std::nullopt;
    }
    DialogTemplate shape = new_game::shape;
    if (shell.isHalfSpeedOn) {
        shape.title = new_game::halfSpeedTitle;
    }
    const int result =
        runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, shape,
                  {.init = [&game](Dialog& dialog) { open(game, dialog); },
                   .command = [&game](Dialog& dialog,
                                      const CommandInput& input) { onCommand(game, dialog, input.id); }});
    return result == okId ? std::optional(std::move(game.setup)) : std::nullopt;
}

} // namespace ventrel
