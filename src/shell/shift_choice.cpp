#include "shell/shift_choice.h"

#include <algorithm>
#include <iterator>

#include "records/controller_name.h"
#include "resources/dialogs.h"
#include "shell/airport_dialog.h"
#include "shell/option_commands.h"
#include "shell/trouble_text.h"

namespace ventrel {

namespace {

constexpr int defaultSkill = 1;

} // namespace

std::string lastControllerName(const Shell& shell) {
    const std::string kept = shell.store.now().text(gameSection, nameKey, "");
    const std::string name = properName(kept.substr(0, longestControllerName));
    return name.empty() ? std::string(namelessController) : name;
}

std::vector<CatalogueEntry> openAirportCatalogue(Shell& shell) {
    const AirportCatalogue& catalogue = shell.airports.catalogue();
    std::vector<CatalogueEntry> entries = catalogue.entries;
    std::vector<std::string> untold;
    std::ranges::copy_if(
        catalogue.troubles, std::back_inserter(untold),
        [&shell](const std::string& trouble) { return shell.toldAirportTroubles.insert(trouble).second; });
    if (!untold.empty()) {
        shell.report(troubleText(untold), MessageIcon::stop);
    }
    return entries;
}

CatalogueEntry chosenAirport(const Shell& shell, const std::vector<CatalogueEntry>& catalogue) {
    const auto index = static_cast<std::size_t>(shell.options.airportSelect);
    return index < catalogue.size() ? catalogue[index] : CatalogueEntry{};
}

void chooseAirport(Shell& shell, const std::vector<CatalogueEntry>& catalogue, Dialog& dialog, int label) {
    if (const auto chosen = runAirportDialog(shell, catalogue)) {
        shell.options.airportSelect = *chosen;
        saveOptions(shell);
        dialog.setText(label, chosenAirport(shell, catalogue).name);
    }
}

int checkLastSkill(const Shell& shell, Dialog& dialog) {
    const int skill = shell.store.now().integer(gameSection, skillKey, defaultSkill);
    if (skill >= 0 && skill < new_game::skillCount) {
        dialog.setChecked(new_game::firstSkill + skill, true);
    }
    return skill;
}

Skill checkedSkill(const Dialog& dialog) {
    constexpr int custom = static_cast<int>(Skill::custom);
    int skill = 0;
    while (skill < custom && !dialog.isChecked(new_game::firstSkill + skill)) {
        ++skill;
    }
    return static_cast<Skill>(skill);
}

} // namespace ventrel
