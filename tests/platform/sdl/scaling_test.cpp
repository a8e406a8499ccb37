// How the picture is laid into the machine's window.

#include <gtest/gtest.h>

#include "platform/canvas/canvas.h"
#include "platform/sdl/picture_scaling.h"
#include "platform/sdl/scaled_picture.h"

namespace ventrel {
namespace {

constexpr Size small{800, 600};
constexpr Size large{1024, 768};

TEST(PictureArea, TakesWholeMultiplesUnlessTheyWasteTheWindow) {
    EXPECT_EQ(pictureArea({800, 600}, small), (Rect{0, 0, 800, 600}));
    EXPECT_EQ(pictureArea({900, 650}, small), (Rect{50, 25, 850, 625}))
        << "sharp, with a little black around";
    EXPECT_EQ(pictureArea({3840, 2160}, small).size(), (Size{2400, 1800}));
    EXPECT_EQ(pictureArea({1280, 1024}, small), (Rect{0, 32, 1280, 992}))
        << "once would waste more than half";
    EXPECT_EQ(pictureArea({1920, 1080}, large), (Rect{240, 0, 1680, 1080}));
    EXPECT_EQ(pictureArea({400, 400}, small), (Rect{0, 50, 400, 350}));
    EXPECT_FALSE(pictureArea({1, 1}, large).isEmpty());
}

TEST(PictureArea, AFullScreenIsFilledAsFarAsTheShapeAllows) {
    constexpr auto filling = PictureFit::filling;
    EXPECT_EQ(pictureArea({1280, 1024}, large, filling), (Rect{0, 32, 1280, 992}));
    EXPECT_EQ(pictureArea({1366, 768}, small, filling), (Rect{171, 0, 1195, 768}));
    EXPECT_EQ(pictureArea({3840, 2160}, large, filling), (Rect{480, 0, 3360, 2160}));
}

TEST(PictureArea, TheFirstWindowIsComfortable) {
    EXPECT_EQ(firstWindowSize({1920, 1080}, small), small);
    EXPECT_EQ(firstWindowSize({1024, 768}, large), large) << "once, wherever it fits at all";
    EXPECT_EQ(firstWindowSize({3840, 2160}, small), (Size{2400, 1800}));
    EXPECT_EQ(firstWindowSize({1366, 728}, large), (Size{970, 728}));
}

TEST(PictureArea, MapsTheMouseToThePixelUnderIt) {
    for (const Size window : {Size{800, 600}, Size{1280, 1024}, Size{2000, 1300}, Size{500, 400}}) {
        const Rect area = pictureArea(window, small);
        for (const Point p : {Point{0, 0}, Point{799, 599}, Point{400, 1}}) {
            const Point shown = fromPicture(p, area, small);
            const Point back = toPicture(shown, area, small);
            EXPECT_NEAR(back.x, p.x, 1);
            EXPECT_NEAR(back.y, p.y, 1);
        }
        EXPECT_LT(toPicture({area.left - 1, area.top}, area, small).x, 0);
        EXPECT_GE(toPicture({area.right, area.top}, area, small).x, small.width);
    }
}

Bitmap noise(Size size, unsigned seed) {
    Bitmap picture(size);
    for (int y = 0; y < size.height; ++y) {
        for (Pixel& pixel : picture.row(y)) {
            seed = seed * 1664525 + 1013904223;
            pixel = seed >> 8;
        }
    }
    return picture;
}

Bitmap scaled(Bitmap screen, const Rect& area, const Bitmap& picture, const Rect& changed) {
    const PixelRows rows{screen.row(0).data(), screen.width(), screen.size()};
    PictureScaler().draw(rows, area, picture, changed);
    return screen;
}

TEST(ScaledPicture, ChangedPartsLookAsIfAllHadBeenDrawnAnew) {
    constexpr Size size{40, 30};
    const Bitmap before = noise(size, 1);
    for (const Size window : {Size{40, 30}, Size{85, 64}, Size{130, 90}, Size{64, 48}, Size{27, 21}}) {
        const Rect area = pictureArea(window, size);
        const Bitmap shown = scaled(Bitmap(window), area, before, before.bounds());
        for (const Rect changed :
             {Rect{7, 5, 8, 6}, Rect{0, 0, 40, 1}, Rect{13, 11, 30, 29}, Rect{39, 29, 40, 30}}) {
            Bitmap after = before;
            Canvas(after).invert(changed);
            EXPECT_EQ(scaled(shown, area, after, changed),
                      scaled(Bitmap(window), area, after, after.bounds()))
                << window.width << " from " << changed.left << ", " << changed.top;
        }
    }
}

TEST(ScaledPicture, WholeMultiplesRepeatEveryPixel) {
    const Bitmap picture = noise({5, 4}, 2);
    const Bitmap shown = scaled(Bitmap({17, 14}), {1, 1, 16, 13}, picture, picture.bounds());
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 15; ++x) {
            EXPECT_EQ(shown.at(1 + x, 1 + y), picture.at(x / 3, y / 3));
        }
    }
    EXPECT_EQ(shown.at(16, 5), 0U) << "beside the picture";
}

} // namespace
} // namespace ventrel
