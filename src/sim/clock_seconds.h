// The unit of the game clock. It is not real time: a second of the clock lasts a little over 400 ms.

#pragma once

#include <compare>
#include <cstdint>

namespace ventrel {

/// Seconds of the game clock, from 0 at the start of a shift; a moment or a span. Never mixes with numbers or
/// milliseconds by itself.
class ClockSeconds {
public:
    constexpr ClockSeconds() = default;
    constexpr explicit ClockSeconds(std::int32_t count) : count_{count} {}

    constexpr std::int32_t count() const { return count_; }

    friend constexpr auto operator<=>(ClockSeconds, ClockSeconds) = default;
    friend constexpr ClockSeconds operator+(ClockSeconds a, ClockSeconds b) {
        return ClockSeconds{a.count_ + b.count_};
    }
    friend constexpr ClockSeconds operator-(ClockSeconds a, ClockSeconds b) {
        return ClockSeconds{a.count_ - b.count_};
    }
    friend constexpr ClockSeconds operator*(int factor, ClockSeconds a) {
        return ClockSeconds{factor * a.count_};
    }
    friend constexpr ClockSeconds operator/(ClockSeconds a, int divisor) {
        return ClockSeconds{a.count_ / divisor};
    }
    /// How often the span fits in; it is not 0.
    friend constexpr int operator/(ClockSeconds a, ClockSeconds span) { return a.count_ / span.count_; }
    friend constexpr ClockSeconds operator%(ClockSeconds a, ClockSeconds span) {
        return ClockSeconds{a.count_ % span.count_};
    }
    constexpr ClockSeconds& operator+=(ClockSeconds more) { return *this = *this + more; }

private:
    std::int32_t count_ = 0;
};

inline namespace clock_literals {

/// 15_s: fifteen seconds of the game clock.
constexpr ClockSeconds operator""_s(unsigned long long count) {
    return ClockSeconds{static_cast<std::int32_t>(count)};
}

} // namespace clock_literals

/// The simulation acts on multiples of this only.
inline constexpr ClockSeconds stepInterval = 15_s;

inline constexpr ClockSeconds clockMinute = 60_s;

} // namespace ventrel
