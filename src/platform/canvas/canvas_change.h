// The one way in which a canvas changes its picture: piece by piece of a row, as far as the clip lets
// through.
//
// Included by the canvas's own sources only.

#pragma once

#include <algorithm>

#include "platform/canvas/canvas.h"
#include "platform/canvas/canvas_limits.h"

namespace ventrel {

/// The change to one colour.
struct SetTo {
    Pixel pixel = 0;

    void operator()(const Run&, std::span<Pixel> pixels) const {
        std::fill(pixels.begin(), pixels.end(), pixel);
    }
};

template <typename Change>
void Canvas::changeRuns(std::span<const Run> clipRuns, int left, int right, const Change& change) {
    for (const Run& run : clipRuns) {
        const Run piece{run.y, std::max(run.left, left), std::min(run.right, right)};
        if (piece.left < piece.right) {
            change(piece, target_->row(piece.y).subspan(static_cast<std::size_t>(piece.left),
                                                        static_cast<std::size_t>(piece.right - piece.left)));
            if (damage_ != nullptr) {
                damage_->addRun(piece.y, piece.left, piece.right);
            }
        }
    }
}

template <typename Change>
void Canvas::changeInside(const Rect& area, const Change& change) {
    changeRuns(clip_.runsOfRows(area.top, area.bottom), area.left, area.right, change);
}

template <typename Change>
void Canvas::changeInside(const Region& area, Point offset, const Change& change) {
    const Rect bounds = limitedMove(area.bounds(), offset);
    std::span<const Run> clipRuns = clip_.runsOfRows(bounds.top, bounds.bottom);
    for (const Run& run : area.runs()) {
        const Rect row = limitedMove(Rect{run.left, run.y, run.right, run.y + 1}, offset);
        // Both lists go from top to bottom: neither is searched.
        while (!clipRuns.empty() && clipRuns.front().y < row.top) {
            clipRuns = clipRuns.subspan(1);
        }
        std::size_t count = 0;
        while (count < clipRuns.size() && clipRuns[count].y == row.top) {
            ++count;
        }
        changeRuns(clipRuns.first(count), row.left, row.right, change);
    }
}

} // namespace ventrel
