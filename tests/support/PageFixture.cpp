// The main window's services, written down instead of carried out.
#include "tests/support/PageFixture.h"

#include "pages/PageLayout.h"
#include "regfile/RegFile.h"
#include "res/ControlIds.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane {
namespace {

void loadBlocks(std::string_view blocks, MemoryRegistry& registry) {
    if (const auto error = loadRegFile("REGEDIT4\n\n" + std::string(blocks) + '\n', registry)) {
        ADD_FAILURE() << error->reason << " in line " << error->line << " of\nREGEDIT4\n\n" << blocks;
    }
}

}  // namespace

PageFixture::PageFixture() : platform_(system.platform(registry)) {
    dialogs_.reserve(kPageCount);
    for (int index = 0; index < kPageCount; ++index) {
        dialogs_.emplace_back(*findDialogTemplate(layoutOf(static_cast<Page>(index)).templateId));
    }
}

void PageFixture::load(std::string_view blocks) { loadBlocks(blocks, registry); }

void PageFixture::runOn(std::string_view windows) {
    const auto record = versionNamed(windows);
    ASSERT_TRUE(record) << windows;
    system.version.record = *record;
}

std::string PageFixture::state() const { return dumpRegistry(registry); }

void PageFixture::show(const Tweak& tweak) {
    for (int index = 0; index < kPageCount; ++index) {
        const auto page = static_cast<Page>(index);
        dialog(page).show(false);
        for (const int id : layoutOf(page).hidden) {
            dialog(page).showControl(id, false);
        }
    }
    applyButtonShown = false;
    const std::string before = state();
    PageContext context(*this, platform_, tweak);
    if (tweak.hasOverview()) {
        showOverview(context);
    } else {
        showTweak(context);
    }
    EXPECT_EQ(state(), before) << "showing a page changed the registry";
    EXPECT_EQ(registry.openHandles(), 0U);
}

void PageFixture::apply(const Tweak& tweak) {
    PageContext context(*this, platform_, tweak);
    applyTweak(context);
    EXPECT_EQ(registry.openHandles(), 0U);
}

std::vector<int> PageFixture::visibleControls(Page page) const {
    std::vector<int> ids;
    for (const MemoryControl& control : dialogs_[static_cast<std::size_t>(page)].allControls()) {
        if (control.visible) {
            ids.push_back(control.id);
        }
    }
    std::ranges::sort(ids);
    return ids;
}

Rect PageFixture::applyButtonRect(Page page) {
    const Rect button = MemoryDialog(*findDialogTemplate(IDD_MAIN)).controlRect(IDC_APPLY);
    const Rect area = dialog(page).rect();
    return {button.left - area.left, button.top - area.top, button.right - area.left, button.bottom - area.top};
}

std::string PageFixture::translated(int, const std::string& key, std::string_view text) {
    const auto found = translations.find(key);
    return found != translations.end() ? found->second : std::string(text);
}

void PageFixture::stamp() {
    events += "stamp ";
    stamps.push_back({registry.openHandles(), state()});
}

void PageFixture::alert(Alert alert) { events += "alert " + std::to_string(static_cast<int>(alert)) + ' '; }

std::string stateOf(std::string_view blocks) {
    MemoryRegistry registry;
    loadBlocks(blocks, registry);
    return dumpRegistry(registry);
}

}  // namespace korvane
