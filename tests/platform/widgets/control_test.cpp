// Fields, lists and check boxes on a window of their own.

#include "platform/widgets/edit_text.h"
#include "widget_stage.h"

namespace ventrel {
namespace {

struct FieldTest : ::testing::Test {
    WidgetStage stage;
    Edit field = createEdit(stage.desktop, {stage.main, 5, {20, 20, 120, 41}, &stage.fonts.text});

    void expectText(const std::string& text) {
        stage.script.then([this, text] { EXPECT_EQ(field.text(), text); });
    }
};

TEST_F(FieldTest, ClicksPlaceTheCaretAndDoubleClicksTakeAWord) {
    field.setText("one two three");
    stage.script.click({22, 30}).type("X");
    expectText("Xone two three");
    const int word = 24 + stage.fonts.text.width("Xone t");
    stage.script.doubleClick({word, 30}).type("-");
    expectText("Xone -three");
    stage.script.click({118, 30}).press({118, 30}).moveTo({10, 30}).release({10, 30}).type("all");
    expectText("all");
    stage.play();
}

TEST_F(FieldTest, TheClipboardKeepsToTheLimitAndToOneLine) {
    field = createEdit(stage.desktop, {stage.main, 5, {20, 60, 120, 81}, &stage.fonts.text, false, 6});
    field.window.focus();
    stage.script.type("abcdefgh");
    expectText("abcdef");
    stage.script.key(Key::home).key(Key::right, withShift).key(Key::right, withShift);
    stage.script.key(Key::x, withControl);
    expectText("cdef");
    stage.script.then([this] { EXPECT_EQ(stage.backend.clipboard(), "ab"); });
    stage.script.then([this] { stage.backend.setClipboard("1\n2345"); });
    stage.script.key(Key::v, withControl);
    expectText("12cdef");
    stage.script.key(Key::a, withControl).key(Key::v, withControl);
    expectText("12345");
    stage.script.key(Key::backspace).key(Key::home).key(Key::del);
    expectText("234");
    stage.play();
}

TEST_F(FieldTest, ABookPastedIntoAFieldIsCutShort) {
    field.window.focus();
    stage.script.then([this] { stage.backend.setClipboard(std::string(1'000'000, 'x')); });
    stage.script.key(Key::v, withControl).key(Key::home).type("y");
    stage.play();
    EXPECT_EQ(field.text(), std::string(usualEditLimit, 'x'));
}

TEST_F(FieldTest, WhatIsReadOnlyCanBeCopiedAndNothingElse) {
    const Edit shown = createEdit(stage.desktop, {stage.main, 6, {20, 60, 120, 81}, &stage.fonts.text, true});
    shown.setText("1125");
    stage.script.click({30, 70}).key(Key::a, withControl).key(Key::x, withControl).type("9").key(Key::del);
    stage.script.then([&] {
        EXPECT_EQ(shown.text(), "1125");
        EXPECT_EQ(stage.backend.clipboard(), "1125");
    });
    stage.play();
    EXPECT_TRUE(stage.commands.empty()) << "nothing has changed";
}

TEST_F(FieldTest, AFieldThatRestsWakesNobody) {
    field.setText("chosen");
    field.window.focus();
    field.selectAll();
    stage.script.wait(10'000);
    const std::size_t before = stage.backend.sleeps();
    stage.play();
    EXPECT_LE(stage.backend.sleeps() - before, 4U) << "with a selection there is no caret to blink";
}

struct ListTest : ::testing::Test {
    WidgetStage stage;
    // Five rows of 13 pixels.
    ListBox list = createListBox(stage.desktop, {stage.main, 5, {10, 10, 110, 79}, &stage.fonts.text, true});

    void SetUp() override {
        for (const char* name :
             {"Zurich", "london", "Miami", "Lisbon", "atlanta", "Paris", "Hong Kong", "Chicago", "Boston"}) {
            list.add(name);
        }
    }
    void expectLine(const std::string& line) {
        stage.script.then([this, line] {
            ASSERT_NE(list.selected(), noListItem);
            EXPECT_EQ(list.line(list.selected()), line);
        });
    }
};

TEST_F(ListTest, KeysWalkPageAndKeepTheLineInView) {
    list.window.focus();
    stage.script.key(Key::down);
    expectLine("atlanta");
    stage.script.key(Key::pageDown).key(Key::down);
    expectLine("Miami");
    stage.script.key(Key::end).key(Key::down);
    expectLine("Zurich");
    stage.script.click({50, 14});
    expectLine("Lisbon"); // the topmost of the last page
    stage.play();
}

TEST_F(ListTest, LettersFindLinesAndTheSameLetterWalksThem) {
    list.window.focus();
    stage.script.type("l");
    expectLine("Lisbon");
    stage.script.type("l");
    expectLine("london");
    stage.script.wait(2000).type("lo");
    expectLine("london");
    stage.script.wait(2000).type("mi");
    expectLine("Miami");
    stage.script.type("x");
    expectLine("Miami");
    stage.play();
}

TEST_F(ListTest, WheelAndScrollBarMoveTheLinesAndChooseNothing) {
    stage.script.wheel({50, 40}, -1).then([this] { EXPECT_EQ(list.selected(), noListItem); });
    stage.script.click({50, 14});
    expectLine("Hong Kong");
    // The upper arrow, held down, goes on by itself for as long as the pointer is on it.
    stage.script.press({100, 18}).moveTo({50, 40}).wait(2000).release({50, 40}).click({50, 14});
    expectLine("Chicago");
    stage.script.press({100, 18}).wait(2000).release({100, 18}).click({50, 14});
    expectLine("atlanta");
    // The thumb, dragged to the end.
    stage.script.drag({100, 32}, {100, 90}).click({50, 14});
    expectLine("Lisbon");
    stage.play();
}

TEST(EditText, ErasesAndWalksByWords) {
    EditText line{.text = "one two  three"};
    line.moveTo(line.text.size(), false);
    line.moveTo(line.wordLeft(), true);
    EXPECT_EQ(line.selected(), "three");
    line.erase(false);
    EXPECT_EQ(line.text, "one two  ");
    line.moveTo(0, false);
    EXPECT_EQ(line.wordRight(), 4U);
    line.erase(false);
    line.erase(true);
    EXPECT_EQ(line.text, "ne two  ");
    line.moveTo(99, false);
    EXPECT_EQ(line.caret, line.text.size());
}

TEST(CheckBox, FlipsWhereItIsReleasedByTheLeftButtonAsAButtonIsPressed) {
    WidgetStage stage;
    const Toggle box = createToggle(
        stage.desktop, {stage.main, 7, {20, 20, 120, 36}, ToggleKind::checkBox, "Clouds", &stage.fonts.text});
    createButton(stage.desktop, {.parent = stage.main,
                                 .id = 8,
                                 .bounds = {20, 50, 120, 70},
                                 .text = "Ask",
                                 .font = &stage.fonts.text});
    stage.script.click({30, 60}, MouseButton::right);
    stage.script.click({30, 28}).drag({30, 28}, {30, 90}).click({30, 28}, MouseButton::right);
    stage.play();
    EXPECT_TRUE(box.isChecked());
    EXPECT_EQ(stage.commands, std::vector<int>{7});
}

} // namespace
} // namespace ventrel
