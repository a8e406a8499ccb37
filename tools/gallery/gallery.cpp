#include "tools/gallery/gallery.h"

#include <array>

#include "platform/canvas/text.h"
#include "platform/widgets/dialog.h"

namespace ventrel {

namespace {

constexpr Colour ground = Colour::rgb(0, 0x60, 0x60);

constexpr std::array displayItems{std::to_array<MenuItemTemplate>({
    {"Radar S&weep", 602},
    {"&Grid", galleryGridCommand},
    {"Greyed o&ut", 603, {}, true},
})};
constexpr std::array menuItems{std::to_array<MenuItemTemplate>({
    {"&New Game...", 604},
    {"&Pause\tPAUSE", 605},
    {"&Greyed\tCtrl+G", 606, {}, true},
    {""},
    {"&Display Options", 0, displayItems},
    {""},
    {"E&xit\tAlt+F4", 607},
})};

constexpr std::array accelerators{std::to_array<Accelerator>({
    {Key::f, {false, false, true}, galleryMenuCommand},
    {Key::d, {false, false, true}, galleryDialogCommand},
    {Key::b, {false, false, true}, galleryBoxCommand},
})};

constexpr int nameId = 1010;
constexpr int listId = 1007;
constexpr int lastRadioId = 1002;

constexpr std::array dialogControls{std::to_array<ControlTemplate>({
    {ControlKind::groupBox, 0, "Skill", {7, 7, 67, 55}},
    {ControlKind::radioButton, 1000, "Eas&y", {13, 18, 60, 28}, groupStart},
    {ControlKind::radioButton, 1001, "Nor&mal", {13, 29, 60, 39}},
    {ControlKind::radioButton, lastRadioId, "&Hard", {13, 40, 60, 50}},
    {ControlKind::staticText, 0, "Name:", {76, 12, 100, 20}},
    {ControlKind::edit, nameId, "", {76, 22, 190, 34}},
    {ControlKind::checkBox, 1017, "Random &Cloud Cover", {76, 41, 190, 51}},
    {ControlKind::listBox, listId, "", {7, 62, 140, 112}},
    {ControlKind::staticText, 0, "None Selected", {146, 62, 195, 74}, sunkenStatic},
    {ControlKind::defaultButton, okId, "OK", {150, 80, 195, 94}},
    {ControlKind::pushButton, cancelId, "Cancel", {150, 98, 195, 112}},
})};
constexpr DialogTemplate dialogShape{.title = "New Game", .size = {202, 119}, .controls = dialogControls};

constexpr std::array<const char*, 8> airportNames{"Amsterdam", "Atlanta", "Chicago", "Hong Kong",
                                                  "London",    "Miami",   "Paris",   "Zurich"};

struct FaceSample {
    FontRequest request;
    std::string_view text;
};
constexpr std::array faceSamples{std::to_array<FaceSample>({
    {{Face::smallFonts, -8, false}, "Map labels ATL MIA 90\xB0"},
    {{Face::smallFonts, -9, false}, "Map labels ATL MIA 90\xB0"},
    {{Face::smallFonts, 10, false}, "UA482 DL274H 10K 7K"},
    {{Face::msSansSerif, -11, false}, "Dialogs: the quick brown fox"},
    {{Face::arial, -11, false}, "KL465H: Turn 90\xB0, descend 3000 ft"},
    {{Face::arial, 14, false}, "15:00"},
    {{Face::arial, 16, true}, "UA482 entering airspace"},
    {{Face::arial, -18, true}, "High scores 1125"},
    {{Face::courierNew, -12, false}, "Washington, DC : A mid-air"},
    {{Face::arial, -40, true}, "PAUSE"},
})};

} // namespace

WidgetFonts dialogFonts(FontSet& fonts) {
    return {fonts.font({Face::msSansSerif, -11, false}), fonts.font({Face::msSansSerif, -11, true})};
}

Gallery::Gallery(Desktop& desktop, FontSet& fonts)
    : menu(makeMenu(menuItems)), desktop_(desktop), fonts_(fonts), widgetFonts_(dialogFonts(fonts)) {
    checkMenuItem(menu, galleryGridCommand, true);
    WindowHandlers handlers;
    handlers.paint = [this](Canvas& canvas, const Rect&) { paint(canvas); };
    handlers.command = [this](const CommandInput& input) { command(input); };
    handlers.close = [this] { desktop_.quit(); };
    main = desktop.create({.bounds = desktop.area(), .handlers = std::move(handlers)});
    main.setAccelerators(accelerators);
    desktop.setMainWindow(main);
    createControls();
}

void Gallery::createControls() {
    const Font& font = widgetFonts_.text;
    createButton(desktop_, {.parent = main,
                            .id = galleryMenuCommand,
                            .bounds = {20, 20, 90, 43},
                            .text = "&File",
                            .font = &font});
    createButton(desktop_, {.parent = main,
                            .id = galleryDialogCommand,
                            .bounds = {100, 20, 170, 43},
                            .text = "&Dialog",
                            .font = &font,
                            .isDefault = true});
    createButton(desktop_, {.parent = main,
                            .id = galleryBoxCommand,
                            .bounds = {180, 20, 250, 43},
                            .text = "Message &Box",
                            .font = &font});
    createButton(
        desktop_,
        {.parent = main, .bounds = {260, 20, 330, 43}, .text = "Greyed", .font = &font, .enabled = false});
    createButton(desktop_,
                 {.parent = main, .bounds = {340, 20, 354, 88}, .text = "E\rX\rE\rC", .font = &font});
    createToggle(desktop_, {main, 0, {20, 56, 150, 70}, ToggleKind::checkBox, "A check box", &font})
        .setChecked(true);
    createToggle(desktop_, {main, 0, {20, 74, 150, 88}, ToggleKind::radioButton, "A radio button", &font})
        .setChecked(true);
    createEdit(desktop_, {main, 0, {160, 54, 330, 74}, &font}).setText("A line of text");
    const ListBox list = createListBox(desktop_, {main, 0, {20, 100, 200, 190}, &font});
    for (const char* name : airportNames) {
        list.add(name);
    }
    list.select(1);
}

void Gallery::command(const CommandInput& input) {
    switch (input.id) {
    case galleryMenuCommand: openMenu(); break;
    case galleryDialogCommand: openDialog(); break;
    case galleryBoxCommand: openBox(); break;
    default: break;
    }
}

void Gallery::openMenu() {
    lastCommand = trackMenu(desktop_, widgetFonts_, menu, {20, 43});
    if (lastCommand == galleryGridCommand) {
        const bool isChecked = findMenuItem(menu, galleryGridCommand)->checked;
        checkMenuItem(menu, galleryGridCommand, !isChecked);
    }
    main.focus();
}

void Gallery::openDialog() {
    DialogHandlers handlers;
    handlers.init = [](Dialog& dialog) {
        dialog.setChecked(lastRadioId, true);
        dialog.edit(nameId).setLimit(30);
        for (const char* name : airportNames) {
            dialog.list(listId).add(name);
        }
        dialog.focus(nameId);
    };
    handlers.command = [this](Dialog& dialog, const CommandInput& input) {
        const bool isChoice = input.id == listId && input.notification == listDoubleClicked;
        if (isChoice || input.id == okId || input.id == cancelId) {
            dialogName = dialog.text(nameId);
            dialogChoice = dialog.list(listId).selected();
            dialog.end(isChoice ? okId : input.id);
        }
    };
    dialogResult = runDialog(desktop_, widgetFonts_, main, dialogShape, std::move(handlers));
}

void Gallery::openBox() {
    answer = showMessageBox(desktop_, widgetFonts_, main,
                            {.text = "Are you sure you want to quit the game in progress?",
                             .title = "Ventrel",
                             .icon = MessageIcon::exclamation,
                             .buttons = MessageButtons::okCancel});
}

void Gallery::paintFaces(Canvas& canvas, Point corner) const {
    const Colour amber = Colour::rgb(255, 159, 82);
    int y = corner.y;
    for (const FaceSample& sample : faceSamples) {
        const Font& font = fonts_.font(sample.request);
        drawText(canvas, font, {corner.x, y}, sample.text, {amber, {}});
        y += font.lineHeight() + 4;
    }
}

void Gallery::paintShapes(Canvas& canvas, Point corner) const {
    const Colour green = Colour::rgb(0x5c, 0xff, 0x94);
    const Colour red = Colour::rgb(0xFF, 0, 0);
    const auto at = [corner](int x, int y, Size size) { return Rect::at(corner + Point{x, y}, size); };
    canvas.ellipse(at(0, 0, {12, 12}), green);
    canvas.ellipse(at(20, 0, {15, 15}), green);
    canvas.ellipse(at(45, 0, {48, 48}), red, 2);
    canvas.filledEllipse(at(105, 0, {40, 24}), green, red);
    constexpr int rays = 8;
    for (int i = 0; i < rays; ++i) {
        canvas.line(corner + Point{180, 24}, corner + Point{180 + (i - 4) * 6, 0}, green);
        canvas.line(corner + Point{180, 24}, corner + Point{180 + (i - 4) * 6, 48}, green);
    }
    const std::array<Point, 3> triangle{
        {corner + Point{220, 0}, corner + Point{260, 10}, corner + Point{230, 45}}};
    canvas.fill(Region::polygon(triangle), green);
    canvas.invert(Region::ellipse(at(235, 5, {30, 30})));
    int x = 0;
    for (const MessageIcon icon :
         {MessageIcon::stop, MessageIcon::exclamation, MessageIcon::information, MessageIcon::question}) {
        drawMessageIcon(canvas, corner + Point{x, 62}, icon, widgetFonts_.caption);
        x += messageIconSize + 12;
    }
}

void Gallery::paint(Canvas& canvas) const {
    canvas.fill(main.area(), ground);
    const Rect panel{10, 10, main.size().width - 10, 200};
    canvas.fill(panel, look::face);
    drawRaisedEdge(canvas, panel);
    drawGroupFrame(canvas, {220, 100, 350, 190});
    const Rect dark{10, 210, main.size().width - 10, main.size().height - 10};
    canvas.fill(dark, Colour::rgb(8, 14, 12));
    drawSunkenEdge(canvas, dark);
    paintFaces(canvas, {24, 222});
    paintShapes(canvas, {400, 230});
}

} // namespace ventrel
