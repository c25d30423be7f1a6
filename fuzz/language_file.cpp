// Fuzz target: whatever a language file holds, no text is longer than the file's format allows, no escape is left in a
// text that it replaced, and a dialog keeps a text for everything. The keys are of each form that the program asks for;
// the item table asks for more of the same, and what a file's lines mean is the business of ini_file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "lang/LanguageFile.h"
#include "pages/Bindings.h"
#include "platform/memory/DialogTemplates.h"
#include "platform/memory/MemoryDialog.h"
#include "platform/stdio/IniFile.h"
#include "res/ControlIds.h"

namespace {

constexpr const char* kPath = "Fuzz.ini";

struct Key {
    const char* section;
    const char* key;
};

// As tests/lang and docs/LANGUAGES.md have them: an item's number, title and description, its controls, entries and
// cells, an overview's heading, a message.
constexpr Key kKeys[] = {{"1004", "02"},         {"1004", "431"},        {"1004", "432"},
                         {"1004", "433"},        {"Item11", "1013"},     {"Item43", "1021.2"},
                         {"Item43", "1007.3.1"}, {"106", "1007.c.0"},    {"KorvaneManagerStringTable", "2001"}};

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void requireText(std::string_view text, std::size_t longest) {
    require(text.size() <= longest && text.find("\\n") == std::string_view::npos &&
            text.find("\\t") == std::string_view::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::IniFile profile;
    profile.setContent(kPath, {reinterpret_cast<const char*>(data), size});
    const korvane::LanguageFile language(profile, kPath);
    for (const Key& each : kKeys) {
        const std::string text = language.text(each.section, each.key);
        requireText(text, 1023);
        const int number = korvane::decimalNumber(text);
        require(number != 0 || text.find_first_of("123456789") != 0);
    }
    for (const int id : {IDD_MAIN, IDD_ABOUT}) {
        korvane::MemoryDialog dialog(*korvane::findDialogTemplate(id));
        language.translateDialog(dialog, id);
        require(!dialog.caption().empty());
        requireText(dialog.caption(), 259);
        for (const int control : dialog.controlIds()) {
            requireText(dialog.text(control), 1023);
        }
    }
    require(!profile.getString("102", "1016", "English", 1024, kPath).empty() ||
            language.text("102", "1016").empty());
    return 0;
}
