#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "drawn.h"

namespace ventrel {
namespace {

Region randomShape(std::mt19937& random) {
    const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    Region shape;
    for (int i = upTo(5); i >= 0; --i) {
        const Rect box = Rect::at({upTo(20), upTo(20)}, {upTo(12), upTo(12)});
        shape = shape.unitedWith(upTo(2) == 0 ? Region(box) : Region::ellipse(box));
    }
    return shape;
}

TEST(Regions, CombineAsTheirPixelsDo) {
    std::mt19937 random(1);
    for (int trial = 0; trial < 300; ++trial) {
        const Region a = randomShape(random);
        const Region b = randomShape(random);
        const Region both = a.intersectedWith(b);
        const Region either = a.unitedWith(b);
        const Region rest = a.minus(b);
        const Region inner = a.interior();
        for (int i = 0; i < 34 * 34; ++i) {
            const Point p{i % 34, i / 34};
            const bool inA = a.contains(p);
            ASSERT_EQ(both.contains(p), inA && b.contains(p));
            ASSERT_EQ(either.contains(p), inA || b.contains(p));
            ASSERT_EQ(rest.contains(p), inA && !b.contains(p));
            ASSERT_EQ(inner.contains(p), inA && a.contains(p + Point{1, 0}) && a.contains(p - Point{1, 0}) &&
                                             a.contains(p + Point{0, 1}) && a.contains(p - Point{0, 1}));
        }
        // The same pixels are equal regions, whatever way they were made.
        ASSERT_EQ(rest.unitedWith(both), a);
        ASSERT_EQ(either.minus(b).movedBy({5, -9}), rest.movedBy({5, -9}));
    }
}

TEST(Regions, EllipsesAreSymmetricAndTouchAllSides) {
    for (int width = 1; width <= 40; ++width) {
        for (int height = 1; height <= 40; ++height) {
            const Rect bounds = Rect::at({3, -5}, {width, height});
            const Region region = Region::ellipse(bounds);
            const Region onItsSide = Region::ellipse({bounds.top, bounds.left, bounds.bottom, bounds.right});
            ASSERT_EQ(region.bounds(), bounds);
            const auto rows = region.runs();
            ASSERT_EQ(static_cast<int>(rows.size()), height);
            for (std::size_t i = 0; i < rows.size(); ++i) {
                ASSERT_EQ(rows[i].left - bounds.left, bounds.right - rows[i].right);
                ASSERT_EQ(rows[i].left, rows[rows.size() - 1 - i].left);
                ASSERT_TRUE(onItsSide.contains({rows[i].y, rows[i].left}));
                ASSERT_FALSE(onItsSide.contains({rows[i].y, rows[i].left - 1}));
            }
        }
    }
}

TEST(Regions, PolygonsFollowTheWindingRule) {
    const auto filled = [](std::span<const Point> corners) {
        Bitmap picture({8, 4});
        Canvas(picture).fill(Region::polygon(corners), white);
        return drawn(picture);
    };
    // A box within a box: full when both turn the same way, a hole when not.
    std::array<Point, 10> nested{
        {{0, 0}, {6, 0}, {6, 4}, {0, 4}, {0, 0}, {2, 1}, {4, 1}, {4, 3}, {2, 3}, {2, 1}}};
    EXPECT_EQ(filled(nested), "######..\n######..\n######..\n######..\n");
    std::reverse(nested.begin() + 5, nested.end());
    EXPECT_EQ(filled(nested), "######..\n##..##..\n##..##..\n######..\n");
    const std::array<Point, 3> triangle{{{0, 0}, {3, 2}, {0, 2}}};
    EXPECT_EQ(filled(triangle), "#.......\n###.....\n........\n........\n");
    // Boxes side by side, turning opposite ways.
    const std::array<Point, 8> boxes{{{0, 0}, {2, 0}, {2, 4}, {4, 4}, {4, 0}, {2, 0}, {2, 4}, {0, 4}}};
    EXPECT_EQ(Region::polygon(boxes), Region(Rect{0, 0, 4, 4}));
}

TEST(Regions, TheSweepIsAnUnbrokenThinLineAtEveryPosition) {
    constexpr int size = 98;
    for (int step = 0; step < 2 * size; ++step) {
        const Point end{std::min(step, size), std::max(step - size, 0)};
        const std::array<Point, 5> wedge{{end, {end.x + 1, end.y}, {1, size}, {0, size}, end}};
        const Region line = Region::polygon(wedge);
        ASSERT_EQ(line.bounds(), (Rect{0, end.y, end.x + 1, size})) << step;
        const auto rows = line.runs();
        ASSERT_EQ(static_cast<int>(rows.size()), size - end.y);
        for (std::size_t i = 1; i < rows.size(); ++i) {
            // Neighbouring rows share one column: fewer would be a gap, more a blot.
            ASSERT_EQ(rows[i].right - rows[i - 1].left, 1) << step << ": " << rows[i].y;
        }
    }
}

TEST(Regions, ShapesFarAwayOrImmenseAreCutToTheSpaceOfRegions) {
    const Rect everywhere{-farAway, -farAway, farAway, farAway};
    EXPECT_EQ(Region(everywhere), Region(regionSpace));
    EXPECT_TRUE(Region(Rect{farAway - 5, 0, farAway, 5}).isEmpty());
    EXPECT_TRUE(Region(Rect{0, 0, 5, 5}).movedBy({-farAway, farAway}).isEmpty());
    const std::array<Point, 4> sheet{
        {{-farAway, -farAway}, {farAway, -farAway}, {farAway, farAway}, {-farAway, farAway}}};
    EXPECT_EQ(Region::polygon(sheet), Region(regionSpace));
    // The side of an immense ellipse is straight as far as one can see.
    EXPECT_EQ(Region::ellipse({0, -farAway, farAway, farAway}, {0, -2, 10, 2}),
              Region(Rect{0, -2, regionSpace.right, 2}));
}

} // namespace
} // namespace ventrel
