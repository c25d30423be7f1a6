// The one place where texts become output.
#include "cli/Output.h"

#include "cli/SafeText.h"

namespace korvane {

void Output::print(std::string_view lines) { out_ += safeText(lines); }

void Output::print(const JsonWriter& json) { out_ += json.json() + '\n'; }

void Output::complain(std::string_view line) { err_ += safeLine(line) + '\n'; }

void Output::note(std::string_view message) { complain("kmctl: " + std::string(message)); }

ExitStatus Output::fail(const Problem& problem) {
    note(problem.message);
    if (problem.hintsAtHelp) {
        complain("kmctl --help tells more");
    }
    return problem.status;
}

}  // namespace korvane
