// The path that a flight has been told to fly, move by move, and the order that changes it.

#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>

#include "base/geometry.h"
#include "sim/small_number.h"
#include "sim/table_index.h"

namespace ventrel {

/// Altitudes are thousands of feet, from the one of the runways to the one of the exits.
inline constexpr int approachAltitude = 1;
inline constexpr int exitAltitude = 10;

enum class Speed : std::int8_t { slow = -1, normal = 0, fast = 1 };

/// What a step steers to, or what the control panel's selector stands on: nothing, a map point, or the
/// selector's place for a hold.
class DirectTarget {
public:
    constexpr DirectTarget() = default;
    constexpr DirectTarget(PointIndex point)
        : number_{static_cast<std::uint16_t>(std::min(firstPoint + point.number(), lastNumber))} {}

    static constexpr DirectTarget none() { return {}; }
    static constexpr DirectTarget holdPlace() {
        DirectTarget target;
        target.number_ = holdPlaceNumber;
        return target;
    }

    constexpr bool isOn() const { return number_ != noneNumber; }
    constexpr bool isHoldPlace() const { return number_ == holdPlaceNumber; }
    constexpr std::optional<PointIndex> point() const {
        return number_ >= firstPoint ? std::optional{PointIndex{number_ - firstPoint}} : std::nullopt;
    }

    friend constexpr bool operator==(DirectTarget, DirectTarget) = default;

private:
    static constexpr std::uint16_t noneNumber = 0;
    static constexpr std::uint16_t holdPlaceNumber = 1;
    static constexpr std::uint16_t firstPoint = 2;
    static constexpr int lastNumber = 65535; // no airspace comes near that many points

    std::uint16_t number_ = noneNumber;
};

/// The number of a target in files and traces: -1 for nothing, the number of points for the selector's hold.
constexpr int directTargetNumber(DirectTarget target, int pointCount) {
    const auto point = target.point();
    return point ? point->number() : target.isHoldPlace() ? pointCount : -1;
}

/// The target of such a number, which lies between the two.
constexpr DirectTarget directTargetOf(int number, int pointCount) {
    if (number < 0) {
        return DirectTarget::none();
    }
    return number >= pointCount ? DirectTarget::holdPlace() : DirectTarget{PointIndex{number}};
}

/// One move of a plan: where, and how to fly.
struct PlanStep {
    Cell cell{};
    SmallNumber<std::int8_t> altitude{};  ///< 1 to 10
    SmallNumber<std::uint16_t> heading{}; ///< degrees
    DirectTarget directTarget{};          ///< the steps of a hold carry point 1, whatever that is
    Speed speed = Speed::normal;
    bool hold = false; ///< on a hold circle

    friend bool operator==(const PlanStep&, const PlanStep&) = default;
};

/// The control panel's pending order: the fields of a plan step, of which the cell does not count.
/// Without `directTarget` it is a heading order; with it and `hold` a hold, otherwise a direct course.
using PanelOrder = PlanStep;

/// At least one step and at most `capacity`. Assigning copies the steps in use alone.
class Plan {
public:
    static constexpr int capacity = 48;
    /// Builders stop here, so a plan never fills its array.
    static constexpr int longest = 47;

    Plan() = default;
    Plan(std::initializer_list<PlanStep> steps) : length_{static_cast<int>(steps.size())} {
        std::ranges::copy(steps, steps_.begin());
    }
    Plan(const Plan& other) = default;
    Plan& operator=(const Plan& other) {
        length_ = other.length_;
        std::copy_n(other.steps_.begin(), inUse(), steps_.begin());
        return *this;
    }
    ~Plan() = default;

    int length() const { return length_; }
    PlanStep& operator[](int step) { return steps_[static_cast<std::size_t>(step)]; }
    const PlanStep& operator[](int step) const { return steps_[static_cast<std::size_t>(step)]; }
    PlanStep& last() { return (*this)[length_ - 1]; }
    const PlanStep& last() const { return (*this)[length_ - 1]; }
    std::span<const PlanStep> steps() const { return std::span{steps_}.first(inUse()); }

    /// Makes one of its steps the only one.
    void restartFrom(int step) {
        steps_[0] = (*this)[step];
        length_ = 1;
    }

    /// Adds a copy of the last step; false when the plan is as long as it gets.
    bool extend() {
        if (length_ >= longest) {
            return false;
        }
        (*this)[length_] = last();
        ++length_;
        return true;
    }

private:
    std::size_t inUse() const { return static_cast<std::size_t>(length_); }

    int length_ = 1;
    std::array<PlanStep, capacity> steps_{};
};

} // namespace ventrel
