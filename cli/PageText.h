// A page as lines of text, for people.
#pragma once

#include "cli/Session.h"

#include <string>

namespace korvane {

// In the code page of the program's texts.
std::string pageText(const PageView& view);

}  // namespace korvane
