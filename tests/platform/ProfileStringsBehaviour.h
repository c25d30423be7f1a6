// How profile (INI) strings are read, as tests that run unchanged over the portable reader and over Windows itself. An
// environment has `ProfileStrings& strings()`, `std::string write(std::string_view content)`, which makes an INI file
// of its own and answers its path, and `std::string missing()`, the path of no file.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/System.h"

namespace korvane {

template <class Environment>
class ProfileStringsBehaviour : public testing::Test {
protected:
    // The value of key "k" in section "s" of a file with that content; "default" when there is none.
    std::string value(std::string_view content) { return lookUp(content, "s", "k"); }

    std::string lookUp(std::string_view content, std::string_view section, std::string_view key,
                       std::string_view defaultValue = "default", std::size_t size = 100) {
        return environment.strings().getString(section, key, defaultValue, size, environment.write(content));
    }

    Environment environment;
};

TYPED_TEST_SUITE_P(ProfileStringsBehaviour);

TYPED_TEST_P(ProfileStringsBehaviour, SectionsAndKeysAreFoundWithoutRegardToCaseAndBlanks) {
    EXPECT_EQ(this->lookUp("[First]\r\nKey=no\r\n[SECOND]\r\nOther=no\r\nkEY=yes\r\n", "second", "Key"), "yes");
    EXPECT_EQ(this->value(" \t[ s ] \r\n \t k \t = \t a b \t \r\n"), "a b");
    // Letters beyond ASCII differ by case.
    EXPECT_EQ(this->lookUp("[s]\n\xd6=1\n", "s", "\xf6"), "default");
}

TYPED_TEST_P(ProfileStringsBehaviour, EveryKindOfLineEndEndsALine) {
    EXPECT_EQ(this->value("[s]\nj=1\nk=2\n"), "2");
    EXPECT_EQ(this->value("[s]\rj=1\rk=2\r"), "2");
    EXPECT_EQ(this->value("[s]\r\r\n\n\nk=2"), "2");
}

TYPED_TEST_P(ProfileStringsBehaviour, TheFirstSectionAndTheFirstKeyOfANameCount) {
    EXPECT_EQ(this->value("[s]\nk=1\nk=2\n"), "1");
    EXPECT_EQ(this->value("[s]\nk=1\n[t]\n[s]\nk=2\n"), "1");
    // What stands before the first section is found in a section without a name.
    EXPECT_EQ(this->lookUp("k=v\n[s]\n", "", "k"), "v");
}

TYPED_TEST_P(ProfileStringsBehaviour, OnlyALineInBracketsBeginsASection) {
    EXPECT_EQ(this->value("[s] and more\nk=v"), "v");
    EXPECT_EQ(this->lookUp("[a]b]\nk=v", "a]b", "k"), "v");
    EXPECT_EQ(this->lookUp("[s]\n[t\nk=v", "s", "k"), "v");
    EXPECT_EQ(this->value("x[s]\nk=v"), "default");
}

TYPED_TEST_P(ProfileStringsBehaviour, AValueRunsFromTheFirstEqualsSignToTheEndOfTheLine) {
    EXPECT_EQ(this->value("[s]\nk=a=b"), "a=b");
    EXPECT_EQ(this->value("[s]\n;k=comment\n  ; k=comment\nk=v"), "v");
    // A key without an equals sign has no value, and hides the keys of its name below.
    EXPECT_EQ(this->value("[s]\nk\nk=2\n"), "default");
}

TYPED_TEST_P(ProfileStringsBehaviour, OnePairOfQuotationMarksAroundAValueIsRemoved) {
    EXPECT_EQ(this->value("[s]\nk=\"  a b  \""), "  a b  ");
    EXPECT_EQ(this->value("[s]\nk='a'"), "a");
    EXPECT_EQ(this->value("[s]\nk=\"\"a\"\""), "\"a\"");
    EXPECT_EQ(this->value("[s]\nk=\"a'"), "\"a'");
    EXPECT_EQ(this->value("[s]\n\"k\"=v"), "default");
}

TYPED_TEST_P(ProfileStringsBehaviour, AnAnswerIsCutToTheBuffer) {
    const std::string_view file = "[s]\nk=abc  def\nq=\"abcdef\"";
    EXPECT_EQ(this->lookUp(file, "s", "k", "", 8), "abc  de");
    EXPECT_EQ(this->lookUp(file, "s", "q", "", 4), "abc");
    EXPECT_EQ(this->lookUp(file, "s", "k", "", 0), "");

    const std::string longValue(66000, 'x');
    const std::string longFile = "[s]\nk=" + longValue + "\n" + longValue + "=1\nj=2";
    EXPECT_EQ(this->lookUp(longFile, "s", "k", "", 70000), longValue);
    EXPECT_EQ(this->lookUp(longFile, "s", "j"), "2");
}

TYPED_TEST_P(ProfileStringsBehaviour, ADefaultLosesItsTrailingBlanksAndItsQuotationMarks) {
    EXPECT_EQ(this->lookUp("", "s", "k", "  a b  "), "  a b");
    EXPECT_EQ(this->environment.strings().getString("s", "k", "a  ", 100, this->environment.missing()), "a");
}

TYPED_TEST_P(ProfileStringsBehaviour, AZeroByteEndsATextButNotTheFile) {
    using namespace std::string_view_literals;
    EXPECT_EQ(this->value("[s]\nk=a\0b\nj=2\n"sv), "a");
    EXPECT_EQ(this->lookUp("[s]\nk=a\0b\nj=2\n"sv, "s", "j"), "2");
    EXPECT_EQ(this->value("[s]\nk\0x=a\n"sv), "a");
}

TYPED_TEST_P(ProfileStringsBehaviour, EightBitTextPassesAndMarkedUnicodeBecomesEightBit) {
    using namespace std::string_view_literals;
    EXPECT_EQ(this->value("[s]\nk=\xe4\x80\x81\x8d\xa0\xff\n"), "\xe4\x80\x81\x8d\xa0\xff");
    EXPECT_EQ(this->value("\xef\xbb\xbf[s]\nk=\xc3\xa4\xe2\x82\xac\n"), "\xe4\x80");
    EXPECT_EQ(this->value("\xff\xfe[\0s\0]\0\n\0k\0=\0\xe4\0\n\0"sv), "\xe4");
    EXPECT_EQ(this->value("\xfe\xff\0[\0s\0]\0\n\0k\0=\0\xe4\0\n"sv), "\xe4");
}

REGISTER_TYPED_TEST_SUITE_P(ProfileStringsBehaviour, SectionsAndKeysAreFoundWithoutRegardToCaseAndBlanks,
                            EveryKindOfLineEndEndsALine, TheFirstSectionAndTheFirstKeyOfANameCount,
                            OnlyALineInBracketsBeginsASection, AValueRunsFromTheFirstEqualsSignToTheEndOfTheLine,
                            OnePairOfQuotationMarksAroundAValueIsRemoved, AnAnswerIsCutToTheBuffer,
                            ADefaultLosesItsTrailingBlanksAndItsQuotationMarks,
                            AZeroByteEndsATextButNotTheFile, EightBitTextPassesAndMarkedUnicodeBecomesEightBit);

}  // namespace korvane
