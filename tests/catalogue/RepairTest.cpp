// The Repair tweaks: a handler with the right class, a style-sheet switch, and
// a shortcut bar whose page looks at a key but deletes a value.
#include "tests/catalogue/TweakCases.h"

namespace korvane {
namespace {

class Repair : public TweakCases {};
INSTANTIATE_TEST_SUITE_P(Over, Repair, ::testing::ValuesIn(programKinds()), kindName);

TEST_P(Repair, TheNewCommandIsAHandlerOfOneClass) {
    const std::string handlers = classes("Directory\\Background\\shellex\\ContextMenuHandlers");
    const std::string key = classes("Directory\\Background\\shellex\\ContextMenuHandlers\\New");
    const std::string right = text("", "{D969A300-E7FF-11d0-A93B-00A0C90F2719}");
    const std::string otherCase = text("", "{d969a300-e7ff-11d0-a93b-00a0c90f2719}");
    open(289, block(handlers, text("x", "")) + block(key, otherCase), "98");
    EXPECT_EQ(box(), 0u);
    click();
    EXPECT_EQ(apply(), (Changes{removed(key, otherCase), added(key, right)}));
    click();
    EXPECT_EQ(apply(), (Changes{removedKey(key), removed(key, right)}));
    open(289);
    click();
    EXPECT_EQ(apply(), Changes{});
}

TEST_P(Repair, StyleSheetsAreDeletedWhenCleared) {
    const std::string key = user("Software\\Microsoft\\Internet Explorer\\Main");
    open(290, block(key, text("Use StyleSheets", "yes")));
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(apply(),
              (Changes{removed(key, text("Use StyleSheets", "yes")), added(key, text("Use StyleSheets", "Yes"))}));
    click();
    EXPECT_EQ(apply(), Changes{removed(key, text("Use StyleSheets", "Yes"))});
    open(290);
    click();
    EXPECT_EQ(apply(), Changes{});
    EXPECT_TRUE(dated(290)) << "dated before the key is opened";
}

TEST_P(Repair, TheShortcutBarsKeyStaysAndItsValueGoes) {
    const std::string office = user("Software\\Microsoft\\Office\\10.0");
    const std::string bar = user("Software\\Microsoft\\Office\\10.0\\Shortcut Bar");
    open(292);
    EXPECT_EQ(box(), 1u);
    EXPECT_EQ(apply(), Changes{});
    open(292, block(office));
    EXPECT_EQ(box(), 1u);
    open(292, block(office, text("Shortcut Bar", "x"), text("Other", "y")) + block(bar, text("z", "")));
    EXPECT_EQ(box(), 0u);
    EXPECT_EQ(apply(), Changes{}) << "a cleared box repairs nothing";
    click();
    EXPECT_EQ(apply(), Changes{removed(office, text("Shortcut Bar", "x"))});
    program().select(292);
    EXPECT_EQ(box(), 0u);
}

}  // namespace
}  // namespace korvane
