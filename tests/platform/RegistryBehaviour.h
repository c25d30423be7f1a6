// How a registry behaves, as tests that run unchanged over the registry in memory and over the live one of Windows,
// so that the two cannot drift apart.
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

inline constexpr char kScratchPath[] = "Software\\Korvane Registry Test";

template <class Implementation>
class RegistryBehaviour : public testing::Test {
protected:
    RegistryBehaviour() {
        EXPECT_EQ(registry().connect(Root::CurrentUser, root_), Status::Success);
        ignoreFailure(registry().deleteTree(root_, kScratchPath));
        EXPECT_EQ(registry().createKey(root_, kScratchPath, scratch_), Status::Success);
    }
    ~RegistryBehaviour() override { ignoreFailure(registry().deleteTree(root_, kScratchPath)); }

    Registry& registry() { return registry_; }
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
        std::array<char, 300> buffer{};
        std::size_t size = 0;
        const Status status = registry().queryValue(key, name, std::as_writable_bytes(std::span(buffer)), size, type);
        return status == Status::Success ? std::string(buffer.data(), size)
                                         : "<status " + std::to_string(static_cast<int>(status)) + ">";
    }
    std::vector<std::string> subkeys(const RegistryHandle& key) { return namesOf(key, &Registry::enumerateKey); }
    std::vector<std::string> values(const RegistryHandle& key) { return namesOf(key, &Registry::enumerateValue); }

private:
    template <class Enumerate>
    std::vector<std::string> namesOf(const RegistryHandle& key, Enumerate enumerate) {
        std::vector<std::string> names;
        std::string name;
        while ((registry().*enumerate)(key, static_cast<std::uint32_t>(names.size()), name) == Status::Success) {
            names.push_back(name);
        }
        return names;
    }

    Implementation registry_;
    RegistryHandle root_;
    RegistryHandle scratch_;
};

using Names = std::vector<std::string>;

TYPED_TEST_SUITE_P(RegistryBehaviour);

TYPED_TEST_P(RegistryBehaviour, NamesIgnoreCaseAndKeepTheirFirstSpelling) {
    this->make("Outer\\Inner");
    this->make("OUTER\\inner\\Leaf");
    EXPECT_EQ(this->subkeys(this->scratch()), Names{"Outer"});

    const RegistryHandle key = this->make("Outer");
    EXPECT_EQ(this->set(key, "Value\xE9", ValueType::Sz, "one"), Status::Success);
    EXPECT_EQ(this->set(key, "VALUE\xC9", ValueType::Binary, "two"), Status::Success);
    EXPECT_EQ(this->values(key), Names{"Value\xE9"});
    ValueType type = ValueType::None;
    EXPECT_EQ(this->get(key, "vALUE\xE9", &type), "two");
    EXPECT_EQ(type, ValueType::Binary);
}

TYPED_TEST_P(RegistryBehaviour, CreateMakesEveryLevelAndOpenNone) {
    RegistryHandle key;
    EXPECT_EQ(this->registry().openKey(this->scratch(), "A\\B\\C", key), Status::FileNotFound);
    EXPECT_FALSE(key);

    EXPECT_EQ(this->set(this->make("A\\B\\C"), "", ValueType::Sz, "here"), Status::Success);
    EXPECT_EQ(this->get(this->make("a\\b\\c"), ""), std::string_view("here\0", 5));
}

TYPED_TEST_P(RegistryBehaviour, AnEmptyPathIsTheKeyItself) {
    const RegistryHandle key = this->make("Self");
    RegistryHandle opened;
    ASSERT_EQ(this->registry().openKey(key, "", opened), Status::Success);
    EXPECT_EQ(this->set(opened, "n", ValueType::Binary, "x"), Status::Success);
    EXPECT_EQ(this->get(key, "n"), "x");
    EXPECT_EQ(this->registry().deleteTree(key, ""), Status::InvalidParameter);
    EXPECT_EQ(this->registry().deleteKey(key, ""), Status::Success);
    EXPECT_FALSE(this->exists("Self"));
}

TYPED_TEST_P(RegistryBehaviour, TextsAreStoredWithATerminatingZero) {
    const RegistryHandle& key = this->scratch();
    EXPECT_EQ(this->set(key, "plain", ValueType::Sz, "abc"), Status::Success);
    EXPECT_EQ(this->get(key, "plain"), std::string_view("abc\0", 4));
    EXPECT_EQ(this->set(key, "multi", ValueType::MultiSz, std::string_view("a\0b", 3)), Status::Success);
    EXPECT_EQ(this->get(key, "multi"), std::string_view("a\0b\0", 4));
    EXPECT_EQ(this->set(key, "empty", ValueType::Sz, ""), Status::Success);
    EXPECT_EQ(this->get(key, "empty"), "");
}

TYPED_TEST_P(RegistryBehaviour, EveryByteSurvivesInATextAndInBinaryData) {
    std::string bytes;
    for (int i = 1; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    ASSERT_EQ(this->set(this->scratch(), "bytes", ValueType::Sz, bytes), Status::Success);
    EXPECT_EQ(this->get(this->scratch(), "bytes"), bytes + '\0');
    ASSERT_EQ(this->set(this->scratch(), "bytes", ValueType::Binary, bytes), Status::Success);
    EXPECT_EQ(this->get(this->scratch(), "bytes"), bytes);
}

TYPED_TEST_P(RegistryBehaviour, AShortBufferGetsTheSizeAndNoData) {
    const RegistryHandle& key = this->scratch();
    ASSERT_EQ(this->set(key, "text", ValueType::Sz, "abcd"), Status::Success);
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
}

TYPED_TEST_P(RegistryBehaviour, ValuesAreDeletedInTheKeyOrInASubkey) {
    const RegistryHandle inner = this->make("Inner");
    for (const char* name : {"one", "two", ""}) {
        ASSERT_EQ(this->set(inner, name, ValueType::Sz, "x"), Status::Success);
    }
    EXPECT_EQ(this->registry().deleteValue(this->scratch(), "", "one"), Status::FileNotFound);
    EXPECT_EQ(this->registry().deleteValue(this->scratch(), "inner", "ONE"), Status::Success);
    EXPECT_EQ(this->registry().deleteValue(inner, "", ""), Status::Success);
    EXPECT_EQ(this->values(inner), Names{"two"});
}

TYPED_TEST_P(RegistryBehaviour, DeletingAKeySparesSubkeysButDeletingATreeDoesNot) {
    for (const char* path : {"Tree\\A\\Deep", "Tree\\B", "Treetop"}) {
        this->make(path);
    }
    EXPECT_EQ(this->registry().deleteKey(this->scratch(), "Tree"), Status::AccessDenied);
    EXPECT_EQ(this->registry().deleteKey(this->scratch(), "tree\\b"), Status::Success);
    EXPECT_EQ(this->subkeys(this->make("Tree")), Names{"A"});
    EXPECT_EQ(this->registry().deleteTree(this->scratch(), "Tree"), Status::Success);
    EXPECT_EQ(this->subkeys(this->scratch()), Names{"Treetop"});
}

TYPED_TEST_P(RegistryBehaviour, HandlesOfDeletedKeysSaySoAndNoKeyIsAnInvalidHandle) {
    const RegistryHandle gone = this->make("Parent\\Gone");
    ASSERT_EQ(this->set(gone, "v", ValueType::Sz, "x"), Status::Success);
    ASSERT_EQ(this->registry().deleteTree(this->scratch(), "Parent"), Status::Success);
    // A new key of the same name is another key.
    this->make("Parent\\Gone");
    const RegistryHandle none;
    const auto expectRefused = [this](const RegistryHandle& handle, Status status) {
        std::size_t size = 0;
        std::string name;
        RegistryHandle key;
        EXPECT_EQ(this->registry().openKey(handle, "x", key), status);
        EXPECT_EQ(this->registry().createKey(handle, "x", key), status);
        EXPECT_FALSE(key);
        EXPECT_EQ(this->registry().queryValue(handle, "v", {}, size), status);
        EXPECT_EQ(this->set(handle, "v", ValueType::Sz, "x"), status);
        EXPECT_EQ(this->registry().deleteValue(handle, "", "v"), status);
        EXPECT_EQ(this->registry().deleteValue(handle, "x", "v"), status);
        EXPECT_EQ(this->registry().deleteKey(handle, "x"), status);
        EXPECT_EQ(this->registry().deleteTree(handle, "x"), status);
        EXPECT_EQ(this->registry().enumerateKey(handle, 0, name), status);
        EXPECT_EQ(this->registry().enumerateValue(handle, 0, name), status);
    };
    expectRefused(gone, Status::KeyDeleted);
    expectRefused(none, Status::InvalidHandle);
}

REGISTER_TYPED_TEST_SUITE_P(RegistryBehaviour, NamesIgnoreCaseAndKeepTheirFirstSpelling,
                            CreateMakesEveryLevelAndOpenNone, AnEmptyPathIsTheKeyItself,
                            TextsAreStoredWithATerminatingZero, EveryByteSurvivesInATextAndInBinaryData,
                            AShortBufferGetsTheSizeAndNoData, WhatIsMissingLeavesTheOutParametersAlone,
                            ValuesAreDeletedInTheKeyOrInASubkey, DeletingAKeySparesSubkeysButDeletingATreeDoesNot,
                            HandlesOfDeletedKeysSaySoAndNoKeyIsAnInvalidHandle);

}  // namespace korvane
