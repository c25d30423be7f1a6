// The generated document of all tweaks: it is current, it misses no tweak and
// no value, and what it says of an apply is what the engine writes.
#include "app/TweaksDocument.h"

#include "catalogue/Catalogue.h"
#include "pages/PageLayout.h"
#include "pages/PageTemplates.h"
#include "tests/support/AppFixture.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace korvane {
namespace {

std::string readAll(const char* path) {
    std::string text;
    if (std::FILE* file = std::fopen(path, "rb")) {
        char part[4096];
        for (std::size_t got; (got = std::fread(part, 1, sizeof part, file)) > 0;) {
            text.append(part, got);
        }
        std::fclose(file);
    }
    return text;
}

const std::string& document() {
    static const std::string made = makeTweaksDocument();
    return made;
}

bool has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

std::size_t count(std::string_view text, std::string_view part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

// From a tweak's heading to the next one.
std::string entry(int id) {
    const std::size_t start = document().find("\n### " + std::to_string(id) + " ");
    return start == std::string::npos ? "" : document().substr(start, document().find("\n#", start + 1) - start);
}

// ---- Completeness

TEST(TweaksDocument, IsTheFileInDocs) {
    EXPECT_EQ(readAll("docs/TWEAKS.md"), document()) << "renew it: build/native/make_tweaks_document > docs/TWEAKS.md";
}

TEST(TweaksDocument, NamesEveryRecordOnceAndInOrder) {
    std::size_t last = 0;
    std::size_t kept = 0;
    for (int id = 0; id < kItemCount; ++id) {
        const std::string start = findTweak(id)->hasShow() ? "\n### " : "\n- ";
        const std::string line = start + std::to_string(id) + " " + std::string(findTweak(id)->title) + "\n";
        EXPECT_EQ(count(document(), line), 1u) << line;
        std::size_t& before = findTweak(id)->hasShow() ? last : kept;
        EXPECT_GT(document().find(line), before) << line;
        before = document().find(line);
    }
}

TEST(TweaksDocument, TellsWhatARowsOwnRoutinesDo) {
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        EXPECT_TRUE(!tweak.registry.empty() || (tweak.show == nullptr && tweak.apply == nullptr)) << id;
        EXPECT_EQ(count(tweak.registry, "`") % 2, 0u) << id << ": a grave accent without its second";
        EXPECT_EQ(count(tweak.source, "`") % 2, 0u) << id << ": a grave accent without its second";
    }
}

// All values, keys and verbs that the bindings of a control name.
template <typename Binding>
std::vector<std::string> boundNames(const Binding& binding) {
    std::vector<std::string> names;
    std::visit(
        [&](const auto& kind) {
            if constexpr (requires { kind.name; }) {
                names.push_back(kind.name.empty() ? "default value" : "`" + std::string(kind.name) + "`");
            }
            if constexpr (requires { kind.alsoName; }) {
                names.push_back(kind.alsoName.empty() ? "" : "`" + std::string(kind.alsoName) + "`");
            }
            if constexpr (requires { kind.verb; }) {
                names.push_back("`" + std::string(kind.verb) + "`");
            }
            if constexpr (requires { kind.also; }) {
                names.push_back(kind.also ? kind.also->fullPath() + '`' : "");
            }
            if constexpr (requires { kind.key; }) {
                names.push_back(kind.key.fullPath() + '`');
                names.push_back(std::string(kind.key.otherPath));
            }
        },
        binding);
    return names;
}

TEST(TweaksDocument, HasEveryNameThatABindingCarries) {
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        const std::string text = entry(id);
        const auto expectNames = [&](const auto& binding) {
            for (const std::string& name : boundNames(binding)) {
                EXPECT_TRUE(has(text, name)) << name << " is not in" << text;
            }
        };
        std::ranges::for_each(tweak.boxes, expectNames, &CheckBox::binding);
        std::ranges::for_each(tweak.fields, expectNames, &Field::binding);
        std::ranges::for_each(tweak.choices, expectNames, &Choice::binding);
        if (tweak.colour != nullptr) {
            expectNames(tweak.colour->binding);
        }
        if (tweak.table != nullptr) {
            expectNames(tweak.table->binding);
        }
    }
}

TEST(TweaksDocument, GivesTheVersionsOfTheGates) {
    struct Case {
        int id;
        const char* versions;
    };
    for (const Case& expected :
         {Case{2, " Every Windows.\n"}, Case{11, " Windows NT 4, 2000, XP.\n"}, Case{43, " Windows XP.\n"},
          Case{76, " Windows Me, 2000, XP.\n"}, Case{86, " Windows 95, 98, Me, NT 4, 2000.\n"},
          Case{114, " Windows 98.\n"}, Case{170, " Windows 2000.\n"}, Case{295, " Windows 98, Me, 2000, XP.\n"}}) {
        EXPECT_TRUE(has(entry(expected.id), expected.versions)) << entry(expected.id);
    }
}

TEST(TweaksDocument, MarksTextsSoThatMarkdownShowsThemAsTheyAre) {
    EXPECT_TRUE(has(entry(131), "deleting \\*.htm no longer")) << entry(131);
    EXPECT_TRUE(has(entry(283), "Source: \\[MS-GPSB\\] 3.2.5.5\n")) << entry(283);
    EXPECT_TRUE(has(entry(11),
                    "- **Enable Quick Edit the Command Prompt**\\\n"
                    "  `QuickEdit` (REG_DWORD) in `HKCU\\Console`, opened\\\n"
                    "  checked: `1`; cleared: `0`\n"))
        << entry(11);
    EXPECT_FALSE(has(document(), "` `")) << "two code spans without a word between them";
    EXPECT_FALSE(has(document(), "``")) << "an empty code span";
}

// ---- Truth

struct Change {
    char sign;         // + came, - went
    std::string key;   // "HKCU\Console"
    std::string name;  // empty: the key itself
    std::string data;  // as in a .reg file
};

std::string shortKey(std::string key) {
    constexpr std::pair<std::string_view, std::string_view> kRoots[] = {{"HKEY_CLASSES_ROOT", "HKCR"},
                                                                        {"HKEY_CURRENT_USER", "HKCU"},
                                                                        {"HKEY_LOCAL_MACHINE", "HKLM"},
                                                                        {"HKEY_USERS", "HKU"}};
    for (const auto& [name, shortName] : kRoots) {
        if (key.starts_with(name)) {
            key.replace(0, name.size(), shortName);
        }
    }
    return key;
}

std::vector<Change> parseChanges(const std::string& text) {
    std::vector<Change> changes;
    for (std::size_t start = 0; start < text.size(); start = text.find('\n', start) + 1) {
        const std::string line = text.substr(start, text.find('\n', start) - start);
        const std::size_t keyEnd = line.find(']');
        Change change{line[0], shortKey(line.substr(2, keyEnd - 2)), {}, {}};
        if (keyEnd + 1 < line.size()) {
            const bool quoted = line[keyEnd + 2] == '"';
            const std::size_t equals = quoted ? line.find("\"=", keyEnd) + 1 : line.find('=', keyEnd);
            change.name = line.substr(keyEnd + 2, equals - keyEnd - 2);
            change.data = line.substr(equals + 1);
        }
        changes.push_back(change);
    }
    return changes;
}

std::string typeOf(const std::string& data) {
    return data.starts_with("dword:")    ? "REG_DWORD"
           : data.starts_with("hex(2):") ? "REG_EXPAND_SZ"
           : data.starts_with("hex:")    ? "REG_BINARY"
                                         : "REG_SZ";
}

// As "`HKCU\\Console`", or as "key `NAME` in `PARENT`".
bool named(const std::string& text, const std::string& key) {
    const std::size_t slash = std::min(key.rfind('\\'), key.size() - 1);
    return has(text, '`' + key + '`') ||
           has(text, "key `" + key.substr(slash + 1) + "` in `" + key.substr(0, slash) + '`');
}

std::string lowerCase(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

// The key, or one that goes with it.
bool keyIsTold(const std::string& text, char sign, const std::string& key) {
    if (named(text, key)) {
        return true;
    }
    const std::size_t slash = key.rfind('\\');
    const std::string parent = slash == std::string::npos ? "" : key.substr(0, slash);
    if (key.ends_with("\\command") && has(text, "subkey `command`") && named(text, parent)) {
        return true;
    }
    return sign == '-' && !parent.empty() && has(text, "with all below it") && keyIsTold(text, sign, parent);
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
    if (change.name.empty()) {
        return;
    }
    const bool withItsKey =
        change.sign == '-' && (has(text, "with all below it") || has(text, "unless it has subkeys"));
    const std::string name = lowerCase(change.name.substr(1, change.name.size() - 2));
    EXPECT_TRUE(has(text, change.name == "@" ? "default value" : '`' + name + '`') || withItsKey) << text;
    EXPECT_TRUE(change.sign == '-' || has(text, lowerCase(typeOf(change.data)))) << text;
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

// Bound keys of older versions are among the bindings' names; here their routines are tried as well.
TEST(TweaksDocument, TellsEveryKeyAndValueThatAnApplyTouches) {
    constexpr int kSteps = 4;
    int touched = 0;
    for (const std::string_view windows : {"98", "nt4", "2000", "xp"}) {
        MemoryProgram program(sampleRegistry(), windows);
        ASSERT_TRUE(program.start());
        for (int id = 0; id < kItemCount; ++id) {
            const Tweak& tweak = *findTweak(id);
            if (!tweak.hasApply() || (windows != "xp" && tweak.apply == nullptr)) {
                continue;
            }
            std::string before = program.registryText();
            for (int step = 0; step < kSteps; ++step) {
                program.select(id);
                change(program, step);
                ASSERT_TRUE(program.apply());
                const std::string after = program.registryText();
                for (const Change& found : parseChanges(registryChanges(before, after))) {
                    expectTold(tweak, found);
                    ++touched;
                }
                before = after;
            }
        }
    }
    EXPECT_GT(touched, 3000);
}

// What a check box of an ordinary binding writes, as the document puts it; empty for a mask or a whole key.
std::string told(const std::string& data) {
    if (data.starts_with("dword:")) {
        const unsigned long number = std::strtoul(data.c_str() + 6, nullptr, 16);
        char text[16];
        std::snprintf(text, sizeof text, number < 0x10000 ? "%lu" : "0x%lX", number);
        return '`' + std::string(text) + '`';
    }
    if (data.starts_with("\"")) {
        return data == "\"\"" ? "an empty text" : '`' + data.substr(1, data.size() - 2) + '`';
    }
    return {};
}

// Each state of a page's boxes, from the other one.
TEST(TweaksDocument, SaysWhatCheckedAndClearedWrite) {
    MemoryProgram program(sampleRegistry());
    ASSERT_TRUE(program.start());
    int compared = 0;
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        if (!tweak.hasApply() || tweak.apply != nullptr || tweak.boxes.empty() || !tweak.fields.empty()) {
            continue;
        }
        program.select(id);
        for (const bool checked : {true, false, true}) {
            for (std::size_t box = 0; box < tweak.boxes.size(); ++box) {
                program.page(program.visiblePages().front()).setCheck(boxControl(tweak, box), checked ? 1 : 0);
            }
            const std::string before = program.registryText();
            ASSERT_TRUE(program.apply());
            for (const Change& found : parseChanges(registryChanges(before, program.registryText()))) {
                const std::string data = found.sign == '+' ? told(found.data) : "";
                if (!data.empty() && !has(entry(id), "the key is created")) {
                    EXPECT_TRUE(has(entry(id), (checked ? "checked: " : "cleared: ") + data)) << data << entry(id);
                    ++compared;
                }
            }
        }
    }
    EXPECT_GT(compared, 500);
}

}  // namespace
}  // namespace korvane
