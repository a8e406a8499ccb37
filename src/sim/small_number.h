// A whole number that takes little room within a record, of which many are kept and copied.

#pragma once

#include <concepts>
#include <limits>
#include <utility>

namespace ventrel {

/// Reads and calculates as an `int`. A number that does not fit becomes the largest one that does.
template <std::integral Stored>
class SmallNumber {
public:
    constexpr SmallNumber() = default;
    constexpr SmallNumber(int number)
        : stored_{std::in_range<Stored>(number) ? static_cast<Stored>(number)
                                                : std::numeric_limits<Stored>::max()} {}

    constexpr operator int() const { return stored_; }

    constexpr SmallNumber& operator+=(int more) { return *this = *this + more; }
    constexpr SmallNumber& operator-=(int less) { return *this = *this - less; }
    constexpr SmallNumber& operator++() { return *this += 1; }
    constexpr SmallNumber& operator--() { return *this -= 1; }

private:
    Stored stored_ = 0;
};

} // namespace ventrel
