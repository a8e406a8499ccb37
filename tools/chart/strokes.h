// Areas and lines with smooth edges, as the part of each pixel that they cover. All places are pixels, whose
// middles lie on whole numbers.

#pragma once

#include <vector>

#include "tools/chart/outline.h"
#include "tools/chart/plane.h"

namespace ventrel::chart {

/// The rings' inside; a ring within another is a hole.
Plane filled(int side, const std::vector<Line>& rings);

/// How a line is drawn: its width in pixels, and the lengths of dashes and gaps, 0 for none.
struct Pen {
    double width = 1;
    double dash = 0;
    double gap = 0;
    float strength = 1; ///< what it covers at most
};

/// Lays the line over what is there already; lines that cross do not add up.
void stroke(Plane& plane, const Line& line, const Pen& pen);

/// A closed line.
void strokeRing(Plane& plane, Line ring, const Pen& pen);

/// A circle, or an ellipse with its two radii.
void strokeEllipse(Plane& plane, Spot middle, Spot radii, const Pen& pen);

} // namespace ventrel::chart
