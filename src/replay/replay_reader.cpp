#include "replay/replay_reader.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/whole_file.h"
#include "base/windows1252.h"
#include "replay/replay_text.h"
#include "sim/custom_skill.h"

namespace ventrel {

namespace {

constexpr std::size_t mostShown = 40; // bytes of a wrong line
constexpr int mostNumber = std::numeric_limits<std::int32_t>::max();
constexpr int largestPoint = std::numeric_limits<std::uint16_t>::max();

using Words = std::vector<std::string_view>;

/// What a whole number of a line may be.
struct NumberRule {
    std::string_view name;
    long long lowest;
    long long highest;
};

constexpr NumberRule clockRule{"clock", 0, latestReplayClock};
constexpr std::array stepRules{
    NumberRule{"random", 0, std::numeric_limits<std::uint32_t>::max()},
    NumberRule{"score", 0, mostNumber},
};
constexpr std::array lampRules{NumberRule{"level", 0, static_cast<int>(LampLevel::none)}};
constexpr std::array orderRules{
    NumberRule{"flight", 0, mostPlanes - 1},
    NumberRule{"altitude", approachAltitude, exitAltitude},
    NumberRule{"heading", -mostNumber, mostNumber},
    NumberRule{"speed", static_cast<int>(Speed::slow), static_cast<int>(Speed::fast)},
    NumberRule{"directTarget", -1, largestPoint},
    NumberRule{"hold", 0, 1},
};
constexpr std::array noiseRules{NumberRule{"call", 0, mostNumber}, NumberRule{"drawn", 0, 1}};
constexpr NumberRule endScoreRule{"score", -mostNumber, mostNumber};

std::string shown(std::string_view text) {
    return "'" + fromUtf8(text.substr(0, mostShown)) + "'";
}

/// Takes the text apart line by line; the first fault stays.
class Reader {
public:
    Reader(std::string_view text, const std::filesystem::path& name) : text_(text), name_(name) {}

    Result<Replay> read() {
        if (nextLine() != replayMark) {
            return fault("this is no replay that this version reads: it begins with " + shown(line_) +
                         ", not '" + std::string{replayMark} + "'");
        }
        if (auto read = readHeader(); !read) {
            return tl::unexpected(std::move(read.error()));
        }
        while (hasLine()) {
            nextLine();
            if (auto read = readTimedLine(); !read) {
                return tl::unexpected(std::move(read.error()));
            }
        }
        return std::move(replay_);
    }

private:
    /// Whether another line with its line feed follows.
    bool hasLine() const { return text_.find('\n') != std::string_view::npos; }

    std::string_view nextLine() {
        const auto end = text_.find('\n');
        line_ = text_.substr(0, end);
        text_.remove_prefix(end == std::string_view::npos ? text_.size() : end + 1);
        ++number_;
        return line_;
    }

    tl::unexpected<Failure> fault(const std::string& what) const {
        return failed(pathText(name_) + ":" + std::to_string(number_) + ": " + what + ".");
    }

    Result<> readHeader() {
        for (const ReplayHeaderRow& row : replayHeaderRows()) {
            if (!hasLine()) {
                return fault("the file ends before its header does");
            }
            const std::string key = std::string{row.key} + ' ';
            nextLine();
            if (!line_.starts_with(key)) {
                return fault("here must stand '" + std::string{row.key} + "', not " + shown(line_));
            }
            const std::string_view value = line_.substr(key.size());
            if (!row.read(replay_.header, value)) {
                return fault(std::string{row.key} + " must be " + std::string{row.expected} + ", not " +
                             shown(value));
            }
        }
        if (!hasLine() || nextLine() != replayHeaderEnd) {
            return fault("the header must end with '" + std::string{replayHeaderEnd} + "'");
        }
        return {};
    }

    Result<> readTimedLine() {
        if (replay_.end) {
            return fault("there is a line after the end of the shift");
        }
        const Words words = wordsOf(line_);
        if (words.size() < 2) {
            return fault("a line has a clock and a word, not " + shown(line_));
        }
        long long clock = 0;
        if (auto read = readNumber(words[0], clockRule, clock); !read) {
            return read;
        }
        const ClockSeconds time{static_cast<int>(clock)};
        if (time < replay_.until) {
            return fault("the clock goes back from " + std::to_string(replay_.until.count()));
        }
        replay_.until = time;
        return readEvent(words);
    }

    Result<> readEvent(const Words& words) {
        const std::string_view kind = words[1];
        if (kind == stepWord) {
            return readNumbers(words, stepRules, [this](const auto& numbers) { addStep(numbers); });
        }
        if (kind == lampWord) {
            return readNumbers(words, lampRules, [this](const auto& numbers) {
                addEvent(ReplayedLamp{static_cast<LampLevel>(numbers[0])});
            });
        }
        if (kind == orderWord) {
            return readNumbers(words, orderRules, [this](const auto& numbers) { addOrder(numbers); });
        }
        if (kind == practiceWord && words.size() == 2) {
            replay_.header.kind = ReplayKind::practice;
            return {};
        }
        if (kind == noiseWord) {
            return readNoise(words);
        }
        return kind == endWord ? readEnd(words) : fault("a line cannot tell of " + shown(kind));
    }

    Result<> readNumber(std::string_view word, const NumberRule& rule, long long& number) const {
        if (readWholeNumber(word, rule.lowest, rule.highest, number)) {
            return {};
        }
        return fault(std::string{rule.name} + " must be a whole number from " + std::to_string(rule.lowest) +
                     " to " + std::to_string(rule.highest) + ", not " + shown(word));
    }

    /// The numbers after the line's word, as many as there are rules.
    template <std::size_t count>
    Result<> readNumbers(const Words& words, const std::array<NumberRule, count>& rules, auto use) {
        constexpr std::size_t before = 2; // clock and word
        if (words.size() != before + count) {
            return fault(std::string{words[1]} + " has " + std::to_string(count) + " numbers, not " +
                         std::to_string(words.size() - before));
        }
        std::array<long long, count> numbers{};
        for (std::size_t i = 0; i < count; ++i) {
            if (auto read = readNumber(words[before + i], rules[i], numbers[i]); !read) {
                return read;
            }
        }
        use(numbers);
        return {};
    }

    void addEvent(const decltype(ReplayEvent::what)& what) {
        replay_.events.push_back({replay_.until, what, number_});
    }

    void addStep(const std::array<long long, stepRules.size()>& numbers) {
        replay_.lastScore = static_cast<int>(numbers[1]);
        addEvent(ReplayedStep{static_cast<std::uint32_t>(numbers[0]), replay_.lastScore});
    }

    void addOrder(const std::array<long long, orderRules.size()>& numbers) {
        const auto number = [&](std::size_t place) { return static_cast<int>(numbers.at(place)); };
        enum Field { flight, altitude, heading, speed, target, hold };
        addEvent(ReplayedOrder{.flight = FlightIndex{number(flight)},
                               .altitude = number(altitude),
                               .heading = number(heading),
                               .speed = static_cast<Speed>(number(speed)),
                               .target = number(target),
                               .hold = number(hold) != 0});
    }

    Result<> readNoise(const Words& words) {
        const int before = replay_.noise.empty() ? -1 : replay_.noise.back().call;
        if (auto read =
                readNumbers(words, noiseRules,
                            [this](const auto& numbers) {
                                replay_.noise.push_back({static_cast<int>(numbers[0]), numbers[1] != 0});
                            });
            !read) {
            return read;
        }
        return replay_.noise.back().call > before ? Result<>{} : fault("the calls are not in order");
    }

    Result<> readEnd(const Words& words) {
        constexpr std::size_t wordCount = 4;
        if (words.size() != wordCount) {
            return fault("end has an outcome and a score");
        }
        const auto* const outcome = std::ranges::find(replayOutcomeWords, words[2]);
        if (outcome == replayOutcomeWords.end()) {
            return fault("the outcome must be handled, collision or given-up, not " + shown(words[2]));
        }
        long long score = 0;
        if (auto read = readNumber(words[3], endScoreRule, score); !read) {
            return read;
        }
        replay_.lastScore = static_cast<int>(score);
        replay_.end = {replay_.until, static_cast<ReplayOutcome>(outcome - replayOutcomeWords.begin()),
                       replay_.lastScore};
        return {};
    }

    std::string_view text_; // what is still to be read
    const std::filesystem::path& name_;
    std::string_view line_;
    int number_ = 0;
    Replay replay_;
};

} // namespace

Result<Replay> readReplay(const std::filesystem::path& file) {
    const auto bytes = readWholeFile(file, largestReplay);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    const auto* const text = reinterpret_cast<const char*>(bytes->data());
    return readReplay(std::string_view{text, bytes->size()}, file);
}

Result<Replay> readReplay(std::string_view text, const std::filesystem::path& name) {
    return Reader{text, name}.read();
}

} // namespace ventrel
