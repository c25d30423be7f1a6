// One pass over the text, once for each width of a character. Every function that returns bool answers false after it
// has set the error.
#include "regfile/RegFileScanner.h"

#include <algorithm>
#include <array>
#include <utility>

#include "regfile/RegistryTree.h"
#include "text/CaseFolding.h"
#include "text/Utf.h"

namespace korvane {
namespace {

constexpr std::size_t kQuotedInMessage = 60;

bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }
bool isLineEnd(char16_t c) { return c == u'\r' || c == u'\n'; }

constexpr std::uint8_t kNoDigit = 0xFF;
constexpr std::array<std::uint8_t, 128> kHexDigits = [] {
    std::array<std::uint8_t, 128> digits{};
    digits.fill(kNoDigit);
    for (std::uint8_t i = 0; i < 10; ++i) {
        digits[static_cast<std::size_t>('0' + i)] = i;
    }
    for (std::uint8_t i = 0; i < 6; ++i) {
        digits[static_cast<std::size_t>('a' + i)] = digits[static_cast<std::size_t>('A' + i)] =
            static_cast<std::uint8_t>(10 + i);
    }
    return digits;
}();

std::uint8_t hexDigit(char16_t c) { return c < kHexDigits.size() ? kHexDigits[c] : kNoDigit; }

std::string quoted(std::u16string_view text) {
    return '"' + toUtf8(text.substr(0, kQuotedInMessage)) + (text.size() > kQuotedInMessage ? "...\"" : "\"");
}

// Small and capital letters are the same. The word is in capital letters.
bool isWord(std::u16string_view text, std::string_view word) {
    return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                      [](char16_t c, char w) { return upperCase(c) == static_cast<char16_t>(w); });
}

std::optional<std::size_t> findRoot(std::u16string_view name) {
    for (std::size_t i = 0; i < kRegistryRoots.size(); ++i) {
        if (isWord(name, kRegistryRoots[i].longName) || isWord(name, kRegistryRoots[i].shortName)) {
            return i;
        }
    }
    return std::nullopt;
}

struct OneByte {
    static constexpr std::size_t kWidth = 1;
    static constexpr bool kHasPairs = false;
    static char16_t read(const char* at) { return static_cast<unsigned char>(*at); }
};
struct OneOrTwoBytes : OneByte {
    static constexpr bool kHasPairs = true;
};
struct TwoBytes {
    static constexpr std::size_t kWidth = 2;
    static constexpr bool kHasPairs = false;
    static char16_t read(const char* at) {
        return static_cast<char16_t>(static_cast<unsigned char>(at[0]) | static_cast<unsigned char>(at[1]) << 8);
    }
};

template <class Unit>
class Scanner {
public:
    Scanner(const RegFileText& text, TextRange range, RegFileSink& sink)
        : text_(text), bytes_(text.bytes().data()), at_(range.begin), end_(range.end), sink_(sink) {}

    void skipLine() {
        while (!atLineEnd()) {
            at_ += Unit::kWidth;
        }
        takeLineEnd();
    }

    bool readLine() {
        const std::size_t lineStart = at_;
        skipBlanks();
        if (atLineEnd() || nextIs(u';')) {
            skipLine();
            return true;
        }
        if (take(u'[')) {
            return readKey(lineStart);
        }
        if (nextIs(u'"') || nextIs(u'@')) {
            return readValue(lineStart);
        }
        return fail("the line is neither a key, a value nor a comment");
    }

    std::optional<RegFileError> run() {
        while (!atEnd()) {
            if (!readLine()) {
                return error_;
            }
        }
        return std::nullopt;
    }

private:
    enum class Section : std::uint8_t { None, Key, DeletedKey };

    bool fail(std::string reason) {
        error_ = {line_, std::move(reason)};
        return false;
    }
    bool atEnd() const { return at_ == end_; }
    char16_t here() const { return Unit::read(bytes_ + at_); }
    bool atLineEnd() const { return atEnd() || isLineEnd(here()); }
    bool nextIs(char16_t c) const { return !atEnd() && here() == c; }
    // One letter, in texts and names: the second byte of a pair may look like a bracket or a backslash.
    void skipLetter() {
        const char first = bytes_[at_];
        at_ += Unit::kWidth;
        if constexpr (Unit::kHasPairs) {
            at_ += !atEnd() && text_.form().page.isPair(first, bytes_[at_]) ? Unit::kWidth : 0;
        }
    }
    bool take(char16_t c) {
        const bool found = nextIs(c);
        at_ += found ? Unit::kWidth : 0;
        return found;
    }
    bool takeWord(std::string_view word) {
        const std::size_t before = at_;
        for (const char w : word) {
            if (atEnd() || upperCase(here()) != static_cast<char16_t>(w)) {
                at_ = before;
                return false;
            }
            at_ += Unit::kWidth;
        }
        return true;
    }
    void skipBlanks() {
        while (!atEnd() && isBlank(here())) {
            at_ += Unit::kWidth;
        }
    }
    void takeLineEnd() {
        if (take(u'\r')) {
            take(u'\n');
        } else {
            take(u'\n');
        }
        ++line_;
    }
    // Nothing but a comment may follow an entry.
    bool finishLine() {
        skipBlanks();
        if (!atLineEnd() && !nextIs(u';')) {
            return fail("unexpected text at the end of the line");
        }
        skipLine();
        return true;
    }

    // A key's name may contain closing brackets, so the last one of the line closes it.
    bool readKey(std::size_t lineStart) {
        const bool deletes = take(u'-');
        const std::size_t from = at_;
        std::size_t close = end_;
        for (; !atLineEnd(); skipLetter()) {
            close = here() == u']' ? at_ : close;
        }
        if (close == end_) {
            return fail("the key has no closing bracket");
        }
        at_ = close + Unit::kWidth;
        text_.decode({from, close}, path_);
        std::u16string_view path = path_;
        const std::u16string_view rootName = path.substr(0, path.find(u'\\'));
        path.remove_prefix(std::min(rootName.size() + 1, path.size()));
        if (path.ends_with(u'\\')) {
            path.remove_suffix(1);
        }
        const std::optional<std::size_t> root = findRoot(rootName);
        if (!root) {
            return fail("there is no root key " + quoted(rootName));
        }
        if (!checkPath(path)) {
            return false;
        }
        if (deletes && path.empty()) {
            return fail("a root key cannot be deleted");
        }
        section_ = deletes ? Section::DeletedKey : Section::Key;
        if (!finishLine()) {
            return false;
        }
        sink_.section({lineStart, at_, {from, close}, *root, path, deletes});
        return true;
    }

    bool checkPath(std::u16string_view path) {
        switch (RegistryTree::checkPath(0, path)) {
            case PathFault::None:
                return true;
            case PathFault::EmptyName:
                return fail("the key's path has an empty name in it");
            case PathFault::NameTooLong:
                return fail("a key's name is longer than 255 characters");
            case PathFault::TooDeep:
                break;
        }
        return fail("the key's path has more than 512 levels");
    }

    bool readValue(std::size_t lineStart) {
        if (section_ != Section::Key) {
            return fail(section_ == Section::None ? "the value stands before any key" : "the value's key is deleted");
        }
        RegFileEntry entry;
        entry.name.begin = at_;
        if (!take(u'@') && !skipQuoted()) {
            return false;
        }
        entry.name.end = at_;
        if (entry.name.end - entry.name.begin > kMaxValueName &&
            readEntryName(text_, entry).size() > kMaxValueName) {
            return fail("a value's name is longer than 16383 characters");
        }
        skipBlanks();
        if (!take(u'=')) {
            return fail("there is no equals sign behind the value's name");
        }
        skipBlanks();
        entry.data.begin = at_;
        if (!take(u'-') && !readData(entry)) {
            return false;
        }
        entry.data.end = entry.kind == RegFileEntry::Kind::Bytes ? dataEnd_ : at_;
        if (!finishLine()) {
            return false;
        }
        entry.lines = {lineStart, at_};
        sink_.value(entry);
        return true;
    }

    bool readData(RegFileEntry& entry) {
        if (nextIs(u'"')) {
            entry.kind = RegFileEntry::Kind::Text;
            entry.type = static_cast<std::uint32_t>(ValueType::Sz);
            return skipQuoted();
        }
        if (takeWord("DWORD:")) {
            entry.kind = RegFileEntry::Kind::Dword;
            entry.type = static_cast<std::uint32_t>(ValueType::Dword);
            return skipDword();
        }
        entry.kind = RegFileEntry::Kind::Bytes;
        if (takeWord("HEX:")) {
            entry.type = static_cast<std::uint32_t>(ValueType::Binary);
            return skipBytes();
        }
        if (takeWord("HEX(")) {
            if (!readNumber(entry.type) || !takeWord("):")) {
                return fail("the value's type is not a hexadecimal number in brackets and a colon");
            }
            return skipBytes();
        }
        return fail("the value's data is neither a text, dword: nor hex:");
    }

    // A text between quotes, which may go over several lines.
    bool skipQuoted() {
        const std::size_t firstLine = line_;
        at_ += Unit::kWidth;
        while (!atEnd()) {
            const char16_t c = here();
            if (isLineEnd(c)) {
                takeLineEnd();
                continue;
            }
            skipLetter();
            if (c == u'"') {
                return true;
            }
            if (c == u'\\' && !take(u'\\') && !take(u'"')) {
                return fail("a backslash in a text must be written twice");
            }
        }
        line_ = firstLine;
        return fail("the text has no closing quote");
    }

    // One to eight hexadecimal digits.
    bool readNumber(std::uint32_t& number) {
        const std::size_t from = at_;
        number = 0;
        while (!atEnd() && at_ - from < 8 * Unit::kWidth && hexDigit(here()) != kNoDigit) {
            number = number << 4 | hexDigit(here());
            at_ += Unit::kWidth;
        }
        return at_ != from;
    }

    bool skipDword() {
        skipBlanks();
        std::uint32_t number = 0;
        if (!readNumber(number)) {
            return fail("there is no hexadecimal number behind dword:");
        }
        if (!atEnd() && hexDigit(here()) != kNoDigit) {
            return fail("the number behind dword: has more than eight digits");
        }
        return true;
    }

    // Bytes with commas between them; a backslash at the end of a line continues them on the next.
    bool skipBytes() {
        bool wantsComma = false;
        for (dataEnd_ = at_;; dataEnd_ = at_) {
            skipBlanks();
            if (take(u'\\')) {
                if (!continueOnNextLine()) {
                    return false;
                }
            } else if (atLineEnd() || nextIs(u';')) {
                return true;
            } else if (wantsComma) {
                if (!take(u',')) {
                    return fail("there is no comma between two bytes");
                }
                wantsComma = false;
            } else if (hexDigit(here()) == kNoDigit) {
                return fail("the data is not a list of hexadecimal bytes");
            } else {
                at_ += Unit::kWidth;
                at_ += !atEnd() && hexDigit(here()) != kNoDigit ? Unit::kWidth : 0;
                wantsComma = true;
            }
        }
    }

    bool continueOnNextLine() {
        skipBlanks();
        if (!atLineEnd()) {
            return fail("the backslash is not at the end of the line");
        }
        do {
            skipLine();
            skipBlanks();
        } while (!atEnd() && (atLineEnd() || nextIs(u';')));
        return !atEnd() || fail("the file ends in the middle of a value");
    }

    const RegFileText& text_;
    const char* bytes_;
    std::size_t at_;
    std::size_t end_;
    RegFileSink& sink_;
    std::size_t line_ = 1;
    std::size_t dataEnd_ = 0;  // of the last list of bytes
    Section section_ = Section::None;
    std::u16string path_;
    RegFileError error_;
};

// Calls `scan` with the scanner for the text's encoding.
template <class Scan>
auto withScanner(const RegFileText& text, TextRange range, RegFileSink& sink, Scan scan) {
    if (text.unit() == 2) {
        return scan(Scanner<TwoBytes>(text, range, sink));
    }
    return text.hasPairs() ? scan(Scanner<OneOrTwoBytes>(text, range, sink))
                           : scan(Scanner<OneByte>(text, range, sink));
}

}  // namespace

std::optional<RegFileError> scanRegFile(const RegFileText& text, RegFileSink& sink) {
    return withScanner(text, {text.start(), text.bytes().size()}, sink, [](auto scanner) {
        scanner.skipLine();  // the header
        return scanner.run();
    });
}

void scanSection(const RegFileText& text, TextRange section, RegFileSink& sink) {
    withScanner(text, section, sink, [](auto scanner) { return scanner.run(); });
}

void scanSectionHeader(const RegFileText& text, TextRange section, RegFileSink& sink) {
    withScanner(text, section, sink, [](auto scanner) { return scanner.readLine(); });
}

}  // namespace korvane
