// The behaviour tests over the registry in memory, and what only it has: denied keys, counted handles, the order of
// values and other scripts than the 8-bit verbs can pass.
#include "platform/memory/MemoryRegistry.h"

#include "platform/memory/RegFile.h"
#include "tests/platform/RegistryBehaviour.h"

namespace korvane {
namespace {

class MemoryEnvironment {
public:
    Registry& registry() { return registry_; }
    const char* scratchPath() const { return "Software\\Korvane Registry Test"; }

private:
    MemoryRegistry registry_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, RegistryBehaviour, MemoryEnvironment);

class MemoryRegistryTest : public testing::Test {
protected:
    MemoryRegistryTest() { EXPECT_EQ(registry.connect(Root::LocalMachine, root), Status::Success); }

    Status open(std::string_view path) {
        RegistryHandle key;
        return registry.openKey(root, path, key);
    }
    Status create(std::string_view path) {
        RegistryHandle key;
        return registry.createKey(root, path, key);
    }

    MemoryRegistry registry;
    RegistryHandle root;
};

TEST_F(MemoryRegistryTest, ADeniedKeyRefusesItselfAndAllBelowItButNoNeighbour) {
    ASSERT_EQ(create("Software\\Locked\\Inner"), Status::Success);
    ASSERT_EQ(create("Software\\Locked2"), Status::Success);
    RegistryHandle before;
    ASSERT_EQ(registry.openKey(root, "Software\\Locked", before), Status::Success);
    registry.deny(Root::LocalMachine, "SOFTWARE\\locked");
    registry.deny(Root::LocalMachine, "Not\\There");
    const std::string state = dumpRegistry(registry);

    EXPECT_EQ(open("Software\\Locked"), Status::AccessDenied);
    EXPECT_EQ(open("Software\\Locked\\Inner"), Status::AccessDenied);
    EXPECT_EQ(create("Software\\Locked\\New\\Deep"), Status::AccessDenied);
    EXPECT_EQ(create("Not\\There\\Either"), Status::AccessDenied);
    EXPECT_EQ(registry.deleteValue(root, "Software\\Locked", "v"), Status::AccessDenied);
    EXPECT_EQ(registry.deleteKey(root, "Software\\Locked\\Inner"), Status::AccessDenied);
    EXPECT_EQ(registry.deleteTree(root, "Software"), Status::AccessDenied);
    RegistryHandle relative;
    EXPECT_EQ(registry.openKey(before, "Inner", relative), Status::AccessDenied);
    EXPECT_EQ(dumpRegistry(registry), state);

    EXPECT_EQ(open("Software"), Status::Success);
    EXPECT_EQ(open("Software\\Locked2"), Status::Success);
    EXPECT_EQ(create("Not\\Theref\\ore"), Status::Success);
    EXPECT_EQ(registry.setValue(before, "v", ValueType::Binary, {}), Status::Success);
    EXPECT_EQ(registry.deleteValue(before, "", "v"), Status::Success);
    registry.deny(Root::LocalMachine, "Not\\Theref_too");
    EXPECT_EQ(registry.deleteTree(root, "Not\\Theref"), Status::Success);
    registry.allowAll();
    EXPECT_EQ(open("Software\\Locked\\Inner"), Status::Success);
}

TEST_F(MemoryRegistryTest, ADeniedRootRefusesToConnectAndTheOthersDoNot) {
    registry.deny(Root::Users, "");
    RegistryHandle users;
    EXPECT_EQ(registry.connect(Root::Users, users), Status::AccessDenied);
    EXPECT_FALSE(users);
    for (const Root other : {Root::ClassesRoot, Root::CurrentUser, Root::LocalMachine}) {
        EXPECT_EQ(registry.connect(other, users), Status::Success);
    }
    EXPECT_EQ(create("Software"), Status::Success);
}

TEST_F(MemoryRegistryTest, HandlesAreCountedUntilTheyCloseOrAreReplaced) {
    EXPECT_EQ(registry.openHandles(), 1U);
    {
        RegistryHandle key;
        ASSERT_EQ(registry.createKey(root, "A", key), Status::Success);
        ASSERT_EQ(registry.createKey(root, "B", key), Status::Success);
        EXPECT_EQ(registry.openHandles(), 2U);
        ASSERT_EQ(registry.openKey(key, "", key), Status::Success);
        EXPECT_EQ(registry.openHandles(), 2U);
        ASSERT_EQ(registry.deleteTree(root, "B"), Status::Success);
    }
    root.close();
    EXPECT_EQ(registry.openHandles(), 0U);
}

TEST_F(MemoryRegistryTest, ValuesEnumerateInOrderOfCreation) {
    for (const char* name : {"zeta", "Alpha", "mid", "ALPHA", "zeta"}) {
        ASSERT_EQ(registry.setValue(root, name, ValueType::Binary, {}), Status::Success);
    }
    ASSERT_EQ(registry.deleteValue(root, "", "zeta"), Status::Success);
    ASSERT_EQ(registry.setValue(root, "zeta", ValueType::Binary, {}), Status::Success);
    std::string names;
    std::string name;
    for (std::uint32_t i = 0; registry.enumerateValue(root, i, name) == Status::Success; ++i) {
        names += name + ' ';
    }
    EXPECT_EQ(names, "Alpha mid zeta ");
}

TEST_F(MemoryRegistryTest, NamesBeyondTheLimitsOfWindowsAndMalformedPathsAreRefused) {
    EXPECT_EQ(create(std::string(255, 'k')), Status::Success);
    EXPECT_EQ(create(std::string(256, 'k')), Status::InvalidParameter);
    std::string deep = "d";
    for (int level = 1; level < 512; ++level) {
        deep += "\\d";
    }
    EXPECT_EQ(create(deep), Status::Success);
    EXPECT_EQ(create(deep + "\\d"), Status::InvalidParameter);
    RegistryHandle half;
    ASSERT_EQ(registry.openKey(root, std::string_view(deep).substr(0, 511), half), Status::Success);
    EXPECT_EQ(registry.createKey(half, std::string_view(deep).substr(0, 513), half), Status::InvalidParameter);
    EXPECT_EQ(registry.setValue(root, std::string(16383, 'v'), ValueType::Binary, {}), Status::Success);
    EXPECT_EQ(registry.setValue(root, std::string(16384, 'v'), ValueType::Binary, {}), Status::InvalidParameter);
    for (const char* path : {"\\a", "a\\\\b", "a\\"}) {
        EXPECT_EQ(create(path), Status{161}) << path;
    }
    EXPECT_EQ(open("a"), Status::FileNotFound);
}

TEST_F(MemoryRegistryTest, OtherScriptsReadAsQuestionMarksAndStayAsTheyAre) {
    const std::string text =
        "\xEF\xBB\xBFWindows Registry Editor Version 5.00\r\n\r\n"
        "[HKEY_LOCAL_MACHINE\\\xD0\x96\xE2\x82\xAC]\r\n\"\xCE\xA9\"=\"\xCE\xB1\xC3\xA9\"\r\n\r\n";
    ASSERT_FALSE(loadRegFile(text, registry));
    std::string name;
    EXPECT_EQ(registry.enumerateKey(root, 0, name), Status::Success);
    EXPECT_EQ(name, "?\x80");
    // By the verbs alone the key cannot be reached: its name is not a question mark.
    EXPECT_EQ(open(name), Status::FileNotFound);
    ASSERT_EQ(registry.setValue(root, "new", ValueType::Dword, {}), Status::Success);
    ASSERT_EQ(registry.deleteValue(root, "", "new"), Status::Success);
    EXPECT_EQ(saveRegFile(registry), text);
}

// Data without its terminating zero can only come from a file; a reader that takes the buffer for a C string is safe.
TEST_F(MemoryRegistryTest, TextStoredWithoutZeroIsTerminatedInTheBufferWhenThereIsRoom) {
    ASSERT_FALSE(loadRegFile("REGEDIT4\n[HKLM]\n\"t\"=hex(1):61,62\n", registry));
    std::string buffer = "....";
    std::size_t size = 0;
    EXPECT_EQ(registry.queryValue(root, "t", std::as_writable_bytes(std::span(buffer)), size), Status::Success);
    EXPECT_EQ(size, 2U);
    EXPECT_EQ(buffer, std::string_view("ab\0.", 4));
    buffer = "..";
    EXPECT_EQ(registry.queryValue(root, "t", std::as_writable_bytes(std::span(buffer)), size), Status::Success);
    EXPECT_EQ(buffer, "ab");
}

}  // namespace
}  // namespace korvane
