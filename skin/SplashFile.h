// The splash file (docs/SKINS.md): which picture is shown while the program starts.
#pragma once

#include "skin/SkinFile.h"

namespace korvane::skin {

// Reads the text of a splash file and its picture. False with a problem when either is wrong.
bool readSplash(const std::string& name, std::string_view text, const ReadSkinFile& read, Picture& picture,
                SkinProblem& problem);

}  // namespace korvane::skin
