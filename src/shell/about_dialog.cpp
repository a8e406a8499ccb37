#include "shell/about_dialog.h"

#include "base/version.h"
#include "platform/widgets/dialog.h"
#include "resources/dialogs.h"

namespace ventrel {

namespace {

constexpr std::string_view pictureName = "grf\\about.grf";
constexpr std::string_view versionText = "Version " VENTREL_VERSION;
constexpr int okFromBottom = 20;
constexpr int versionMargin = 10;

/// Makes the window exactly as large as the picture and puts the controls on it.
void fitTo(Dialog& dialog, Size picture) {
    const Size frame = dialog.frame().size();
    const Size inside = dialog.inside().size();
    dialog.resizeInside(
        {picture.width - (frame.width - inside.width), picture.height - (frame.height - inside.height)});

    const Window ok = dialog.window(okId);
    const Size button = ok.size();
    ok.setBounds(Rect::at(
        {picture.width / 2 - button.width / 2, picture.height - button.height - okFromBottom}, button));

    dialog.setText(about::version, std::string(versionText));
    const Window version = dialog.window(about::version);
    const Size label = version.size();
    version.setBounds(Rect::at(
        {picture.width - label.width - versionMargin, picture.height - label.height - versionMargin}, label));
    dialog.centre();
}

} // namespace

void runAboutDialog(Shell& shell) {
    const Result<Bitmap> picture = loadPicture(shell.programFolder, pictureName, shell.windowSize());
    if (!picture) {
        shell.report(picture.error().text, picture.error().icon);
    }
    DialogHandlers handlers;
    handlers.escapeCommand = noEscape;
    handlers.command = [](Dialog& dialog, const CommandInput&) { dialog.end(okId); };
    if (picture) {
        handlers.init = [&picture](Dialog& dialog) { fitTo(dialog, picture->size()); };
        handlers.paint = [&picture](Dialog&, Canvas& canvas) { canvas.draw({0, 0}, *picture); };
    }
    Dialog dialog(shell.desktop, shell.widgetFonts, shell.mainWindow, about::shape, std::move(handlers));
    dialog.run(okId);
}

} // namespace ventrel
