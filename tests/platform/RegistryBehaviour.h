// How a registry behaves, as tests that run unchanged over the registry in memory and over the live one of Windows,
// so that the two cannot drift apart. An environment has `Registry& registry()` and `const char* scratchPath()`, a key
// below HKEY_CURRENT_USER that belongs to the tests alone.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace korvane {

template <class Environment>
class RegistryBehaviour : public testing::Test {
protected:
    RegistryBehaviour() {
        EXPECT_EQ(registry().connect(Root::CurrentUser, root_), Status::Success);
        ignoreFailure(registry().deleteTree(root_, environment_.scratchPath()));
        EXPECT_EQ(registry().createKey(root_, environment_.scratchPath(), scratch_), Status::Success);
    }
    ~RegistryBehaviour() override { ignoreFailure(registry().deleteTree(root_, environment_.scratchPath())); }

    Registry& registry() { return environment_.registry(); }
    const RegistryHandle& root() const { return root_; }
    const RegistryHandle& scratch() const { return scratch_; }

    RegistryHandle make(std::string_view path) {
        RegistryHandle key;
        EXPECT_EQ(registry().createKey(scratch_, path, key), Status::Success) << path;
        return key;
    }
    bool exists(std::string_view path) {
        RegistryHandle key;
        return registry().openKey(scratch_, path, key) == Status::Success;
    }
    Status set(const RegistryHandle& key, std::string_view name, ValueType type, std::string_view data) {
        return registry().setValue(key, name, type, std::as_bytes(std::span(data)));
    }
    // The data of a value; what went wrong, in words no value has, when it cannot be read.
    std::string get(const RegistryHandle& key, std::string_view name, ValueType* type = nullptr) {
        std::array<char, 202> buffer{};
        std::size_t size = 0;
        const Status status = registry().queryValue(key, name, std::as_writable_bytes(std::span(buffer)), size, type);
        return status == Status::Success ? std::string(buffer.data(), size)
                                         : "<status " + std::to_string(static_cast<int>(status)) + ">";
    }
    std::vector<std::string> subkeys(const RegistryHandle& key) {
        return collect([&](std::uint32_t i, std::string& name) { return registry().enumerateKey(key, i, name); });
    }
    std::vector<std::string> values(const RegistryHandle& key) {
        return collect([&](std::uint32_t i, std::string& name) { return registry().enumerateValue(key, i, name); });
    }

private:
    template <class Next>
    std::vector<std::string> collect(Next next) {
        std::vector<std::string> names;
        std::string name;
        Status status = Status::Success;
        while ((status = next(static_cast<std::uint32_t>(names.size()), name)) == Status::Success) {
            names.push_back(name);
        }
        EXPECT_EQ(status, Status::NoMoreItems);
        return names;
    }

    Environment environment_;
    RegistryHandle root_;
    RegistryHandle scratch_;
};

using Names = std::vector<std::string>;

TYPED_TEST_SUITE_P(RegistryBehaviour);

TYPED_TEST_P(RegistryBehaviour, NamesIgnoreCaseAndKeepTheirFirstSpelling) {
    this->make("Outer\\Inner");
    this->make("OUTER\\inner\\Leaf");
    EXPECT_EQ(this->subkeys(this->scratch()), Names{"Outer"});
    EXPECT_EQ(this->subkeys(this->make("outer")), Names{"Inner"});

    const RegistryHandle key = this->make("Outer");
    EXPECT_EQ(this->set(key, "Value\xE9", ValueType::Sz, "one"), Status::Success);
    EXPECT_EQ(this->set(key, "VALUE\xC9", ValueType::Binary, "two"), Status::Success);
    EXPECT_EQ(this->values(key), Names{"Value\xE9"});
    ValueType type = ValueType::None;
    EXPECT_EQ(this->get(key, "vALUE\xE9", &type), "two");
    EXPECT_EQ(type, ValueType::Binary);
}

TYPED_TEST_P(RegistryBehaviour, SubkeysEnumerateSortedWithoutRegardToCase) {
    for (const char* name : {"pear", "Apple", "banana", "Zebra", "apples", "B2"}) {
        this->make(name);
    }
    EXPECT_EQ(this->subkeys(this->scratch()), (Names{"Apple", "apples", "B2", "banana", "pear", "Zebra"}));
}

TYPED_TEST_P(RegistryBehaviour, CreateMakesEveryLevelAndOpenNone) {
    RegistryHandle key;
    EXPECT_EQ(this->registry().openKey(this->scratch(), "A\\B\\C", key), Status::FileNotFound);
    EXPECT_FALSE(key);
    EXPECT_FALSE(this->exists("A"));

    EXPECT_EQ(this->set(this->make("A\\B\\C"), "", ValueType::Sz, "here"), Status::Success);
    EXPECT_TRUE(this->exists("A\\B"));
    RegistryHandle middle;
    ASSERT_EQ(this->registry().openKey(this->scratch(), "A\\B", middle), Status::Success);
    ASSERT_EQ(this->registry().createKey(middle, "C", key), Status::Success);
    EXPECT_EQ(this->get(key, ""), std::string_view("here\0", 5));
}

TYPED_TEST_P(RegistryBehaviour, AnEmptyPathIsTheKeyItself) {
    const RegistryHandle key = this->make("Self");
    RegistryHandle opened;
    RegistryHandle created;
    ASSERT_EQ(this->registry().openKey(key, "", opened), Status::Success);
    ASSERT_EQ(this->registry().createKey(key, "", created), Status::Success);
    EXPECT_EQ(this->set(opened, "n", ValueType::Binary, "x"), Status::Success);
    EXPECT_EQ(this->get(created, "n"), "x");
    EXPECT_EQ(this->registry().deleteTree(key, ""), Status::InvalidParameter);
    EXPECT_EQ(this->registry().deleteKey(key, ""), Status::Success);
    EXPECT_FALSE(this->exists("Self"));
    EXPECT_EQ(this->registry().deleteKey(this->root(), ""), Status::AccessDenied);
}

TYPED_TEST_P(RegistryBehaviour, TextsAreStoredWithATerminatingZero) {
    const RegistryHandle& key = this->scratch();
    const std::string_view pair("a\0b", 3);
    EXPECT_EQ(this->set(key, "plain", ValueType::Sz, "abc"), Status::Success);
    EXPECT_EQ(this->get(key, "plain"), std::string_view("abc\0", 4));
    EXPECT_EQ(this->set(key, "expand", ValueType::ExpandSz, "%x%"), Status::Success);
    EXPECT_EQ(this->get(key, "expand"), std::string_view("%x%\0", 4));
    EXPECT_EQ(this->set(key, "multi", ValueType::MultiSz, pair), Status::Success);
    EXPECT_EQ(this->get(key, "multi"), std::string_view("a\0b\0", 4));
    EXPECT_EQ(this->set(key, "with", ValueType::Sz, std::string_view("abc\0", 4)), Status::Success);
    EXPECT_EQ(this->get(key, "with"), std::string_view("abc\0", 4));
    EXPECT_EQ(this->set(key, "part", ValueType::Sz, std::string_view("abcdef").substr(0, 3)), Status::Success);
    EXPECT_EQ(this->get(key, "part"), std::string_view("abc\0", 4));
    EXPECT_EQ(this->set(key, "empty", ValueType::Sz, ""), Status::Success);
    EXPECT_EQ(this->get(key, "empty"), "");
    EXPECT_EQ(this->set(key, "binary", ValueType::Binary, "abc"), Status::Success);
    EXPECT_EQ(this->get(key, "binary"), "abc");
}

TYPED_TEST_P(RegistryBehaviour, EveryByteSurvivesInATextAndInBinaryData) {
    std::string bytes;
    for (int i = 1; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    for (const ValueType type : {ValueType::Sz, ValueType::Binary}) {
        ASSERT_EQ(this->set(this->scratch(), "bytes", type, bytes), Status::Success);
        std::array<char, 300> buffer{};
        const std::span<std::byte> room = std::as_writable_bytes(std::span(buffer));
        std::size_t size = 0;
        ASSERT_EQ(this->registry().queryValue(this->scratch(), "bytes", room, size), Status::Success);
        EXPECT_EQ(size, type == ValueType::Sz ? 256U : 255U);
        EXPECT_EQ(std::string_view(buffer.data(), 255), bytes);
    }
}

TYPED_TEST_P(RegistryBehaviour, AShortBufferGetsTheSizeAndNoData) {
    const RegistryHandle& key = this->scratch();
    ASSERT_EQ(this->set(key, "text", ValueType::Sz, "abcd"), Status::Success);
    ASSERT_EQ(this->set(key, "dword", ValueType::Dword, std::string_view("\1\0\0\0", 4)), Status::Success);
    ASSERT_EQ(this->set(key, "nothing", ValueType::Binary, ""), Status::Success);
    std::array<std::byte, 5> buffer{};
    std::size_t size = 99;
    ValueType type = ValueType::MultiSz;
    EXPECT_EQ(this->registry().queryValue(key, "text", std::span(buffer).first(4), size, &type), Status::MoreData);
    EXPECT_EQ(size, 5U);
    EXPECT_EQ(type, ValueType::MultiSz);
    EXPECT_EQ(this->registry().queryValue(key, "text", buffer, size, &type), Status::Success);
    EXPECT_EQ(size, 5U);
    EXPECT_EQ(type, ValueType::Sz);
    EXPECT_EQ(this->registry().queryValue(key, "dword", std::span(buffer).first(3), size), Status::MoreData);
    EXPECT_EQ(size, 4U);
    EXPECT_EQ(this->registry().queryValue(key, "text", {}, size), Status::MoreData);
    EXPECT_EQ(size, 5U);
    EXPECT_EQ(this->registry().queryValue(key, "nothing", {}, size), Status::Success);
    EXPECT_EQ(size, 0U);
}

TYPED_TEST_P(RegistryBehaviour, WhatIsMissingLeavesTheOutParametersAlone) {
    std::array<std::byte, 4> buffer{std::byte{7}};
    std::size_t size = 99;
    ValueType type = ValueType::MultiSz;
    // The default value of a new key is missing like any other.
    for (const char* name : {"", "missing"}) {
        EXPECT_EQ(this->registry().queryValue(this->scratch(), name, buffer, size, &type), Status::FileNotFound);
    }
    EXPECT_EQ(size, 99U);
    EXPECT_EQ(type, ValueType::MultiSz);
    EXPECT_EQ(buffer[0], std::byte{7});
    std::string name = "before";
    EXPECT_EQ(this->registry().enumerateKey(this->scratch(), 0, name), Status::NoMoreItems);
    EXPECT_EQ(this->registry().enumerateValue(this->scratch(), 0, name), Status::NoMoreItems);
    EXPECT_EQ(name, "before");
    RegistryHandle key = this->make("Kept");
    const std::uintptr_t value = key.value();
    EXPECT_EQ(this->registry().openKey(this->scratch(), "missing", key), Status::FileNotFound);
    EXPECT_EQ(key.value(), value);
}

TYPED_TEST_P(RegistryBehaviour, ValuesAreDeletedInTheKeyOrInASubkey) {
    const RegistryHandle inner = this->make("Inner");
    for (const char* name : {"one", "two", ""}) {
        ASSERT_EQ(this->set(inner, name, ValueType::Sz, "x"), Status::Success);
    }
    EXPECT_EQ(this->registry().deleteValue(this->scratch(), "", "one"), Status::FileNotFound);
    EXPECT_EQ(this->registry().deleteValue(this->scratch(), "missing", "one"), Status::FileNotFound);
    EXPECT_EQ(this->values(inner).size(), 3U);
    EXPECT_EQ(this->registry().deleteValue(this->scratch(), "inner", "ONE"), Status::Success);
    EXPECT_EQ(this->registry().deleteValue(inner, "", ""), Status::Success);
    EXPECT_EQ(this->values(inner), Names{"two"});
    EXPECT_EQ(this->registry().deleteValue(inner, "", ""), Status::FileNotFound);
}

TYPED_TEST_P(RegistryBehaviour, DeletingAKeySparesSubkeysButDeletingATreeDoesNot) {
    for (const char* path : {"Tree\\A\\Deep", "Tree\\B", "Treetop"}) {
        this->make(path);
    }
    EXPECT_EQ(this->registry().deleteKey(this->scratch(), "Tree"), Status::AccessDenied);
    EXPECT_EQ(this->registry().deleteKey(this->scratch(), "Tree\\missing"), Status::FileNotFound);
    EXPECT_TRUE(this->exists("Tree\\A\\Deep"));
    EXPECT_EQ(this->registry().deleteKey(this->scratch(), "tree\\b"), Status::Success);
    EXPECT_EQ(this->subkeys(this->make("Tree")), Names{"A"});
    EXPECT_EQ(this->registry().deleteTree(this->scratch(), "Tree"), Status::Success);
    EXPECT_EQ(this->subkeys(this->scratch()), Names{"Treetop"});
    EXPECT_EQ(this->registry().deleteTree(this->scratch(), "Tree"), Status::FileNotFound);
}

TYPED_TEST_P(RegistryBehaviour, HandlesOfDeletedKeysSaySo) {
    const RegistryHandle gone = this->make("Parent\\Gone");
    ASSERT_EQ(this->set(gone, "v", ValueType::Sz, "x"), Status::Success);
    ASSERT_EQ(this->registry().deleteTree(this->scratch(), "Parent"), Status::Success);
    // A new key of the same name is another key.
    this->make("Parent\\Gone");
    std::size_t size = 0;
    std::string name;
    RegistryHandle key;
    EXPECT_EQ(this->registry().openKey(gone, "", key), Status::KeyDeleted);
    EXPECT_EQ(this->registry().openKey(gone, "x", key), Status::KeyDeleted);
    EXPECT_EQ(this->registry().createKey(gone, "x", key), Status::KeyDeleted);
    EXPECT_EQ(this->registry().queryValue(gone, "v", {}, size), Status::KeyDeleted);
    EXPECT_EQ(this->set(gone, "v", ValueType::Sz, "x"), Status::KeyDeleted);
    EXPECT_EQ(this->registry().deleteValue(gone, "", "v"), Status::KeyDeleted);
    EXPECT_EQ(this->registry().deleteValue(gone, "x", "v"), Status::KeyDeleted);
    EXPECT_EQ(this->registry().deleteKey(gone, ""), Status::KeyDeleted);
    EXPECT_EQ(this->registry().deleteTree(gone, "x"), Status::KeyDeleted);
    EXPECT_EQ(this->registry().enumerateKey(gone, 0, name), Status::KeyDeleted);
    EXPECT_EQ(this->registry().enumerateValue(gone, 0, name), Status::KeyDeleted);
}

TYPED_TEST_P(RegistryBehaviour, NoKeyIsAnInvalidHandle) {
    const RegistryHandle none;
    std::size_t size = 0;
    std::string name;
    RegistryHandle key;
    EXPECT_EQ(this->registry().openKey(none, "Software", key), Status::InvalidHandle);
    EXPECT_EQ(this->registry().createKey(none, "Software", key), Status::InvalidHandle);
    EXPECT_EQ(this->registry().queryValue(none, "v", {}, size), Status::InvalidHandle);
    EXPECT_EQ(this->set(none, "v", ValueType::Sz, "x"), Status::InvalidHandle);
    EXPECT_EQ(this->registry().deleteValue(none, "", "v"), Status::InvalidHandle);
    EXPECT_EQ(this->registry().deleteValue(none, "x", "v"), Status::InvalidHandle);
    EXPECT_EQ(this->registry().deleteKey(none, "x"), Status::InvalidHandle);
    EXPECT_EQ(this->registry().deleteTree(none, "x"), Status::InvalidHandle);
    EXPECT_EQ(this->registry().enumerateKey(none, 0, name), Status::InvalidHandle);
    EXPECT_EQ(this->registry().enumerateValue(none, 0, name), Status::InvalidHandle);
    EXPECT_FALSE(key);
}

REGISTER_TYPED_TEST_SUITE_P(RegistryBehaviour, NamesIgnoreCaseAndKeepTheirFirstSpelling,
                            SubkeysEnumerateSortedWithoutRegardToCase, CreateMakesEveryLevelAndOpenNone,
                            AnEmptyPathIsTheKeyItself, TextsAreStoredWithATerminatingZero,
                            EveryByteSurvivesInATextAndInBinaryData, AShortBufferGetsTheSizeAndNoData,
                            WhatIsMissingLeavesTheOutParametersAlone, ValuesAreDeletedInTheKeyOrInASubkey,
                            DeletingAKeySparesSubkeysButDeletingATreeDoesNot, HandlesOfDeletedKeysSaySo,
                            NoKeyIsAnInvalidHandle);

}  // namespace korvane
