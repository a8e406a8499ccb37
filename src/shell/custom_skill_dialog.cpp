#include "shell/custom_skill_dialog.h"

#include <algorithm>

#include "platform/widgets/dialog.h"
#include "resources/dialogs.h"
#include "shell/option_commands.h"
#include "sim/custom_skill.h"

namespace ventrel {

namespace {

/// Longer than any shift that earns a bonus.
constexpr unsigned manyMinutes = 1'000'000;

/// The shift as typed, which need not be one that can be played.
struct TypedShift {
    unsigned planes;
    unsigned minutes;

    ClockSeconds length() const { return static_cast<int>(std::min(minutes, manyMinutes)) * clockMinute; }
    int bonus() const { return bonusFor(static_cast<int>(planes), length()); }
};

TypedShift typedShift(const Dialog& dialog) {
    return {dialog.number(custom_skill::planes), dialog.number(custom_skill::minutes)};
}

void open(const Shell& shell, Dialog& dialog) {
    const Options& options = shell.options;
    dialog.setNumber(custom_skill::planes, static_cast<unsigned>(options.customPlanes));
    dialog.setNumber(custom_skill::minutes, static_cast<unsigned>(options.customSched / clockMinute.count()));
    dialog.setNumber(custom_skill::bonus, static_cast<unsigned>(options.customBonus));
    dialog.focus(custom_skill::planes);
    dialog.edit(custom_skill::planes).selectAll();
}

void accept(Shell& shell, Dialog& dialog) {
    const TypedShift shift = typedShift(dialog);
    if (const auto fault = customShiftFault(shift.planes, shift.minutes)) {
        shell.report(StringTableText(*fault), MessageIcon::information);
        return;
    }
    shell.options.customPlanes = static_cast<int>(shift.planes);
    shell.options.customSched = shift.length().count();
    shell.options.customBonus = shift.bonus();
    saveOptions(shell);
    dialog.end(okId);
}

void onCommand(Shell& shell, Dialog& dialog, int id) {
    if (id == custom_skill::calculate) {
        dialog.setNumber(custom_skill::bonus, static_cast<unsigned>(typedShift(dialog).bonus()));
    } else if (id == okId) {
        accept(shell, dialog);
    } else if (id == cancelId) {
        dialog.end(cancelId);
    }
}

} // namespace

bool runCustomSkillDialog(Shell& shell, const Window& owner) {
    return runDialog(shell.desktop, shell.widgetFonts, owner, custom_skill::shape,
                     {.init = [&shell](Dialog& dialog) { open(shell, dialog); },
                      .command =
                          [&shell](Dialog& dialog, const CommandInput& input) {
                              onCommand(shell, dialog, input.id);
                          }}) == okId;
}

} // namespace ventrel
