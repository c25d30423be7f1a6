// How files are opened, shared and written, as tests that run unchanged over the files in memory and over Windows itself.
// An environment has `Files& files()`, and one file: `std::string path()`, `void write(std::string_view text)` and
// `std::string read()`.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "platform/System.h"

namespace korvane {

template <class Environment>
class FilesBehaviour : public testing::Test {
protected:
    std::unique_ptr<File> open() { return environment.files().openExisting(environment.path()); }
    std::unique_ptr<File> create() { return environment.files().createAlways(environment.path()); }

    Environment environment;
    std::string text = "kept";
};

TYPED_TEST_SUITE_P(FilesBehaviour);

TYPED_TEST_P(FilesBehaviour, RewritingReplacesTheWholeContent) {
    EXPECT_EQ(this->open(), nullptr);
    this->environment.write("a long first text");
    const std::unique_ptr<File> file = this->open();
    ASSERT_NE(file, nullptr);
    for (const std::string expected : {"short", "and longer than it was before"}) {
        EXPECT_TRUE(file->rewrite(expected));
        EXPECT_TRUE(file->readAll(this->text));
        EXPECT_EQ(this->text, expected);
        EXPECT_EQ(this->environment.read(), expected);
    }
}

TYPED_TEST_P(FilesBehaviour, ANewFileIsEmptyAtOnceAndCannotBeRead) {
    this->environment.write("old");
    std::unique_ptr<File> made = this->create();
    ASSERT_NE(made, nullptr);
    EXPECT_FALSE(made->readAll(this->text));
    EXPECT_EQ(this->text, "kept");
    made.reset();
    EXPECT_EQ(this->environment.read(), "");
}

TYPED_TEST_P(FilesBehaviour, WhatIsOpenForReadingIsNotMadeAnewAndWhatIsNewIsNotOpened) {
    this->environment.write("old");
    std::unique_ptr<File> first = this->open();
    std::unique_ptr<File> second = this->open();
    ASSERT_TRUE(first != nullptr && second != nullptr);
    first.reset();
    EXPECT_EQ(this->create(), nullptr);
    EXPECT_TRUE(second->readAll(this->text));
    EXPECT_EQ(this->text, "old");
    second.reset();

    std::unique_ptr<File> made = this->create();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(this->open(), nullptr);
    EXPECT_NE(this->create(), nullptr);
    made.reset();
    EXPECT_NE(this->open(), nullptr);
}

REGISTER_TYPED_TEST_SUITE_P(FilesBehaviour, RewritingReplacesTheWholeContent, ANewFileIsEmptyAtOnceAndCannotBeRead,
                            WhatIsOpenForReadingIsNotMadeAnewAndWhatIsNewIsNotOpened);

}  // namespace korvane
