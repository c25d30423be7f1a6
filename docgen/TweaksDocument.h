// Makes docs/TWEAKS.md from the catalogue: every tweak with the registry keys
// and values behind it. A change of the catalogue shows in the committed
// file's difference.
#pragma once

#include <string>

namespace korvane {

std::string makeTweaksDocument();

}  // namespace korvane
