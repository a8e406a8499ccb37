// The dialog of the aids, made from their table: a box for each group, and in it a line for each of its aids.
// Places are dialog units.

#pragma once

#include "platform/widgets/templates.h"
#include "resources/aid_rows.h"

namespace ventrel::aids {

/// The check box of the first row; those of the others follow.
inline constexpr int firstAid = 1100;

constexpr int checkBoxOf(std::size_t row) {
    return firstAid + static_cast<int>(row);
}

// Down the dialog.
inline constexpr int edge = 7;
inline constexpr int groupHead = 12; ///< from a group's top to its first line
inline constexpr int rowPitch = 13;
inline constexpr int groupGap = 6; ///< from the last line's end to the next group's top
inline constexpr int checkBoxHeight = 10;
inline constexpr int textDrop = 1; ///< of the explanation's top below that of its check box
inline constexpr int textHeight = 8;

// Across it.
inline constexpr int width = 350;
inline constexpr int rowLeft = edge + 8;
inline constexpr int explanationLeft = 104;
inline constexpr Size buttonSize{50, 14};
inline constexpr int buttonGap = 10;

constexpr std::size_t rowsOf(AidGroup group) {
    std::size_t count = 0;
    for (const AidRow& row : aidRows) {
        count += row.group == group ? 1U : 0U;
    }
    return count;
}

constexpr std::size_t groupsInUse() {
    std::size_t count = 0;
    for (const AidGroupTitle& group : aidGroups) {
        count += rowsOf(group.group) > 0 ? 1U : 0U;
    }
    return count;
}

/// All controls, and the height that they take.
struct Plan {
    std::array<ControlTemplate, 2 * aidRows.size() + groupsInUse() + 2> controls{};
    int height = 0;
};

constexpr ControlTemplate checkBoxAt(std::size_t row, int top) {
    return {ControlKind::checkBox,
            checkBoxOf(row),
            aidRows[row].name,
            {rowLeft, top, explanationLeft - 2, top + checkBoxHeight}};
}

constexpr ControlTemplate explanationAt(std::size_t row, int top) {
    return {ControlKind::staticText,
            0,
            aidRows[row].explanation,
            {explanationLeft, top + textDrop, width - rowLeft, top + textDrop + textHeight}};
}

constexpr ControlTemplate groupAt(std::string_view title, int top, std::size_t rows) {
    const int height = groupHead + rowPitch * static_cast<int>(rows);
    return {ControlKind::groupBox, 0, title, {edge, top, width - edge, top + height}};
}

constexpr Plan makePlan() {
    Plan plan;
    std::size_t next = 0;
    const auto add = [&](const ControlTemplate& control) { plan.controls[next++] = control; };
    int top = edge - 3;
    std::size_t row = 0;
    for (const AidGroupTitle& group : aidGroups) {
        const std::size_t count = rowsOf(group.group);
        if (count == 0) {
            continue;
        }
        add(groupAt(group.title, top, count));
        top += groupHead;
        for (const std::size_t end = row + count; row < end; ++row) {
            add(checkBoxAt(row, top));
            add(explanationAt(row, top));
            top += rowPitch;
        }
        top += groupGap - 2;
    }
    top += edge - groupGap;
    const int okLeft = (width - buttonGap) / 2 - buttonSize.width;
    add({ControlKind::defaultButton, okId, "OK", Rect::at({okLeft, top}, buttonSize)});
    add({ControlKind::pushButton, cancelId, "Cancel",
         Rect::at({okLeft + buttonSize.width + buttonGap, top}, buttonSize)});
    plan.height = top + buttonSize.height + edge;
    return plan;
}

inline constexpr Plan plan = makePlan();
inline constexpr DialogTemplate shape{
    .title = "Aids", .size = {width, plan.height}, .controls = plan.controls};

/// The rows stand in the order of the groups, so that each line lies in the box of its own.
constexpr bool rowsFollowGroups() {
    std::size_t row = 0;
    for (const AidGroupTitle& group : aidGroups) {
        while (row < aidRows.size() && aidRows[row].group == group.group) {
            ++row;
        }
    }
    return row == aidRows.size();
}
static_assert(rowsFollowGroups());

} // namespace ventrel::aids
