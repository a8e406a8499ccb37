#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <random>
#include <utility>
#include <vector>

#include "drawn.h"

namespace ventrel {
namespace {

TEST(Lines, StayClosestToTheirCourseAndMirrorEachOther) {
    constexpr int reach = 12;
    const auto lineTo = [](Point offset) {
        Bitmap picture({2 * reach + 1, 2 * reach + 1});
        Canvas(picture, {reach, reach}, picture.bounds()).line({0, 0}, offset, white);
        return picture;
    };
    for (int dx = 0; dx <= reach; ++dx) {
        for (int dy = 0; dy <= dx; ++dy) {
            const Bitmap line = lineTo({dx, dy});
            const Bitmap mirrored = lineTo({-dx, dy});
            const Bitmap turned = lineTo({dy, -dx});
            int count = 0;
            for (int i = 0; i < line.width() * line.height(); ++i) {
                const Point p{i % line.width() - reach, i / line.width() - reach};
                const bool isSet = line.at(p.x + reach, p.y + reach) != 0;
                count += isSet ? 1 : 0;
                ASSERT_TRUE(!isSet || 2 * std::abs(p.y * dx - p.x * dy) <= dx) << dx << ' ' << dy;
                ASSERT_EQ(mirrored.at(reach - p.x, p.y + reach) != 0, isSet);
                ASSERT_EQ(turned.at(p.y + reach, reach - p.x) != 0, isSet);
            }
            ASSERT_EQ(count, dx);
            ASSERT_EQ(line.at(reach + dx, reach + dy), 0U) << "the end pixel is set";
        }
    }
}

TEST(Lines, AreTheSameSeenThroughAnyWindow) {
    std::mt19937 random(2);
    const auto somewhere = [&] { return static_cast<int>(random() % 300); };
    const Rect window{120, 110, 160, 170};
    const Region shape = Region(window).minus(Region::ellipse({130, 120, 150, 150}));
    for (int trial = 0; trial < 500; ++trial) {
        const Point from{somewhere(), somewhere()};
        const Point to{somewhere(), somewhere()};
        Bitmap expected({300, 300});
        Canvas whole(expected);
        whole.line(from, to, white);
        whole.fill(Region(expected.bounds()).minus(shape), Colour{});
        Bitmap seen({300, 300});
        Canvas(seen, {0, 0}, shape).line(from, to, white);
        ASSERT_EQ(seen, expected);
    }
    Bitmap picture({5, 3});
    Canvas(picture).line({-farAway, 1}, {farAway, 1}, white);
    Canvas(picture).line({-farAway, -farAway}, {farAway, farAway}, white);
    Canvas(picture).line({farAway, 0}, {farAway, -farAway}, white);
    EXPECT_EQ(drawn(picture), "#....\n#####\n..#..\n");
}

/// Fills from `from` over black pixels and tells whether the fill comes to the picture's edge.
bool leaks(Bitmap picture, Point from, bool diagonally) {
    std::vector<Point> open{from};
    while (!open.empty()) {
        const Point p = open.back();
        open.pop_back();
        if (!picture.bounds().contains(p)) {
            return true;
        }
        if (std::exchange(picture.at(p.x, p.y), whitePixel) == 0) {
            for (int i = 0; i < 9; ++i) {
                const Point step{i % 3 - 1, i / 3 - 1};
                if (diagonally || step.x == 0 || step.y == 0) {
                    open.push_back(p + step);
                }
            }
        }
    }
    return false;
}

TEST(Ellipses, HaveNoHolesInTheirOutline) {
    const Rect window{20, 20, 60, 60};
    for (int size = 6; size < 90; ++size) {
        for (const int penWidth : {1, 2, 3}) {
            Bitmap picture({120, 100});
            const Rect bounds = Rect::at({5, 5}, {size + size / 4, size});
            Canvas canvas(picture);
            canvas.ellipse(bounds, white, penWidth);
            ASSERT_FALSE(leaks(picture, {5 + bounds.width() / 2, 5 + size / 2}, penWidth > 1)) << size;
            // Seen through a window, nothing of the window shows in the outline.
            Bitmap part({120, 100});
            Canvas(part, {0, 0}, window).ellipse(bounds, white, penWidth);
            canvas.fill(Region(picture.bounds()).minus(window), Colour{});
            ASSERT_EQ(part, picture) << size;
        }
    }
}

TEST(Canvases, OfChildrenDrawInsideTheirVisiblePart) {
    Bitmap picture({8, 5});
    Canvas child(picture, {2, 1}, Region(Rect{2, 1, 7, 4}).minus(Rect{6, 3, 8, 5}));
    child.setClip(Rect{1, -9, farAway, farAway});
    EXPECT_EQ(child.clip().bounds(), (Rect{1, 0, 5, 3}));
    child.fill(Rect{-farAway, -farAway, farAway, farAway}, white);
    EXPECT_EQ(drawn(picture), "........\n...####.\n...####.\n...###..\n........\n");
    child.clearClip();
    child.setPixel({0, 2}, white);
    child.setPixel({0, 3}, white);
    child.invert(Rect{0, 0, 3, 2});
    EXPECT_EQ(drawn(picture), "........\n..#..##.\n..#..##.\n..####..\n........\n");
    EXPECT_EQ(child.pixel({0, 2}), white);
    child.invert(Rect{0, 0, 3, 2});
    child.frame({0, 0, 5, 3}, Colour{});
    EXPECT_EQ(drawn(picture), "........\n........\n...###..\n........\n........\n");
}

TEST(Canvases, TellEveryChangeToTheirDamage) {
    std::mt19937 random(3);
    const auto somewhere = [&] { return static_cast<int>(random() % 60) - 5; };
    for (int trial = 0; trial < 300; ++trial) {
        Bitmap picture = patterned({50, 50});
        const Bitmap before = picture;
        Damage damage(picture.size());
        Canvas canvas(picture, {3, -2}, Region::ellipse({1, -5, 54, 45}), &damage);
        const Point a{somewhere(), somewhere()};
        const Point b{somewhere(), somewhere()};
        const Rect box{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
        switch (trial % 4) {
        case 0: canvas.line(a, b, white); break;
        case 1: canvas.ellipse(box, white, 2); break;
        case 2: canvas.scroll(box, {4, -3}); break;
        default: canvas.invert(Region::ellipse(box)); break;
        }
        Canvas repaired(picture);
        for (const Rect& rect : damage.rectangles()) {
            repaired.draw(rect, before, rect);
        }
        ASSERT_EQ(picture, before) << trial;
    }
}

TEST(Canvases, SendTheirDamageAsFewExactRectangles) {
    Damage damage({100, 50});
    damage.addRun(50, 0, 30);
    damage.add({100, 0, farAway, farAway});
    EXPECT_TRUE(damage.isEmpty());
    damage.add({-farAway, 5, 20, 9});
    damage.add({40, 30, 60, 31});
    damage.addRun(31, 41, 58); // nearly the same as the row above
    damage.addRun(32, 90, farAway);
    EXPECT_EQ(damage.rectangles(4), (std::vector<Rect>{{0, 5, 20, 9}, {40, 30, 60, 32}, {90, 32, 100, 33}}));
    EXPECT_EQ(damage.rectangles(0).size(), 4U);
    damage.clear();
    damage.addRun(7, 1, 2);
    EXPECT_EQ(damage.rectangles(), (std::vector<Rect>{{1, 7, 2, 8}}));
}

} // namespace
} // namespace ventrel
