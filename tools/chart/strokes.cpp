#include "tools/chart/strokes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ventrel::chart {

namespace {

constexpr int rowsInPixel = 4;

/// Adds the part of each pixel of the row that lies between `from` and `to`, in strips of that height.
void addSpan(std::span<float> row, double from, double to, double height) {
    const double first = std::max(from, -0.5);
    const double last = std::min(to, static_cast<double>(row.size()) - 0.5);
    for (int x = static_cast<int>(std::lround(first)); x <= std::lround(last) && first < last; ++x) {
        const double part = std::min(last, x + 0.5) - std::max(first, x - 0.5);
        if (part > 0 && x >= 0 && x < static_cast<int>(row.size())) {
            row[static_cast<std::size_t>(x)] += static_cast<float>(part * height);
        }
    }
}

/// Where the rings cross a horizontal line, for every line of the picture.
std::vector<std::vector<double>> crossings(int lines, const std::vector<Line>& rings) {
    std::vector<std::vector<double>> found(static_cast<std::size_t>(lines));
    const auto lineOf = [](double y) { return (y + 0.5) * rowsInPixel - 0.5; };
    const auto add = [&](Spot a, Spot b) {
        if (a.y > b.y) {
            std::swap(a, b);
        }
        const double from = std::ceil(lineOf(a.y));
        const double to = std::ceil(lineOf(b.y)) - 1;
        for (int k = static_cast<int>(std::max(from, 0.0)); k <= std::min(to, lines - 1.0); ++k) {
            const double part = (k - lineOf(a.y)) / (lineOf(b.y) - lineOf(a.y));
            found[static_cast<std::size_t>(k)].push_back(mixed(a.x, b.x, part));
        }
    };
    for (const Line& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            add(ring[i], ring[(i + 1) % ring.size()]);
        }
    }
    return found;
}

double squaredDistance(Spot from, Spot to) {
    return (to.x - from.x) * (to.x - from.x) + (to.y - from.y) * (to.y - from.y);
}

/// A straight piece of a line, drawn.
void strokePiece(Plane& plane, Spot a, Spot b, const Pen& pen) {
    const double reach = pen.width / 2 + 0.5;
    const double length = squaredDistance(a, b);
    const auto clamped = [&](double value) {
        return static_cast<int>(std::clamp(value, 0.0, plane.side() - 1.0));
    };
    if (std::max(a.x, b.x) < -reach || std::max(a.y, b.y) < -reach ||
        std::min(a.x, b.x) > plane.side() + reach || std::min(a.y, b.y) > plane.side() + reach) {
        return;
    }
    for (int y = clamped(std::min(a.y, b.y) - reach); y <= clamped(std::max(a.y, b.y) + reach + 1); ++y) {
        for (int x = clamped(std::min(a.x, b.x) - reach); x <= clamped(std::max(a.x, b.x) + reach + 1); ++x) {
            const Spot here{static_cast<double>(x), static_cast<double>(y)};
            const double along = (here.x - a.x) * (b.x - a.x) + (here.y - a.y) * (b.y - a.y);
            const double part = length > 0 ? std::clamp(along / length, 0.0, 1.0) : 0.0;
            const double away =
                std::sqrt(squaredDistance(here, {mixed(a.x, b.x, part), mixed(a.y, b.y, part)}));
            const double covered = std::clamp(reach - away, 0.0, std::min(1.0, pen.width)) * pen.strength;
            plane.at(x, y) = std::max(plane.at(x, y), static_cast<float>(covered));
        }
    }
}

/// The dashes of a straight piece; `walked` is how far along the line it begins.
void strokeDashes(Plane& plane, Spot a, Spot b, const Pen& pen, double walked) {
    const double length = std::sqrt(squaredDistance(a, b));
    const double period = pen.dash + pen.gap;
    const auto at = [&](double way) {
        return Spot{mixed(a.x, b.x, way / length), mixed(a.y, b.y, way / length)};
    };
    for (double start = -std::fmod(walked, period); start < length; start += period) {
        const double from = std::max(start, 0.0);
        const double to = std::min(start + pen.dash, length);
        if (from < to) {
            strokePiece(plane, at(from), at(to), pen);
        }
    }
}

} // namespace

Plane filled(int side, const std::vector<Line>& rings) {
    Plane plane(side);
    auto lines = crossings(side * rowsInPixel, rings);
    for (std::size_t k = 0; k < lines.size(); ++k) {
        auto& places = lines[k];
        std::ranges::sort(places);
        for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
            addSpan(plane.row(static_cast<int>(k) / rowsInPixel), places[i], places[i + 1],
                    1.0 / rowsInPixel);
        }
    }
    for (int y = 0; y < side; ++y) {
        for (float& value : plane.row(y)) {
            value = std::min(value, 1.0F);
        }
    }
    return plane;
}

void stroke(Plane& plane, const Line& line, const Pen& pen) {
    double walked = 0;
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        if (pen.dash > 0) {
            strokeDashes(plane, line[i], line[i + 1], pen, walked);
            walked += std::sqrt(squaredDistance(line[i], line[i + 1]));
        } else {
            strokePiece(plane, line[i], line[i + 1], pen);
        }
    }
}

void strokeRing(Plane& plane, Line ring, const Pen& pen) {
    if (!ring.empty()) {
        ring.push_back(ring.front());
    }
    stroke(plane, ring, pen);
}

void strokeEllipse(Plane& plane, Spot middle, Spot radii, const Pen& pen) {
    constexpr int pieces = 360;
    Line ring;
    for (int i = 0; i < pieces; ++i) {
        const double angle = i * 2 * std::numbers::pi / pieces;
        ring.push_back({middle.x + radii.x * std::sin(angle), middle.y - radii.y * std::cos(angle)});
    }
    strokeRing(plane, std::move(ring), pen);
}

} // namespace ventrel::chart
