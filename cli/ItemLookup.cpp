// By number, by exact title, by title.
#include "cli/ItemLookup.h"

#include "text/CaseFolding.h"

#include <vector>

namespace korvane {
namespace {

// Which items have that title, exactly or but for capital letters.
std::vector<int> itemsTitled(const Session& session, std::string_view title, bool exactly) {
    const ItemTable& items = session.items();
    const auto comparable = [&](std::string_view text) { return upperCase(session.encoding().toUtf16(text)); };
    const std::u16string wanted = comparable(title);
    std::vector<int> found;
    for (std::size_t n = 0; n < items.size(); ++n) {
        if (exactly ? items[n].title == title : comparable(items[n].title) == wanted) {
            found.push_back(items[n].id);
        }
    }
    return found;
}

}  // namespace

std::optional<Problem> findItem(const Session& session, const std::string& argument, int& item) {
    const ItemTable& items = session.items();
    if (const std::optional<int> number = wholeNumber(argument)) {
        item = *number;
        return static_cast<std::size_t>(item) < items.size()
                   ? std::nullopt
                   : std::optional(wrongUsage("there is no item " + argument + ": the last one is " +
                                              std::to_string(items.size() - 1)));
    }
    const std::optional<std::string> title = fromArgument(argument, session.encoding());
    std::vector<int> found = title ? itemsTitled(session, *title, true) : std::vector<int>();
    if (title && found.empty()) {
        found = itemsTitled(session, *title, false);
    }
    if (found.size() == 1) {
        item = found.front();
        return std::nullopt;
    }
    std::string message = "no item has the title " + quotedForMessage(argument);
    if (!found.empty()) {
        message = quotedForMessage(argument) + " is the title of several items:";
        for (const int each : found) {
            message += ' ' + std::to_string(each);
        }
    }
    return wrongUsage(message);
}

}  // namespace korvane
