// Dates and moments of the world's common time as text: 2026-11-25, 2026-11-25T12:30:05Z.

#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ventrel {

using UtcDate = std::chrono::sys_days;
using UtcMoment = std::chrono::sys_seconds;

/// What tells the present moment.
using UtcClock = std::function<UtcMoment()>;
UtcMoment systemUtcNow();

std::string dateText(UtcDate date);
std::string momentText(UtcMoment moment);

/// Nothing for what is no such date, of the years 1970 to 9999.
std::optional<UtcDate> readDate(std::string_view text);
std::optional<UtcMoment> readMoment(std::string_view text);

} // namespace ventrel
