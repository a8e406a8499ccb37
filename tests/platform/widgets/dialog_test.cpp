// The keyboard and the mouse in dialogs and message boxes.

#include "platform/widgets/dialog.h"

#include <array>

#include "platform/widgets/message_box.h"
#include "platform/widgets/widget_place.h"
#include "widget_stage.h"

namespace ventrel {
namespace {

constexpr int nameId = 10;
constexpr int boxId = 11;
constexpr int askId = 12;
constexpr int easyId = 20; // and 21: one group
constexpr int fastId = 30; // and 31: another

constexpr std::array controls{std::to_array<ControlTemplate>({
    {ControlKind::staticText, 0, "&Name:", {4, 4, 40, 12}},
    {ControlKind::edit, nameId, "", {44, 4, 120, 16}},
    {ControlKind::radioButton, easyId, "&Easy", {4, 20, 60, 30}, groupStart},
    {ControlKind::radioButton, easyId + 1, "Hard", {4, 30, 60, 40}},
    {ControlKind::radioButton, fastId, "&Fast", {64, 20, 120, 30}, groupStart},
    {ControlKind::radioButton, fastId + 1, "Slow", {64, 30, 120, 40}},
    {ControlKind::checkBox, boxId, "&Clouds", {4, 44, 60, 54}},
    {ControlKind::pushButton, askId, "&Ask", {64, 44, 100, 56}},
    {ControlKind::defaultButton, okId, "OK", {4, 60, 40, 74}},
    {ControlKind::pushButton, cancelId, "Cancel", {44, 60, 80, 74}},
})};
constexpr DialogTemplate shape{.title = "Test", .size = {124, 80}, .controls = controls};

struct DialogTest : ::testing::Test {
    WidgetStage stage;
    Dialog* open = nullptr;
    std::vector<int> pressed; ///< commands of buttons, Esc and the close box
    int escapeCommand = cancelId;

    /// Runs the dialog; OK and Cancel end it.
    int run() {
        int result = -1;
        stage.play([&] {
            DialogHandlers handlers;
            handlers.init = [this](Dialog& dialog) {
                open = &dialog;
                dialog.setChecked(easyId + 1, true);
            };
            handlers.command = [this](Dialog& dialog, const CommandInput& input) {
                if (input.id < nameId || input.id == askId) {
                    pressed.push_back(input.id);
                }
                if (input.id == okId || input.id == cancelId) {
                    dialog.end(input.id);
                }
            };
            handlers.escapeCommand = escapeCommand;
            result = runDialog(stage.desktop, stage.fonts, stage.main, shape, std::move(handlers));
        });
        return result;
    }
    void expectFocus(int id) {
        stage.script.then([this, id] { EXPECT_EQ(stage.desktop.focusWindow().id(), id); });
    }
};

TEST_F(DialogTest, TabVisitsEachControlAndAGroupOnlyAtItsChosenButton) {
    for (const int id :
         {nameId, easyId + 1, fastId, boxId, askId, static_cast<int>(okId), cancelId, nameId}) {
        expectFocus(id);
        stage.script.key(Key::tab);
    }
    stage.script.key(Key::tab, withShift).key(Key::tab, withShift);
    expectFocus(cancelId);
    stage.script.key(Key::enter);
    EXPECT_EQ(run(), cancelId) << "Enter presses the button that has the keyboard";
}

TEST_F(DialogTest, ArrowsStayWithinTheirGroupAndChoose) {
    stage.script.key(Key::tab).key(Key::down);
    expectFocus(easyId);
    stage.script.key(Key::left).key(Key::tab).key(Key::down).key(Key::down).key(Key::down);
    stage.script.then([this] {
        EXPECT_TRUE(open->isChecked(easyId + 1));
        EXPECT_FALSE(open->isChecked(easyId));
        EXPECT_TRUE(open->isChecked(fastId + 1));
        EXPECT_FALSE(open->isChecked(fastId));
    });
    stage.script.key(Key::enter);
    EXPECT_EQ(run(), okId) << "Enter presses the default button from anywhere else";
}

TEST_F(DialogTest, MnemonicsChooseAndALabelsLeadsToItsField) {
    stage.script.key(Key::c, withAlt).type("a").key(Key::n, withAlt);
    expectFocus(nameId);
    stage.script.type("eaf").key(Key::e, withAlt).type("f").then([this] {
        EXPECT_EQ(open->text(nameId), "eaf") << "letters in a field are text";
        EXPECT_TRUE(open->isChecked(boxId));
        EXPECT_TRUE(open->isChecked(easyId));
        EXPECT_TRUE(open->isChecked(fastId));
    });
    stage.script.key(Key::escape);
    EXPECT_EQ(run(), cancelId);
    EXPECT_EQ(pressed, (std::vector<int>{askId, cancelId}));
}

TEST_F(DialogTest, AKeyHeldSinceBeforePressesNothing) {
    stage.script.keyDown(Key::enter, {}, true).keyDown(Key::escape, {}, true).keyDown(Key::a, withAlt, true);
    stage.script.then([this] { EXPECT_TRUE(pressed.empty()); }).key(Key::escape);
    EXPECT_EQ(run(), cancelId);
}

TEST_F(DialogTest, DisabledControlsAreLeftOut) {
    stage.script.then([this] {
        open->enable(easyId + 1, false);
        open->enable(boxId, false);
    });
    stage.script.key(Key::tab);
    expectFocus(easyId);
    stage.script.key(Key::tab).key(Key::tab);
    expectFocus(askId);
    stage.script.key(Key::c, withAlt).then([this] { EXPECT_FALSE(open->isChecked(boxId)); });
    stage.script.key(Key::escape);
    run();
}

TEST_F(DialogTest, EscMayBeDeafAndTheCloseBoxAnswersOnlyWhereItIsReleased) {
    escapeCommand = noEscape;
    stage.script.key(Key::escape).then([this] {
        const Rect frame = open->frame().bounds();
        const Point cross{frame.right - 12, frame.top + 12};
        Script late(stage.backend);
        late.drag(cross, {frame.left + 60, frame.top + 60}).then([this] { EXPECT_TRUE(pressed.empty()); });
        late.click(cross);
    });
    EXPECT_EQ(run(), cancelId);
    EXPECT_EQ(pressed, std::vector<int>{cancelId});
}

TEST_F(DialogTest, ItsCaptionMovesItButNeverOutOfReach) {
    Point before;
    stage.script.then([&] {
        before = open->frame().bounds().topLeft();
        Script late(stage.backend);
        late.drag(before + Point{30, 10}, before + Point{50, 40}).then([&] {
            EXPECT_EQ(open->frame().bounds().topLeft(), before + (Point{20, 30}));
        });
        late.drag(before + Point{50, 40}, {900, -200}).then([&] {
            EXPECT_EQ(open->frame().bounds().topLeft(), (Point{399, 0} - Point{30, 10}));
        });
        late.key(Key::escape);
    });
    run();
}

TEST_F(DialogTest, AButtonAnswersToTheSpaceBarWhenItIsLetGo) {
    stage.script.key(Key::a, withAlt).keyDown(Key::space).then([this] { EXPECT_EQ(pressed.size(), 1U); });
    stage.script.keyUp(Key::space).then([this] { EXPECT_EQ(pressed.size(), 2U); });
    // Left while it is held down, it does nothing.
    stage.script.keyDown(Key::space).key(Key::tab).keyUp(Key::space).key(Key::escape);
    run();
    EXPECT_EQ(pressed, (std::vector<int>{askId, askId, cancelId}));
}

TEST(DialogPlace, UnitsAndCentringAreExact) {
    EXPECT_EQ(dialogUnitsToPixels({0, 0, 202, 172}).size(), (Size{303, 280}));
    EXPECT_EQ(centredIn({0, 0, 800, 600}, {300, 200}).topLeft(), (Point{250, 200}));
    EXPECT_EQ(centredIn({0, 0, 800, 600}, {900, 200}).left, 0);
}

TEST(MessageBox, AnswersToLettersArrowsAndEscWhereThatHasAMeaning) {
    WidgetStage stage;
    std::vector<MessageAnswer> answers;
    stage.script.key(Key::escape).then([&] { EXPECT_TRUE(answers.empty()) << "Esc is neither yes nor no"; });
    stage.script.type("n").key(Key::right).key(Key::enter).key(Key::escape).key(Key::escape);
    stage.play([&] {
        for (const auto buttons :
             {MessageButtons::yesNo, MessageButtons::yesNo, MessageButtons::okCancel, MessageButtons::ok}) {
            answers.push_back(showMessageBox(stage.desktop, stage.fonts, stage.main,
                                             {.text = "Sure?", .title = "Test", .buttons = buttons}));
        }
    });
    EXPECT_EQ(answers, (std::vector<MessageAnswer>{MessageAnswer::no, MessageAnswer::no,
                                                   MessageAnswer::cancel, MessageAnswer::ok}));
    EXPECT_TRUE(stage.backend.beeps().empty()) << "no icon, no sound";
}

TEST(MessageBox, ClosedWithTheWindowItAgreesToNothingAndTheProgramGoesOn) {
    WidgetStage stage;
    std::vector<MessageAnswer> answers;
    for (int box = 0; box < 3; ++box) {
        stage.script.window(WindowEvent::closeRequested).wait(1);
    }
    stage.play([&] {
        for (const auto buttons : {MessageButtons::yesNo, MessageButtons::okCancel, MessageButtons::ok}) {
            answers.push_back(showMessageBox(stage.desktop, stage.fonts, stage.main,
                                             {.text = "Sure?", .title = "Test", .buttons = buttons}));
            EXPECT_FALSE(stage.desktop.isQuitting());
        }
    });
    EXPECT_EQ(answers,
              (std::vector<MessageAnswer>{MessageAnswer::no, MessageAnswer::cancel, MessageAnswer::ok}));
}

TEST(MessageBox, ItsTextCanBeCopiedAndIsStillUnanswered) {
    WidgetStage stage;
    bool isAnswered = false;
    stage.script.key(Key::c, withControl).then([&] {
        EXPECT_EQ(stage.backend.clipboard(), "The disk is full.");
        EXPECT_FALSE(isAnswered);
    });
    stage.script.key(Key::enter);
    stage.play([&] {
        showMessageBox(stage.desktop, stage.fonts, stage.main,
                       {.text = "The disk is full.", .title = "Test"});
        isAnswered = true;
    });
    EXPECT_TRUE(isAnswered);
}

} // namespace
} // namespace ventrel
