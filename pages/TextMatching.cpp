// Comparing and converting stored texts.
#include "pages/Bindings.h"

#include <algorithm>
#include <limits>

namespace korvane {
namespace {

bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

}  // namespace

int decimalNumber(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && isSpace(text[at])) {
        ++at;
    }
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        ++at;
    }
    constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<int>::max()} + 1;
    std::int64_t number = 0;
    for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
        number = std::min(number * 10 + (text[at] - '0'), kLimit);
    }
    return static_cast<int>(negative ? -number : std::min(number, kLimit - 1));
}

bool matches(std::string_view stored, std::string_view wanted, Compare compare) {
    switch (compare) {
        case Compare::Exact: return stored == wanted;
        case Compare::IgnoreCase: return equalIgnoringCase(stored, wanted);
        case Compare::Contains: return stored.find(wanted) != std::string_view::npos;
        case Compare::AsNumber: return decimalNumber(stored) == decimalNumber(wanted);
    }
    return false;
}

}  // namespace korvane
