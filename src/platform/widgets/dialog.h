// Modal dialogs, made from templates in dialog units.
//
// A dialog lives while runDialog runs. Its handlers get it by reference and work with its controls by their
// numbers; a number that no control has is a fault of the program.

#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/widgets/button.h"
#include "platform/widgets/edit.h"
#include "platform/widgets/label.h"
#include "platform/widgets/list_box.h"
#include "platform/widgets/templates.h"
#include "platform/widgets/toggle.h"

namespace ventrel {

class Dialog;

/// What a dialog does. `command` gets every command of its controls; Esc, the close box and a person who
/// closes the program's window meanwhile arrive as `cancelId`, Enter as the number of the default button.
struct DialogHandlers {
    std::function<void(Dialog&)> init = nullptr;
    std::function<void(Dialog&, const CommandInput&)> command = nullptr;
    /// Draws the ground inside the frame, under the controls. None: plain grey.
    std::function<void(Dialog&, Canvas&)> paint = nullptr;
    /// Of one that does not activate: a key went down while the pointer is over it. True when it was for it.
    std::function<bool(Dialog&, const KeyEvent&)> hoverKey = nullptr;
    /// Another number for Esc; `noEscape` makes it do nothing.
    int escapeCommand = cancelId;
};

inline constexpr int noEscape = -1;

class Dialog {
public:
    Dialog(Desktop& desktop, const WidgetFonts& fonts, const Window& owner, const DialogTemplate& shape,
           DialogHandlers handlers);
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    ~Dialog();

    /// Shows it until it is ended; the result, or `whenQuitting` when the program ends meanwhile.
    int run(int whenQuitting);
    void end(int result);

    Desktop& desktop() const { return desktop_; }
    const WidgetFonts& fonts() const { return fonts_; }
    /// The whole window with its frame, and the part inside it.
    Window frame() const { return frame_; }
    Window inside() const { return inside_; }

    /// Moves it to the middle of the screen.
    void centre();
    /// Gives the inside another size; the place stays.
    void resizeInside(Size size);

    void setText(int id, std::string text);
    const std::string& text(int id) const;
    /// The digits at the start of a field's text, after blanks, as a number of at most 1000000; 0 without
    /// any.
    unsigned number(int id) const;
    void setNumber(int id, unsigned number);
    void enable(int id, bool enabled);
    void setChecked(int id, bool checked);
    bool isChecked(int id) const;
    void focus(int id);
    Edit edit(int id) const;
    ListBox list(int id) const;
    Button button(int id) const;
    /// The control's window, for moving it.
    Window window(int id) const;

private:
    using Control = std::variant<Button, Toggle, Edit, Label, ListBox>;
    struct Placed {
        ControlTemplate shape;
        Control control;
        Window window;
    };

    void createFrame(const Window& owner, const DialogTemplate& shape);
    void createControl(const ControlTemplate& shape);
    void chooseRadio(std::size_t index);
    struct Group {
        std::size_t first = 0;
        std::size_t end = 0;
    };
    Group radioGroup(std::size_t index) const;
    const Placed& placed(int id) const;

    void paintFrame(Canvas& canvas) const;
    void pressFrame(const MouseInput& mouse);
    void moveOnFrame(const MouseInput& mouse);
    void releaseFrame();
    void letGoOfFrame();
    void showCloseBoxPressed(bool pressed);
    Rect captionBox() const;
    Rect closeBox() const;
    int frameTop() const;
    int border() const;

    bool key(const KeyEvent& event);
    bool type(std::string_view words);
    bool takeMnemonic(char letter);
    void takeMnemonicOf(std::size_t index);
    void moveFocus(int direction);
    void moveWithinGroup(int direction);
    void focusControl(const Placed& control);
    bool isTabStop(std::size_t index) const;
    std::size_t focusIndex() const;
    bool canFocus(const Placed& control) const;
    void markDefault();
    void pressDefault();
    void command(const CommandInput& input);
    /// A command that no control has sent.
    void commandOf(int id);
    void cancel() { commandOf(cancelId); }

    Desktop& desktop_;
    const WidgetFonts& fonts_;
    DialogHandlers handlers_;
    std::string title_;
    bool hasCloseBox_ = true;
    bool hasFrame_ = true;
    Window frame_;
    Window inside_;
    std::vector<Placed> controls_;
    std::optional<Point> grip_;      // where the caption is held
    bool isClosing_ = false;         // the close box is held
    bool isCloseBoxPressed_ = false; // held, and the mouse is over it
    bool isActive_ = false;
    bool isDone_ = false;
    int result_ = 0;
};

/// Runs a dialog over `owner` from a template, centred on the screen; its result, or `cancelId` when the
/// program ends.
int runDialog(Desktop& desktop, const WidgetFonts& fonts, const Window& owner, const DialogTemplate& shape,
              DialogHandlers handlers);

} // namespace ventrel
