// Every check is one pass over the text, whatever it holds.
#include "skin/SkinText.h"

#include "skin/BitmapFile.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace korvane::skin {
namespace {

constexpr std::size_t kLongestQuotation = 60;

// In every folder Windows opens a device under these names, whatever follows the first dot.
bool isDevice(std::string_view name) {
    const std::string_view stem = trimmed(name.substr(0, name.find('.')));
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

bool SkinLines::next(SkinLine& line) {
    for (IniLine read; lines_.next(read);) {
        if (read.text.starts_with(';')) {
            continue;
        }
        const bool isSection = read.kind == IniLine::Kind::Section && read.behind.empty();
        const bool isEntry = read.kind == IniLine::Kind::Entry && !read.text.starts_with('[');
        line = {.kind = isSection ? SkinLine::Kind::Section : isEntry ? SkinLine::Kind::Entry : SkinLine::Kind::Unclear,
                .number = read.number,
                .name = isSection || isEntry ? read.name : read.text,
                .value = isEntry ? read.value : std::string_view()};
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

}  // namespace korvane::skin
