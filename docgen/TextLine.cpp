// Numbers, bytes and keys as text.
#include "docgen/TextLine.h"

#include <algorithm>
#include <charconv>

namespace korvane {

std::string_view shortName(Root root) {
    switch (root) {
        case Root::ClassesRoot: return "HKCR";
        case Root::CurrentUser: return "HKCU";
        case Root::LocalMachine: return "HKLM";
        case Root::Users: return "HKU";
    }
    return {};
}

std::string_view typeName(ValueType type) {
    switch (type) {
        case ValueType::Sz: return "REG_SZ";
        case ValueType::ExpandSz: return "REG_EXPAND_SZ";
        case ValueType::Binary: return "REG_BINARY";
        case ValueType::Dword: return "REG_DWORD";
        default: return {};
    }
}

std::string below(std::string_view key, std::string_view path) {
    std::string result(key);
    if (!path.empty()) {
        result.append("\\").append(path);
    }
    return result;
}

std::string numberText(std::uint32_t number) {
    constexpr std::uint32_t kFirstHexadecimal = 0x10000;
    const bool hexadecimal = number >= kFirstHexadecimal;
    char digits[12];
    char* const end = std::to_chars(digits, digits + sizeof digits, number, hexadecimal ? 16 : 10).ptr;
    std::transform(digits, end, digits, [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return (hexadecimal ? "0x" : "") + std::string(digits, end);
}

std::string byteText(std::span<const std::byte> data) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string result;
    for (const std::byte byte : data) {
        result += result.empty() ? "" : " ";
        result += kDigits[std::to_integer<std::size_t>(byte >> 4)];
        result += kDigits[std::to_integer<std::size_t>(byte & std::byte{15})];
    }
    return result;
}

std::string maskText(std::uint8_t mask) {
    const auto byte = static_cast<std::byte>(mask);
    return "0x" + byteText({&byte, 1});
}

void addKey(Line& line, Root root, std::string_view path, std::string_view created) {
    const std::string existing = below(shortName(root), path);
    line.literal(below(existing, created));
    if (created.empty()) {
        line.words(", opened");
    } else if (path.empty()) {
        line.words(", created");
    } else {
        line.words(", created below ").literal(existing);
    }
}

void addValue(Line& line, std::string_view name, std::string_view alsoName) {
    if (name.empty()) {
        line.words("default value");
    } else {
        line.literal(name);
    }
    if (!alsoName.empty()) {
        line.words(" and ").literal(alsoName);
    }
}

TextLine markedText(std::string_view text) {
    Line line;
    bool literal = false;
    for (std::size_t start = 0; start <= text.size(); literal = !literal) {
        const std::size_t end = std::min(text.find('`', start), text.size());
        const std::string_view part = text.substr(start, end - start);
        literal ? line.literal(part) : line.words(part);
        start = end + 1;
    }
    return line.pieces;
}

std::string windowsVersions(VersionSet versions) {
    struct Named {
        VersionSet version;
        std::string_view name;
    };
    constexpr Named kVersions[] = {{kWin95, "95"},    {kWin98, "98"},     {kWinMe, "Me"},
                                   {kWinNT4, "NT 4"}, {kWin2000, "2000"}, {kWinXP, "XP"}};
    std::string text;
    for (const Named& named : kVersions) {
        if ((versions | named.version) == versions) {
            text.append(text.empty() ? "Windows " : ", ").append(named.name);
        }
    }
    return text;
}

std::string acceptedBy(const Gate& gate) {
    if (!gate.refused.empty()) {
        return "Every Windows but " + windowsVersions(gate.refused).substr(std::string_view("Windows ").size());
    }
    return gate.accepted.empty() ? "Every Windows" : windowsVersions(gate.accepted);
}

}  // namespace korvane
