// What a title may hold. Titles are the keys of the date file, one line for
// each, so a translation that breaks these rules loses dates.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace korvane {

struct TitleProblem {
    int item;
    std::string reason;  // "contains a comma"
};

// Of all titles in ItemId order, as a language file has left them, those that break a rule. `builtIn` are the program's
// own: where two of those are the same, their translations may be so as well. Both are equally long.
std::vector<TitleProblem> titleProblems(std::span<const std::string> titles, std::span<const std::string> builtIn);

}  // namespace korvane
