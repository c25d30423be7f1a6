// Code pages: the same facts natively and over Windows, so that a file reads alike on both.
#include "text/CodePage.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

CodePage opened(unsigned number) {
    const std::optional<CodePage> page = CodePage::open(number);
    EXPECT_TRUE(page) << number;
    return page.value_or(CodePage::western());
}

TEST(CodePage, EveryByteSurvivesTheWayThereAndBack) {
    for (const unsigned number :
         {437U, 850U, 866U, 874U, 1250U, 1251U, 1252U, 1253U, 1254U, 1255U, 1256U, 1257U, 1258U}) {
        std::string bytes;
        for (int byte = 0; byte < 0x100; ++byte) {
            bytes += static_cast<char>(byte);
        }
        const std::u16string units = opened(number).toUtf16(bytes);
        EXPECT_EQ(units.size(), bytes.size()) << number;
        EXPECT_EQ(opened(number).toBytesExactly(units), bytes) << number;
    }
}

TEST(CodePage, BytesMeanWhatTheyMeanToWindows) {
    struct Case {
        unsigned page;
        std::string_view bytes;
        std::u16string_view units;
        bool returns = true;
    };
    for (const auto& [page, bytes, units, returns] : {
             Case{1252, "\x80\x81\xe9", u"\u20ac\u0081\u00e9"},
             Case{1251, "\xc8\x98", u"\u0418\u0098"},
             Case{874, "\xa1\xdb\xfc", u"\u0e01\uf8c1\uf8c5"},
             Case{1253, "\xaa\xd2\xff", u"\uf8f9\uf8fa\uf8fb"},
             Case{1255, "\xca\xd9\xff", u"\u05ba\uf88d\uf896"},
             Case{1258, "\x61\xec\xd2", u"\u0061\u0301\u0309"},
             Case{932, "\x83\x5c\xb1\x80\xa0\xfd", u"\u30bd\uff71\u0080\uf8f0\uf8f1"},
             Case{932, "\\~\xf0\x40", u"\\~\ue000"},
             Case{936, "\xb0\xa1\x80\xff\xaa\xa1\xf8\xa1\xa1\x80", u"\u554a\u20ac\uf8f5\ue000\ue234\ue505"},
             Case{949, "\xb0\xa1\x80\xc9\xa1\xfe\xa1", u"\uac00\u0080\ue000\ue05e"},
             Case{950, "\xa4\x40\xfa\x40\x8e\x40\x81\xa1", u"\u4e00\ue000\ue311\ueef7"},
             Case{932, "\x81\xadx", u"\u30fbx", false},  // two bytes that mean nothing
             Case{936, "a\x81", u"a?", false},           // half a character
             Case{949, {"\x81\0b", 3}, {u"?\0b", 3}, false},
             Case{CodePage::kUtf8, "\xc3\xa9\xf0\x9f\x98\x80", u"\u00e9\U0001f600"},
             Case{CodePage::kUtf8, "a\xff\xc3", u"a\ufffd\ufffd", false},
         }) {
        EXPECT_EQ(opened(page).toUtf16(bytes), units) << page << ' ' << bytes;
        EXPECT_EQ(opened(page).toBytesExactly(units) == bytes, returns) << page << ' ' << bytes;
    }
}

TEST(CodePage, NoLetterIsTakenForALikeOne) {
    // Converters like to answer A, n with an accent behind it, and a backslash.
    for (const auto& [page, text] : {std::pair{1252U, u"x\u0100y"}, {1258U, u"x\u0144y"}, {932U, u"x\u00a5y"},
                                     {1251U, u"x\u00e9y"}, {CodePage::kUtf8, u"x\xd83dy"}}) {
        EXPECT_EQ(opened(page).toBytes(text), "x?y");
        EXPECT_FALSE(opened(page).toBytesExactly(text));
    }
    EXPECT_EQ(opened(1252).toBytes(u"\u0418\U0001f600\u0418", '#'), "####");
    EXPECT_EQ(opened(1252).lettersWithoutPlace(u"a\u0418\U0001f600\u0418"), u"\u0418\U0001f600");
}

TEST(CodePage, PagesOfNoSystemAreUnknown) {
    for (const unsigned number : {0U, 1U, 37U, 500U, 1200U, 12345U, 50220U, 54936U, 65000U, 4294967295U}) {
        EXPECT_FALSE(CodePage::open(number)) << number;
    }
}

}  // namespace
}  // namespace korvane
