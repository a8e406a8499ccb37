#include "tools/apt/source_limits.h"

#include <algorithm>

namespace ventrel::apt {

namespace {

class NestingScan {
public:
    explicit NestingScan(std::string_view text) : rest_(text) {}

    std::optional<Fault> run() {
        while (!rest_.empty()) {
            take();
            if (dots_ >= mostNesting) {
                return Fault{line_, "a key has more than " + std::to_string(mostNesting) + " parts"};
            }
            if (depth_ > mostNesting) {
                return Fault{line_, "values lie more than " + std::to_string(mostNesting) + " deep"};
            }
        }
        return std::nullopt;
    }

private:
    /// One character, one text or one comment.
    void take() {
        const char c = rest_.front();
        switch (c) {
        case '"':
        case '\'': return skipText(c);
        case '#': return skip(std::min(rest_.find('\n'), rest_.size()));
        case '.': ++dots_; break;
        case '[':
        case '{':
            ++depth_;
            dots_ = 0;
            break;
        case ']':
        case '}':
            depth_ = std::max(depth_ - 1, 0);
            dots_ = 0;
            break;
        case '\n':
        case '=':
        case ',': dots_ = 0; break;
        default: break;
        }
        skip(1);
    }

    void skipText(char quote) {
        const std::string threeQuotes(3, quote);
        const bool isLong = rest_.starts_with(threeQuotes);
        const std::string_view end = isLong ? std::string_view(threeQuotes) : rest_.substr(0, 1);
        skip(end.size());
        while (!rest_.empty() && !rest_.starts_with(end)) {
            if (!isLong && rest_.front() == '\n') {
                return; // never closed; the library says so
            }
            const bool isEscape = quote == '"' && rest_.front() == '\\';
            skip(isEscape ? 2 : 1);
        }
        skip(end.size());
    }

    void skip(std::size_t count) {
        const std::string_view taken = rest_.substr(0, count);
        line_ += static_cast<int>(std::ranges::count(taken, '\n'));
        rest_.remove_prefix(taken.size());
    }

    std::string_view rest_;
    int line_ = 1;
    int dots_ = 0; // in the key that is being read
    int depth_ = 0;
};

} // namespace

std::optional<Fault> nestingFault(std::string_view toml) {
    return NestingScan(toml).run();
}

} // namespace ventrel::apt
