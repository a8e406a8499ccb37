#include "shell/lesson_note.h"

#include "platform/text/text.h"
#include "resources/command_ids.h"
#include "shell/lesson_places.h"

namespace ventrel {

namespace {

constexpr FontRequest noteTitleFont{Face::arial, -12, true};
constexpr FontRequest noteFont{Face::arial, -12, false};
constexpr FontRequest noteSmallFont{Face::arial, -11, false};

constexpr Colour ink = Colour::rgb(0x2B, 0x27, 0x20);
constexpr Colour softInk = Colour::rgb(0x7A, 0x70, 0x5C);
constexpr Colour ruling = Colour::rgb(0xC9, 0xBC, 0x98);
constexpr Colour paperEdge = Colour::rgb(0x8C, 0x80, 0x62);
constexpr Colour shadow = Colour::rgb(0x14, 0x14, 0x12);
constexpr Colour frameColour = Colour::rgb(0xFF, 0xB8, 0x5C);

/// The paper tells at a glance what kind of note it is; the words do so, too.
constexpr Colour paperOf(NoteKind kind) {
    switch (kind) {
    case NoteKind::task: break;
    case NoteKind::answer: return Colour::rgb(0xFB, 0xDF, 0xB4);
    case NoteKind::stop: return Colour::rgb(0xF6, 0xCF, 0xBE);
    case NoteKind::done: return Colour::rgb(0xDD, 0xEC, 0xC6);
    }
    return Colour::rgb(0xF7, 0xEF, 0xD4);
}

// Pixels of the note.
constexpr int shadowWidth = 2;
constexpr int paperMargin = 11;
constexpr int titleTop = 12;
constexpr int ruleTop = 29;
constexpr int textTop = 35;
constexpr int buttonGap = 8; // above and below the buttons
constexpr Size leaveSize{76, 18};
constexpr Size goSize{90, 18};
constexpr int lineWidth = 2;    // of the frame
constexpr int openFrameLeg = 6; // along its sides from each corner

// The pin, from the middle of the upper edge.
constexpr Rect pinShadow{-3, 3, 7, 11};
constexpr Rect pinHead{-5, 1, 5, 11};
constexpr Rect pinShine{-3, 3, 0, 6};
constexpr Colour pinDark = Colour::rgb(0x7A, 0x1C, 0x16);
constexpr Colour pinRed = Colour::rgb(0xC8, 0x36, 0x2A);
constexpr Colour pinLight = Colour::rgb(0xF2, 0x9A, 0x8C);

constexpr int textWidth = lessonNoteWidth - shadowWidth - 2 * paperMargin;
constexpr TextLayout wrapped{.wrap = true};

/// What its second button says; empty without one.
std::string goText(const LessonNote& note, const NoteHead& head) {
    switch (note.kind) {
    case NoteKind::task:
    case NoteKind::answer: return note.needsButton ? "Go on   F2" : "";
    case NoteKind::stop: return "Begin again   F2";
    case NoteKind::done: return head.hasNextLesson ? "Next lesson   F2" : "";
    }
    return {};
}

} // namespace

LessonNoteWindow::LessonNoteWindow(Shell& shell, NoteHead head) : shell_(shell), head_(std::move(head)) {
    WindowHandlers handlers;
    handlers.paint = [this](Canvas& canvas, const Rect&) { paint(canvas); };
    handlers.cursor = [&shell](Point) { return std::optional<Cursor>(&shell.pictures.arrow); };
    sheet_ = shell.desktop.create({.parent = shell.mainWindow, .visible = false, .handlers = handlers});
    const auto button = [&](int id, std::string text) {
        return createButton(shell.desktop, {.parent = sheet_,
                                            .id = id,
                                            .bounds = {},
                                            .text = std::move(text),
                                            .font = &shell.fonts.font(noteSmallFont),
                                            .takesFocus = false,
                                            .cursor = &shell.pictures.arrow});
    };
    leave_ = button(command::leaveLesson, "Leave lesson");
    go_ = button(command::lessonGoOn, "");
    createFrame();
}

LessonNoteWindow::~LessonNoteWindow() {
    sheet_.destroy();
    for (const Window& line : frame_) {
        line.destroy();
    }
}

void LessonNoteWindow::createFrame() {
    for (Window& line : frame_) {
        line =
            shell_.desktop.create({.parent = shell_.mainWindow, .visible = false, .background = frameColour});
    }
}

int LessonNoteWindow::heightFor(const std::string& text) const {
    const Font& font = shell_.fonts.font(noteFont);
    return textTop + measureText(font, text, textWidth, wrapped).height + 2 * buttonGap + leaveSize.height +
           shadowWidth;
}

void LessonNoteWindow::show(const LessonNote& note) {
    const auto shown = lessonSpotArea(shell_, note.spot);
    const Rect place = lessonNotePlace(shell_, heightFor(note.text), shown);
    const bool isNew = !(note == note_) || !sheet_.isVisible();
    note_ = note;
    if (place != sheet_.bounds()) {
        sheet_.setBounds(place);
        fitButtons();
    }
    if (isNew) {
        const std::string text = goText(note_, head_);
        go_.setText(text);
        go_.window.show(!text.empty());
        sheet_.show();
        sheet_.raise();
        sheet_.invalidateAll();
    }
    if (shown != framed_) {
        moveFrame(shown, hasOpenFrame(note.spot));
    }
}

void LessonNoteWindow::fitButtons() {
    const int top = sheet_.size().height - shadowWidth - buttonGap - leaveSize.height;
    const int right = sheet_.size().width - shadowWidth - paperMargin;
    leave_.window.setBounds(Rect::at({paperMargin, top}, leaveSize));
    go_.window.setBounds(Rect::at({right - goSize.width, top}, goSize));
}

void LessonNoteWindow::moveFrame(const std::optional<Rect>& area, bool isOpen) {
    framed_ = area;
    const Rect box = area.value_or(Rect{});
    const int across = isOpen ? openFrameLeg : (box.width() + 1) / 2;
    const int down = isOpen ? openFrameLeg : (box.height() + 1) / 2;
    auto* line = frame_.begin();
    for (const int left : {box.left, box.right - across}) {
        for (const int top : {box.top, box.bottom - lineWidth}) {
            line++->setBounds(Rect::at({left, top}, {across, lineWidth}));
        }
    }
    for (const int left : {box.left, box.right - lineWidth}) {
        for (const int top : {box.top, box.bottom - down}) {
            line++->setBounds(Rect::at({left, top}, {lineWidth, down}));
        }
    }
    for (const Window& part : frame_) {
        part.show(area.has_value());
        part.raise();
    }
}

void LessonNoteWindow::paint(Canvas& canvas) const {
    const Rect all = sheet_.area();
    const Rect paper{0, 0, all.right - shadowWidth, all.bottom - shadowWidth};
    canvas.fill(all, shadow);
    canvas.fill(paper, paperOf(note_.kind));
    canvas.frame(paper, paperEdge);
    const Font& title = shell_.fonts.font(noteTitleFont);
    const Font& small = shell_.fonts.font(noteSmallFont);
    const std::string count = std::to_string(note_.step + 1) + "/" + std::to_string(head_.steps);
    drawText(canvas, title, {paperMargin, titleTop}, head_.title, {ink, {}});
    drawText(canvas, small, {paper.right - paperMargin - small.width(count), titleTop + 1}, count,
             {softInk, {}});
    canvas.fill(Rect{paperMargin, ruleTop, paper.right - paperMargin, ruleTop + 1}, ruling);
    drawTextBox(canvas, shell_.fonts.font(noteFont),
                {paperMargin, textTop, paperMargin + textWidth, paper.bottom}, note_.text, {ink, {}},
                wrapped);
    const Point pin{paper.width() / 2, 0};
    canvas.filledEllipse(pinShadow.movedBy(pin), ruling, ruling);
    canvas.filledEllipse(pinHead.movedBy(pin), pinDark, pinRed);
    canvas.filledEllipse(pinShine.movedBy(pin), pinLight, pinLight);
}

} // namespace ventrel
