// A record of the date file is korvane("TITLE",M/D/YYYY) on a line of its own:
// its date stands behind the first comma, its title between the first two
// quotation marks.
#include "lang/TitleRules.h"

#include <map>
#include <string_view>

namespace korvane {
namespace {

struct Rule {
    std::string_view characters;
    const char* reason;
};

constexpr Rule kForbidden[] = {
    {",", "contains a comma"},
    {"\"", "contains a quotation mark"},
    {"\r\n", "contains a new line"},
};

}  // namespace

std::vector<TitleProblem> titleProblems(std::span<const std::string> titles, std::span<const std::string> builtIn) {
    std::vector<TitleProblem> problems;
    std::map<std::string_view, std::size_t> seen;
    for (std::size_t id = 0; id < titles.size(); ++id) {
        const int item = static_cast<int>(id);
        for (const Rule& rule : kForbidden) {
            if (titles[id].find_first_of(rule.characters) != std::string::npos) {
                problems.push_back({item, rule.reason});
            }
        }
        const auto [first, isNew] = seen.try_emplace(titles[id], id);
        if (!isNew && builtIn[first->second] != builtIn[id]) {
            problems.push_back({item, "is also the title of item " + std::to_string(first->second)});
        }
    }
    return problems;
}

}  // namespace korvane
