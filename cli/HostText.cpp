// A text whose page is the system's own goes through unchanged, whatever its bytes are.
#include "cli/HostText.h"

#include "cli/SafeText.h"
#include "regfile/LostLetters.h"
#include "text/Utf.h"

#include <algorithm>

namespace korvane {
namespace {

std::string withLettersShown(std::string text) {
    std::ranges::replace(text, kLostLetter, '?');
    return text;
}

bool isOfHost(const CodePage& page) { return page.number() == CodePage::ofHost().number(); }

std::string numberOf(std::u16string_view letter) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string number = "U+";
    const std::uint32_t code = letter.size() == 2 ? 0x10000U + ((letter[0] & 0x3FFU) << 10) + (letter[1] & 0x3FFU)
                                                  : letter[0];
    for (int shift = code > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4) {
        number += kDigits[code >> shift & 0xF];
    }
    return number;
}

}  // namespace

std::string toUtf8(std::string_view text, const CodePage& page) {
    return withLettersShown(toUtf8(page.toUtf16(text)));
}

std::string toHost(std::string_view text, const CodePage& page) {
    return withLettersShown(isOfHost(page) ? std::string(text) : CodePage::ofHost().toBytes(page.toUtf16(text)));
}

std::string toHostReadably(std::u16string_view text) {
    std::string readable;
    for (std::size_t at = 0; at < text.size();) {
        const std::u16string_view letter = characterAt(text, at);
        at += letter.size();
        const std::optional<std::string> shown = CodePage::ofHost().toBytesExactly(letter);
        readable += shown && letter.front() >= u' ' ? *shown : numberOf(letter);
    }
    return readable;
}

// The code page may be one of one byte, of one or two, or UTF-8.
std::size_t firstHostCharacter(std::string_view text, char32_t& character) {
    const CodePage& host = CodePage::ofHost();
    if (host.number() == CodePage::kUtf8) {
        return firstUtf8Character(text, character);
    }
    const std::u16string units = host.toUtf16(text.substr(0, 2));
    const bool known = units.front() != u'?' || text.front() == '?';
    character = known ? units.front() : kNoCharacter;
    return known && units.size() == 1 ? std::min<std::size_t>(text.size(), 2) : 1;
}

// A file's name may hold any bytes.
std::string fileNameToUtf8(std::string_view name) {
    return toUtf8(fromHost(name).value_or(CodePage::western().toUtf16(name)));
}

std::optional<std::u16string> fromHost(std::string_view argument) {
    const CodePage& host = CodePage::ofHost();
    return host.number() == CodePage::kUtf8 ? fromUtf8(argument) : host.toUtf16(argument);
}

std::optional<std::string> fromArgument(std::string_view argument, const CodePage& page) {
    if (isOfHost(page)) {
        return std::string(argument);
    }
    const std::optional<std::u16string> text = fromHost(argument);
    const bool holdsMark = argument.find(kLostLetter) != std::string_view::npos;
    return text && !holdsMark ? page.toBytesExactly(*text) : std::nullopt;
}

}  // namespace korvane
