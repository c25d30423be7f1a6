// Generates docs/TWEAKS.md from the catalogue: every tweak with its registry keys
// and values. The file is committed, so that a diff shows what a change of the
// catalogue does.
#pragma once

#include <string>

namespace korvane {

std::string makeTweaksDocument();

}  // namespace korvane
