// Reading .reg text. The text is gone through twice, once to check it and once to apply it: so an error leaves the
// registry untouched, and no list of pending changes is held beside a file that may be large.
#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "text/Codepage.h"
#include "regfile/RegFile.h"
#include "regfile/RegFileText.h"

namespace korvane {
namespace {

constexpr std::size_t kQuotedInMessage = 60;

bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }
bool isLineEnd(char16_t c) { return c == u'\r' || c == u'\n'; }

std::optional<unsigned> hexDigit(char16_t c) {
    if (c >= u'0' && c <= u'9') {
        return c - u'0';
    }
    const char16_t upper = upperCase(c);
    if (upper >= u'A' && upper <= u'F') {
        return upper - u'A' + 10U;
    }
    return std::nullopt;
}

std::string quoted(std::u16string_view text) {
    return '"' + toUtf8(text.substr(0, kQuotedInMessage)) + (text.size() > kQuotedInMessage ? "...\"" : "\"");
}

std::optional<std::size_t> findRoot(std::u16string_view name) {
    const std::string upper = toAnsi(upperCase(name));
    const auto* found = std::find_if(kRegistryRoots.begin(), kRegistryRoots.end(), [&](const RegistryRootName& root) {
        return upper == root.longName || upper == root.shortName;
    });
    if (found == kRegistryRoots.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - kRegistryRoots.begin());
}

// One pass over the text. Every function that returns bool answers false after it has set the error.
class Reader {
public:
    // Without a tree the text is only checked.
    Reader(std::u16string_view text, RegFileHeader header, RegistryTree* tree)
        : text_(text), header_(header), tree_(tree) {}

    std::optional<RegFileError> run() {
        skipLine();  // the header
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
    bool atEnd() const { return at_ == text_.size(); }
    bool atLineEnd() const { return atEnd() || isLineEnd(text_[at_]); }
    bool nextIs(char16_t c) const { return !atEnd() && text_[at_] == c; }
    bool take(char16_t c) {
        const bool found = nextIs(c);
        at_ += found ? 1U : 0U;
        return found;
    }
    // Small and capital letters are the same.
    bool takeWord(std::u16string_view word) {
        const auto same = [](char16_t a, char16_t b) { return upperCase(a) == upperCase(b); };
        const std::u16string_view next = text_.substr(at_, word.size());
        const bool found = std::equal(next.begin(), next.end(), word.begin(), word.end(), same);
        at_ += found ? word.size() : 0U;
        return found;
    }
    void skipBlanks() {
        while (!atEnd() && isBlank(text_[at_])) {
            ++at_;
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
    void skipLine() {
        while (!atLineEnd()) {
            ++at_;
        }
        takeLineEnd();
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

    bool readLine() {
        skipBlanks();
        if (atLineEnd() || nextIs(u';')) {
            skipLine();
            return true;
        }
        if (take(u'[')) {
            return readKey();
        }
        if (nextIs(u'"') || nextIs(u'@')) {
            return readValue();
        }
        return fail("the line is neither a key, a value nor a comment");
    }

    // A key's name may contain closing brackets, so the last one of the line closes it.
    bool readKey() {
        const std::size_t lineEnd = std::min(text_.find_first_of(u"\r\n", at_), text_.size());
        const std::size_t close = text_.substr(0, lineEnd).rfind(u']');
        if (close == std::u16string_view::npos || close < at_) {
            return fail("the key has no closing bracket");
        }
        const bool deletes = take(u'-');
        std::u16string_view path = text_.substr(at_, close - at_);
        at_ = close + 1;
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
        if (tree_ != nullptr) {
            applyKey(tree_->root(*root), path);
        }
        return finishLine();
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

    void applyKey(const std::shared_ptr<RegistryKey>& root, std::u16string_view path) {
        if (section_ == Section::DeletedKey) {
            key_ = RegistryTree::find(root, path);
            if (key_ != nullptr) {
                key_->parent()->removeSubkey(key_->name());
            }
            return;
        }
        key_ = RegistryTree::create(root, path, true);
        if (key_->fileOrder == 0) {
            key_->fileOrder = ++tree_->lastFileOrder;
        }
    }

    bool readValue() {
        if (section_ != Section::Key) {
            return fail(section_ == Section::None ? "the value stands before any key" : "the value's key is deleted");
        }
        std::u16string name;
        if (!take(u'@') && !readQuoted(name)) {
            return false;
        }
        if (name.size() > kMaxValueName) {
            return fail("a value's name is longer than 16383 characters");
        }
        skipBlanks();
        if (!take(u'=')) {
            return fail("there is no equals sign behind the value's name");
        }
        skipBlanks();
        if (take(u'-')) {
            if (tree_ != nullptr) {
                key_->removeValue(name);
            }
            return finishLine();
        }
        std::uint32_t type = 0;
        std::vector<std::byte> data;
        if (!readData(type, data)) {
            return false;
        }
        if (tree_ != nullptr) {
            key_->setValue(name, type, std::move(data));
        }
        return finishLine();
    }

    bool readData(std::uint32_t& type, std::vector<std::byte>& data) {
        if (nextIs(u'"')) {
            type = static_cast<std::uint32_t>(ValueType::Sz);
            return readText(data);
        }
        if (takeWord(u"dword:")) {
            type = static_cast<std::uint32_t>(ValueType::Dword);
            return readDword(data);
        }
        if (takeWord(u"hex:")) {
            type = static_cast<std::uint32_t>(ValueType::Binary);
            return readBytes(data);
        }
        if (takeWord(u"hex(")) {
            if (!readNumber(type) || !takeWord(u"):")) {
                return fail("the value's type is not a hexadecimal number in brackets and a colon");
            }
            if (!readBytes(data)) {
                return false;
            }
            if (header_ == RegFileHeader::Regedit4 && holdsText(type)) {
                data = widened(data);
            }
            return true;
        }
        return fail("the value's data is neither a text, dword: nor hex:");
    }

    // A text between quotes, which may go over several lines.
    bool readQuoted(std::u16string& out) {
        const std::size_t firstLine = line_;
        ++at_;
        while (!atEnd()) {
            const char16_t c = text_[at_];
            if (c == u'"') {
                ++at_;
                return true;
            }
            if (c == u'\\') {
                ++at_;
                if (!nextIs(u'\\') && !nextIs(u'"')) {
                    return fail("a backslash in a text must be written twice");
                }
                out += text_[at_++];
            } else if (isLineEnd(c)) {
                const std::size_t from = at_;
                takeLineEnd();
                out += text_.substr(from, at_ - from);
            } else {
                out += c;
                ++at_;
            }
        }
        line_ = firstLine;
        return fail("the text has no closing quote");
    }

    bool readText(std::vector<std::byte>& data) {
        std::u16string text;
        if (!readQuoted(text)) {
            return false;
        }
        text += u'\0';
        data = toStored(text);
        return true;
    }

    // One to eight hexadecimal digits.
    bool readNumber(std::uint32_t& number) {
        const std::size_t from = at_;
        number = 0;
        while (!atEnd() && at_ - from < 8 && hexDigit(text_[at_])) {
            number = number << 4 | *hexDigit(text_[at_++]);
        }
        return at_ != from;
    }

    bool readDword(std::vector<std::byte>& data) {
        skipBlanks();
        std::uint32_t number = 0;
        if (!readNumber(number)) {
            return fail("there is no hexadecimal number behind dword:");
        }
        if (!atEnd() && hexDigit(text_[at_])) {
            return fail("the number behind dword: has more than eight digits");
        }
        for (int shift = 0; shift < 32; shift += 8) {
            data.push_back(static_cast<std::byte>(number >> shift & 0xFF));
        }
        return true;
    }

    // Bytes with commas between them; a backslash at the end of a line continues them on the next.
    bool readBytes(std::vector<std::byte>& data) {
        bool wantsComma = false;
        for (;;) {
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
            } else if (!readByte(data)) {
                return false;
            } else {
                wantsComma = true;
            }
        }
    }

    bool readByte(std::vector<std::byte>& data) {
        const std::optional<unsigned> high = hexDigit(text_[at_]);
        if (!high) {
            return fail("the data is not a list of hexadecimal bytes");
        }
        ++at_;
        const std::optional<unsigned> low = atEnd() ? std::nullopt : hexDigit(text_[at_]);
        at_ += low ? 1U : 0U;
        data.push_back(static_cast<std::byte>(low ? *high << 4 | *low : *high));
        return true;
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

    // The older form has the bytes of texts in Windows-1252.
    static std::vector<std::byte> widened(const std::vector<std::byte>& data) {
        std::string narrow(data.size(), '\0');
        std::transform(data.begin(), data.end(), narrow.begin(), [](std::byte b) { return static_cast<char>(b); });
        return toStored(fromAnsi(narrow));
    }

    std::u16string_view text_;
    RegFileHeader header_;
    RegistryTree* tree_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    Section section_ = Section::None;
    std::shared_ptr<RegistryKey> key_;
    RegFileError error_;
};

}  // namespace

std::optional<RegFileError> loadRegFile(std::string_view bytes, MemoryRegistry& registry) {
    RegFileText file;
    if (std::optional<RegFileError> error = decodeRegFile(bytes, file)) {
        return error;
    }
    if (std::optional<RegFileError> error = Reader(file.text, file.form.header, nullptr).run()) {
        return error;
    }
    RegistryTree& tree = registry.tree();
    Reader(file.text, file.form.header, &tree).run();
    if (!tree.fileForm) {
        tree.fileForm = file.form;
    }
    return std::nullopt;
}

}  // namespace korvane
