// Every item that has a page, on every Windows, over an empty and over a used
// registry: what must hold for all of them, whatever they are bound to.
#include "app/StringTable.h"
#include "catalogue/Catalogue.h"
#include "platform/memory/DialogTemplates.h"
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace korvane {
namespace {

class Sweep : public OverPrograms {
protected:
    // Selects all items with a page in one run of the program over that registry.
    void forEachItem(const Situation& situation, const std::function<void(const Tweak&)>& visit) {
        start(situation);
        for (int id = 0; id < kItemCount && !HasFatalFailure(); ++id) {
            if (findTweak(id)->hasShow()) {
                SCOPED_TRACE(std::string(situation.windows) + " item " + std::to_string(id));
                program().select(id);
                ASSERT_NE(shownPage(program()), nullptr);
                visit(*findTweak(id));
            }
        }
        EXPECT_EQ(program().openHandles(), 0u);
    }

    // Real windows take a hundred times as long: there the fuller registry must do.
    static std::vector<std::string> registries() {
        if (!GetParam().quick) {
            return {sampleRegistry()};
        }
        return {std::string(kBareRegistry), sampleRegistry()};
    }

    // Every control that a person can change gets another state.
    void changeEverything(bool selectingRows = true) {
        const int page = program().visiblePages().front();
        for (const ControlTemplate& control : findDialogTemplate(page)->controls) {
            switch (control.kind) {
                case ControlKind::CheckBox: program().click(control.id); break;
                case ControlKind::Edit: program().type(control.id, "7"); break;
                case ControlKind::Combo:
                case ControlKind::ColourCombo: pickAnother(program().page(page), control.id); break;
                case ControlKind::List:
                case ControlKind::CheckedList: changeRows(program().page(page), control.id, selectingRows); break;
                default: break;
            }
        }
    }

private:
    // The last entry or the one before: the first often means "none".
    void pickAnother(DialogControls& page, int combo) {
        const int last = page.comboCount(combo) - 1;
        program().pick(combo, page.comboSelection(combo) == last ? last - 1 : last);
    }
    void changeRows(DialogControls& page, int list, bool selecting) {
        const int rows = page.rowCount(list);
        for (int row = 0; row < rows; ++row) {
            program().clickRow(list, row);
        }
        if (selecting) {
            program().selectRow(list, rows - 1);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Over, Sweep, ::testing::ValuesIn(programKinds()), kindName);

// ---- Showing

TEST_P(Sweep, ShowingWritesNothingNorDoesApplyingWhatCannotBeApplied) {
    for (const std::string& registry : registries()) {
        forEachItem({.registry = registry}, [&](const Tweak& tweak) {
            if (!tweak.hasApply()) {
                changeEverything();
                program().apply();
                EXPECT_EQ(dateOf(program(), tweak.title), kFirstDay);
            }
        });
        EXPECT_EQ(changes(), "");
        EXPECT_TRUE(program().messages().empty());
    }
}

TEST_P(Sweep, APageDoesNotDependOnWhatWasShownBefore) {
    for (const std::string& registry : registries()) {
        std::vector<std::string> alone(kItemCount);
        forEachItem({.registry = registry},
                    [&](const Tweak& tweak) { alone[static_cast<std::size_t>(tweak.id)] = pageText(program()); });
        // The other way round, and with every page left in a state that nobody applied.
        start({.registry = registry});
        for (int id = kItemCount - 1; id >= 0; --id) {
            if (findTweak(id)->hasShow()) {
                program().select(id);
                EXPECT_EQ(pageText(program()), alone[static_cast<std::size_t>(id)]) << "item " << id;
                changeEverything();
            }
        }
    }
}

// ---- Applying

COsVersion versionOf(std::string_view windows) {
    MemoryVersion source;
    source.record = versionNamed(windows).value();
    return COsVersion(source);
}

TEST_P(Sweep, ARefusedTweakIsLeftAlone) {
    for (const std::string_view windows : everyWindows()) {
        const COsVersion version = versionOf(windows);
        forEachItem({.windows = windows, .registry = sampleRegistry()}, [&](const Tweak& tweak) {
            if (!tweak.hasApply() || tweak.gate.open(version)) {
                return;
            }
            changeEverything();
            const std::size_t alerts = program().messages().size();
            const std::string page = pageText(program());
            ASSERT_TRUE(program().apply());
            EXPECT_EQ(dateOf(program(), tweak.title), kFirstDay);
            ASSERT_EQ(program().messages().size(), alerts + 1);
            EXPECT_EQ(program().messages().back().text, builtInString(static_cast<int>(tweak.gate.alert)));
            EXPECT_TRUE(tweak.putBoxesBack || pageText(program()) == page);
        });
        EXPECT_EQ(changes(), "");
    }
}

TEST_P(Sweep, AnythingCanBeAppliedAnywhere) {
    for (const std::string_view windows : everyWindows()) {
        for (const std::string& registry : registries()) {
            for (const bool changed : {false, true}) {
                forEachItem({.windows = windows, .registry = registry}, [&](const Tweak& tweak) {
                    if (changed) {
                        changeEverything();
                    }
                    EXPECT_EQ(program().apply(), !tweak.isCategory());
                    EXPECT_EQ(program().visiblePages().size(), 1u);
                    // What was applied can be shown and applied once more.
                    program().select(tweak.id);
                    program().apply();
                });
                for (const MessageBoxRequest& message : program().messages()) {
                    ASSERT_EQ(message.caption, "A L E R T") << message.text;
                }
            }
        }
    }
}

TEST_P(Sweep, ApplyingAgainChangesNothingMore) {
    for (const std::string_view windows : {"xp", "98"}) {
        for (const std::string& registry : registries()) {
            forEachItem({.windows = windows, .registry = registry}, [&](const Tweak& tweak) {
                program().apply();
                const std::string once = program().registryText();
                program().apply();
                program().select(tweak.id);
                program().apply();
                EXPECT_EQ(registryChanges(once, program().registryText()), "");
            });
        }
    }
}

// The drive selection starts unchecked whatever is stored.
constexpr int kNeverRead[] = {152};

// What is applied is shown again, where the registry has a place for it.
TEST_P(Sweep, WhatWasAppliedIsShownAgain) {
    std::string before;
    forEachItem({.registry = sampleRegistry()}, [&](const Tweak& tweak) {
        if (std::ranges::count(kNeverRead, tweak.id)) {
            return;
        }
        changeEverything(false);
        const std::string page = pageText(program());
        program().apply();
        const std::string now = program().registryText();
        if (std::exchange(before, now) != now) {
            program().select(tweak.id);
            EXPECT_EQ(pageText(program()), page);
        }
    });
}

TEST_P(Sweep, ADeniedRootStopsNothing) {
    for (const Root denied : {Root::ClassesRoot, Root::CurrentUser, Root::LocalMachine, Root::Users}) {
        start({.registry = sampleRegistry()});
        if (!program().deny(denied)) {
            GTEST_SKIP() << "no root can be denied here";
        }
        for (int id = 0; id < kItemCount; ++id) {
            if (findTweak(id)->hasShow()) {
                SCOPED_TRACE("item " + std::to_string(id));
                program().select(id);
                changeEverything();
                program().apply();
                EXPECT_EQ(program().visiblePages().size(), 1u);
            }
        }
        EXPECT_EQ(program().openHandles(), 0u);
    }
}

}  // namespace
}  // namespace korvane
