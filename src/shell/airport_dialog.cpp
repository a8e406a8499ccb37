#include "shell/airport_dialog.h"

#include "platform/widgets/dialog.h"
#include "resources/dialogs.h"

namespace ventrel {

std::optional<int> runAirportDialog(Shell& shell, std::span<const CatalogueEntry> catalogue) {
    int selected = noListItem;
    const auto open = [catalogue](Dialog& dialog) {
        const ListBox list = dialog.list(choose_airport::list);
        for (const CatalogueEntry& entry : catalogue) {
            list.add(entry.name);
        }
    };
    const auto onCommand = [&selected](Dialog& dialog, const CommandInput& input) {
        const bool isDoubleClick =
            input.id == choose_airport::list && input.notification == listDoubleClicked;
        if (isDoubleClick || input.id == okId) {
            selected = dialog.list(choose_airport::list).selected();
            dialog.end(okId);
        } else if (input.id == cancelId) {
            dialog.end(cancelId);
        }
    };
    runDialog(shell.desktop, shell.widgetFonts, shell.mainWindow, choose_airport::shape,
              {.init = open, .command = onCommand});
    return selected == noListItem ? std::nullopt : std::optional(selected);
}

} // namespace ventrel
