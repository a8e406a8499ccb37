#include "lessons/lesson_file.h"

#include <algorithm>
#include <array>

#include "base/bytes.h"
#include "base/whole_file.h"
#include "base/whole_number.h"
#include "base/windows1252.h"
#include "lessons/lesson_phrases.h"
#include "lessons/lesson_words.h"

namespace ventrel {

namespace {

constexpr std::size_t mostBytes = std::size_t{64} * 1024;
constexpr std::size_t mostFlights = 12; // as many as strips stay clear of the note
constexpr std::size_t mostSteps = 60;
constexpr char noCharacter = '\x01'; // stands for one that Windows-1252 does not have

struct NumberedLine {
    int number = 0;
    std::string text;
};

/// Joins lines that begin with a blank to the one before, leaves comments and empty lines out.
std::vector<NumberedLine> logicalLines(std::string_view text) {
    std::vector<NumberedLine> lines;
    for (int number = 1; !text.empty(); ++number) {
        const auto end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        const bool goesOn = !line.empty() && (line.front() == ' ' || line.front() == '\t');
        const auto first = line.find_first_not_of(" \t\r");
        if (first == std::string_view::npos || line.front() == '#') {
            continue;
        }
        line = line.substr(first, line.find_last_not_of(" \t\r") + 1 - first);
        if (goesOn && !lines.empty()) {
            lines.back().text += ' ' + std::string(line);
        } else {
            lines.push_back({number, std::string(line)});
        }
    }
    return lines;
}

class LessonReader {
public:
    Result<Lesson> read(std::string_view text, std::string_view name) {
        for (const NumberedLine& line : logicalLines(text)) {
            std::string_view rest = line.text;
            const std::string_view kind = takeLessonWord(rest);
            rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
            if (auto done = readLine(kind, rest); !done) {
                return failed(std::string(name) + ':' + std::to_string(line.number) + ": " +
                              done.error().text);
            }
        }
        if (auto whole = checkWhole(); !whole) {
            return failed(std::string(name) + ": " + whole.error().text);
        }
        return std::move(lesson_);
    }

private:
    struct Kind {
        std::string_view word;
        Result<> (LessonReader::*read)(std::string_view rest);
    };

    Result<> readLine(std::string_view kind, std::string_view rest) {
        static constexpr std::array kinds{std::to_array<Kind>({
            {"lesson", &LessonReader::readName},
            {"about", &LessonReader::readAbout},
            {"airspace", &LessonReader::readAirspace},
            {"seed", &LessonReader::readSeed},
            {"flight", &LessonReader::readFlight},
            {"say", &LessonReader::readSay},
            {"show", &LessonReader::readShow},
            {"until", &LessonReader::readUntil},
            {"bring", &LessonReader::readBring},
            {"but", &LessonReader::readBut},
            {"stop", &LessonReader::readStop},
        })};
        const auto* found = std::ranges::find(kinds, kind, &Kind::word);
        if (found == kinds.end()) {
            return failed(quoted(kind) + " begins no line of a lesson");
        }
        return (this->*found->read)(rest);
    }

    static Result<> readText(std::string_view rest, std::size_t limit, std::string& into) {
        if (rest.empty() || rest.size() > limit) {
            return failed("a text of 1 to " + std::to_string(limit) + " characters must stand here; it has " +
                          std::to_string(rest.size()));
        }
        if (std::ranges::any_of(rest, isControlCharacter)) {
            return failed("a character of the text cannot be shown");
        }
        into = rest;
        return {};
    }

    Result<> readName(std::string_view rest) { return readText(rest, longestLessonName, lesson_.name); }
    Result<> readAbout(std::string_view rest) { return readText(rest, longestLessonAbout, lesson_.about); }

    Result<> readAirspace(std::string_view rest) {
        constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789_";
        if (rest.empty() || rest.find_first_not_of(letters) != std::string_view::npos) {
            return failed(quoted(rest) + " is no airspace: small letters, digits and _");
        }
        lesson_.airspace = rest;
        return {};
    }

    Result<> readSeed(std::string_view rest) {
        const auto seed = wholeNumber<std::uint32_t>(rest);
        if (!seed) {
            return failed("a seed is a whole number from 0 to 4294967295");
        }
        lesson_.seed = *seed;
        return {};
    }

    Result<> readFlight(std::string_view rest) {
        if (!lesson_.steps.empty() || !lesson_.answers.empty()) {
            return failed("flights stand before all that is said");
        }
        if (lesson_.flights.size() == mostFlights) {
            return failed("a lesson has at most " + std::to_string(mostFlights) + " flights");
        }
        auto flight = readLessonFlight(rest, static_cast<char>('A' + lesson_.flights.size()));
        if (!flight) {
            return tl::unexpected(std::move(flight.error()));
        }
        lesson_.flights.push_back(std::move(*flight));
        return {};
    }

    Result<> readSay(std::string_view rest) {
        if (lesson_.steps.size() == mostSteps) {
            return failed("a lesson has at most " + std::to_string(mostSteps) + " steps");
        }
        if (!lesson_.steps.empty() && lesson_.steps.back().until.empty()) {
            return failed("the step before has no 'until'");
        }
        return readText(rest, longestNoteText, lesson_.steps.emplace_back().text);
    }

    Result<> readShow(std::string_view rest) {
        return onStep([&](LessonStep& step) -> Result<> {
            return take(readLessonShow(rest, lesson_.flights.size()), step.shows.emplace_back());
        });
    }

    Result<> readUntil(std::string_view rest) {
        return onStep([&](LessonStep& step) -> Result<> {
            return take(readCondition(rest, lesson_.flights.size()), step.until);
        });
    }

    Result<> readBring(std::string_view rest) {
        return onStep([&](LessonStep& step) -> Result<> {
            return take(readFlights(rest, lesson_.flights.size()), step.brought);
        });
    }

    Result<> readBut(std::string_view rest) { return readAnswer(rest, false); }
    Result<> readStop(std::string_view rest) { return readAnswer(rest, true); }

    /// "A told heading 90: The answer." Before the first step it counts in all of them.
    Result<> readAnswer(std::string_view rest, bool stops) {
        const auto colon = rest.find(": ");
        if (colon == std::string_view::npos) {
            return failed("between a mistake and its answer a colon must stand");
        }
        LessonAnswer answer;
        answer.stops = stops;
        if (auto when = take(readCondition(rest.substr(0, colon), lesson_.flights.size()), answer.when);
            !when) {
            return when;
        }
        if (auto text = readText(rest.substr(colon + 2), longestNoteText, answer.text); !text) {
            return text;
        }
        auto& answers = lesson_.steps.empty() ? lesson_.answers : lesson_.steps.back().answers;
        answers.push_back(std::move(answer));
        return {};
    }

    Result<> onStep(const auto& read) {
        return lesson_.steps.empty() ? Result<>(failed("this stands before the first 'say'"))
                                     : read(lesson_.steps.back());
    }

    template <typename Value>
    static Result<> take(Result<Value> read, Value& into) {
        if (!read) {
            return tl::unexpected(std::move(read.error()));
        }
        into = std::move(*read);
        return {};
    }

    Result<> checkWhole() const {
        if (lesson_.name.empty() || lesson_.about.empty() || lesson_.airspace.empty()) {
            return failed("a lesson needs the lines 'lesson', 'about' and 'airspace'");
        }
        if (lesson_.flights.empty() || lesson_.steps.empty()) {
            return failed("a lesson needs a flight and a step");
        }
        if (!lesson_.steps.back().until.empty()) {
            return failed("the last step says that the lesson is done, and has no 'until'");
        }
        return {};
    }

    Lesson lesson_;
};

} // namespace

Result<Lesson> readLesson(std::string_view text, std::string_view name) {
    return LessonReader().read(fromUtf8(text, noCharacter), name);
}

Result<Lesson> loadLesson(const std::filesystem::path& file) {
    const auto bytes = readWholeFile(file, mostBytes);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    const std::string_view text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    return readLesson(text, pathText(file));
}

std::vector<std::filesystem::path> lessonFiles(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    std::error_code fault;
    for (std::filesystem::directory_iterator entry(folder, fault), end; !fault && entry != end;
         entry.increment(fault)) {
        if (entry->path().extension() == lessonFileEnd) {
            files.push_back(entry->path());
        }
    }
    std::ranges::sort(files);
    return files;
}

} // namespace ventrel
