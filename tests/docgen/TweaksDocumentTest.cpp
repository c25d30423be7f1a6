// The generated document of all tweaks: it is current, and what it says of an
// apply is what the engine writes.
#include "docgen/TweaksDocument.h"

#include "catalogue/Catalogue.h"
#include "platform/memory/DialogTemplates.h"
#include "text/WholeFile.h"
#include "tests/support/AppFixture.h"
#include "text/CaseFolding.h"

#include <algorithm>

namespace korvane {
namespace {

const std::string& document() {
    static const std::string made = makeTweaksDocument();
    return made;
}

bool has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

// From a tweak's heading to the next one.
std::string entry(int id) {
    const std::size_t start = document().find("\n### " + std::to_string(id) + " ");
    return start == std::string::npos ? "" : document().substr(start, document().find("\n#", start + 1) - start);
}

TEST(TweaksDocument, IsTheFileInDocs) {
    std::string inDocs;
    EXPECT_TRUE(readWholeFile("docs/TWEAKS.md", 1 << 24, inDocs));
    EXPECT_EQ(inDocs, document()) << "renew it: build/native/make_tweaks_document > docs/TWEAKS.md";
}

// One line of registryChanges.
struct Change {
    char sign;         // + came, - went
    std::string key;   // "HKCU\Console"
    std::string name;  // empty: the key itself
    std::string data;  // as in a .reg file
};

Change parse(const std::string& line) {
    const std::size_t keyEnd = line.find(']');
    Change change{line[0], line.substr(2, keyEnd - 2), {}, {}};
    for (const auto& [name, shortName] : {std::pair<std::string, const char*>{"HKEY_CLASSES_ROOT", "HKCR"},
                                          {"HKEY_CURRENT_USER", "HKCU"},
                                          {"HKEY_LOCAL_MACHINE", "HKLM"},
                                          {"HKEY_USERS", "HKU"}}) {
        if (change.key.starts_with(name)) {
            change.key.replace(0, name.size(), shortName);
        }
    }
    if (keyEnd + 1 < line.size()) {
        const bool quoted = line[keyEnd + 2] == '"';
        const std::size_t equals = quoted ? line.find("\"=", keyEnd) + 1 : line.find('=', keyEnd);
        change.name = line.substr(keyEnd + 2, equals - keyEnd - 2);
        change.data = line.substr(equals + 1);
    }
    return change;
}

std::string typeOf(const std::string& data) {
    return data.starts_with("dword:")    ? "reg_dword"
           : data.starts_with("hex(2):") ? "reg_expand_sz"
           : data.starts_with("hex:")    ? "reg_binary"
                                         : "reg_sz";
}

// As "`HKCU\\Console`", as "key `NAME` in `PARENT`", or as a key that goes with such a one.
bool keyIsTold(const std::string& text, char sign, const std::string& key) {
    const std::size_t slash = std::min(key.rfind('\\'), key.size());
    const std::string parent = key.substr(0, slash);
    if (has(text, '`' + key + '`') || (slash < key.size() && has(text, "key `" + key.substr(slash + 1) + "` in `" +
                                                                           parent + '`'))) {
        return true;
    }
    if (key.ends_with("\\command") && has(text, "subkey `command`") && keyIsTold(text, '+', parent)) {
        return true;
    }
    return sign == '-' && slash < key.size() && has(text, "with all below it") && keyIsTold(text, sign, parent);
}

// The letter case of keys and names is that of the registry's first writer.
void expectTold(const Tweak& tweak, const Change& change) {
    // They change keys that depend on what the registry holds, and tell so in words.
    constexpr int kListsOfWhatIsThere[] = {80, 119, 197, 208};
    SCOPED_TRACE(change.sign + change.key + " " + change.name + "=" + change.data);
    const std::string text = lowerCase(entry(tweak.id));
    if (std::ranges::find(kListsOfWhatIsThere, tweak.id) == std::end(kListsOfWhatIsThere)) {
        const std::string key = lowerCase(change.key);
        // A key comes or goes alone when one below it is made or deleted.
        EXPECT_TRUE(keyIsTold(text, change.sign, key) || (change.name.empty() && has(text, key + '\\'))) << text;
    }
    if (!change.name.empty()) {
        const bool withItsKey =
            change.sign == '-' && (has(text, "with all below it") || has(text, "unless it has subkeys"));
        const std::string name = lowerCase(change.name.substr(1, change.name.size() - 2));
        EXPECT_TRUE(has(text, change.name == "@" ? "default value" : '`' + name + '`') || withItsKey) << text;
        EXPECT_TRUE(change.sign == '-' || has(text, typeOf(change.data))) << text;
    }
}

// Every control gets another state; `step` chooses which.
void change(MemoryProgram& program, int step) {
    const int page = program.visiblePages().front();
    DialogControls& controls = program.page(page);
    for (const ControlTemplate& control : findDialogTemplate(page)->controls) {
        switch (control.kind) {
            case ControlKind::CheckBox: controls.setCheck(control.id, step % 2 == 0 ? 1 : 0); break;
            case ControlKind::Edit: controls.setText(control.id, step % 3 == 2 ? "" : std::to_string(step + 7)); break;
            case ControlKind::Combo:
            case ControlKind::ColourCombo: controls.selectComboEntry(control.id, step - 1); break;
            case ControlKind::List:
            case ControlKind::CheckedList:
                for (int row = 0; row < controls.rowCount(control.id); ++row) {
                    controls.setRowCheck(control.id, row, step % 2 == 0);
                }
                program.selectRow(control.id, step);
                break;
            default: break;
        }
    }
}

// Older versions are tried with the rows that look at them.
TEST(TweaksDocument, TellsEveryKeyAndValueThatAnApplyTouches) {
    int touched = 0;
    for (const std::string_view windows : {"98", "nt4", "2000", "xp"}) {
        MemoryProgram program(sampleRegistry(), windows);
        ASSERT_TRUE(program.start());
        std::string before = program.registryText();
        for (int id = 0; id < kItemCount; ++id) {
            const Tweak& tweak = *findTweak(id);
            const bool looksAtVersion = tweak.apply != nullptr || std::ranges::any_of(tweak.boxes, [](const CheckBox& box) {
                                            return !box.onVersions.empty();
                                        });
            const bool isTried = tweak.hasApply() && (windows == "xp" || looksAtVersion);
            for (int step = 0; isTried && step < 4; ++step) {
                program.select(id);
                change(program, step);
                ASSERT_TRUE(program.apply());
                std::string after = program.registryText();
                const std::string changes = registryChanges(before, after);
                before = std::move(after);
                for (std::size_t at = 0; at < changes.size(); at = changes.find('\n', at) + 1) {
                    expectTold(tweak, parse(changes.substr(at, changes.find('\n', at) - at)));
                    ++touched;
                }
            }
        }
    }
    EXPECT_GT(touched, 2900);
}

}  // namespace
}  // namespace korvane
