#include "platform/widgets/edit_text.h"

#include <gtest/gtest.h>

#include "platform/widgets/widget_place.h"

namespace ventrel {
namespace {

TEST(EditText, TypingReplacesTheSelectionAndStopsAtTheLimit) {
    EditText line{.text = "Mary", .limit = 6};
    line.selectAll();
    line.insert("Jo\n");
    EXPECT_EQ(line.text, "Jo");
    line.insert("hannes");
    EXPECT_EQ(line.text, "Johann");
    EXPECT_EQ(line.caret, 6U);
    line.insert("x");
    EXPECT_EQ(line.text, "Johann");
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

TEST(DialogPlace, UnitsAndCentringAreExact) {
    EXPECT_EQ(dialogUnitsToPixels({0, 0, 202, 172}).size(), (Size{303, 280}));
    EXPECT_EQ(centredIn({0, 0, 800, 600}, {300, 200}).topLeft(), (Point{250, 200}));
    EXPECT_EQ(centredIn({0, 0, 800, 600}, {900, 200}).left, 0);
}

} // namespace
} // namespace ventrel
