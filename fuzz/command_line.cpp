// Fuzz target: arguments, one a line. Whatever they are, they are either understood, with every member within its
// range, or refused with one line, which a terminal can show as it is printed.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <variant>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/SafeText.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void checkUnderstood(const korvane::CommandLine& line) {
    using korvane::Command;
    const bool asks = line.command == Command::Help || line.command == Command::Version;
    const bool checksSkin = line.command == Command::CheckSkin;
    require(asks || line.command == Command::List || !(checksSkin ? line.skinFile : line.item).empty());
    require(!checksSkin || (!line.registry && !line.programFolder && !line.all));
    require(asks || line.registry || (!line.windows && !line.drives && !line.windowsFolder && !line.appDataFolder));
    require(line.assignments.empty() || line.command == Command::Apply);
    for (const korvane::Assignment& assignment : line.assignments) {
        require(assignment.control >= 0 && assignment.row.value_or(0) >= 0);
    }
    if (line.drives) {
        require(!line.drives->empty() && line.drives->size() <= 26);
        require(std::ranges::adjacent_find(*line.drives, std::ranges::greater_equal(), &korvane::Drive::root) ==
                line.drives->end());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> arguments;
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        arguments.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    const auto parsed = korvane::parseCommandLine(arguments);
    if (const auto* error = std::get_if<korvane::UsageError>(&parsed)) {
        require(!error->message.empty());
        const std::string shown = korvane::safeLine(error->message);
        require(std::ranges::none_of(shown, [](unsigned char c) { return c < ' ' || c == 0x7F; }));
    } else {
        checkUnderstood(std::get<korvane::CommandLine>(parsed));
    }
    return 0;
}
