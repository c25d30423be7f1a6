// Keys and values as a .reg file has them, and what pressing the button does to
// them: what the tests of the System, Troubleshooting and Appearance tweaks
// share.
#pragma once

#include "catalogue/Catalogue.h"
#include "tests/catalogue/ItemTest.h"

#include <cstdio>
#include <set>
#include <string>
#include <string_view>

namespace korvane {

inline std::string user(const std::string& path) { return "[HKEY_CURRENT_USER\\" + path + ']'; }
inline std::string machine(const std::string& path) { return "[HKEY_LOCAL_MACHINE\\" + path + ']'; }
inline std::string classes(const std::string& path) { return "[HKEY_CLASSES_ROOT\\" + path + ']'; }
inline std::string login(const std::string& path) { return "[HKEY_USERS\\.DEFAULT\\" + path + ']'; }

// Values; an empty name is the key's default value.
inline std::string nameOf(const std::string& name) { return name.empty() ? "@=" : '"' + name + "\"="; }
inline std::string number(const std::string& name, std::uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "dword:%08x", static_cast<unsigned>(value));
    return nameOf(name) + text;
}
inline std::string text(const std::string& name, std::string_view value) {
    std::string escaped;
    for (const char c : value) {
        escaped += c == '\\' || c == '"' ? std::string{'\\', c} : std::string{c};
    }
    return nameOf(name) + '"' + escaped + '"';
}
inline std::string expandable(const std::string& name, std::string_view value) {
    std::string bytes;
    for (const char c : value) {
        char pair[8];
        std::snprintf(pair, sizeof pair, "%02x,00,", static_cast<unsigned>(c));
        bytes += pair;
    }
    return nameOf(name) + "hex(2):" + bytes + "00,00";
}

// A key with its values as a block of a .reg file.
template <typename... Values>
std::string block(const std::string& key, const Values&... values) {
    return key + '\n' + (std::string() + ... + (std::string(values) + '\n'));
}

// What an apply did, one line for each key and value that came or went.
using Changes = std::set<std::string>;
inline std::string added(const std::string& key, const std::string& value) { return '+' + key + ' ' + value; }
inline std::string removed(const std::string& key, const std::string& value) { return '-' + key + ' ' + value; }
inline std::string addedKey(const std::string& key) { return '+' + key; }
inline std::string removedKey(const std::string& key) { return '-' + key; }

class TweakCases : public ItemTest {
protected:
    void open(int id, const std::string& blocks = {}, std::string_view windows = "xp") {
        showItem(id, blocks, windows);
    }
    // Presses "Apply Changes".
    Changes apply() {
        const std::string text = applied();
        Changes lines;
        for (std::size_t begin = 0; begin < text.size();) {
            const std::size_t end = text.find('\n', begin);
            lines.insert(text.substr(begin, end - begin));
            begin = end + 1;
        }
        return lines;
    }

    void click(int control = IDC_CHECK1) { EXPECT_TRUE(program().click(control)) << control; }
    void type(int control, std::string_view typed) { EXPECT_TRUE(program().type(control, typed)) << control; }
    void pick(int control, int entry) { EXPECT_TRUE(program().pick(control, entry)) << control; }

    // Whether the item was applied since the start.
    bool dated(int id) { return stamped(findTweak(id)->title); }
};

}  // namespace korvane
