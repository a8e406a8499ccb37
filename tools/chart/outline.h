// The shores, rivers and borders of a piece of the earth, as a text in assets/airspaces/outlines has them.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace ventrel::chart {

/// A place in cells of the grid, with parts of cells; [0, 0] is the top-left corner of the first one.
struct Spot {
    double x = 0;
    double y = 0;
};
using Line = std::vector<Spot>;

struct GradedLine {
    int grade = 1; ///< 1 to 4: the lower, the more important
    Line line;     ///< two spots or more
};

struct Outline {
    std::vector<Line>
        land; ///< closed rings of three spots or more; a ring within another is a lake, and so on
    std::vector<GradedLine> rivers;
    std::vector<GradedLine> borders;
};

/// Reads the text; the failure names `file`, the line and the reason.
Result<Outline> parseOutline(std::string_view text, const std::string& file);

} // namespace ventrel::chart
