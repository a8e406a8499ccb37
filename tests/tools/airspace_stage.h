// What the tests of the airspace tool share: its faulty sources, and what its commands print.

#pragma once

#include <gtest/gtest.h>

#include "../base/temp_folder.h"
#include "tools/apt/commands.h"

namespace ventrel {

inline std::filesystem::path planted(const std::string& name) {
    return std::filesystem::path(AIRSPACE_FOLDER) / name;
}

/// What a command prints on standard output, and then on standard error.
template <typename Command>
std::string printedBy(int expectedStatus, Command command) {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(command(), expectedStatus);
    return ::testing::internal::GetCapturedStdout() + ::testing::internal::GetCapturedStderr();
}

inline std::string checked(const std::filesystem::path& file, int expectedStatus) {
    return printedBy(expectedStatus, [&] { return apt::check({file}); });
}

inline std::string built(const std::filesystem::path& source, const std::filesystem::path& target,
                         int expectedStatus, int width = 800) {
    return printedBy(expectedStatus, [&] { return apt::build(source, target, width); });
}

inline void expectSays(const std::string& printed, std::string_view said) {
    EXPECT_NE(printed.find(said), std::string::npos) << printed << "does not say: " << said;
}

/// The sound source with more lines at its end.
inline void writeSource(const std::filesystem::path& file, const std::string& more) {
    writeText(file, readText(planted("sound.toml")) + more);
}

/// The real program's exit status; its output goes where the words say. -1 when it crashed.
inline int ran(const std::string& words) {
    const int status = std::system((PROGRAM_FOLDER "/ventrel-apt " + words).c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace ventrel
