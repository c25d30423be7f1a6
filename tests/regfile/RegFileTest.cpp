// Reading .reg text and exporting it: what survives a round trip, what is refused and where, and the layout. What
// becomes of a file that is edited is in EditingTest.cpp.
#include "regfile/RegFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace korvane {
namespace {

using namespace std::string_literals;

const std::string kHeader5 = "Windows Registry Editor Version 5.00\r\n\r\n";
const std::string kHeader4 = "REGEDIT4\r\n\r\n";

std::string utf16(std::u16string_view text, std::string bytes = "\xFF\xFE") {
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::string describe(const std::optional<RegFileError>& error) {
    return error ? std::to_string(error->line) + ": " + error->reason : "none";
}

// The same contents as the registry editor would export them. A registry that had a key before has no text to edit.
std::string exported(const std::string& bytes) {
    MemoryRegistry registry;
    registry.tree().remove(registry.tree().create(RegistryTree::root(0), u"before"));
    EXPECT_EQ(describe(loadRegFile(bytes, registry)), "none");
    std::string error = "none";
    const std::optional<std::string> saved = saveRegFile(registry, &error);
    EXPECT_EQ(error, "none");
    return saved.value_or("not saved");
}

// What a version 5.00 file with these lines behind its header makes of an empty registry.
std::string dumpOf(std::string_view lines) {
    MemoryRegistry registry;
    EXPECT_EQ(describe(loadRegFile(kHeader5 + std::string(lines), registry)), "none");
    return dumpRegistry(registry);
}

// Where and why such a file is refused.
std::string errorOf(std::string_view lines) {
    MemoryRegistry registry;
    const std::string file = "Windows Registry Editor Version 5.00\n" + std::string(lines);
    const std::string error = describe(loadRegFile(file, registry));
    EXPECT_EQ(dumpRegistry(registry), "") << lines;
    return error;
}

TEST(RegFileRoundTrip, EveryTypeInBothForms) {
    const std::string common =
        "[HKEY_CURRENT_USER\\Korvane]\r\n"
        "@=\"default\"\r\n"
        "\"quoted \\\"name\\\" with \\\\\"=\"C:\\\\dir\\\\\\\"x\\\"\"\r\n"
        "\"two lines\"=\"one\r\ntwo\n\tthree\"\r\n"
        "\"binary\"=hex:00,7f,80,ff\r\n"
        "\"dword\"=dword:0000abcd\r\n"
        "\"short dword\"=hex(4):01,02\r\n"
        "\"odd type\"=hex(fffe0001):aa\r\n";
    const std::string texts5 =
        "\"expand\"=hex(2):25,00,78,00,25,00,00,00\r\n"
        "\"unterminated\"=hex(1):41,00,42,00\r\n"
        "\"embedded\"=hex(1):41,00,00,00,42,00,00,00\r\n\r\n";
    const std::string texts4 =
        "\"expand\"=hex(2):25,78,25,e9,00\r\n"
        "\"multi\"=hex(7):61,00,81,62,00,00\r\n"
        "\"unterminated\"=hex(1):41,42\r\n\r\n";
    EXPECT_EQ(exported(kHeader5 + common + texts5), kHeader5 + common + texts5);
    EXPECT_EQ(exported(kHeader4 + common + texts4), kHeader4 + common + texts4);
}

TEST(RegFileRoundTrip, EveryEncodingStaysWhatItWas) {
    const std::u16string wide =
        u"Windows Registry Editor Version 5.00\r\n\r\n"
        u"[HKEY_USERS\\\u0416\u4E2D\u00E9]\r\n\"\u03A9\U0001F600\"=\"\u20AC\uFEFF\xD800.\"\r\n\r\n";
    EXPECT_EQ(exported(utf16(wide)), utf16(wide));
    const std::string utf8 = kHeader5 + "[HKEY_USERS\\\xD0\x96]\r\n\"\xF0\x9F\x98\x80\"=\"\xE2\x82\xAC\"\r\n\r\n";
    EXPECT_EQ(exported(utf8), utf8);
    EXPECT_EQ(exported("\xEF\xBB\xBF" + utf8), "\xEF\xBB\xBF" + utf8);
    const std::string ansi = "[HKEY_USERS\\\xC4rger]\r\n\"\x80\x81\x9F\"=\"caf\xE9\"\r\n\r\n";
    EXPECT_EQ(exported(kHeader5 + ansi), kHeader5 + ansi);
    // In the older form even what looks like UTF-8 is not.
    MemoryRegistry registry;
    ASSERT_FALSE(loadRegFile(kHeader4 + "[HKEY_USERS\\\xC3\xA9]\r\n\"x\"=hex(2):c3,a9,00\r\n\r\n", registry));
    EXPECT_EQ(dumpRegistry(registry), "[HKEY_USERS\\\xC3\x83\xC2\xA9]\n\"x\"=hex(2):c3,00,a9,00,00,00\n");
}

TEST(RegFileLayout, HexLinesAreContinuedAsTheRegistryEditorDoes) {
    const std::string lines =
        "[HKEY_CURRENT_USER\\A]\r\n"
        "@=hex:00,01,02,03,04,05,06,07,08,09,0a,0b,0c,0d,0e,0f,10,11,12,13,14,15,16,17,\\\r\n"
        "  18,19,1a,1b,1c,1d,1e,1f,20,21,22,23,24,25,26,27,28,29,2a,2b,2c,2d,2e,2f,30,\\\r\n"
        "  31\r\n"
        "\"a name that alone is longer than a line of the file is allowed to be by far\"=hex:01,\\\r\n"
        "  02\r\n"
        "\"ends at the edge\"=hex:01,02,03,04,05,06,07,08,09,0a,0b,0c,0d,0e,0f,10,11,12\r\n\r\n";
    EXPECT_EQ(exported(kHeader5 + lines), kHeader5 + lines);
}

TEST(RegFileReading, LineEndsCommentsBlanksAndCaseDoNotMatter) {
    const std::string expected =
        "[HKEY_CURRENT_USER\\Soft]ware\\K]\n@=\"x;y\"\n\"d\"=dword:000000ff\n\"h\"=hex:01,0a,03\n\n"
        "[HKEY_LOCAL_MACHINE\\L]\n";
    const std::string lines =
        "; comment [HKCU\\No]\n\n"
        "  [hkcu\\Soft]ware\\K] ; the last bracket closes\n"
        "\t@ = \"x;y\" ; z\n"
        "\"d\"=DWORD: fF;\n"
        "\"h\"=Hex:01, A ,\\  \n"
        "\n ; between\n"
        "  03,\n"
        " [Hkey_Local_Machine\\L\\]";
    EXPECT_EQ(dumpOf(lines), expected);
    std::string changed = lines;
    std::ranges::replace(changed, '\n', '\r');
    EXPECT_EQ(dumpOf(changed), expected);
}

TEST(RegFileReading, DeletionsTakeEffectInTheFilesOrder) {
    MemoryRegistry registry;
    ASSERT_FALSE(loadRegFile(kHeader5 +
                                 "[HKCU\\Old\\Deep]\n@=\"1\"\n\"keep\"=\"2\"\n"
                                 "[HKCU\\Gone\\Deep]\n[HKCU\\Back]\n@=\"3\"\n",
                             registry));
    ASSERT_FALSE(loadRegFile(kHeader4 +
                                 "[HKCU\\OLD\\deep]\n@=-\n\"missing\"=-\n\"new\"=\"4\"\n"
                                 "[-HKCU\\Gone]\n[-HKCU\\Missing\\Key]\n[-HKCU\\Back]\n[HKCU\\Back]\n\"new\"=\"5\"\n",
                             registry));
    EXPECT_EQ(dumpRegistry(registry),
              "[HKEY_CURRENT_USER\\Back]\n\"new\"=\"5\"\n\n"
              "[HKEY_CURRENT_USER\\Old\\Deep]\n\"keep\"=\"2\"\n\"new\"=\"4\"\n");
    // The form of the first file is kept.
    EXPECT_TRUE(saveRegFile(registry).value_or("").starts_with(kHeader5));
}

TEST(RegFileErrors, NameTheLineAndChangeNothing) {
    EXPECT_EQ(errorOf("[HKCU\\A]\n@=\"1\"\nrubbish\n"), "4: the line is neither a key, a value nor a comment");
    EXPECT_EQ(errorOf("@=\"1\"\n"), "2: the value stands before any key");
    EXPECT_EQ(errorOf("[-HKCU\\A]\n@=\"1\"\n"), "3: the value's key is deleted");
    EXPECT_EQ(errorOf("[HKCU\\A\n"), "2: the key has no closing bracket");
    EXPECT_EQ(errorOf("[HKCU\\" + std::string(256, 'k') + "]\n"), "2: a key's name is longer than 255 characters");
    EXPECT_EQ(errorOf("[HKCU]\n\"a\"=\"b\" c\n"), "3: unexpected text at the end of the line");
    EXPECT_EQ(errorOf("[HKCU]\n\"a\"=\"C:\\new\"\n"), "3: a backslash in a text must be written twice");
    EXPECT_EQ(errorOf("[HKCU]\n\"a\"=\"b\n\n\n"), "3: the text has no closing quote");
    EXPECT_EQ(errorOf("[HKCU]\n\"a\"=\"1\r\n2\r3\n4\"\nx"), "7: the line is neither a key, a value nor a comment");
    EXPECT_EQ(errorOf("[HKCU]\n@=hex:00,\\\n  01,0g\n"), "4: there is no comma between two bytes");
    EXPECT_EQ(errorOf("[HKCU]\n@=hex:00,\\\n\n"), "5: the file ends in the middle of a value");
    EXPECT_EQ(errorOf("[HKCU]\n@=\"a\0b\"\n"s), "3: there is a NUL character in the text");
}

TEST(RegFileErrors, WrongFilesAreToldApart) {
    const auto errorIn = [](const std::string& bytes) {
        MemoryRegistry registry;
        return describe(loadRegFile(bytes, registry));
    };
    const std::string header = "1: the first line is neither \"Windows Registry Editor Version 5.00\" nor \"REGEDIT4\"";
    EXPECT_EQ(errorIn(""), header);
    EXPECT_EQ(errorIn("\xFE\xFF\0R"s), "1: the file is in big-endian UTF-16, which is not understood");
    EXPECT_EQ(errorIn(utf16(u"REGEDIT4\n\n\n") + "x"), "4: the file ends in half a character");
    EXPECT_EQ(errorIn("\xEF\xBB\xBFREGEDIT4\r\n\r\n;\xC3\xA9\r;\xE9"),
              "4: the bytes are not UTF-8, which the file is marked as");
    // Overlong forms, half a surrogate pair, beyond Unicode, cut off, out of place.
    for (const char* bad : {"\xC1\x81", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                            "\xC3", "\x80"}) {
        EXPECT_EQ(errorIn("\xEF\xBB\xBFREGEDIT4\n;" + std::string(bad)),
                  "2: the bytes are not UTF-8, which the file is marked as");
    }
}

TEST(RegFileErrors, WhatTheFormCannotHoldIsNamed) {
    const auto savingError = [](const std::string& header, std::string_view more) {
        MemoryRegistry registry;
        EXPECT_FALSE(loadRegFile(header, registry));
        EXPECT_EQ(describe(loadRegFile("\xEF\xBB\xBF" + kHeader5 + std::string(more), registry)), "none");
        std::string error = "none";
        const bool saved = saveRegFile(registry, &error).has_value();
        EXPECT_EQ(saved, error == "none");
        return error;
    };
    const std::string zhe = "\xD0\x96";
    EXPECT_EQ(savingError(kHeader5, "[HKCU\\" + zhe + "]\n"),
              "the file cannot hold the name of the key [HKEY_CURRENT_USER\\" + zhe + "]");
    EXPECT_EQ(savingError(kHeader4, "[HKCU\\A]\n\"v\"=\"" + zhe + "\"\n"),
              "the file cannot hold the text of the value \"v\" of the key [HKEY_CURRENT_USER\\A]");
    // Version 5.00 has bytes to fall back on.
    EXPECT_EQ(savingError(kHeader5, "[HKCU\\A]\n\"v\"=\"" + zhe + "\"\n"), "none");
}

}  // namespace
}  // namespace korvane
