// Keys and values as a .reg file has them, one item on one system, and what pressing the button does to them: what the
// tests of single tweaks share.
#pragma once

#include "catalogue/Catalogue.h"
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <cstdio>
#include <set>
#include <string>
#include <string_view>

namespace korvane {

inline std::string user(const std::string& path) { return "[HKEY_CURRENT_USER\\" + path + ']'; }
inline std::string machine(const std::string& path) { return "[HKEY_LOCAL_MACHINE\\" + path + ']'; }
inline std::string classes(const std::string& path) { return "[HKEY_CLASSES_ROOT\\" + path + ']'; }
inline std::string login(const std::string& path) { return "[HKEY_USERS\\.DEFAULT\\" + path + ']'; }

inline const std::string kCurrentVersion = "Software\\Microsoft\\Windows\\CurrentVersion";
inline const std::string kExplorer = kCurrentVersion + "\\Explorer";
inline const std::string kAdvanced = kExplorer + "\\Advanced";
inline const std::string kExplorerPolicies = kCurrentVersion + "\\Policies\\Explorer";
inline const std::string kWinlogon = machine("SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon");
inline const std::string kDesktop = "Control Panel\\Desktop";

// Data, and values; an empty name is the key's default value.
inline std::string dword(std::uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "dword:%08x", static_cast<unsigned>(value));
    return text;
}
inline std::string sz(std::string_view value) {
    std::string escaped;
    for (const char c : value) {
        escaped += c == '\\' || c == '"' ? std::string{'\\', c} : std::string{c};
    }
    return '"' + escaped + '"';
}
inline std::string nameOf(const std::string& name) { return name.empty() ? "@=" : '"' + name + "\"="; }
inline std::string number(const std::string& name, std::uint32_t value) { return nameOf(name) + dword(value); }
inline std::string text(const std::string& name, std::string_view value) { return nameOf(name) + sz(value); }
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
inline Changes replaced(const std::string& key, const std::string& before, const std::string& after) {
    return {removed(key, before), added(key, after)};
}

class TweakCases : public OverPrograms {
protected:
    // The program over these keys, with the item selected.
    void open(int id, const std::string& blocks = {}, std::string_view windows = "xp") {
        start({.windows = windows, .registry = blocks + '\n' + std::string(kBareRegistry)});
        program().select(id);
    }
    // Presses "Apply Changes".
    Changes apply() {
        EXPECT_TRUE(program().apply());
        const std::string text = changes();
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

    std::uint32_t box(int control = IDC_CHECK1) { return shownPage(program())->check(control); }
    // The first two boxes, as digits.
    std::string boxes() { return std::to_string(box(IDC_CHECK1)) + std::to_string(box(IDC_CHECK2)); }
    std::string edit(int control = IDC_EDIT1) { return shownPage(program())->text(control); }
    int combo(int control = IDC_COMBO1) { return shownPage(program())->comboSelection(control); }

    // Whether the item was applied since the start.
    bool dated(int id) { return dateOf(program(), findTweak(id)->title) == kLaterDay; }
    // The texts of the alerts shown so far.
    std::string alerts() {
        std::string texts;
        for (const MessageBoxRequest& message : program().messages()) {
            texts += message.text;
        }
        return texts;
    }
};

}  // namespace korvane
