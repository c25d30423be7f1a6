// Reading the files of expected effects.
#include "tests/catalogue/EffectsFile.h"

#include "text/WholeFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace korvane {
namespace {

int numberIn(const std::string& text) { return std::atoi(text.c_str()); }

// Macros stand in the files before their use and name earlier ones only; longer names go first.
std::string expanded(std::string text, const std::map<std::string, std::string>& macros) {
    for (auto macro = macros.rbegin(); macro != macros.rend(); ++macro) {
        for (std::size_t at = 0; (at = text.find('$' + macro->first, at)) != std::string::npos;) {
            text.replace(at, macro->first.size() + 1, macro->second);
        }
    }
    return text;
}

// Where the rest of the text, outside quotation marks, is first one that was looked for.
template <typename Found>
std::size_t findOutsideQuotes(std::string_view text, const Found& found) {
    char quote = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (quote == 0 && found(text.substr(at))) {
            return at;
        }
        quote = quote == c ? '\0' : quote == 0 && (c == '"' || c == '\'') ? c : quote;
    }
    return text.size();
}

EffectPair parsePair(std::string_view type, const std::string& text) {
    const std::size_t at =
        findOutsideQuotes(text, [](std::string_view rest) { return rest.find_first_of("=<>") == 0; });
    EXPECT_LT(at, text.size()) << "not a pair of state and data: " << text;
    return {.state = withoutQuotes(text.substr(0, at)),
            .isShown = text[at] != '>',
            .isWritten = text[at] != '<',
            .data = parseEffectData(type, text.substr(std::min(at + 1, text.size())))};
}

std::string numberBytes(std::uint32_t number) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) {
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
    }
    return bytes;
}

// "HKCU&HKLM\opened + created" is one key for each root.
std::vector<EffectLine> parseKeys(const std::string& text, const std::set<std::string>& windows, int place) {
    const std::size_t plus = std::min(text.find(" + "), text.size());
    const std::size_t slash = std::min(text.find('\\'), plus);
    std::vector<EffectLine> keys;
    for (const std::string& root : splitOutsideQuotes(text.substr(0, std::min(slash, plus)), "&")) {
        keys.push_back({.windows = windows,
                        .place = place++,
                        .root = root,
                        .opened = slash < plus ? text.substr(slash + 1, plus - slash - 1) : "",
                        .created = plus < text.size() ? text.substr(plus + 3) : ""});
    }
    return keys;
}

// "1013,1018 Name type pairs" stands in as many keys as it names controls, or with its one control in all of them.
void addLine(EffectItem& item, const std::vector<EffectLine>& keys, const std::vector<std::string>& words) {
    ASSERT_GE(words.size(), 4u);
    const std::vector<std::string> controls = splitOutsideQuotes(words[0], ",");
    for (std::size_t i = 0; i < keys.size(); ++i) {
        EffectLine line = keys[i];
        line.control = numberIn(controls[std::min(i, controls.size() - 1)]);
        line.name = words[1] == "@" ? std::string() : withoutQuotes(words[1]);
        for (std::size_t word = 3; word < words.size(); ++word) {
            line.pairs.push_back(parsePair(words[2], words[word]));
        }
        item.lines.push_back(line);
    }
    std::ranges::stable_sort(item.lines, {}, &EffectLine::place);
}

EffectItem parseHeader(const std::vector<std::string>& words, int line) {
    EffectItem item;
    item.id = numberIn(words[0]);
    item.line = line;
    item.putsBack = std::ranges::count(words, "putback") != 0;
    item.datedWhenOpen = std::ranges::count(words, "late") != 0;
    const std::size_t slash = words.size() < 2 ? std::string::npos : words[1].find('/');
    if (slash != std::string::npos) {
        item.accepted = windowsNamed(words[1].substr(0, slash));
        item.alert = numberIn(words[1].substr(slash + 1));
    }
    return item;
}

}  // namespace

std::vector<std::string> splitOutsideQuotes(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    while (!text.empty()) {
        const std::size_t end = findOutsideQuotes(text, [&](auto rest) { return rest.starts_with(separator); });
        pieces.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + separator.size(), text.size()));
    }
    std::erase(pieces, "");
    return pieces;
}

std::string withoutQuotes(std::string_view text) {
    const bool quoted = text.size() >= 2 && (text[0] == '"' || text[0] == '\'') && text.back() == text[0];
    return std::string(quoted ? text.substr(1, text.size() - 2) : text);
}

EffectData parseEffectData(std::string_view type, std::string_view text) {
    using Does = EffectData::Does;
    const std::size_t colon = std::min(text.find(':'), text.size() - 1);
    for (const std::string_view other : {"dword:", "sz:", "expand:", "hex:"}) {
        if (text.substr(0, colon + 1) == other) {
            return parseEffectData(other.substr(0, colon), text.substr(colon + 1));
        }
    }
    if (text.starts_with('?')) {  // "?2005", or "??2005" without a date
        const std::size_t number = text.find_first_not_of('?');
        return {.does = Does::Nothing, .alert = numberIn(std::string(text.substr(number))), .dated = number == 1};
    }
    if (text == "!" || text == "-" || text == "--") {
        return {.does = text == "!" ? Does::Nothing : text == "-" ? Does::Deletes : Does::DeletesByPath};
    }
    const std::string plain = withoutQuotes(text);
    if (type == "dword") {
        return {.type = ValueType::Dword,
                .bytes = numberBytes(static_cast<std::uint32_t>(std::strtoll(plain.c_str(), nullptr, 0)))};
    }
    if (type == "hex") {
        EffectData data{.type = ValueType::Binary};
        for (const std::string& byte : splitOutsideQuotes(plain, ",")) {
            data.bytes += static_cast<char>(std::strtol(byte.c_str(), nullptr, 16));
        }
        return data;
    }
    EXPECT_TRUE(type == "sz" || type == "expand") << "no type: " << type;
    return {.type = type == "sz" ? ValueType::Sz : ValueType::ExpandSz, .bytes = plain};
}

std::set<std::string> windowsNamed(std::string_view names) {
    std::set<std::string> found;
    for (const std::string& name : splitOutsideQuotes(names, ",")) {
        const std::string_view each = name == "nt"   ? "nt4,2000,xp,2003"
                                      : name == "9x" ? "95,98,me"
                                      : name == "xp" ? "xp,2003"
                                                     : std::string_view(name);
        for (const std::string& version : splitOutsideQuotes(each, ",")) {
            found.insert(version);
        }
    }
    return found;
}

std::vector<EffectItem> readEffects(const std::string& path, std::map<std::string, std::string>& macros) {
    std::string text;
    EXPECT_TRUE(readWholeFile(path, 1 << 20, text)) << path;
    std::vector<EffectItem> items;
    std::vector<EffectLine> keys;
    std::set<std::string> windows;
    int number = 0;
    for (std::size_t start = 0, end = 0; start < text.size(); start = end + 1) {
        end = std::min(text.find('\n', start), text.size());
        const std::string line = expanded(text.substr(start, end - start), macros);
        SCOPED_TRACE(path + ':' + std::to_string(++number) + ' ' + line);
        const std::vector<std::string> words = splitOutsideQuotes(line);
        // What stands behind the first words.
        const auto behind = [&](std::size_t count) {
            std::size_t at = line.find(words[0]);
            for (; count > 0; --count) {
                at = line.find_first_not_of(' ', std::min(line.find(' ', at), line.size() - 1));
            }
            return line.substr(at);
        };
        if (words.empty() || words[0].starts_with('#')) {
            continue;
        }
        if (text[start] == '$') {
            macros[text.substr(start + 1, text.find(' ', start) - start - 1)] = line.substr(line.find(" = ") + 3);
        } else if (line[0] != ' ') {
            items.push_back(parseHeader(words, number));
            windows.clear();
        } else if (words[0] == "on") {
            windows = windowsNamed(words.at(1));
        } else if (words[0].starts_with("HK")) {
            keys = parseKeys(behind(0), windows, items.back().lines.empty() ? 0 : items.back().lines.back().place + 1);
        } else if (words[0] == "entries") {
            items.back().entries[numberIn(words.at(1))] = behind(2);
        } else if (words[0] == "case") {
            items.back().cases.push_back(behind(1));
        } else {
            addLine(items.back(), keys, words);
        }
    }
    return items;
}

}  // namespace korvane
