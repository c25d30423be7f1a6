// Key and value are written in ASCII, so the same search finds them in every encoding of .reg files.
#include "regfile/RegFileCodePage.h"

#include "text/CaseFolding.h"

namespace korvane {
namespace {

constexpr std::string_view kKeyLine = "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Nls\\CodePage]";
constexpr std::string_view kValueStart = "\"acp\"=\"";
constexpr std::string_view kLineEnds = "\r\n";

// The ASCII characters of a line from an offset on, in small letters; what is not ASCII ends it.
std::string lineAt(std::string_view bytes, std::size_t at, std::size_t bytesPerUnit) {
    std::string line;
    for (; at + bytesPerUnit <= bytes.size(); at += bytesPerUnit) {
        const char c = bytes[at];
        const bool isAscii = (c & 0x80) == 0 && (bytesPerUnit == 1 || bytes[at + 1] == '\0');
        if (!isAscii || kLineEnds.find(c) != std::string_view::npos) {
            break;
        }
        line += lowerCase(c);
    }
    return line;
}

// The offset of the next line that is not empty.
std::size_t nextLine(std::string_view bytes, std::size_t at, std::size_t bytesPerUnit) {
    const auto isEndAt = [&](std::size_t where) { return kLineEnds.find(bytes[where]) != std::string_view::npos; };
    while (at < bytes.size() && !isEndAt(at)) {
        at += bytesPerUnit;
    }
    while (at < bytes.size() && isEndAt(at)) {
        at += bytesPerUnit;
    }
    return at;
}

std::optional<std::string> valueInSection(std::string_view bytes, std::size_t at, std::size_t bytesPerUnit) {
    while ((at = nextLine(bytes, at, bytesPerUnit)) < bytes.size() && bytes[at] != '[') {
        const std::string line = lineAt(bytes, at, bytesPerUnit);
        const std::size_t end = line.rfind('"');
        if (line.starts_with(kValueStart) && end >= kValueStart.size()) {
            return line.substr(kValueStart.size(), end - kValueStart.size());
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> codePageNamedIn(std::string_view bytes) {
    const std::size_t bytesPerUnit = bytes.starts_with("\xff\xfe") ? 2 : 1;
    const std::string wanted = lowerCase(kKeyLine);
    for (std::size_t at = bytes.find('['); at != std::string_view::npos; at = bytes.find('[', at + 1)) {
        const bool isUnit = at % bytesPerUnit == 0 && at + wanted.size() * bytesPerUnit <= bytes.size();
        if (isUnit && lineAt(bytes.substr(0, at + wanted.size() * bytesPerUnit), at, bytesPerUnit) == wanted) {
            if (std::optional<std::string> value = valueInSection(bytes, at, bytesPerUnit)) {
                return value;
            }
        }
    }
    return std::nullopt;
}

}  // namespace korvane
