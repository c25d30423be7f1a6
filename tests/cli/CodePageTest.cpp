// Texts in other code pages: nothing that the tweak leaves alone loses a letter.
#include "regfile/RegFileCodePage.h"
#include "tests/cli/KmctlTest.h"
#include "text/CodePage.h"

namespace korvane {
namespace {

constexpr std::u16string_view kHeader = u"Windows Registry Editor Version 5.00";

class CodePageFileTest : public KmctlTest {
protected:
    static std::u16string file(std::u16string_view header, std::u16string_view owner, std::u16string_view page) {
        std::u16string text(header);
        text += u"\r\n\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion]\r\n"
                u"\"RegisteredOwner\"=\"";
        text += owner;
        text += u"\"\r\n\"RegisteredOrganization\"=\"Old\"\r\n\r\n";
        if (!page.empty()) {
            text += u"[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Nls\\CodePage]\r\n\"ACP\"=\"";
            text.append(page).append(u"\"\r\n\r\n");
        }
        return text;
    }

    static std::string utf16(std::u16string_view text) {
        std::string bytes = "\xff\xfe";
        for (const char16_t unit : text) {
            bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        }
        return bytes;
    }

    // One value is set, and that the other is the same again shows in every byte of the file.
    void expectOnlyTheChange(const std::vector<std::string>& options, const std::string& before,
                             const std::string& after) {
        writeFile(registry_, before);
        std::vector<std::string> arguments = {"apply", "308", "1017=New"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const KmctlResult result = kmctl(arguments);
        EXPECT_EQ(result.status, 0) << result.err;
        expectUntouched(after);
    }
};

constexpr std::u16string_view kCyrillic = u"\u0418\u0432\u0430\u043d";

TEST_F(CodePageFileTest, AnApplyLeavesOtherLettersAlone) {
    struct Case {
        std::u16string_view owner;
        std::u16string_view named;  // in the file
        std::vector<std::string> options;
        unsigned page;
    };
    for (const auto& [owner, named, options, page] :
         {Case{kCyrillic, u"1251", {}, 1251},
          Case{kCyrillic, u"1252", {"--code-page", "1251"}, 1251},
          Case{kCyrillic, u"", {"--code-page=65001"}, 65001},
          Case{u"\u0081\u008d\u20ac", u"", {}, 1252},
          Case{u"\u30bd\u30cb\u30fc \u8868", u"932", {}, 932}}) {  // a trail byte of the first and last is a backslash
        std::u16string text = file(kHeader, owner, named);
        const std::u16string older = file(u"REGEDIT4", owner, named);
        const auto changed = [](std::u16string of) { return of.replace(of.find(u"Old"), 3, u"New"); };
        expectOnlyTheChange(options, utf16(text), utf16(changed(text)));
        const CodePage inFile = *CodePage::open(page);
        expectOnlyTheChange(options, inFile.toBytes(older), inFile.toBytes(changed(older)));
    }
}

TEST_F(CodePageFileTest, TextsAreShownAndTypedInTheCodePage) {
#ifndef _WIN32  // where arguments and output are in the system's own page
    writeFile(registry_, utf16(file(kHeader, u"Old", u"1251")));
    EXPECT_EQ(kmctl({"apply", "308", "1015=\u0418\u0432\u0430\u043d", "1017=Old"}).status, 0);
    expectUntouched(utf16(file(kHeader, kCyrillic, u"1251")));
    EXPECT_TRUE(has(kmctl({"show", "308"}).out, "[\u0418\u0432\u0430\u043d]"));
    EXPECT_TRUE(has(controlOf(json({"show", "308"}), 1015), "\"text\":\"\u0418\u0432\u0430\u043d\""));
    EXPECT_EQ(kmctl({"apply", "308", "1015=\x1a"}).status, 2) << "the mark of a lost letter";
#endif
    writeFile(registry_, utf16(file(kHeader, kCyrillic, u"")));
    EXPECT_TRUE(has(controlOf(json({"show", "308"}), 1015), "\"text\":\"????\""));
    EXPECT_TRUE(has(kmctl({"show", "308"}).out, "[????]"));
}

TEST_F(CodePageFileTest, ADamagedTextIsNotWrittenBack) {
    const std::string before = utf16(file(kHeader, std::u16string(kCyrillic) + u" I\u0432", u"1251"));
    writeFile(registry_, before);
    const KmctlResult result = kmctl({"apply", "308", "1017=New", "--code-page", "1252"});
    EXPECT_EQ(result.status, 1);
#ifdef _WIN32
    const std::string letters = "U+0418U+0432U+0430U+043D";
#else
    const std::string letters = "\u0418\u0432\u0430\u043d";
#endif
    EXPECT_EQ(result.err, "kmctl: " + registry_ + ": nothing is written, because code page 1252 does not have the "
                          "letters " + letters + " of control 1015. Name the file's code page with --code-page, or give "
                          "the control a value\n");
    expectUntouched(before);
    EXPECT_EQ(kmctl({"apply", "308", "1015=Ivan", "1017=New", "--code-page", "1252"}).status, 0);
}

// The program cuts the system folder off the path, so what it writes is not what it has read.
TEST_F(CodePageFileTest, ADamagedTextIsFoundThoughTheProgramHasChangedIt) {
    const std::string before = utf16(std::u16string(kHeader) +
                                     u"\r\n\r\n[HKEY_USERS\\.DEFAULT\\Control Panel\\Desktop]\r\n"
                                     u"\"SCRNSAVE.EXE\"=\"C:\\\\WINDOWS\\\\System32\\\\\u0418.scr\"\r\n\r\n");
    writeFile(registry_, before);
    const KmctlResult result = kmctl({"apply", "159", "1013=1"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(has(result.err, " of control 1015. ")) << result.err;
    expectUntouched(before);
}

TEST_F(CodePageFileTest, ThePageThatAFileNamesIsFoundInEveryForm) {
    constexpr std::string_view kSection = "[hkey_local_machine\\System\\CurrentControlSet\\Control\\NLS\\CodePage]\n";
    const std::string section(kSection);
    for (const auto& [text, named] : {
             std::pair<std::string, std::string>{
                 "REGEDIT4\n" + section + "; x\n\"OEMCP\"=\"866\"\n\"acp\"=\"1251\"\n", "1251"},
             {section + "\n\r\"ACP\"=\"\"", ""},
             {section + "[HKEY_USERS]\n\"ACP\"=\"1251\"\n", "none"},
             {section + "\"ACP\"=-\n" + section + "\"ACP\"=\"932\"\n", "932"},
             {section.substr(0, section.size() - 2), "none"},
             {section + "\"ACP\"=\"", "none"},
         }) {
        EXPECT_EQ(codePageNamedIn(text).value_or("none"), named) << text;
        const std::string wide = utf16(CodePage::western().toUtf16(text));
        EXPECT_EQ(codePageNamedIn(wide).value_or("none"), named) << text;
        EXPECT_NO_FATAL_FAILURE(codePageNamedIn(wide.substr(0, wide.size() - 1)));
    }
    for (const std::u16string_view unknown : {u"0", u"x", u"12345"}) {
        writeFile(registry_, utf16(file(kHeader, kCyrillic, unknown)));
        EXPECT_TRUE(has(kmctl({"show", "308"}).err, "the system's code page \""));
        EXPECT_EQ(kmctl({"show", "308"}).status, 2);
        EXPECT_EQ(kmctl({"show", "308", "--code-page=1251"}).status, 0);
    }
}

}  // namespace
}  // namespace korvane
