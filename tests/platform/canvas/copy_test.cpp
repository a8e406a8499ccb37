#include <gtest/gtest.h>

#include <array>

#include "drawn.h"

namespace ventrel {
namespace {

constexpr Colour yellow = Colour::rgb(255, 255, 0);

TEST(Copies, CombineSourceAndDestination) {
    struct Case {
        RasterOp op;
        Pixel result;
    };
    Bitmap source({1, 1});
    source.at(0, 0) = 0x0F33F0;
    for (const Case& each : {Case{RasterOp::copy, 0x0F33F0}, Case{RasterOp::notCopy, 0xF0CC0F},
                             Case{RasterOp::sourceAnd, 0x0F1100}, Case{RasterOp::sourceOr, 0xFF77F5}}) {
        Bitmap target({2, 2});
        Canvas(target).fill(target.bounds(), toColour(0xFF5505));
        Canvas(target).draw(target.bounds(), source, {0, 0, 2, 2}, each.op);
        EXPECT_EQ(target.at(0, 0), each.result);
    }
    // What the picture lacks is left out.
    Bitmap target = patterned({4, 4});
    Canvas(target).draw({1, 1, 4, 4}, Bitmap{}, {0, 0, 3, 3});
    EXPECT_EQ(target, patterned({4, 4}));
}

TEST(Copies, StretchByRepeatingAndLeavingOutPixels) {
    struct Case {
        Rect to;
        Rect from;
    };
    const Bitmap source = patterned({6, 4});
    Bitmap target({40, 40});
    Canvas canvas(target);
    canvas.setClip(Region::ellipse({0, 0, 40, 40}).minus(Rect{10, 10, 20, 20}));
    for (const Case& each : {Case{{2, 3, 14, 11}, {0, 0, 6, 4}}, Case{{5, 5, 8, 7}, {0, 0, 6, 4}},
                             Case{{-7, -20, 63, 31}, {-1, 2, 6, 9}}, Case{{3, 3, 9, 7}, {-2, 1, 4, 5}}}) {
        canvas.fill(target.bounds(), Colour{});
        canvas.draw(each.to, source, each.from);
        for (int i = 0; i < 1600; ++i) {
            const Point p{i % 40, i / 40};
            const double x =
                (p.x + 0.5 - each.to.left) * each.from.width() / each.to.width() + each.from.left;
            const double y =
                (p.y + 0.5 - each.to.top) * each.from.height() / each.to.height() + each.from.top;
            const bool isDrawn =
                each.to.contains(p) && x >= 0 && y >= 0 && x < 6 && y < 4 && canvas.clip().contains(p);
            ASSERT_EQ(target.at(p.x, p.y), isDrawn ? source.at(static_cast<int>(x), static_cast<int>(y)) : 0);
        }
    }
}

TEST(Copies, FromAndToFarAwayDrawJustWhatMeets) {
    const Rect everywhere{-farAway, -farAway, farAway, farAway};
    const Bitmap source = patterned({3, 3});
    Bitmap target({4, 4});
    Canvas canvas(target);
    canvas.draw(everywhere, source, everywhere);
    EXPECT_EQ(drawn(target), "###.\n###.\n###.\n....\n");
    EXPECT_EQ(target.at(2, 1), source.at(2, 1));
    const Bitmap before = target;
    canvas.draw({farAway, farAway}, source);
    canvas.drawTransparent({-farAway, farAway}, source, yellow);
    canvas.draw({0, 0, 4, 4}, source, {farAway - 9, -farAway, farAway, 3 - farAway});
    canvas.scroll(everywhere, {farAway, -farAway});
    EXPECT_EQ(target, before);
    canvas.draw(everywhere, source, {1, 1, 2, 2});
    EXPECT_EQ(target.at(0, 3), source.at(1, 1));
}

TEST(Copies, OfACanvasOntoItselfAreTakenBeforeTheyAreDrawn) {
    const Bitmap before = patterned({12, 12});
    const Rect area{2, 3, 10, 11};
    for (const Point offset : {Point{2, 0}, {-3, 0}, {0, 2}, {0, -1}, {2, 3}, {-2, 1}, {1, -2}}) {
        Bitmap target = before;
        Canvas(target).scroll(area, offset);
        for (int i = 0; i < 144; ++i) {
            const Point p{i % 12, i / 12};
            const Point from = area.contains(p) && area.contains(p - offset) ? p - offset : p;
            ASSERT_EQ(target.at(p.x, p.y), before.at(from.x, from.y)) << offset.x << ' ' << offset.y;
        }
    }
}

} // namespace
} // namespace ventrel
