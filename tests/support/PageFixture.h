// The page layer by itself: nine pages, a registry and a system in memory, and a main window that only writes down what
// it is asked for. Rows are shown and applied as the program does it. Whole registry states are compared as text, so
// that a write too many fails a test just as a missing one does.
#pragma once

#include "pages/TweakEngine.h"
#include "platform/memory/MemoryDialog.h"
#include "regfile/MemoryRegistry.h"
#include "platform/memory/MemorySystem.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// What the registry was like when a date was recorded.
struct StampRecord {
    std::size_t openHandles;
    std::string state;
};

class PageFixture : public PageHost {
public:
    PageFixture();
    PageFixture(const PageFixture&) = delete;
    PageFixture& operator=(const PageFixture&) = delete;

    MemoryRegistry registry;
    MemorySystem system;  // Windows XP unless runOn() says otherwise

    // Merges key blocks of a .reg file, without its first line: "[HKCU\\Key]\n\"Value\"=dword:1". The types hex(1) and
    // hex(2) take 8-bit texts.
    void load(std::string_view blocks);
    // A name that versionNamed() knows.
    void runOn(std::string_view windows);
    std::string state() const;

    // Hides everything as a change of the selection does, then shows the row, or the overview when it has one. Fails
    // the test when the registry is changed or a handle is left open.
    void show(const Tweak& tweak);
    // Fails the test when a handle is left open.
    void apply(const Tweak& tweak);

    MemoryDialog& dialog(Page page) { return dialogs_[static_cast<std::size_t>(page)]; }
    // The ids of a page's visible controls, in ascending order.
    std::vector<int> visibleControls(Page page) const;

    // What was asked for since the beginning: "stamp" and "alert 2002", a blank behind each.
    std::string events;
    std::vector<StampRecord> stamps;
    bool applyButtonShown = false;  // by the last show

    // Answers; a missing translation leaves what is there.
    std::vector<OverviewRow> overview;
    std::map<std::string, std::string, std::less<>> translations;  // by key

    bool hasPage(Page) override { return true; }
    DialogControls& page(Page page) override { return dialog(page); }
    void showApplyButton() override { applyButtonShown = true; }
    Rect applyButtonRect(Page page) override;
    std::string headerText(int id) override { return "Title " + std::to_string(id) + ":\nDescription"; }
    std::string translated(int id, const std::string& key, std::string_view text) override;
    std::vector<OverviewRow> overviewRows(const Tweak&) override { return overview; }
    void stamp() override;
    void alert(Alert alert) override;
    ListColumns& listColumns() override { return listColumns_; }

private:
    Platform platform_;
    std::vector<MemoryDialog> dialogs_;
    ListColumns listColumns_;
};

// What state() answers for a registry that holds these key blocks and nothing else.
std::string stateOf(std::string_view blocks);

}  // namespace korvane
