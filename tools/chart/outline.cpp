#include "tools/chart/outline.h"

#include <charconv>
#include <optional>

namespace ventrel::chart {

namespace {

constexpr double farthest = 1000; // cells; whatever lies further off is a slip
constexpr int mostGrade = 4;
constexpr std::size_t leastRing = 3;
constexpr std::size_t leastLine = 2;
constexpr std::string_view blanks = " \t\r";

std::string_view takeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(blanks));
    text.remove_prefix(word.size());
    return word;
}

std::optional<double> coordinate(std::string_view word) {
    double value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    const bool isWhole = error == std::errc{} && end == word.data() + word.size();
    return isWhole && value > -farthest && value < farthest ? std::optional(value) : std::nullopt;
}

std::optional<Spot> spot(std::string_view word) {
    const auto comma = word.find(',');
    if (comma == std::string_view::npos) {
        return {};
    }
    const auto x = coordinate(word.substr(0, comma));
    const auto y = coordinate(word.substr(comma + 1));
    return x && y ? std::optional(Spot{*x, *y}) : std::nullopt;
}

class Reader {
public:
    Reader(std::string_view text, const std::string& file) : text_(text), file_(file) {}

    Result<Outline> read() {
        while (!text_.empty() && reason_.empty()) {
            ++lineNumber_;
            const auto end = text_.find('\n');
            readLine(text_.substr(0, end));
            text_.remove_prefix(end == std::string_view::npos ? text_.size() : end + 1);
        }
        finishLine();
        return reason_.empty() ? Result<Outline>(std::move(outline_))
                               : failed(file_ + ':' + std::to_string(faultyLine_) + ": " + reason_);
    }

private:
    /// A line that begins with a blank goes on with the one before.
    void readLine(std::string_view line) {
        if (line.empty() || line.front() == '#') {
            return;
        }
        if (blanks.find(line.front()) == std::string_view::npos) {
            finishLine();
            begin(takeWord(line), line);
        }
        while (reason_.empty()) {
            const std::string_view word = takeWord(line);
            if (word.empty()) {
                return;
            }
            addSpot(word);
        }
    }

    void begin(std::string_view kind, std::string_view& rest) {
        least_ = kind == "land" ? leastRing : leastLine;
        if (kind == "land") {
            current_ = &outline_.land.emplace_back();
        } else if (kind == "river" || kind == "border") {
            auto& lines = kind == "river" ? outline_.rivers : outline_.borders;
            const auto grade = coordinate(takeWord(rest));
            if (!grade || *grade < 1 || *grade > mostGrade) {
                fail("a grade from 1 to 4 is missing");
                return;
            }
            GradedLine& graded = lines.emplace_back();
            graded.grade = static_cast<int>(*grade);
            current_ = &graded.line;
        } else {
            fail("a line begins with land, river or border");
        }
    }

    void addSpot(std::string_view word) {
        const auto place = spot(word);
        if (!place || current_ == nullptr) {
            fail("'" + std::string(word) + "' is no place, such as 12.50,7.25");
            return;
        }
        current_->push_back(*place);
    }

    void finishLine() {
        if (reason_.empty() && current_ != nullptr && current_->size() < least_) {
            fail("the line before has too few places");
        }
        current_ = nullptr;
    }

    void fail(std::string reason) {
        if (reason_.empty()) {
            reason_ = std::move(reason);
            faultyLine_ = lineNumber_;
        }
    }

    std::string_view text_;
    const std::string& file_;
    Outline outline_;
    Line* current_ = nullptr;
    std::size_t least_ = 0;
    int lineNumber_ = 0;
    int faultyLine_ = 0;
    std::string reason_;
};

} // namespace

Result<Outline> parseOutline(std::string_view text, const std::string& file) {
    return Reader(text, file).read();
}

} // namespace ventrel::chart
