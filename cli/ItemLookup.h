// Which item an argument means.
#pragma once

#include "cli/Problem.h"
#include "cli/Session.h"

#include <optional>
#include <string>

namespace korvane {

// The argument is an ItemId or a title; where no title is spelled exactly so, capital letters do not matter. `item` is
// set when there is no problem.
std::optional<Problem> findItem(const Session& session, const std::string& argument, int& item);

}  // namespace korvane
