// Everything that the virtual desktop can show, on one screen: controls, menus, boxes, faces and drawing.
//
// A development program's picture, and the stage on which tests drive the widgets.

#pragma once

#include <string>

#include "platform/canvas/font.h"
#include "platform/desktop/desktop.h"
#include "platform/widgets/button.h"
#include "platform/widgets/edit.h"
#include "platform/widgets/list_box.h"
#include "platform/widgets/menu.h"
#include "platform/widgets/message_box.h"
#include "platform/widgets/toggle.h"

namespace ventrel {

inline constexpr int galleryMenuCommand = 500;
inline constexpr int galleryDialogCommand = 501;
inline constexpr int galleryBoxCommand = 502;
inline constexpr int galleryGridCommand = 601;

class Gallery {
public:
    Gallery(Desktop& desktop, FontSet& fonts);

    Window main;
    Menu menu;
    int lastCommand = 0;                      ///< the latest menu choice
    int dialogResult = 0;                     ///< of the latest dialog
    std::string dialogName;                   ///< what was typed into it
    int dialogChoice = noListItem;            ///< the line chosen in it
    MessageAnswer answer = MessageAnswer::no; ///< of the latest message box

private:
    void createControls();
    void command(const CommandInput& input);
    void openMenu();
    void openDialog();
    void openBox();
    void paint(Canvas& canvas) const;
    void paintFaces(Canvas& canvas, Point corner) const;
    void paintShapes(Canvas& canvas, Point corner) const;

    Desktop& desktop_;
    FontSet& fonts_;
    WidgetFonts widgetFonts_;
};

/// The fonts of dialogs and menus.
WidgetFonts dialogFonts(FontSet& fonts);

} // namespace ventrel
