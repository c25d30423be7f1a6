// Every check is one pass over the text, whatever it holds.
#include "skin/SkinText.h"

#include "skin/BitmapFile.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace korvane::skin {
namespace {

// The end-of-file character of DOS (0x1A) counts as white space.
constexpr std::string_view kWhiteSpace = " \t\v\f\x1a";
constexpr std::size_t kLongestQuotation = 60;

// In every folder Windows opens a device under these names, whatever follows the first dot.
bool isDevice(std::string_view name) {
    const std::string_view stem = withoutBlanks(name.substr(0, name.find('.')));
    constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL"};
    if (std::ranges::any_of(kDevices, [&](std::string_view device) { return equalIgnoringCase(stem, device); })) {
        return true;
    }
    return stem.size() == 4 && (equalIgnoringCase(stem.substr(0, 3), "COM") || equalIgnoringCase(stem.substr(0, 3), "LPT")) &&
           stem[3] >= '0' && stem[3] <= '9';
}

// Pictures are read from the skin's own folder alone.
bool isPlainFileName(std::string_view name) {
    const bool hasStrangeCharacter = std::ranges::any_of(name, [](char c) {
        return static_cast<unsigned char>(c) < ' ' || std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    });
    return !hasStrangeCharacter && name.find("..") == std::string_view::npos && !isDevice(name);
}

// The line of the Format key in the first section of that name; nullopt when there is none.
std::optional<SkinLine> findFormat(std::string_view text, std::string_view section) {
    SkinLines lines(text);
    bool inSection = false;
    for (SkinLine line; lines.next(line);) {
        if (line.kind == SkinLine::Kind::Section) {
            if (inSection) {
                return std::nullopt;
            }
            inSection = equalIgnoringCase(line.name, section);
        } else if (inSection && line.kind == SkinLine::Kind::Entry && equalIgnoringCase(line.name, "Format")) {
            return line;
        }
    }
    return std::nullopt;
}

// Why this is no text of either kind; empty if it may be one.
std::string whyNoText(std::string_view text) {
    if (text.size() > kLongestSkinFile) {
        return "is longer than 16 MB";
    }
    if (text.empty()) {
        return "is empty";
    }
    if (text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff")) {
        return "is saved as UTF-16: save it as ANSI or UTF-8";
    }
    return text.find('\0') != std::string_view::npos ? "is no text" : "";
}

}  // namespace

std::string_view SkinLines::takeLine() {
    ++number_;
    const auto* end = std::ranges::find_if(rest_, [](char c) { return c == '\n' || c == '\r'; });
    const std::string_view line = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(line.size());
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest_.size(), 1));
    return line;
}

bool SkinLines::next(SkinLine& line) {
    while (!rest_.empty()) {
        const std::string_view text = withoutBlanks(takeLine());
        if (text.empty() || text.starts_with(';')) {
            continue;
        }
        const std::size_t equals = text.find('=');
        if (text.starts_with('[') && text.ends_with(']')) {
            const std::string_view name = withoutBlanks(text.substr(1, text.size() - 2));
            line = {.kind = SkinLine::Kind::Section, .number = number_, .name = name};
        } else if (text.starts_with('[') || equals == std::string_view::npos) {
            line = {.kind = SkinLine::Kind::Unclear, .number = number_, .name = text};
        } else {
            line = {.kind = SkinLine::Kind::Entry,
                    .number = number_,
                    .name = withoutBlanks(text.substr(0, equals)),
                    .value = withoutBlanks(text.substr(equals + 1))};
        }
        return true;
    }
    return false;
}

bool checkSkinText(const std::string& name, std::string_view section, std::string_view& text, SkinProblem& problem) {
    std::string reason = whyNoText(text);
    std::optional<SkinLine> format;
    if (reason.empty()) {
        constexpr std::string_view kUtf8Mark = "\xef\xbb\xbf";
        text.remove_prefix(text.starts_with(kUtf8Mark) ? kUtf8Mark.size() : 0);
        format = findFormat(text, section);
        if (!format) {
            reason = "is no " + std::string(equalIgnoringCase(section, "Skin") ? "skin" : "splash") +
                     ": there is no Format=1 in a section [" + std::string(section) + "]";
        } else if (format->value != "1") {
            reason = "Format: " + quotedPart(format->value) + " is not known, only 1 is";
        }
    }
    if (reason.empty()) {
        return true;
    }
    problem = {name, format ? format->number : 0, std::move(reason)};
    return false;
}

std::string readSkinPicture(std::string_view name, const ReadSkinFile& read, Picture& picture) {
    if (!isPlainFileName(name)) {
        return quotedPart(name) + " is no name of a file beside this one";
    }
    const std::optional<std::string> content = read(std::string(name));
    if (!content || content->size() > kLongestSkinFile) {
        return quotedPart(name) + " cannot be read, or is longer than 16 MB";
    }
    const std::string wrong = readBitmap(*content, picture);
    return wrong.empty() ? wrong : quotedPart(name) + ' ' + wrong;
}

std::string quotedPart(std::string_view text) {
    std::string quoted = "\"";
    quoted += text.substr(0, kLongestQuotation);
    std::ranges::replace_if(quoted, [](char c) { return c < ' ' || c > '~'; }, '?');
    return quoted += text.size() > kLongestQuotation ? "...\"" : "\"";
}

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

}  // namespace korvane::skin
