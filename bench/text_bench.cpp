// What text costs: lines as they stand on the panels, the tags of a full scope, a paragraph in its box, and
// making a font.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "platform/text/text.h"

namespace ventrel {

namespace {

constexpr Colour amber = Colour::rgb(255, 159, 82);
constexpr Colour black = Colour::rgb(0, 0, 0);
constexpr int scopeSize = 686;
constexpr int flightCount = 99;
constexpr FontRequest panels{Face::arial, -11, false};
constexpr FontRequest tags{Face::smallFonts, 10, false};
constexpr FontRequest release{Face::courierNew, -12, false};

constexpr std::string_view panelLine = "DL274H: Turn 135\xB0, descend 3000 ft";
constexpr std::string_view paragraph =
    "Washington, DC : A mid-air collision occured today over the Atlanta terminal control facility involving "
    "two jet liners. DL274H and UA39 collided head-on at an altitude of 5000 feet.";

FontSet loadedFonts() {
    FontSet fonts(FONT_FOLDER);
    for (const Failure& missing : fonts.failures()) {
        std::fprintf(stderr, "%s\n", missing.text.c_str());
    }
    return fonts;
}

void PanelLine(benchmark::State& state) {
    FontSet fonts = loadedFonts();
    const Font& font = fonts.font(panels);
    Bitmap panel({168, 109});
    Canvas canvas(panel);
    for (auto _ : state) {
        drawTextInside(canvas, font, {2, 93}, panelLine, {amber, black}, {2, 93, 167, 105});
        benchmark::DoNotOptimize(panel.row(0).data());
    }
}
BENCHMARK(PanelLine);

void TagsOf99Flights(benchmark::State& state) {
    FontSet fonts = loadedFonts();
    const Font& font = fonts.font(tags);
    Bitmap scope({scopeSize, scopeSize});
    Canvas canvas(scope);
    canvas.setClip(Region::ellipse({0, 0, scopeSize, scopeSize}));
    for (auto _ : state) {
        for (int flight = 0; flight < flightCount; ++flight) {
            const Point at{flight * 37 % 620 + 30, flight * 91 % 600 + 40};
            drawText(canvas, font, at, "DL274H", {amber, {}});
            drawText(canvas, font, at + Point{10, 9}, "10K", {amber, {}});
        }
        benchmark::DoNotOptimize(scope.row(0).data());
    }
}
BENCHMARK(TagsOf99Flights);

void WrappedParagraph(benchmark::State& state) {
    FontSet fonts = loadedFonts();
    const Font& font = fonts.font(release);
    Bitmap page({450, 580});
    Canvas canvas(page);
    for (auto _ : state) {
        int height = drawTextBox(canvas, font, {5, 130, 400, 580}, paragraph, {black, {}}, {.wrap = true});
        benchmark::DoNotOptimize(height);
    }
}
BENCHMARK(WrappedParagraph);

void FacesLoadedAndAFontMade(benchmark::State& state) {
    for (auto _ : state) {
        FontSet fonts = loadedFonts();
        benchmark::DoNotOptimize(fonts.font(panels).lineHeight());
    }
}
BENCHMARK(FacesLoadedAndAFontMade);

} // namespace

} // namespace ventrel
