// The files from which English.chm is compiled, besides the pages: contents (.hhc),
// index (.hhk) and project (.hhp).
#pragma once

#include "docgen/HelpPages.h"

namespace korvane {

// For the hand-written and the generated pages together.
std::vector<HelpFile> makeHelpProject(std::span<const HelpFile> guide, std::span<const HelpFile> generated);

}  // namespace korvane
