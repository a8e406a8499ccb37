#include "shell/help_dialog.h"

#include "platform/widgets/dialog.h"
#include "resources/help.h"

namespace ventrel {

void runHelpDialog(Shell& shell) {
    const auto onCommand = [](Dialog& dialog, const CommandInput&) { dialog.end(okId); };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, help::shape, {.command = onCommand});
}

} // namespace ventrel
