// kmctl apart from its main(): a command line in, text and exit status out.
#pragma once

#include <span>
#include <string>

namespace korvane {

// `out` and `err` are what belongs on standard output and standard error. Answers the exit status.
int run(std::span<const std::string> arguments, std::string& out, std::string& err);

}  // namespace korvane
