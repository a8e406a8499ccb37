// The monkey: evenings of random play on the whole program in memory, and what must always hold after every
// step.
//
//     ventrel-soak [--seeds A..B] [--shifts N] [--seconds N] [--journal FILE] [--pictures FOLDER]
//
// Ends with 0 when nothing was found, with 1 when something was, with 2 for words that it does not know.

#include <chrono>
#include <cstdio>
#include <span>
#include <string_view>

#include "base/whole_number.h"
#include "tests/soak/evening.h"
#include "tests/soak/resources.h"

namespace {

using namespace ventrel;

constexpr int eveningsUntilSteady = 100; // after which memory must not grow any more
constexpr int eveningsPerLine = 20;
constexpr std::size_t allowedGrowth = 256 * 1024; // bytes from then on, of what the standard library keeps
constexpr double bytesPerMegabyte = 1 << 20;

struct Wishes {
    std::uint32_t first = 1;
    std::uint32_t last = 2;
    int shifts = 0;  ///< 0: as many as the seeds give
    int seconds = 0; ///< 0: as many as it takes
    std::filesystem::path journal;
    std::filesystem::path pictures;
};

bool readSeeds(Wishes& wishes, std::string_view text) {
    const auto dots = text.find("..");
    const auto first = wholeNumber<std::uint32_t>(text.substr(0, dots));
    const auto last =
        dots == std::string_view::npos ? first : wholeNumber<std::uint32_t>(text.substr(dots + 2));
    wishes.first = first.value_or(0);
    wishes.last = last.value_or(0);
    return first && last && *first <= *last;
}

bool readNumber(int& value, std::string_view text) {
    const auto number = wholeNumber<int>(text);
    value = number.value_or(0);
    return value > 0;
}

bool readWish(Wishes& wishes, std::string_view name, std::string_view value) {
    if (name == "--journal" || name == "--pictures") {
        (name == "--journal" ? wishes.journal : wishes.pictures) = value;
        return !value.empty();
    }
    return (name == "--seeds" && readSeeds(wishes, value)) ||
           (name == "--shifts" && readNumber(wishes.shifts, value)) ||
           (name == "--seconds" && readNumber(wishes.seconds, value));
}

bool readWishes(Wishes& wishes, std::span<char*> words) {
    for (; words.size() >= 2; words = words.subspan(2)) {
        if (!readWish(wishes, words[0], words[1])) {
            return false;
        }
    }
    return words.empty();
}

/// The memory of the whole run, between evenings.
struct Memory {
    std::size_t bytesSteady = 0;
    std::size_t residentSteady = 0;
    int filesAtStart = openFiles();

    void follow(const SoakCounts& counts) {
        if (counts.evenings <= eveningsUntilSteady) {
            bytesSteady = bytesInUse();
            residentSteady = residentBytes();
        }
    }
};

void tell(const char* word, const SoakCounts& counts, const Memory& memory) {
    const ShiftCounts& shifts = counts.shifts;
    std::printf("%s evenings=%d programs=%d shifts=%d handled=%d collisions=%d given-up=%d unended=%d "
                "clock-hours=%.1f steps=%ld orders=%ld gestures=%ld repaints=%ld comparisons=%ld "
                "ways-back=%d findings=%zu heap=%.2f..%.2f resident=%.1f..%.1f most-growth=%.2f "
                "files=%d..%d\n",
                word, counts.evenings, counts.programs, shifts.begun, shifts.handled, shifts.collisions,
                shifts.givenUp, shifts.unended, static_cast<double>(shifts.clockSeconds) / 3600.0,
                shifts.steps, shifts.orders, counts.gestures, counts.repaints, counts.comparisons,
                counts.left, counts.findings.size(),
                static_cast<double>(memory.bytesSteady) / bytesPerMegabyte,
                static_cast<double>(bytesInUse()) / bytesPerMegabyte,
                static_cast<double>(memory.residentSteady) / bytesPerMegabyte,
                static_cast<double>(residentBytes()) / bytesPerMegabyte,
                static_cast<double>(counts.mostGrowth) / bytesPerMegabyte, memory.filesAtStart, openFiles());
    std::fflush(stdout);
}

void playAll(const Wishes& wishes, SoakCounts& counts, Memory& memory) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(wishes.seconds);
    Journal journal(wishes.journal);
    for (std::uint32_t seed = wishes.first; seed <= wishes.last; ++seed) {
        if ((wishes.shifts > 0 && counts.shifts.begun >= wishes.shifts) ||
            (wishes.seconds > 0 && Clock::now() >= end)) {
            return;
        }
        const std::size_t known = counts.findings.size();
        playEvening({.seed = seed, .pictures = wishes.pictures}, journal, counts);
        memory.follow(counts);
        for (std::size_t i = known; i < counts.findings.size(); ++i) {
            std::printf("%s", counts.findings[i].c_str());
            std::fflush(stdout);
        }
        if (counts.evenings % eveningsPerLine == 0) {
            tell("so-far", counts, memory);
        }
    }
}

} // namespace

int main(int count, char** words) {
    Wishes wishes;
    if (!readWishes(wishes, {words + 1, words + count})) {
        std::fprintf(stderr, "ventrel-soak [--seeds A..B] [--shifts N] [--seconds N] [--journal FILE] "
                             "[--pictures FOLDER]\n");
        return 2;
    }
    SoakCounts counts;
    Memory memory;
    playAll(wishes, counts, memory);
    if (counts.evenings > eveningsUntilSteady && bytesInUse() > memory.bytesSteady + allowedGrowth) {
        counts.findings.emplace_back("memory");
        std::printf("Memory has grown from evening to evening.\n");
    }
    if (openFiles() != memory.filesAtStart) {
        counts.findings.emplace_back("files");
        std::printf("Files have been left open.\n");
    }
    tell("summary", counts, memory);
    std::printf("seen");
    for (const auto& [name, times] : counts.seen) {
        std::printf(" %s=%ld", name.c_str(), times);
    }
    std::printf("\n");
    return counts.findings.empty() ? 0 : 1;
}
