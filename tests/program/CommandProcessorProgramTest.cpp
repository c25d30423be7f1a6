// Every tweak of the Command Processor, applied by hand in the running program
// on five versions of Windows: registry, alerts and dates.
#include "tests/program/Driver.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <optional>

#include <commctrl.h>

namespace korvane::program {
namespace {

constexpr const char* kCommandProcessor = "Software\\Microsoft\\Command Processor";
constexpr const char* kOldDate = "1/2/2003";

constexpr const char* kNamesNt = "These Tweak active only on Windows NT/2000/XP";
constexpr const char* kNames2000 = "These Tweak active only on Windows 2000/XP";

// ---- the registry around the tweaks

void deleteTree(HKEY parent, const std::string& path) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(parent, path.c_str(), 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) {
        return;
    }
    std::array<char, 260> name{};
    while (RegEnumKeyA(key, 0, name.data(), static_cast<DWORD>(name.size())) == ERROR_SUCCESS) {
        deleteTree(key, name.data());
    }
    RegCloseKey(key);
    RegDeleteKeyA(parent, path.c_str());
}

void makeKey(HKEY root, const char* path) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyA(root, path, &key), ERROR_SUCCESS) << path;
    RegCloseKey(key);
}

std::optional<std::string> value(HKEY root, const char* path, const char* name, DWORD type) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(root, path, 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::array<char, 260> data{};
    DWORD size = data.size();
    DWORD stored = 0;
    const LONG error = RegQueryValueExA(key, name, nullptr, &stored, reinterpret_cast<BYTE*>(data.data()), &size);
    RegCloseKey(key);
    if (error != ERROR_SUCCESS) {
        return std::nullopt;
    }
    if (stored != type) {
        return "type " + std::to_string(stored);
    }
    return type == REG_SZ ? std::string(data.data()) : std::string(data.data(), size);
}

std::optional<std::string> text(HKEY root, const char* path, const char* name) {
    return value(root, path, name, REG_SZ);
}

std::optional<DWORD> number(HKEY root, const char* path, const char* name) {
    const auto data = value(root, path, name, REG_DWORD);
    DWORD result = 0;
    if (!data || data->size() != sizeof result) {
        return std::nullopt;
    }
    std::copy(data->begin(), data->end(), reinterpret_cast<char*>(&result));
    return result;
}

std::optional<DWORD> userNumber(const char* name) { return number(HKEY_CURRENT_USER, kCommandProcessor, name); }

// A machine on which every key that the tweaks open is there, without their values.
void makeCleanMachine() {
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        deleteTree(root, kCommandProcessor);
        makeKey(root, kCommandProcessor);
    }
    deleteTree(HKEY_CURRENT_USER, "Software\\Policies\\Microsoft\\Windows");
    makeKey(HKEY_CURRENT_USER, "Software\\Policies\\Microsoft");
    deleteTree(HKEY_CLASSES_ROOT, "Directory\\shell\\Command");
    makeKey(HKEY_CLASSES_ROOT, "Directory\\shell");
    makeKey(HKEY_CURRENT_USER, "Console");
    HKEY console = nullptr;
    RegOpenKeyExA(HKEY_CURRENT_USER, "Console", 0, KEY_ALL_ACCESS, &console);
    RegDeleteValueA(console, "QuickEdit");
    RegCloseKey(console);
}

// All records dated long ago, so that a new date can be seen.
void ageDates() {
    const std::string path = programFolder() + "\\DFile.mrc";
    if (!readFile(path)) {
        Driver("winxp").close();
    }
    std::string text = readFile(path).value_or("");
    ASSERT_FALSE(text.empty());
    for (std::size_t comma = text.find("\","); comma != std::string::npos; comma = text.find("\",", comma + 2)) {
        text.replace(comma + 2, text.find(')', comma) - comma - 2, kOldDate);
    }
    writeFile(path, text);
}

// ---- what a user does on each page

struct Step {
    unsigned id;
    const char* title;
    std::function<void(Driver&)> act;
    const char* alertOnOthers;        // null: acts everywhere
    bool onNt4;                       // beside Windows 2000 and XP
    std::function<bool()> written;    // what an accepted apply leaves
    std::function<bool()> untouched;  // what a refused one leaves
};

void tick(Driver& program) { program.send(1013, BM_CLICK); }

bool noUserValue(const char* name) { return !userNumber(name) && !text(HKEY_CURRENT_USER, kCommandProcessor, name); }

const Step kSteps[] = {
    {3, "Allow UNC Paths at the Command Prompt", tick, kNamesNt, true,
     [] { return userNumber("DisableUNCCheck") == 1u; }, [] { return noUserValue("DisableUNCCheck"); }},
    {5, "Change the Command Prompt Colors", [](Driver& program) { program.selectListRow(1007, 10); }, kNamesNt, true,
     [] { return userNumber("DefaultColor") == 10u; }, [] { return noUserValue("DefaultColor"); }},
    {6, "Disable Command Processor Extentions", tick, kNames2000, false,
     [] { return userNumber("EnableExtensions") == 0u; }, [] { return noUserValue("EnableExtensions"); }},
    {7, "Disable Command Prompt and Batch Files", [](Driver& program) { program.selectListRow(1007, 2); }, kNames2000,
     false,
     [] { return number(HKEY_CURRENT_USER, "Software\\Policies\\Microsoft\\Windows\\System", "DisableCMD") == 2u; },
     [] {
         HKEY key = nullptr;
         return RegOpenKeyExA(HKEY_CURRENT_USER, "Software\\Policies\\Microsoft\\Windows", 0, KEY_READ, &key) ==
                ERROR_FILE_NOT_FOUND;
     }},
    {8, "Enable Command Completion",
     [](Driver& program) {
         program.send(1021, CB_SETCURSEL, 2);
         program.send(1022, CB_SETCURSEL, static_cast<WPARAM>(-1));
     },
     kNamesNt, true,
     [] {
         return userNumber("CompletionChar") == 9u &&
                number(HKEY_LOCAL_MACHINE, kCommandProcessor, "CompletionChar") == 0xFFFFFFFF;
     },
     [] { return noUserValue("CompletionChar"); }},
    {9, "Enable Delayed Environment Variable Expantion", tick, kNames2000, false,
     [] { return userNumber("DelayedExpansion") == 1u; }, [] { return noUserValue("DelayedExpansion"); }},
    {10, "Enable Directory Completion",
     [](Driver& program) {
         program.send(1021, CB_SETCURSEL, 3);
         program.send(1022, CB_SETCURSEL, 4);
     },
     kNamesNt, false,
     [] {
         return userNumber("PathCompletionChar") == 4u &&
                number(HKEY_LOCAL_MACHINE, kCommandProcessor, "PathCompletionChar") == 6u;
     },
     [] { return noUserValue("PathCompletionChar"); }},
    {11, "Quick Edit the Command Prompt", tick, kNamesNt, true,
     [] { return number(HKEY_CURRENT_USER, "Console", "QuickEdit") == 1u; },
     [] { return !number(HKEY_CURRENT_USER, "Console", "QuickEdit"); }},
    {12, "Run Startup Programs in Command Prompt", [](Driver& program) { program.setText(1015, "prompt $g"); },
     kNamesNt, false, [] { return text(HKEY_CURRENT_USER, kCommandProcessor, "AutoRun") == "prompt $g"; },
     [] { return noUserValue("AutoRun"); }},
};

std::string dateOf(const std::string& title) {
    const std::string dates = readFile(programFolder() + "\\DFile.mrc").value_or("");
    const std::string key = "korvane(\"" + title + "\",";
    const std::size_t start = dates.find(key);
    return start == std::string::npos ? "no record"
                                      : dates.substr(start + key.size(), dates.find(')', start) - start - key.size());
}

class CommandProcessorProgram : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        makeCleanMachine();
        ageDates();
    }
    bool accepts(const Step& step) const {
        const std::string version = GetParam();
        return version == "winxp" || version == "win2k" || (version == "nt40" && step.onNt4);
    }
};

TEST_P(CommandProcessorProgram, AppliesOrRefusesEveryTweak) {
    Driver program(GetParam());
    ASSERT_TRUE(program.running());
    for (const Step& step : kSteps) {
        SCOPED_TRACE(step.title);
        program.selectItem(step.id);
        ASSERT_NE(program.visiblePage(), nullptr);
        EXPECT_EQ(program.text(1006).rfind(std::string(step.title) + ":\n", 0), 0u);
        step.act(program);
        const ApplyResult result = program.apply();
        ASSERT_TRUE(result.finished);
        if (accepts(step)) {
            EXPECT_TRUE(result.alerts.empty());
            EXPECT_TRUE(step.written());
            EXPECT_EQ(dateOf(step.title), today());
        } else {
            EXPECT_EQ(result.alerts, std::vector<std::string>{step.alertOnOthers});
            EXPECT_TRUE(step.untouched());
            EXPECT_EQ(dateOf(step.title), kOldDate);
        }
    }
    // The overview of the category shows what the file has.
    program.selectItem(1);
    constexpr int kQuickEditRow = 6;
    EXPECT_EQ(program.cell(1007, kQuickEditRow, 0), "Quick Edit the Command Prompt");
    EXPECT_EQ(program.cell(1007, kQuickEditRow, 1), dateOf("Quick Edit the Command Prompt"));
    EXPECT_TRUE(program.close());
}

TEST_P(CommandProcessorProgram, MakesAndRemovesTheMenuEntryOnEveryWindows) {
    const std::string version = GetParam();
    const std::string title = "Add Command Prompt Option to Every Folder";
    Driver program(version);
    ASSERT_TRUE(program.running());

    program.selectItem(2);
    program.setText(1015, "");
    tick(program);
    const ApplyResult refused = program.apply();
    EXPECT_EQ(refused.alerts, std::vector<std::string>{"Please Set the Command Prompt Menu Name"});
    EXPECT_EQ(program.send(1013, BM_GETCHECK), BST_UNCHECKED);
    EXPECT_EQ(dateOf(title), kOldDate);

    program.setText(1015, "Prompt here");
    tick(program);
    EXPECT_TRUE(program.apply().alerts.empty());
    const std::string command = version == "win98"  ? "command.com /k cd %1"
                                : version == "win7" ? "Prompt here"
                                                    : "cmd.exe /k cd %1";
    EXPECT_EQ(text(HKEY_CLASSES_ROOT, "Directory\\shell\\Command", ""), "Prompt here");
    EXPECT_EQ(text(HKEY_CLASSES_ROOT, "Directory\\shell\\Command\\command", ""), command);
    EXPECT_EQ(dateOf(title), today());

    // Shown again as it was written; then cleared, which removes the whole key.
    program.selectItem(1);
    program.selectItem(2);
    EXPECT_EQ(program.send(1013, BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(program.text(1015), "Prompt here");
    tick(program);
    EXPECT_TRUE(program.apply().alerts.empty());
    EXPECT_FALSE(text(HKEY_CLASSES_ROOT, "Directory\\shell\\Command", ""));
    EXPECT_TRUE(program.close());
}

INSTANTIATE_TEST_SUITE_P(Versions, CommandProcessorProgram, testing::Values("winxp", "win2k", "nt40", "win98", "win7"),
                         [](const auto& version) { return std::string(version.param); });

}  // namespace
}  // namespace korvane::program
