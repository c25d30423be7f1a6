// Plain text replacement.
#pragma once

#include <string>
#include <string_view>

namespace korvane {

// Every occurrence, left to right, in one pass whatever the lengths; what was put in is not looked at again. An empty
// `from` replaces nothing.
inline void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    std::size_t at = from.empty() ? std::string::npos : text.find(from);
    if (at == std::string::npos) {
        return;
    }
    std::string result;
    std::size_t done = 0;
    for (; at != std::string::npos; at = text.find(from, done)) {
        result.append(text, done, at - done).append(to);
        done = at + from.size();
    }
    text = result.append(text, done, std::string::npos);
}

}  // namespace korvane
