// The commands of kmctl, one file each. A command writes what it found or did
// to the output and answers how the run ends.
#pragma once

#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/Problem.h"

namespace korvane {

ExitStatus listCommand(const CommandLine& options, Output& output);
ExitStatus showCommand(const CommandLine& options, Output& output);
ExitStatus applyCommand(const CommandLine& options, Output& output);
// Needs no registry. Every mistake of the skin is a line for a person or, with --json, an entry of the object.
ExitStatus checkSkinCommand(const CommandLine& options, Output& output);

}  // namespace korvane
