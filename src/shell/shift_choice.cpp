#include "shell/shift_choice.h"

#include "resources/dialogs.h"
#include "shell/airport_dialog.h"
#include "shell/trouble_text.h"

namespace ventrel {

namespace {

constexpr int defaultSkill = 1;

} // namespace

std::vector<CatalogueEntry> openAirportCatalogue(Shell& shell) {
    AirportCatalogue catalogue = BuildAirportCatalogue(airportFolder(shell.programFolder),
                                                       shell.playersAirports, shell.windowSize().width);
    std::erase_if(catalogue.troubles, [&shell](const std::string& trouble) {
        return !shell.toldAirportTroubles.insert(trouble).second;
    });
    if (!catalogue.troubles.empty()) {
        shell.report(troubleText(catalogue.troubles), MessageIcon::stop);
    }
    return std::move(catalogue.entries);
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
