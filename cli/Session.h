// One run of the program without its window: the registry of a .reg file or of
// the running Windows, the system around it, and the main window in memory.
#pragma once

#include "app/KorvaneApp.h"
#include "app/MainDlg.h"
#include "cli/CommandLine.h"
#include "cli/HostText.h"
#include "cli/LiveSystem.h"
#include "cli/Problem.h"
#include "cli/ProgramFolder.h"
#include "platform/memory/MemoryMainWindow.h"
#include "regfile/MemoryRegistry.h"
#include "platform/memory/MemorySystem.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

// What the window shows of an item.
struct PageView {
    int item = 0;
    std::string title{};
    Page page = Page::None;                // None: nothing is shown, and there are no controls
    const MemoryDialog* controls = nullptr;
    bool applyVisible = false;
};

// Today's date, but always the same seed: two runs over the same registry show the same.
class RunClock final : public Clock {
public:
    UtcDate utcDate() override { return SystemClock().utcDate(); }
    std::uint32_t seed() override { return 1; }
};

class Session {
public:
    // The options are borrowed for the whole run.
    explicit Session(const CommandLine& options);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Reads the registry file, if there is one, and starts the window. Everything below is for a started session.
    std::optional<Problem> start();

    const ItemTable& items() const { return app_->items(); }
    MemoryMainWindow& window() { return window_; }
    const std::vector<MessageBoxRequest>& alerts() const { return messages_.shown; }
    int stampCount() const { return dialog_->stampCount(); }
    ProgramText encoding() const { return encoding_; }

    // Selects the item as a click on its row would, whether or not it has one.
    void select(int item);
    PageView view();
    // The page's controls to act on; null when nothing is shown.
    MemoryDialog* page();

    bool worksOnFile() const { return live_ == nullptr; }
    // Writes the .reg file back if the registry is another than before the start, and says so.
    std::optional<Problem> saveRegistry(bool& written);
    // Writes the date of the selected item, if it was stamped. False when dates could not be read from or written to the
    // program folder.
    bool saveDates();

private:
    std::optional<Problem> openRegistry();
    std::optional<Problem> startWindow();
    Dates datesKept() const;
    Page shownPage();

    const CommandLine& options_;
    std::unique_ptr<LiveSystem> live_;
    MemoryRegistry fileRegistry_;
    std::optional<std::string> savedBefore_;
    ProgramText encoding_ = ProgramText::Windows1252;

    RecordedMessageBoxes messages_;
    MemoryVersion version_;
    RunClock clock_;
    MemoryFolders folders_;
    ScriptedPickers pickers_;
    ScriptedHelpLibrary help_;
    ProgramFolder programFolder_;
    FolderProfile profile_{programFolder_};
    CopiedFiles files_{programFolder_};

    std::optional<Platform> platform_;
    std::optional<CKorvaneApp> app_;
    MemoryMainWindow window_;
    std::optional<CMainDlg> dialog_;
    int item_ = 0;
};

}  // namespace korvane
