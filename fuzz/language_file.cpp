// Fuzz target: whatever a language file holds, the item table and the main window keep a text for everything, no text
// is longer than the file's format allows, and no escape is left in a text that it replaced.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "app/ItemTable.h"
#include "lang/LanguageFile.h"
#include "platform/memory/DialogTemplates.h"
#include "platform/stdio/IniFile.h"
#include "platform/memory/MemoryDialog.h"
#include "res/ControlIds.h"

namespace {

constexpr const char* kPath = "Fuzz.ini";

void requireText(std::string_view text, std::size_t longest) {
    if (text.empty() || text.size() > longest || text.find("\\n") != std::string_view::npos ||
        text.find("\\t") != std::string_view::npos) {
        std::abort();
    }
}

const korvane::ItemTable& builtIn() {
    static const korvane::ItemTable table = [] {
        korvane::ItemTable items;
        items.build();
        return items;
    }();
    return table;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::IniFile profile;
    profile.setContent(kPath, {reinterpret_cast<const char*>(data), size});
    const korvane::LanguageFile language(profile, kPath);
    korvane::ItemTable items = builtIn();
    items.translate(language);
    for (std::size_t id = 0; id < items.size(); ++id) {
        requireText(items[id].title, 1023);
        requireText(items[id].description, 1023);
    }
    korvane::MemoryDialog dialog(*korvane::findDialogTemplate(IDD_MAIN));
    language.translateDialog(dialog, IDD_MAIN);
    requireText(dialog.caption(), 259);
    requireText(dialog.text(IDC_APPLY), 1023);
    return 0;
}
