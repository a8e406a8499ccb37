// Reads the text of a lesson (docs/formats.md describes it).

#pragma once

#include <filesystem>
#include <string_view>

#include "base/result.h"
#include "lessons/lesson.h"

namespace ventrel {

inline constexpr std::string_view lessonFileEnd = ".lesson";

/// The lesson of a file of the program's folder; the failure names the file, the line and the reason.
Result<Lesson> loadLesson(const std::filesystem::path& file);

/// The same from the text of one, UTF-8; `name` stands for the file in a failure.
Result<Lesson> readLesson(std::string_view text, std::string_view name);

/// The lessons of a folder, in the order of their names.
std::vector<std::filesystem::path> lessonFiles(const std::filesystem::path& folder);

} // namespace ventrel
