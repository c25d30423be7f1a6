// What the platform answered for a character is kept, so that converting is a look-up in a table: a .reg file of a
// hundred megabytes may consist of such text.
#include "text/CodePage.h"

#include "text/PlatformCodePage.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace korvane {
namespace {

// The pages of systems have numbers in this range. Those outside are of other machines, keep a state between letters,
// or stand for whatever page the running system has.
constexpr unsigned kFirstSystemPage = 437;
constexpr unsigned kLastSystemPage = 1361;
constexpr std::size_t kAllUnits = 0x10000;
constexpr unsigned char kFirstSecondByte = '0';
constexpr char16_t kUndefined = u'?';

unsigned byteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

std::u16string fromDamagedUtf8(std::string_view text) {
    std::u16string out;
    for (;;) {
        std::size_t faultAt = 0;
        if (const std::optional<std::u16string> whole = fromUtf8(text, &faultAt)) {
            return out += *whole;
        }
        out += *fromUtf8(text.substr(0, faultAt));
        out += u'\uFFFD';
        text.remove_prefix(faultAt + 1);
    }
}

}  // namespace

// The bytes of a character are kept as one number, the first of two being the higher: a number below 0x100 is one byte.
class CodePage::Table {
public:
    Table(unsigned number, std::unique_ptr<PlatformCodePage> platform)
        : number_(number), platform_(std::move(platform)), bytes_(kAllUnits, kNotAsked) {
        for (unsigned byte = 0; byte < singles_.size(); ++byte) {
            const char character = static_cast<char>(byte);
            isLead_[byte] = byte >= 0x80 && platform_ != nullptr && platform_->isLeadByte(character);
            singles_[byte] = byte < 0x80 ? static_cast<char16_t>(byte) : askUnit({&character, 1});
        }
    }

    unsigned number() const { return number_; }

    // Whether the platform takes the bytes below 128 for the characters of ASCII, too.
    bool holdsAscii() const {
        for (char c = ' '; c <= '~'; ++c) {
            if (platform_->unitOf({&c, 1}) != static_cast<char16_t>(c)) {
                return false;
            }
        }
        return true;
    }

    bool hasPairs() const { return std::ranges::find(isLead_, true) != isLead_.end(); }
    bool isPair(char first, char second) const {
        return isLead_[static_cast<unsigned char>(first)] && static_cast<unsigned char>(second) >= kFirstSecondByte;
    }

    std::u16string toUtf16(std::string_view text) {
        std::u16string out;
        out.reserve(text.size());
        for (std::size_t at = 0; at < text.size(); ++at) {
            const unsigned byte = byteAt(text, at);
            if (!isLead_[byte]) {
                out += singles_[byte];
            } else if (at + 1 == text.size() || !isPair(text[at], text[at + 1])) {
                out += kUndefined;  // half a character: a zero, line end or quotation mark behind it keeps its meaning
            } else {
                out += pair(byte << 8 | byteAt(text, ++at));
            }
        }
        return out;
    }

    // Appends the character's bytes; false when it has no place.
    bool append(std::string& out, char16_t unit) {
        if (unit < 0x80) {
            out += static_cast<char>(unit);
            return true;
        }
        std::uint16_t& bytes = bytes_[unit];
        if (bytes == kNotAsked) {
            bytes = askBytes(unit);
        }
        if (bytes == kNoPlace) {
            return false;
        }
        if (bytes > 0xFF) {
            out += static_cast<char>(bytes >> 8);
        }
        out += static_cast<char>(bytes & 0xFF);
        return true;
    }

private:
    static constexpr std::uint16_t kNotAsked = 0;  // neither number is needed otherwise: both are ASCII
    static constexpr std::uint16_t kNoPlace = 1;

    char16_t askUnit(std::string_view character) const {
        return platform_ != nullptr ? platform_->unitOf(character).value_or(kUndefined) : kUndefined;
    }

    char16_t pair(unsigned bytes) {
        if (pairs_.empty()) {
            pairs_.resize(kAllUnits);
        }
        char16_t& unit = pairs_[bytes];
        if (unit == 0) {
            const char character[] = {static_cast<char>(bytes >> 8), static_cast<char>(bytes)};
            unit = askUnit({character, 2});
        }
        return unit;
    }

    // The platform answers with similar letters, too, and joins letters with accents: only what reads the same again
    // counts.
    std::uint16_t askBytes(char16_t unit) {
        const std::string bytes = platform_ != nullptr ? platform_->bytesOf(unit) : std::string();
        if (bytes.empty() || toUtf16(bytes) != std::u16string_view(&unit, 1)) {
            return kNoPlace;
        }
        const unsigned number = bytes.size() == 2 ? byteAt(bytes, 0) << 8 | byteAt(bytes, 1) : byteAt(bytes, 0);
        return static_cast<std::uint16_t>(number);
    }

    unsigned number_;
    std::unique_ptr<PlatformCodePage> platform_;
    std::array<bool, 0x100> isLead_{};
    std::array<char16_t, 0x100> singles_{};
    std::vector<char16_t> pairs_;       // by the bytes' number; 0: not asked yet
    std::vector<std::uint16_t> bytes_;  // by unit
};

std::optional<CodePage> CodePage::open(unsigned number) {
    if (number == kUtf8) {
        return CodePage(std::make_shared<Table>(number, nullptr));
    }
    const bool isSystemPage = number >= kFirstSystemPage && number <= kLastSystemPage;
    auto platform = isSystemPage ? openPlatformCodePage(number) : nullptr;
    if (platform == nullptr) {
        return std::nullopt;
    }
    auto table = std::make_shared<Table>(number, std::move(platform));
    return table->holdsAscii() ? std::optional(CodePage(std::move(table))) : std::nullopt;
}

// Where even this page is missing ASCII remains: all else has no place, which shows, and is never written.
const CodePage& CodePage::western() {
    static const CodePage page = open(kWestern).value_or(CodePage(std::make_shared<Table>(kWestern, nullptr)));
    return page;
}

const CodePage& CodePage::ofHost() {
    static const CodePage page = open(hostCodePage()).value_or(western());
    return page;
}

unsigned CodePage::number() const { return table_->number(); }
bool CodePage::hasPairs() const { return table_->hasPairs(); }
bool CodePage::isPair(char first, char second) const { return table_->isPair(first, second); }

std::u16string CodePage::toUtf16(std::string_view text) const {
    return number() == kUtf8 ? fromDamagedUtf8(text) : table_->toUtf16(text);
}

bool CodePage::append(std::string& bytes, std::u16string_view character) const {
    if (number() != kUtf8) {
        return character.size() == 1 && table_->append(bytes, character.front());
    }
    const bool hasPlace = isWellFormed(character);
    bytes += hasPlace ? toUtf8(character) : "";
    return hasPlace;
}

std::string CodePage::toBytes(std::u16string_view text, char standIn) const {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::u16string_view character = characterAt(text, at);
        at += character.size();
        if (!append(bytes, character)) {
            bytes.append(character.size(), standIn);
        }
    }
    return bytes;
}

std::optional<std::string> CodePage::toBytesExactly(std::u16string_view text) const {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::u16string_view character = characterAt(text, at);
        at += character.size();
        if (!append(bytes, character)) {
            return std::nullopt;
        }
    }
    return bytes;
}

std::u16string CodePage::lettersWithoutPlace(std::u16string_view text) const {
    std::u16string letters;
    for (std::size_t at = 0; at < text.size();) {
        const std::u16string_view character = characterAt(text, at);
        at += character.size();
        std::string ignored;
        if (!append(ignored, character) && letters.find(character) == std::u16string::npos) {
            letters += character;
        }
    }
    return letters;
}

}  // namespace korvane
