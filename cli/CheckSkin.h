// kmctl check-skin: what is wrong with a skin, for the people who make one.
#pragma once

#include "cli/CommandLine.h"
#include "cli/Problem.h"

#include <string>

namespace korvane {

// Reads the file and the pictures beside it. Every mistake is a line of `err` or, with --json, an entry of the object
// in `out`; without one, `out` says what the file is.
ExitStatus checkSkin(const CommandLine& options, std::string& out, std::string& err);

}  // namespace korvane
