// Writing registry contents as .reg text: files in the layout of the registry editor, and canonical dumps.
#include <algorithm>
#include <array>
#include <charconv>
#include <compare>
#include <cstdint>
#include <utility>
#include <vector>

#include "text/Codepage.h"
#include "regfile/RegFile.h"
#include "regfile/RegFileText.h"

namespace korvane {
namespace {

// A hex line is continued on the next once it is this long; with one byte more it would pass column 80.
constexpr std::size_t kFullHexLine = 77;

std::u16string pathOf(const RegistryKey& key) {
    return key.parent() == nullptr ? key.name() : pathOf(*key.parent()) + u'\\' + key.name();
}

bool isRoot(const RegistryKey& key) { return key.parent() == nullptr; }

// Puts the key blocks of a file in order: blocks read from a file in the order of that file, and each new key behind
// what its parent and its siblings before it have, as if the registry editor had exported it.
class KeyOrder {
public:
    explicit KeyOrder(const RegistryTree& tree) {
        Place place{0, Side::Behind};
        for (std::size_t i = 0; i < kRegistryRoots.size(); ++i) {
            if (const std::optional<Position> last = enterTree(*tree.root(i), place)) {
                place = behind(*last);
            }
        }
        std::sort(entries_.begin(), entries_.end(),
                  [](const Entry& a, const Entry& b) { return a.position < b.position; });
    }

    enum class Side : std::uint8_t { Before, Itself, Behind };
    // A block of the file read, or the gap on one side of it.
    struct Place {
        std::uint64_t block;
        Side side;
        auto operator<=>(const Place&) const = default;
    };
    struct Position {
        Place place;
        std::uint64_t added;  // 0 for a block of the file, rising among the new ones of one gap
        auto operator<=>(const Position&) const = default;
    };
    struct Entry {
        Position position;
        const RegistryKey* key;
    };
    const std::vector<Entry>& entries() const { return entries_; }

private:
    static bool needsNewBlock(const RegistryKey& key) {
        return !key.values().empty() || (!isRoot(key) && (!key.implied || key.subkeys().empty()));
    }

    // The first block of the file that a key or anything below it has.
    static std::optional<std::uint64_t> firstBlock(const RegistryKey& key) {
        if (key.fileOrder != 0) {
            return key.fileOrder;
        }
        std::optional<std::uint64_t> first;
        for (const auto& [upperName, subkey] : key.subkeys()) {
            const std::optional<std::uint64_t> next = firstBlock(*subkey);
            if (next && (!first || *next < *first)) {
                first = next;
            }
        }
        return first;
    }

    // The gap that follows a position.
    static Place behind(const Position& position) {
        const Place place = position.place;
        return place.side == Side::Itself ? Place{place.block, Side::Behind} : place;
    }

    // Enters the key and all below it; what is new goes to `gap` until a better place is known. Answers the last
    // position it gave.
    std::optional<Position> enterTree(const RegistryKey& key, Place gap) {
        std::optional<Position> last;
        if (key.fileOrder != 0) {
            last = enter({{key.fileOrder, Side::Itself}, 0}, key);
            gap = behind(*last);
        } else {
            if (const std::optional<std::uint64_t> first = firstBlock(key)) {
                gap = {*first, Side::Before};
            }
            if (needsNewBlock(key)) {
                last = enter({gap, ++added_}, key);
            }
        }
        for (const auto& [upperName, subkey] : key.subkeys()) {
            if (const std::optional<Position> end = enterTree(*subkey, gap)) {
                gap = behind(*end);
                last = last ? std::max(*last, *end) : *end;
            }
        }
        return last;
    }

    Position enter(Position position, const RegistryKey& key) {
        entries_.push_back({position, &key});
        return position;
    }

    std::vector<Entry> entries_;
    std::uint64_t added_ = 0;
};

struct WriteOptions {
    RegFileForm form;
    bool wrapsHexLines = true;
    bool encodesAnything = false;  // dumps are not read back, so that any text may stand in them
};

// Collects the text of key blocks; stops at what the form cannot hold.
class Writer {
public:
    Writer(WriteOptions options, std::u16string_view lineEnd) : options_(options), lineEnd_(lineEnd) {}

    bool writeKey(const RegistryKey& key) {
        key_ = pathOf(key);
        if (!encodes(key_) || key_.find_first_of(u"\r\n") != std::u16string::npos) {
            error_ = "the file cannot hold the name of the key [" + toUtf8(key_) + ']';
            return false;
        }
        text_.append(u"[").append(key_).append(u"]").append(lineEnd_);
        return true;
    }

    bool writeValue(const RegistryValue& value) {
        if (!encodes(value.name)) {
            return refuse(value, "name");
        }
        const std::size_t lineStart = text_.size();
        if (value.name.empty()) {
            text_ += u'@';
        } else {
            appendQuoted(value.name);
        }
        text_ += u'=';
        if (!appendData(value, lineStart)) {
            return refuse(value, "text");
        }
        text_ += lineEnd_;
        return true;
    }

    void append(std::u16string_view text) { text_ += text; }
    void endLine() { text_ += lineEnd_; }
    std::u16string takeText() { return std::move(text_); }
    const std::string& error() const { return error_; }

private:
    bool encodes(std::u16string_view text) const {
        return options_.encodesAnything || canEncode(text, options_.form.encoding);
    }

    bool refuse(const RegistryValue& value, const char* what) {
        const std::string name = value.name.empty() ? "the default value" : "the value \"" + toUtf8(value.name) + '"';
        error_ = std::string("the file cannot hold the ") + what + " of " + name + " of the key [" + toUtf8(key_) + ']';
        return false;
    }

    void appendQuoted(std::u16string_view text) {
        text_ += u'"';
        for (const char16_t c : text) {
            if (c == u'\\' || c == u'"') {
                text_ += u'\\';
            }
            text_ += c;
        }
        text_ += u'"';
    }

    void appendNumber(std::uint32_t number, std::size_t digits) {
        std::array<char, 8> buffer{};
        const char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, 16).ptr;
        const auto length = static_cast<std::size_t>(end - buffer.data());
        text_.append(digits > length ? digits - length : 0, u'0');
        text_.append(buffer.data(), buffer.data() + length);
    }

    // The text of a value that a text between quotes gives back exactly: one zero, and that at the end.
    std::optional<std::u16string> plainText(const RegistryValue& value) const {
        if (value.type != static_cast<std::uint32_t>(ValueType::Sz)) {
            return std::nullopt;
        }
        std::u16string text = fromStored(value.data);
        if (value.data.size() % 2 != 0 || text.empty() || text.find(u'\0') != text.size() - 1) {
            return std::nullopt;
        }
        text.pop_back();
        return encodes(text) ? std::optional(std::move(text)) : std::nullopt;
    }

    // False when the form has no way to write the data.
    bool appendData(const RegistryValue& value, std::size_t lineStart) {
        if (const std::optional<std::u16string> text = plainText(value)) {
            appendQuoted(*text);
            return true;
        }
        const auto type = static_cast<ValueType>(value.type);
        if (type == ValueType::Dword && value.data.size() == 4) {
            appendDword(value.data);
            return true;
        }
        text_ += u"hex";
        if (type != ValueType::Binary) {
            text_ += u'(';
            appendNumber(value.type, 1);
            text_ += u')';
        }
        text_ += u':';
        if (!holdsText(value.type) || options_.form.header != RegFileHeader::Regedit4) {
            appendBytes(value.data, lineStart);
            return true;
        }
        const std::optional<std::string> narrow = toAnsiExactly(fromStored(value.data));
        if (!narrow || value.data.size() % 2 != 0) {
            return false;
        }
        appendBytes(*narrow, lineStart);
        return true;
    }

    void appendDword(const std::vector<std::byte>& data) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            number |= std::to_integer<std::uint32_t>(data[i]) << (8 * i);
        }
        text_ += u"dword:";
        appendNumber(number, 8);
    }

    template <class Bytes>
    void appendBytes(const Bytes& bytes, std::size_t lineStart) {
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (i != 0) {
                text_ += u',';
                if (options_.wrapsHexLines && text_.size() - lineStart >= kFullHexLine) {
                    text_.append(u"\\").append(lineEnd_);
                    lineStart = text_.size();
                    text_ += u"  ";
                }
            }
            appendNumber(static_cast<unsigned char>(bytes[i]), 2);
        }
    }

    WriteOptions options_;
    std::u16string_view lineEnd_;
    std::u16string text_;
    std::u16string key_;
    std::string error_;
};

void dumpBelow(const RegistryKey& key, Writer& writer, bool& isFirst) {
    if (!key.values().empty() || (key.subkeys().empty() && !isRoot(key))) {
        if (!std::exchange(isFirst, false)) {
            writer.endLine();
        }
        std::vector<std::pair<std::u16string, const RegistryValue*>> sorted;
        for (const RegistryValue& value : key.values()) {
            sorted.emplace_back(upperCase(value.name), &value);
        }
        std::sort(sorted.begin(), sorted.end());
        writer.writeKey(key);
        for (const auto& [upperName, value] : sorted) {
            writer.writeValue(*value);
        }
    }
    for (const auto& [upperName, subkey] : key.subkeys()) {
        dumpBelow(*subkey, writer, isFirst);
    }
}

Writer makeDumper() { return {{.form = {}, .wrapsHexLines = false, .encodesAnything = true}, u"\n"}; }

}  // namespace

std::optional<std::string> saveRegFile(const MemoryRegistry& registry, std::string* error) {
    const RegFileForm form = registry.tree().fileForm.value_or(RegFileForm{});
    Writer writer({.form = form}, u"\r\n");
    writer.append(headerLine(form.header));
    writer.endLine();
    writer.endLine();
    const KeyOrder order(registry.tree());
    for (const KeyOrder::Entry& entry : order.entries()) {
        bool written = writer.writeKey(*entry.key);
        for (const RegistryValue& value : entry.key->values()) {
            written = written && writer.writeValue(value);
        }
        if (!written) {
            if (error != nullptr) {
                *error = writer.error();
            }
            return std::nullopt;
        }
        writer.endLine();
    }
    return encodeRegFile({writer.takeText(), form});
}

std::string dumpRegistry(const MemoryRegistry& registry) {
    Writer writer = makeDumper();
    bool isFirst = true;
    for (std::size_t i = 0; i < kRegistryRoots.size(); ++i) {
        dumpBelow(*registry.tree().root(i), writer, isFirst);
    }
    return toUtf8(writer.takeText());
}

std::string dumpKey(const MemoryRegistry& registry, Root root, std::string_view path) {
    Writer writer = makeDumper();
    bool isFirst = true;
    if (const std::shared_ptr<RegistryKey> key = RegistryTree::find(registry.tree().root(root), fromAnsi(path))) {
        dumpBelow(*key, writer, isFirst);
    }
    return toUtf8(writer.takeText());
}

}  // namespace korvane
