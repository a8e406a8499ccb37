// Golden pictures: what something looked like when somebody last looked at it and was content.
//
// They stand in tests/golden as PNG files. Where a picture differs, the new one and the difference are left
// in the build's tests folder. With VENTREL_RENEW_GOLDEN=1 in the environment the pictures are written anew
// instead: look at them before you keep them.
//
// letters.txt beside them tells the letters that they were drawn with. A machine that draws other letters
// cannot make the same pixels; there a picture only has to be alike, area by area.

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/canvas/bitmap.h"

namespace ventrel {

/// Fails the running test at the caller's line when `actual` differs from tests/golden/NAME.png.
void expectGolden(const Bitmap& actual, std::string_view name, const char* file = __builtin_FILE(),
                  int line = __builtin_LINE());

/// What is wrong, naming the files; empty when the pictures are the same. Differing ones leave
/// NAME.actual.png and NAME.diff.png in `outFolder`.
std::string compareWithGolden(const Bitmap& actual, const std::filesystem::path& golden,
                              const std::filesystem::path& outFolder);

} // namespace ventrel
