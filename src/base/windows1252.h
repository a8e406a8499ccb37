// Between the program's single-byte texts (Windows-1252) and the machine's UTF-8.

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ventrel {

/// Every byte as its character; the five bytes that have none become the control characters of their numbers.
std::string toUtf8(std::string_view windows1252);

/// The same for a terminal: control characters, with which a hostile file could take it over, become "?".
/// Line feeds stay.
std::string toTerminal(std::string_view windows1252);

/// Every character as its byte. One that has none, and a broken sequence, becomes `missing`; a `missing` of
/// NUL leaves it out.
std::string fromUtf8(std::string_view utf8, char missing = '?');

/// The Unicode character of a byte.
char32_t toUnicode(char windows1252);

/// Whether the byte is no character that can be shown: the control characters, and the five bytes that have
/// none.
bool isControlCharacter(char windows1252);

/// A path as it is shown to the player.
std::string pathText(const std::filesystem::path& path);

} // namespace ventrel
