// Comparing names as the platform does where capital letters do not count.
#pragma once

#include <algorithm>
#include <string_view>

namespace korvane {

// Only the letters A to Z are the same as their small ones: no text that is compared so has others.
inline bool equalIgnoringCase(std::string_view left, std::string_view right) {
    constexpr auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::ranges::equal(left, right, {}, lower, lower);
}

}  // namespace korvane
