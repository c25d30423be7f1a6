// The behaviour tests over registry and dialogs in memory, and what only that registry has: denied keys and
// texts without their zero.
#include "regfile/MemoryRegistry.h"

#include "platform/memory/MemoryDialog.h"
#include "regfile/RegFile.h"
#include "tests/platform/DialogBehaviour.h"
#include "tests/platform/RegistryBehaviour.h"

#include <map>
#include <memory>

namespace korvane {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, RegistryBehaviour, MemoryRegistry);

class MemoryDialogEnvironment {
public:
    DialogControls& open(int templateId) {
        return *(dialogs_[templateId] = std::make_unique<MemoryDialog>(*findDialogTemplate(templateId)));
    }
    std::string cell(int templateId, int id, int row, int column) {
        const MemoryListRow& found = dialogs_.at(templateId)->find(id)->rows.at(static_cast<std::size_t>(row));
        return std::string(found.cell(static_cast<std::size_t>(column)));
    }
    void selectRow(int templateId, int id, int row) {
        MemoryDialog& dialog = *dialogs_.at(templateId);
        dialog.show(true);
        dialog.showControl(id, true);
        EXPECT_TRUE(dialog.selectListRow(id, row));
    }

private:
    std::map<int, std::unique_ptr<MemoryDialog>> dialogs_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, DialogBehaviour, MemoryDialogEnvironment);

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
    const std::string state = dumpRegistry(registry);

    EXPECT_EQ(open("Software\\Locked"), Status::AccessDenied);
    EXPECT_EQ(open("Software\\Locked\\Inner"), Status::AccessDenied);
    EXPECT_EQ(create("Software\\Locked\\New\\Deep"), Status::AccessDenied);
    EXPECT_EQ(registry.deleteValue(root, "Software\\Locked", "v"), Status::AccessDenied);
    EXPECT_EQ(registry.deleteKey(root, "Software\\Locked\\Inner"), Status::AccessDenied);
    EXPECT_EQ(registry.deleteTree(root, "Software"), Status::AccessDenied);
    RegistryHandle relative;
    EXPECT_EQ(registry.openKey(before, "Inner", relative), Status::AccessDenied);
    registry.deny(Root::Users, "");
    EXPECT_EQ(registry.connect(Root::Users, relative), Status::AccessDenied);
    EXPECT_EQ(dumpRegistry(registry), state);

    registry.allowAll();
    EXPECT_EQ(open("Software\\Locked\\Inner"), Status::Success);
}

// Letters beyond ASCII as well.
TEST_F(MemoryRegistryTest, NamesAreFoundInAnyCase) {
    const auto dumpOf = [](std::string_view keys) {
        MemoryRegistry loaded;
        EXPECT_FALSE(loadRegFile("Windows Registry Editor Version 5.00\n\n" + std::string(keys), loaded));
        return dumpRegistry(loaded);
    };
    EXPECT_EQ(dumpOf("[HKLM\\\u00e4rger \u03c9\u03af \u044f\u0451]\n\"\u043f\u0440\"=dword:1\n"
                     "[HKLM\\\u00c4RGER \u03a9\u038a \u042f\u0401]\n\"\u041f\u0420\"=dword:2\n"),
              dumpOf("[HKLM\\\u00e4rger \u03c9\u03af \u044f\u0451]\n\"\u043f\u0440\"=dword:2\n"));
}

// Data without its terminating zero can only come from a file; a reader that takes the buffer for a C string is safe.
TEST_F(MemoryRegistryTest, TextStoredWithoutZeroIsTerminatedInTheBufferWhenThereIsRoom) {
    ASSERT_FALSE(loadRegFile("REGEDIT4\n[HKLM]\n\"t\"=hex(1):61,62\n", registry));
    std::string buffer = "....";
    std::size_t size = 0;
    EXPECT_EQ(registry.queryValue(root, "t", std::as_writable_bytes(std::span(buffer)), size), Status::Success);
    EXPECT_EQ(size, 2U);
    EXPECT_EQ(buffer, std::string_view("ab\0.", 4));
}

}  // namespace
}  // namespace korvane
