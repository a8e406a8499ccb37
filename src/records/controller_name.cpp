#include "records/controller_name.h"

#include <algorithm>
#include <array>

namespace ventrel {

namespace {

/// A run of capitals, and how far behind them their small letters lie.
struct LetterRun {
    unsigned char first;
    unsigned char last;
    unsigned char toSmall;
};
constexpr std::array letterRuns{std::to_array<LetterRun>({
    {'A', 'Z', 0x20},
    {0x8A, 0x8A, 0x10}, // S with caron
    {0x8C, 0x8C, 0x10}, // OE
    {0x8E, 0x8E, 0x10}, // Z with caron
    {0x9F, 0x9F, 0x60}, // Y with diaeresis
    {0xC0, 0xD6, 0x20},
    {0xD8, 0xDE, 0x20},
})};

char shifted(char letter, bool toSmall) {
    const auto byte = static_cast<unsigned char>(letter);
    for (const LetterRun& run : letterRuns) {
        const int capital = toSmall ? byte : byte - run.toSmall;
        if (capital >= run.first && capital <= run.last) {
            return static_cast<char>(toSmall ? byte + run.toSmall : capital);
        }
    }
    return letter;
}

} // namespace

std::string properName(std::string_view name) {
    std::string proper(name);
    std::ranges::transform(proper, proper.begin(), [](char c) { return shifted(c, true); });
    if (!proper.empty()) {
        proper.front() = shifted(proper.front(), false);
    }
    return proper;
}

} // namespace ventrel
