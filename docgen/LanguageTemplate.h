// The language file with the program's own texts, the start of a translation.
#pragma once

#include <string>

namespace korvane {

// The whole file, with CR LF line ends. A text that the format cannot hold (a lone carriage return, a backslash before
// "n" or "t") is left out.
std::string makeLanguageTemplate();

}  // namespace korvane
