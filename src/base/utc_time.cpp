#include "base/utc_time.h"

namespace ventrel {

namespace {

using namespace std::chrono;

/// A number with zeros in front.
std::string padded(long number, std::size_t width) {
    std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

constexpr std::string_view datePattern = "dddd-dd-dd";
constexpr std::string_view momentPattern = "dddd-dd-ddTdd:dd:ddZ";
constexpr int firstYear = 1970;

bool hasForm(std::string_view text, std::string_view form) {
    if (text.size() != form.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isDigit = text[i] >= '0' && text[i] <= '9';
        if (form[i] == 'd' ? !isDigit : text[i] != form[i]) {
            return false;
        }
    }
    return true;
}

/// The number of so many digits.
int digitsAt(std::string_view text, std::size_t start, std::size_t count) {
    int number = 0;
    for (const char digit : text.substr(start, count)) {
        number = number * 10 + (digit - '0');
    }
    return number;
}

} // namespace

UtcMoment systemUtcNow() {
    return floor<seconds>(system_clock::now());
}

std::string dateText(UtcDate date) {
    const year_month_day day{date};
    return padded(int{day.year()}, 4) + '-' + padded(long{unsigned{day.month()}}, 2) + '-' +
           padded(long{unsigned{day.day()}}, 2);
}

std::string momentText(UtcMoment moment) {
    const auto date = floor<days>(moment);
    const hh_mm_ss time{moment - date};
    return dateText(date) + 'T' + padded(time.hours().count(), 2) + ':' + padded(time.minutes().count(), 2) +
           ':' + padded(time.seconds().count(), 2) + 'Z';
}

std::optional<UtcDate> readDate(std::string_view text) {
    if (!hasForm(text, datePattern)) {
        return std::nullopt;
    }
    const year_month_day day{year{digitsAt(text, 0, 4)}, month{static_cast<unsigned>(digitsAt(text, 5, 2))},
                             std::chrono::day{static_cast<unsigned>(digitsAt(text, 8, 2))}};
    if (!day.ok() || int{day.year()} < firstYear) {
        return std::nullopt;
    }
    return sys_days{day};
}

std::optional<UtcMoment> readMoment(std::string_view text) {
    if (!hasForm(text, momentPattern)) {
        return std::nullopt;
    }
    const auto date = readDate(text.substr(0, datePattern.size()));
    const hours hour{digitsAt(text, 11, 2)};
    const minutes minute{digitsAt(text, 14, 2)};
    const seconds second{digitsAt(text, 17, 2)};
    if (!date || hour >= days{1} || minute >= hours{1} || second >= minutes{1}) {
        return std::nullopt;
    }
    return *date + hour + minute + second;
}

} // namespace ventrel
