// From the start of the program to its first whole picture on the screen, beside a bare window that shows
// one.
//
// Needs an X server that shows nothing else, and the game's options file beside it or in HOME, so that no
// newcomer is welcomed: start_bench PROGRAM [ARGUMENTS...], such as build/release/ventrel/ventrel /NOSPLASH

#include <sys/wait.h>
#include <unistd.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/sdl/sdl_backend.h"

namespace {

using namespace ventrel;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::string_view bareWord = "--bare-window";
constexpr Size bareSize{1024, 768};
constexpr Pixel bareColour = 0x336699;
constexpr int rounds = 15;
constexpr auto settlingTime = 1500ms;
constexpr auto afterTheLast = 200ms; // its window goes
constexpr auto longestStart = 5s;
constexpr auto betweenLooks = 200us;

using Pixels = std::vector<unsigned long>;

/// A column of the screen through its middle: the first picture changes all of it at once.
class Watch {
public:
    Watch() : display_(XOpenDisplay(nullptr), XCloseDisplay) {}
    bool isOpen() const { return display_ != nullptr; }

    Pixels look() const {
        const int screen = DefaultScreen(display_.get());
        const int height = DisplayHeight(display_.get(), screen);
        XImage* image = XGetImage(display_.get(), DefaultRootWindow(display_.get()),
                                  DisplayWidth(display_.get(), screen) / 2, 0, 1,
                                  static_cast<unsigned>(height), AllPlanes, ZPixmap);
        Pixels seen;
        for (int y = 0; image != nullptr && y < height; ++y) {
            seen.push_back(XGetPixel(image, 0, y));
        }
        if (image != nullptr) {
            XDestroyImage(image);
        }
        return seen;
    }

private:
    std::unique_ptr<Display, int (*)(Display*)> display_;
};

/// A program that is started with these words and ended with the object.
class Running {
public:
    explicit Running(const std::vector<std::string>& words) : id_(::fork()) {
        if (id_ != 0) {
            return;
        }
        std::vector<char*> arguments;
        for (const std::string& word : words) {
            arguments.push_back(const_cast<char*>(word.c_str()));
        }
        arguments.push_back(nullptr);
        ::execv(arguments.front(), arguments.data());
        ::_exit(1);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() {
        ::kill(id_, SIGTERM);
        ::waitpid(id_, nullptr, 0);
    }

private:
    pid_t id_;
};

void untilScreenIs(const Watch& watch, const Pixels& wanted) {
    const auto end = Clock::now() + longestStart;
    while (watch.look() != wanted && Clock::now() < end) {
        std::this_thread::sleep_for(betweenLooks);
    }
}

/// What stands on the screen when the program has come to rest. Empty when it shows nothing, or there is no
/// screen.
Pixels pictureOf(const std::vector<std::string>& words) {
    const Watch watch;
    if (!watch.isOpen()) {
        return {};
    }
    const Pixels before = watch.look();
    const Running program(words);
    std::this_thread::sleep_for(settlingTime);
    Pixels shown = watch.look();
    return shown == before ? Pixels{} : shown;
}

void startToFirstPicture(benchmark::State& state, const std::vector<std::string>& words,
                         const Pixels& wanted) {
    const Watch watch;
    if (wanted.empty() || !watch.isOpen()) {
        state.SkipWithError("nothing is shown");
        return;
    }
    for (auto _ : state) {
        std::this_thread::sleep_for(afterTheLast);
        const auto start = Clock::now();
        const Running program(words);
        untilScreenIs(watch, wanted);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
}

/// The least that any program needs that shows a picture.
int showBareWindow() {
    const auto opened = openSdlBackend({.title = "Bench", .picture = bareSize});
    if (!opened) {
        return 1;
    }
    SdlBackend& backend = **opened;
    Bitmap picture(bareSize);
    for (int y = 0; y < bareSize.height; ++y) {
        std::ranges::fill(picture.row(y), bareColour);
    }
    backend.show(true);
    const Rect all = picture.bounds();
    backend.present(picture, std::span(&all, 1));
    while (const auto event = backend.wait(std::nullopt)) {
        const auto* const change = std::get_if<WindowEvent>(&*event);
        if (change != nullptr && *change == WindowEvent::endRequired) {
            break;
        }
    }
    return 0;
}

double least(const std::vector<double>& times) {
    return *std::ranges::min_element(times);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::vector<std::string> program(argv + 1, argv + argc);
    if (program.empty()) {
        std::puts("start_bench PROGRAM [ARGUMENTS...]");
        return 2;
    }
    if (program.front() == bareWord) {
        return showBareWindow();
    }
    const auto measure = [](const char* name, const std::vector<std::string>& words) {
        benchmark::RegisterBenchmark(name, startToFirstPicture, words, pictureOf(words))
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Iterations(1)
            ->Repetitions(rounds)
            ->ComputeStatistics("least", least)
            ->DisplayAggregatesOnly();
    };
    measure("StartToFirstPicture/bare_window", {argv[0], std::string(bareWord)});
    measure("StartToFirstPicture/game", program);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
