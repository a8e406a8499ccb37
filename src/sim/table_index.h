// Places in the tables of a game, a kind of their own for each table: a flight is no map point.

#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

namespace ventrel {

/// A place in a table of at most 65535 rows, counted from 0. `Table` only tells the kinds apart. A number
/// that can be no place becomes the last one, at which no table has a row.
template <typename Table>
class TableIndex {
public:
    constexpr TableIndex() = default;
    constexpr explicit TableIndex(int place)
        : place_{std::in_range<std::uint16_t>(place) ? static_cast<std::uint16_t>(place)
                                                     : std::numeric_limits<std::uint16_t>::max()} {}

    constexpr int number() const { return place_; }
    constexpr std::size_t place() const { return place_; }

    friend constexpr auto operator<=>(TableIndex, TableIndex) = default;
    constexpr TableIndex& operator++() {
        ++place_;
        return *this;
    }

private:
    std::uint16_t place_ = 0;
};

using FlightIndex = TableIndex<struct Flight>; ///< in the flight table
using PointIndex = TableIndex<struct Vor>;     ///< in the airspace's table of map points

/// All places of a table, for a loop.
template <typename Index>
class TablePlaces {
public:
    constexpr explicit TablePlaces(std::size_t rows) : end_{static_cast<int>(rows)} {}

    class Iterator {
    public:
        constexpr explicit Iterator(int place) : place_{place} {}
        constexpr Index operator*() const { return Index{place_}; }
        constexpr Iterator& operator++() {
            ++place_;
            return *this;
        }
        friend constexpr bool operator==(Iterator, Iterator) = default;

    private:
        int place_;
    };

    constexpr Iterator begin() const { return Iterator{0}; }
    constexpr Iterator end() const { return Iterator{end_}; }

private:
    int end_;
};

} // namespace ventrel
