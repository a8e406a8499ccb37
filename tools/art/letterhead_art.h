// The head of the press release's page.

#pragma once

#include <string>

namespace ventrel::art {

/// 250 x 100 pixels on the page's white: the seal and the name of the office that tells the press.
std::string drawLetterhead();

} // namespace ventrel::art
