// Everything that the virtual desktop can show, on one screen: controls, menus, boxes, faces and drawing.
//
// A development program's picture, and the stage on which tests drive the widgets. What happens on it is said
// in a line each ("grid on", "dialog ended 1 name=mary line=2"), so that a test in another process can
// follow.

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/desktop/desktop.h"
#include "platform/text/font.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/menu.h"
#include "platform/widgets/message_box.h"
#include "tools/gallery/gallery_layout.h"
#include "tools/gallery/gallery_tables.h"

namespace ventrel {

/// Gets a line for everything that happened.
using GalleryLog = std::function<void(const std::string& line)>;

class Gallery {
public:
    /// `fonts` and the desktop must outlive it.
    Gallery(Desktop& desktop, FontSet& fonts, GalleryLog say);
    Gallery(const Gallery&) = delete;
    Gallery& operator=(const Gallery&) = delete;

    Window main() const { return main_; }

private:
    void createControls();
    void createButtons();
    void createToggles();
    void createFields();
    void createTexts();
    void createLists();
    void takePhotographs();

    void command(const CommandInput& input);
    void openMenu();
    bool flip(int command);
    void openDialog();
    void openBox(const Window& owner);
    void endDialog(Dialog& dialog, int result);

    void paint(Canvas& canvas);
    void paintPhotographs(Canvas& canvas) const;

    Desktop& desktop_;
    FontSet& fonts_;
    GalleryLog say_;
    WidgetFonts widgetFonts_;
    GalleryLayout layout_;
    Menu menu_;
    Window main_;
    std::vector<std::vector<Bitmap>> photographs_; // columns, from the left
};

} // namespace ventrel
