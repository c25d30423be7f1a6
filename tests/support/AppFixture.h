// The whole program as a test sees it: start it over some registry, select an
// item, press the button, look at the page and at what changed. The tests of
// the catalogue are written over the abstract Program, so that the same cases
// run wherever a program can be started; MemoryProgram is the one without
// windows.
#pragma once

#include "app/MainDlg.h"
#include "platform/MessageBoxes.h"
#include "platform/memory/MemoryMainWindow.h"
#include "regfile/MemoryRegistry.h"
#include "platform/memory/MemorySystem.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// ---- Registry texts

// A user without any settings: all that the program itself needs.
inline constexpr std::string_view kBareRegistry = "[HKEY_CURRENT_USER\\Software]\n";

// Merges key blocks into the registry; a text without the header of a .reg file gets one.
void loadRegistry(MemoryRegistry& registry, std::string_view text);
// The sample of a used Windows XP, as a .reg file.
std::string sampleRegistry();
// The difference of two registry texts, one line for each key ("+[key]") and each value ("+[key] "name"=data") that
// came or went, those that went first.
std::string registryChanges(std::string_view before, std::string_view after);

// ---- The program

class Program {
public:
    virtual ~Program() = default;

    // The whole registry, in the form of dumpRegistry.
    virtual std::string registryText() = 0;
    // From now on the root cannot be connected to. False: that cannot be arranged here.
    virtual bool deny(Root root) = 0;
    virtual void setToday(const UtcDate& today) = 0;
    virtual std::string dateFile() = 0;
    // The message boxes shown since the start.
    virtual const std::vector<MessageBoxRequest>& messages() = 0;

    virtual void select(int id) = 0;
    // Presses "Apply Changes"; false when it cannot be pressed.
    virtual bool apply() = 0;
    // Handles of the registry that were not closed.
    virtual std::size_t openHandles() = 0;

    virtual std::vector<int> visiblePages() = 0;  // template ids
    virtual DialogControls& page(int templateId) = 0;
    virtual bool shows(int templateId, int control) = 0;
    virtual bool enabled(int templateId, int control) = 0;

    // What a person does on the page that is shown; false when nobody could.
    virtual bool click(int control) = 0;
    virtual bool type(int control, std::string_view text) = 0;
    virtual bool pick(int combo, int entry) = 0;
    virtual bool selectRow(int list, int row) = 0;
    virtual bool clickRow(int list, int row) = 0;
};

// The only page shown, null when none is; a failure of the test when there are several.
DialogControls* shownPage(Program& program);
// Everything that the shown page says, one line for each visible control; a dash stands before those that are disabled.
// The colour list's selection is left out: it is arbitrary until a colour is read.
std::string pageText(Program& program);
// The date that the date file has for a title; empty when it has none.
std::string dateOf(Program& program, std::string_view title);

struct Situation {
    std::string_view windows = "xp";  // a name that versionNamed knows
    std::string registry{kBareRegistry};
};

struct ProgramKind {
    const char* name;
    bool quick;  // enough for tests that apply everything on every Windows
    std::unique_ptr<Program> (*start)(const Situation&);
};

// The kinds there are on this platform: the program in memory, and on Windows the one with real windows and keys.
std::vector<ProgramKind> programKinds();
inline std::string kindName(const ::testing::TestParamInfo<ProgramKind>& kind) { return kind.param.name; }
inline void PrintTo(const ProgramKind& kind, std::ostream* out) { *out << kind.name; }

// Tests that run over every kind of program: INSTANTIATE_TEST_SUITE_P(Over, Suite, ValuesIn(programKinds()), kindName).
class OverPrograms : public ::testing::TestWithParam<ProgramKind> {
protected:
    // Ends the program of before. The first day is 6/15/2005, the days of later applies are 7/16/2006.
    Program& start(const Situation& situation);
    Program& program() { return *program_; }
    // The Windows versions for tests of what all of them do; where starting takes long, one of each family.
    static std::vector<std::string_view> everyWindows();
    // Since the last call of this function, or since the start.
    std::string changes();

private:
    std::unique_ptr<Program> program_;
    std::string before_;
};

inline constexpr const char* kFirstDay = "6/15/2005";
inline constexpr const char* kLaterDay = "7/16/2006";

// ---- The program in memory

struct MemoryProgram final : Program {
    explicit MemoryProgram(std::string_view registryText = kBareRegistry, std::string_view windows = "xp");

    // False when the window ended while it started.
    bool start(std::string executable = "C:\\Korvane\\KorvaneManager.exe");
    // For use before the start.
    void setLanguageFile(std::string_view content, std::string_view language = "English");

    std::string registryText() override;
    bool deny(Root root) override;
    void setToday(const UtcDate& today) override { system.fixedClock.date = today; }
    std::string dateFile() override;
    const std::vector<MessageBoxRequest>& messages() override { return system.messages.shown; }
    void select(int id) override { window.selectData(static_cast<std::uint32_t>(id)); }
    bool apply() override { return window.clickApply(); }
    std::size_t openHandles() override { return registry.openHandles(); }
    std::vector<int> visiblePages() override;
    DialogControls& page(int templateId) override { return *window.page(templateId); }
    bool shows(int templateId, int control) override;
    bool enabled(int templateId, int control) override;
    bool click(int control) override {
        return shown() != nullptr && (shown()->clickCheckBox(control) || shown()->clickButton(control));
    }
    bool type(int control, std::string_view text) override { return shown() && shown()->typeText(control, text); }
    bool pick(int combo, int entry) override { return shown() && shown()->pickComboEntry(combo, entry); }
    bool selectRow(int list, int row) override { return shown() && shown()->selectListRow(list, row); }
    bool clickRow(int list, int row) override { return shown() && shown()->clickRowCheck(list, row); }

    MemoryRegistry registry;
    MemorySystem system;
    MemoryMainWindow window;
    std::optional<Platform> platform;
    std::optional<CKorvaneApp> app;
    std::optional<CMainDlg> main;

private:
    MemoryDialog* shown();
};

inline constexpr const char* kDateFile = "C:\\Korvane\\DFile.mrc";

std::unique_ptr<Program> startInMemory(const Situation& situation);

}  // namespace korvane
