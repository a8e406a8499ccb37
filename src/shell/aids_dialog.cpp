#include "shell/aids_dialog.h"

#include "platform/widgets/dialog.h"
#include "resources/aids_dialog.h"
#include "shell/option_commands.h"

namespace ventrel {

namespace {

void tickAids(const Options& options, Dialog& dialog) {
    for (std::size_t row = 0; row < aidRows.size(); ++row) {
        dialog.setChecked(aids::checkBoxOf(row), options.*aidRows[row].value != 0);
    }
}

/// The options with the aids as they are ticked.
Options tickedAids(Options options, const Dialog& dialog) {
    for (std::size_t row = 0; row < aidRows.size(); ++row) {
        options.*aidRows[row].value = dialog.isChecked(aids::checkBoxOf(row)) ? 1 : 0;
    }
    return options;
}

} // namespace

void runAidsDialog(Shell& shell) {
    const auto onCommand = [&shell](Dialog& dialog, const CommandInput& input) {
        if (input.id == okId) {
            chooseAids(shell, tickedAids(shell.options, dialog));
        }
        if (input.id == okId || input.id == cancelId) {
            dialog.end(input.id);
        }
    };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, aids::shape,
              {.init = [&shell](Dialog& dialog) { tickAids(shell.options, dialog); }, .command = onCommand});
}

} // namespace ventrel
