// Which pixels of a picture have changed since they were last sent on: one interval for each row.
//
// Cheap to add to, exact for thin slanting shapes, and turned into a handful of rectangles when sent.

#pragma once

#include <vector>

#include "base/geometry.h"

namespace ventrel {

class Damage {
public:
    explicit Damage(Size size);

    /// Marks the part of `rect` that lies inside the picture.
    void add(const Rect& rect);
    /// Marks pixels `left` to `right` (exclusive) of row `y`, as far as they lie inside the picture.
    void addRun(int y, int left, int right);
    void addAll();
    void clear();

    bool isEmpty() const { return firstRow_ >= endRow_; }

    /// The changed pixels covered by rectangles that do not overlap, from top to bottom: neighbouring rows
    /// whose intervals nearly agree share one. `slack` is how many unchanged pixels a row may carry along to
    /// be merged.
    std::vector<Rect> rectangles(int slack = 8) const;

private:
    struct Interval {
        int left = 0;
        int right = 0; // not above left: nothing changed
    };
    Size size_;
    std::vector<Interval> rows_;
    int firstRow_ = 0;
    int endRow_ = 0;
};

} // namespace ventrel
