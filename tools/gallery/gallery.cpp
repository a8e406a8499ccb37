#include "tools/gallery/gallery.h"

#include <array>

#include "tools/gallery/exhibits.h"
#include "tools/gallery/photograph.h"

namespace ventrel {

namespace {

constexpr Colour ground = Colour::rgb(0, 0x60, 0x60);
constexpr FontRequest captionFace{Face::smallFonts, -9, false};

constexpr MessageBoxText question{.text = "Are you sure you want to quit the game in progress?",
                                  .title = "Ventrel",
                                  .icon = MessageIcon::exclamation,
                                  .buttons = MessageButtons::okCancel};

/// One of each kind, with a short text.
constexpr std::array shownBoxes{std::to_array<MessageBoxText>({
    {"Can't open it.", "Stop", MessageIcon::stop, MessageButtons::ok, false},
    {"Enter a name.", "Note", MessageIcon::information, MessageButtons::ok, false},
    {"Quit the game?", "Warning", MessageIcon::exclamation, MessageButtons::okCancel, false},
    {"Once more?", "Question", MessageIcon::question, MessageButtons::yesNo, false},
})};

std::string_view nameOf(MessageAnswer answer) {
    switch (answer) {
    case MessageAnswer::ok: return "ok";
    case MessageAnswer::cancel: return "cancel";
    case MessageAnswer::yes: return "yes";
    case MessageAnswer::no: break;
    }
    return "no";
}

void fillDialog(Dialog& dialog) {
    dialog.setChecked(gallery_tables::lastRadioId, true);
    for (const char* name : gallery_tables::airports) {
        dialog.list(gallery_tables::listId).add(name);
    }
    dialog.focus(gallery_tables::nameId);
}

} // namespace

Gallery::Gallery(Desktop& desktop, FontSet& fonts, GalleryLog say)
    : desktop_(desktop), fonts_(fonts), say_(std::move(say)), widgetFonts_(widgetFontsOf(fonts)),
      layout_(galleryLayout(desktop.size())), menu_(makeMenu(gallery_tables::menuItems)) {
    checkMenuItem(menu_, galleryGridCommand, true);
    takePhotographs();
    WindowHandlers handlers;
    handlers.paint = [this](Canvas& canvas, const Rect&) { paint(canvas); };
    handlers.command = [this](const CommandInput& input) { command(input); };
    handlers.close = [this] { desktop_.quit(); };
    handlers.minimise = [this](bool minimised) { say_(minimised ? "minimised" : "restored"); };
    main_ = desktop.create({.bounds = desktop.area(), .handlers = std::move(handlers)});
    main_.setAccelerators(gallery_tables::accelerators);
    desktop.setMainWindow(main_);
    createControls();
}

// What it opens ---------------------------------------------------------------------------------------------

void Gallery::command(const CommandInput& input) {
    switch (input.id) {
    case galleryMenuCommand: openMenu(); break;
    case galleryDialogCommand: openDialog(); break;
    case galleryBoxCommand: openBox(main_); break;
    default: break;
    }
}

void Gallery::openMenu() {
    const Rect button = main_.child(galleryMenuCommand).screenBounds();
    say_("menu opens");
    const int chosen = trackMenu(desktop_, widgetFonts_, menu_, {button.left, button.bottom});
    say_("menu chose " + std::to_string(chosen));
    switch (chosen) {
    case galleryGridCommand: say_(flip(chosen) ? "grid on" : "grid off"); break;
    case galleryFullScreenCommand: desktop_.setFullScreen(flip(chosen)); break;
    case galleryExitCommand: desktop_.quit(); break;
    default: break;
    }
    main_.focus();
}

/// Whether the item is ticked now.
bool Gallery::flip(int command) {
    MenuItem* item = findMenuItem(menu_, command);
    item->checked = !item->checked;
    return item->checked;
}

void Gallery::openDialog() {
    DialogHandlers handlers;
    handlers.init = [this](Dialog& dialog) {
        fillDialog(dialog);
        say_("dialog opens");
    };
    handlers.command = [this](Dialog& dialog, const CommandInput& input) {
        const bool isChoice = input.id == gallery_tables::listId && input.notification == listDoubleClicked;
        if (input.id == gallery_tables::askId) {
            openBox(dialog.frame());
        } else if (isChoice || input.id == okId || input.id == cancelId) {
            endDialog(dialog, isChoice ? okId : input.id);
        }
    };
    runDialog(desktop_, widgetFonts_, main_, gallery_tables::dialog, std::move(handlers));
}

void Gallery::endDialog(Dialog& dialog, int result) {
    int skill = gallery_tables::lastRadioId;
    while (!dialog.isChecked(skill)) {
        --skill;
    }
    say_("dialog ended " + std::to_string(result) + " name=" + dialog.text(gallery_tables::nameId) +
         " line=" + std::to_string(dialog.list(gallery_tables::listId).selected()) + " skill=" +
         std::to_string(skill) + " clouds=" + (dialog.isChecked(gallery_tables::cloudsId) ? "yes" : "no"));
    dialog.end(result);
}

void Gallery::openBox(const Window& owner) {
    say_("box opens");
    const MessageAnswer answer = showMessageBox(desktop_, widgetFonts_, owner, question);
    say_("box answered " + std::string(nameOf(answer)));
}

// What it shows ---------------------------------------------------------------------------------------------

void Gallery::takePhotographs() {
    const auto menu = photograph(
        ground, [this](Desktop& desktop, const Window&) { trackMenu(desktop, widgetFonts_, menu_, {0, 0}); },
        [](Script& script) { script.type("d").key(Key::up).key(Key::up); });
    const auto dialog = photograph(ground, [this](Desktop& desktop, const Window& owner) {
        const auto fill = [](Dialog& shown) {
            fillDialog(shown);
            shown.setText(gallery_tables::nameId, "Mary");
            shown.setChecked(gallery_tables::cloudsId, true);
            shown.list(gallery_tables::listId).select(2);
            shown.focus(cancelId);
        };
        runDialog(desktop, widgetFonts_, owner, gallery_tables::dialog, {.init = fill});
    });
    photographs_ = {{menu}, {dialog}, {}, {}};
    for (std::size_t i = 0; i < shownBoxes.size(); ++i) {
        const auto box = photograph(ground, [&](Desktop& desktop, const Window& owner) {
            showMessageBox(desktop, widgetFonts_, owner, shownBoxes[i]);
        });
        photographs_[2 + i / 2].push_back(box);
    }
}

/// The columns stand in the band with equal gaps between them, and so do the pictures of each column.
void Gallery::paintPhotographs(Canvas& canvas) const {
    const Rect band = layout_.photographs;
    const auto widthOf = [](const std::vector<Bitmap>& column) {
        int width = 0;
        for (const Bitmap& picture : column) {
            width = std::max(width, picture.width());
        }
        return width;
    };
    int room = band.width();
    for (const auto& column : photographs_) {
        room -= widthOf(column);
    }
    const int gap = room / (static_cast<int>(photographs_.size()) + 1);
    int x = band.left + gap;
    for (const auto& column : photographs_) {
        int roomDown = band.height();
        for (const Bitmap& picture : column) {
            roomDown -= picture.height();
        }
        const int gapDown = roomDown / (static_cast<int>(column.size()) + 1);
        int y = band.top + gapDown;
        for (const Bitmap& picture : column) {
            canvas.draw({x, y}, picture);
            y += picture.height() + gapDown;
        }
        x += widthOf(column) + gap;
    }
}

void Gallery::paint(Canvas& canvas) {
    canvas.fill(main_.area(), ground);
    canvas.fill(layout_.controls, look::face);
    drawRaisedEdge(canvas, layout_.controls);
    for (const Rect& panel : {layout_.faces, layout_.drawing}) {
        canvas.fill(panel, darkGround);
        drawSunkenEdge(canvas, panel);
    }
    paintPhotographs(canvas);
    paintFaces(canvas, layout_.faces, fonts_);
    paintDrawing(canvas, layout_.drawing, layout_.drawingColumns, fonts_.font(captionFace));
}

} // namespace ventrel
