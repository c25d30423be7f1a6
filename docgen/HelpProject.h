// The files besides the pages from which English.chm is compiled: contents
// (.hhc), index (.hhk) and project (.hhp).
#pragma once

#include "docgen/HelpPages.h"

namespace korvane {

// Of the hand-written pages and the generated ones together.
std::vector<HelpFile> makeHelpProject(std::span<const HelpFile> guide, std::span<const HelpFile> generated);

}  // namespace korvane
