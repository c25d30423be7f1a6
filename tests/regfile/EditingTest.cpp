// What becomes of a .reg file when the registry it was loaded into is changed: the change and nothing else.
#include "regfile/RegFile.h"
#include "catalogue/Catalogue.h"
#include "platform/memory/DialogTemplates.h"
#include "regfile/RegFileIndex.h"
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"
#include "text/Utf.h"

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

namespace korvane {
namespace {

std::string utf16(std::string_view ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char c : ascii) {
        bytes += {c, '\0'};
    }
    return bytes;
}

std::string loadAndDump(const std::string& file) {
    MemoryRegistry registry;
    const auto error = loadRegFile(file, registry);
    return error ? "line " + std::to_string(error->line) + ": " + error->reason : dumpRegistry(registry);
}

std::string saved(const MemoryRegistry& registry) {
    std::string error;
    const std::string file = saveRegFile(registry, &error).value_or("not saved: " + error);
    EXPECT_EQ(loadAndDump(file), dumpRegistry(registry)) << file;
    return file;
}

// ---- Single changes

// A registry below HKEY_CURRENT_USER that was loaded from a file, and what changes it.
class Edited {
public:
    explicit Edited(const std::string& file) {
        EXPECT_EQ(loadRegFile(file, registry_).value_or(RegFileError{}).reason, "");
        EXPECT_EQ(registry_.connect(Root::CurrentUser, user_), Status::Success);
        EXPECT_EQ(saved(registry_), file);
    }
    Edited& set(std::string_view path, std::string_view name, std::string_view text) {
        RegistryHandle key;
        EXPECT_EQ(registry_.createKey(user_, path, key), Status::Success);
        EXPECT_EQ(registry_.setValue(key, name, ValueType::Sz, std::as_bytes(std::span(text))), Status::Success);
        return *this;
    }
    Edited& remove(std::string_view path, std::string_view name) {
        EXPECT_EQ(registry_.deleteValue(user_, path, name), Status::Success) << path;
        return *this;
    }
    Edited& removeKey(std::string_view path) {
        EXPECT_EQ(registry_.deleteTree(user_, path), Status::Success) << path;
        return *this;
    }
    std::string file() const { return saved(registry_); }

private:
    MemoryRegistry registry_;
    RegistryHandle user_;
};

Edited edit(std::string_view lines) { return Edited("REGEDIT4\n\n" + std::string(lines)); }
std::string file(std::string_view lines) { return "REGEDIT4\n\n" + std::string(lines); }

TEST(RegFileEditing, OnlyTheDataOfAChangedValueIsReplaced) {
    EXPECT_EQ(edit("[HKCU\\K] ; k\n; c\n  \"V\" = dword:1 ; v\n\"w\"=\"x\"\n").set("K", "v", "2").file(),
              file("[HKCU\\K] ; k\n; c\n  \"V\" = \"2\" ; v\n\"w\"=\"x\"\n"));
    EXPECT_EQ(edit("[HKCU\\K]\n@=hex:00,\\\n ; in it\n 01, ; c\n\"w\"=\"two\nlines\"").set("K", "", "a\\")
                  .set("K", "w", "1").file(),
              file("[HKCU\\K]\n@=\"a\\\\\" ; c\n\"w\"=\"1\""));
    // The last line that names it counts, and is the only one to change.
    EXPECT_EQ(edit("[HKCU\\K]\n\"v\"=\"1\"\n[HKCU\\L]\n[hkcu\\k]\n\"V\"=\"2\"\n\"v\"=-\n\"v\"=\"3\"\n\n").set("K", "v", "4")
                  .file(),
              file("[HKCU\\K]\n\"v\"=\"1\"\n[HKCU\\L]\n[hkcu\\k]\n\"V\"=\"2\"\n\"v\"=-\n\"v\"=\"4\"\n\n"));
    // Made again under another name's spelling.
    EXPECT_EQ(edit("[HKCU\\K]\n\"a\"=\"1\"\n\"A\"=\"2\" ; c\n").remove("K", "a").set("K", "A", "3").file(),
              file("[HKCU\\K]\n\"A\"=\"3\" ; c\n"));
}

TEST(RegFileEditing, ANewValueEndsItsKeysSection) {
    EXPECT_EQ(edit("[HKCU\\K]\n\"v\"=\"1\"\n; of K\n\n; of L\n[HKCU\\L]\n").set("K", "n", "2").file(),
              file("[HKCU\\K]\n\"v\"=\"1\"\n; of K\n\"n\"=\"2\"\n\n; of L\n[HKCU\\L]\n"));
    EXPECT_EQ(edit("[HKCU\\K]\n; of L\n[HKCU\\L]").set("K", "n", "2").set("L", "", "3").file(),
              file("[HKCU\\K]\n\"n\"=\"2\"\n; of L\n[HKCU\\L]\n@=\"3\""));
    // Behind what deletes it.
    EXPECT_EQ(edit("[HKCU\\K]\n[HKCU\\K]\n\"n\"=-\n").set("K", "n", "2").file(),
              file("[HKCU\\K]\n[HKCU\\K]\n\"n\"=-\n\"n\"=\"2\"\n"));
    EXPECT_EQ(Edited("REGEDIT4\r[HKCU\\K]\r\r").set("K", "n", "2").file(), "REGEDIT4\r[HKCU\\K]\r\"n\"=\"2\"\r\r");
}

TEST(RegFileEditing, WhatIsDeletedGoesAndDeletionsStay) {
    EXPECT_EQ(edit("[HKCU\\K]\n\"v\"=hex:00,\\\n  01\n; c\n\"v\"=-\n\"V\"=\"1\"\n\"v\"=\"2\"").remove("K", "v").file(),
              file("[HKCU\\K]\n\"v\"=hex:00,\\\n  01\n; c\n\"v\"=-\n"));
    EXPECT_EQ(edit("; of K\n[HKCU\\K]\n\"v\"=\"1\"\n; of K\n\n; of L\n[HKCU\\L]\n\n[HKCU\\K\\S]\n[-HKCU\\M]\n").removeKey("K")
                  .file(),
              file("; of K\n; of L\n[HKCU\\L]\n\n[-HKCU\\M]\n"));
    // The key above stays, for which the file has no section yet.
    EXPECT_EQ(edit("[HKCU\\A]\n\n[HKCU\\K\\S]\n@=\"1\"\n\n[HKCU\\L]\n").removeKey("K\\S").file(),
              file("[HKCU\\A]\n\n[HKEY_CURRENT_USER\\K]\n\n[HKCU\\L]\n"));
    // What is deleted further down would bring back the key above it.
    EXPECT_EQ(edit("[HKCU\\K\\S]\n[-HKCU\\K\\S]\n").removeKey("K").file(), file("[-HKCU\\K\\S]\n"));
    EXPECT_EQ(edit("[HKCU\\K]\n@=\"1\"\n[HKCU\\k\\S]\n").removeKey("K").set("k", "", "1").file(),
              file("[HKCU\\k]\n@=\"1\"\n"));
}

TEST(RegFileEditing, ANewKeyFollowsItsNearestRelative) {
    const std::string start = "[HKCU\\S\\M]\n\n[HKCU\\S\\M\\Sub]\n@=\"1\"\n\n; of C\n[HKCU\\S\\C]";
    Edited edited = edit(start);
    for (const char* path : {"S\\M\\Body\\In", "S\\N", "S\\M\\Tail", "S\\D"}) {
        edited.set(path, "", "n");
    }
    EXPECT_EQ(edited.file(), file("[HKCU\\S\\M]\n\n[HKEY_CURRENT_USER\\S\\M\\Body]\n\n"
                                  "[HKEY_CURRENT_USER\\S\\M\\Body\\In]\n@=\"n\"\n\n[HKCU\\S\\M\\Sub]\n@=\"1\"\n\n"
                                  "[HKEY_CURRENT_USER\\S\\M\\Tail]\n@=\"n\"\n\n[HKEY_CURRENT_USER\\S\\N]\n@=\"n\"\n\n"
                                  "; of C\n[HKCU\\S\\C]\n\n[HKEY_CURRENT_USER\\S\\D]\n@=\"n\""));
    // Not before what deletes it, nor above the comments that open the file.
    EXPECT_EQ(edit("; mine\n\n[HKCU\\S\\M]\n[-HKCU\\S\\N]\n").set("S\\N", "", "1").set("S", "v", "2").file(),
              file("; mine\n\n[HKEY_CURRENT_USER\\S]\n\"v\"=\"2\"\n\n[HKCU\\S\\M]\n[-HKCU\\S\\N]\n\n"
                   "[HKEY_CURRENT_USER\\S\\N]\n@=\"1\"\n"));
    EXPECT_EQ(Edited("REGEDIT4").set("K", "", "1").file(), "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\K]\r\n@=\"1\"");
    EXPECT_EQ(Edited(utf16("REGEDIT4\n[-HKCU\\A]")).set("K", "", "1").file(),
              utf16("REGEDIT4\n\n[HKEY_CURRENT_USER\\K]\n@=\"1\"\n\n[-HKCU\\A]"));
}

TEST(RegFileEditing, TextThatWouldReadAsAnotherEncodingIsWrittenInBytes) {
    const std::string header = "Windows Registry Editor Version 5.00\n[HKCU\\K]\n";
    EXPECT_EQ(Edited(header).set("K", "v", "\xC3\xA9").file(), header + "\"v\"=hex(1):c3,00,a9,00,00,00\n");
    EXPECT_EQ(Edited(header).set("K", "v", "\xE9").file(), header + "\"v\"=\"\xE9\"\n");
    // A name cannot be: then the whole file changes.
    EXPECT_TRUE(Edited(header).set("K", "\xC3\xA9", "").file().starts_with("\xFF\xFE"));
}

// ---- Every item, every choice

// The keys and values that differ between two registries, in upper case.
struct Difference {
    std::set<std::string> keys;    // and all above them
    std::set<std::string> values;  // key and name
};

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return text;
}

std::string valueName(const std::string& line) { return upper(line.substr(0, line.find(line[0] == '@' ? '=' : '"', 1))); }

Difference difference(std::string_view before, std::string_view after) {
    Difference found;
    const std::string changes = registryChanges(before, after);
    for (std::size_t at = 0; at < changes.size(); at = changes.find('\n', at) + 1) {
        const std::string line = changes.substr(at + 1, changes.find('\n', at) - at - 1);
        const std::size_t close = std::min(line.find("] \""), line.find("] @"));
        std::string key = upper(line.substr(1, std::min(close, line.size() - 1) - 1));
        if (close != std::string::npos) {
            found.values.insert(key + ' ' + valueName(line.substr(close + 2)));
        }
        for (; !key.empty(); key.resize(key.find('\\') == std::string::npos ? 0 : key.rfind('\\'))) {
            found.keys.insert(key);
        }
    }
    return found;
}

// A comment of the files below that belongs to the section behind it.
constexpr std::string_view kAboutNext = "; about it\n";

// The lines that say nothing of what differs: of other values, and of sections that the other file has as well.
std::string otherLines(const std::string& file, const std::string& other, const Difference& difference) {
    const std::string keysOfOther = '\n' + upper(other);
    std::string kept;
    std::string key;
    bool ownKey = false;
    bool ownValue = false;
    for (std::size_t at = 0, end = 0; at < file.size(); at = end) {
        end = std::min(file.find('\n', at), file.size() - 1) + 1;
        const std::string line = file.substr(at, end - at);
        if (line[0] == '[') {
            key = upper(line.substr(1, line.find(']') - 1));
            ownKey = difference.keys.contains(key) && keysOfOther.find("\n[" + key + ']') == std::string::npos;
            ownValue = false;
        } else if (line[0] == '"' || line[0] == '@') {
            ownValue = difference.values.contains(key + ' ' + valueName(line));
        } else if (line[0] != ' ') {
            ownValue = false;
            ownKey = ownKey && !line.starts_with(kAboutNext);
        }
        kept += ownKey || ownValue ? "" : line;
    }
    // A last line without an end gets one when another follows.
    return kept.substr(0, kept.find_last_not_of("\r\n") + 1);
}

std::string lowBytes(const std::string& file) {
    std::string text;
    for (std::size_t i = 2; i < file.size(); i += 2) {
        text += file[i];
    }
    return file.starts_with("\xFF\xFE") ? text : file;
}

// Puts each control of the page into each of its states, and runs the function after every one.
void forEachChoice(MemoryProgram& program, const std::function<void()>& visit) {
    const int id = program.visiblePages().front();
    DialogControls& page = program.page(id);
    const auto done = [&](bool possible) { possible ? visit() : void(); };
    for (const ControlTemplate& control : findDialogTemplate(id)->controls) {
        switch (control.kind) {
            case ControlKind::CheckBox: done(program.click(control.id)); break;
            case ControlKind::Edit: done(program.type(control.id, "7")); break;
            case ControlKind::ColourCombo: done(program.pick(control.id, 77)); break;
            case ControlKind::Combo:
                // Of thousands of numbers some will do.
                for (int entry = 0, last = page.comboCount(control.id); entry < last; entry += 1 + last / 30) {
                    done(program.pick(control.id, entry));
                }
                break;
            case ControlKind::List:
            case ControlKind::CheckedList:
                for (int row = 0; row < page.rowCount(control.id); ++row) {
                    done(program.clickRow(control.id, row) || program.selectRow(control.id, row));
                }
                break;
            default: break;
        }
    }
}

// The program has been started, which wrote its own settings.
void giveFile(MemoryProgram& program, const std::string& file) {
    program.registry.setContent({}, nullptr);
    EXPECT_FALSE(loadRegFile(file, program.registry));
}

// The sections of the sample that have to do with what the item writes: these keys, those above and those below them.
std::string sectionsAround(int item, MemoryProgram& program, const std::string& sample) {
    giveFile(program, sample);
    program.select(item);
    forEachChoice(program, [&] { program.apply(); });
    const RegistryTree& tree = program.registry.tree();
    std::set<std::string> whole;   // with all sections directly below
    std::set<std::string> single;
    for (KeyId key : tree.changedKeys()) {
        whole.insert(upper(toUtf8(tree.path(key))));
        for (; key != kNoKey; key = tree.parent(key)) {
            single.insert(upper(toUtf8(tree.path(key))));
        }
    }
    std::string sections;
    for (std::size_t at = 0, end = 0; at < sample.size(); at = end) {
        end = std::min(sample.find("\n[", at), sample.size() - 1) + 1;
        const std::string key = upper(sample.substr(at + 1, sample.find(']', at) - at - 1));
        const std::string above = key.substr(0, key.rfind('\\'));
        sections += at == 0 || single.contains(key) || whole.contains(above) ? sample.substr(at, end - at) : "";
    }
    return sections;
}

std::string asExport(const std::string& file) {
    MemoryRegistry registry;
    registry.tree().remove(registry.tree().create(RegistryTree::root(0), u"before"));
    EXPECT_FALSE(loadRegFile(utf16(file), registry));
    return saveRegFile(registry).value_or("");
}

// As somebody writes it who knows every form there is: comments and blanks anywhere, deletions, sections in two pieces.
std::string asByHand(const std::string& file) {
    std::string text;
    for (std::size_t at = 0, end = 0; at < file.size(); at = end + 2) {
        end = std::min(file.find("\r\n", at), file.size());
        std::string line = file.substr(at, end - at);
        if (line.starts_with('[')) {
            const std::string none = std::string(kAboutNext) + "[-" + line.substr(1, line.size() - 2) + "\\None]\n\n";
            line = none + line + " ; a key\n\"None\"=-\n" + line + "\n; within";
        } else if ((line.starts_with('"') || line.starts_with('@')) && !line.ends_with('\\')) {
            const std::size_t nameEnd = line[0] == '@' ? 1 : line.find('"', 1) + 1;
            line = line.substr(0, nameEnd) + "=dword:7\n" + line + "  ; a value";
        }
        text += line + '\n';
    }
    text.resize(text.find_last_not_of('\n') + 1);
    return text;
}

// Answers how many of the choices changed something.
int expectOnlyOwnChanges(int item, MemoryProgram& program, const std::string& file) {
    int changes = 0;
    const std::string text = lowBytes(file);
    giveFile(program, file);
    EXPECT_EQ(saved(program.registry), file);
    const std::string before = dumpRegistry(program.registry);
    std::string last = before;
    program.select(item);
    forEachChoice(program, [&] {
        program.apply();
        const std::string after = dumpRegistry(program.registry);
        if (after == std::exchange(last, after) || ::testing::Test::HasFailure()) {
            return;
        }
        ++changes;
        const std::string now = lowBytes(saved(program.registry));
        const Difference changed = difference(before, after);
        EXPECT_EQ(otherLines(now, text, changed), otherLines(text, now, changed)) << now;
        EXPECT_TRUE(before != after || now == text) << now;
    });
    return changes;
}

TEST(RegFileEditing, EveryChoiceOfEveryItemChangesItsOwnLinesAlone) {
    const std::string sample = sampleRegistry();
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    int changes = 0;
    for (int id = 0; id < kItemCount && !HasFailure(); ++id) {
        if (findTweak(id)->hasApply()) {
            SCOPED_TRACE("item " + std::to_string(id));
            const std::string sections = sectionsAround(id, program, sample);
            changes += expectOnlyOwnChanges(id, program, sections);
            changes += expectOnlyOwnChanges(id, program, utf16(sections));
            changes += expectOnlyOwnChanges(id, program, asExport(sections));
            changes += expectOnlyOwnChanges(id, program, asByHand(sections));
        }
    }
    EXPECT_GT(changes, 2500);
}

}  // namespace
}  // namespace korvane
