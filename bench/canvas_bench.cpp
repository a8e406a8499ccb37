// What drawing costs, at the sizes of the larger screen layout.

#include <benchmark/benchmark.h>

#include <array>

#include "platform/canvas/canvas.h"

namespace ventrel {

namespace {

constexpr int scopeSize = 686;
constexpr Size screenSize{1024, 768};
constexpr Size cloudSize{64, 48};
constexpr int flightCount = 99;
constexpr Colour green = Colour::rgb(0, 220, 0);
constexpr Colour yellow = Colour::rgb(255, 255, 0);

struct Segment {
    Point from;
    Point to;
};

// An aircraft pointing up.
constexpr std::array<Segment, 7> symbol{{{{3, 0}, {3, 7}},
                                         {{4, 0}, {4, 7}},
                                         {{2, 6}, {6, 6}},
                                         {{2, 2}, {2, 4}},
                                         {{1, 3}, {1, 5}},
                                         {{5, 2}, {5, 4}},
                                         {{6, 3}, {6, 5}}}};

/// Somewhere on the scope, another place for every flight.
Point placeOf(int flight) {
    return {flight * 37 % 620 + 30, flight * 91 % 600 + 40};
}

Region scope() {
    return Region::ellipse({0, 0, scopeSize, scopeSize});
}

void FullScreenCopy(benchmark::State& state) {
    Bitmap screen(screenSize);
    const Bitmap picture(screenSize);
    Damage damage(screenSize);
    for (auto _ : state) {
        Canvas(screen, &damage).draw(Point{}, picture);
        benchmark::DoNotOptimize(screen.row(0).data());
    }
    state.SetBytesProcessed(state.iterations() * screenSize.width * screenSize.height * 4);
}
BENCHMARK(FullScreenCopy);

void ScopeFrameCopiedInsideItsCircle(benchmark::State& state) {
    Bitmap screen({scopeSize, scopeSize});
    const Bitmap frame({scopeSize, scopeSize});
    Canvas canvas(screen);
    canvas.setClip(scope());
    for (auto _ : state) {
        canvas.draw(Point{}, frame);
        benchmark::DoNotOptimize(screen.row(0).data());
    }
}
BENCHMARK(ScopeFrameCopiedInsideItsCircle);

void InvertedCircle(benchmark::State& state) {
    Bitmap screen({scopeSize, scopeSize});
    Canvas canvas(screen);
    const Region round = scope();
    for (auto _ : state) {
        canvas.invert(round);
        benchmark::DoNotOptimize(screen.row(0).data());
    }
}
BENCHMARK(InvertedCircle);

/// One step of the sweep: the old line inverted back, the new one inverted. The argument is the height of
/// its end on the right edge.
void SweepStep(benchmark::State& state) {
    Bitmap screen({scopeSize, scopeSize});
    Damage damage(screen.size());
    Canvas canvas(screen, &damage);
    const Region round = scope();
    const auto line = [&](int y) {
        const std::array<Point, 5> wedge{
            {{scopeSize, y}, {scopeSize + 1, y}, {1, scopeSize}, {0, scopeSize}, {scopeSize, y}}};
        return Region::polygon(wedge).intersectedWith(round);
    };
    const auto y = static_cast<int>(state.range(0));
    for (auto _ : state) {
        canvas.invert(line(y));
        canvas.invert(line(y + 1));
        benchmark::DoNotOptimize(damage.rectangles().size());
        damage.clear();
    }
}
BENCHMARK(SweepStep)->Arg(0)->Arg(600);

void Cloud(benchmark::State& state) {
    Bitmap screen({scopeSize, scopeSize});
    Bitmap cloud(cloudSize);
    Canvas(cloud).fill(cloud.bounds(), yellow);
    Canvas(cloud).filledEllipse({4, 4, 60, 44}, green, green);
    Canvas canvas(screen);
    canvas.setClip(scope());
    for (auto _ : state) {
        canvas.drawTransparent({300, 200}, cloud, yellow);
        benchmark::DoNotOptimize(screen.row(0).data());
    }
}
BENCHMARK(Cloud);

void Symbols99(benchmark::State& state) {
    Bitmap screen({scopeSize, scopeSize});
    Canvas canvas(screen);
    canvas.setClip(scope());
    for (auto _ : state) {
        for (int flight = 0; flight < flightCount; ++flight) {
            const Point corner = placeOf(flight);
            for (const Segment& segment : symbol) {
                canvas.line(corner + segment.from, corner + segment.to, green);
            }
        }
        benchmark::DoNotOptimize(screen.row(0).data());
    }
}
BENCHMARK(Symbols99);

void RouteLines99(benchmark::State& state) {
    Bitmap screen({scopeSize, scopeSize});
    Canvas canvas(screen);
    canvas.setClip(scope());
    for (auto _ : state) {
        for (int flight = 0; flight < flightCount; ++flight) {
            canvas.line(placeOf(flight), placeOf(flight + 50), green);
        }
        benchmark::DoNotOptimize(screen.row(0).data());
    }
}
BENCHMARK(RouteLines99);

void CollisionRing(benchmark::State& state) {
    Bitmap screen({scopeSize, scopeSize});
    Canvas canvas(screen);
    for (auto _ : state) {
        canvas.ellipse({0, 0, scopeSize, scopeSize}, green, 2);
        benchmark::DoNotOptimize(screen.row(0).data());
    }
}
BENCHMARK(CollisionRing);

} // namespace

} // namespace ventrel
