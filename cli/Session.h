// One run of the program without its window: the registry of a .reg file or of
// the running Windows, the system around it, and the main window in memory.
#pragma once

#include "app/KorvaneApp.h"
#include "app/MainDlg.h"
#include "cli/CommandLine.h"
#include "cli/FileUpdate.h"
#include "cli/HostText.h"
#include "cli/LiveSystem.h"
#include "cli/Output.h"
#include "cli/Problem.h"
#include "cli/ProgramFolder.h"
#include "cli/WriteJournal.h"
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
    // Both are borrowed for the whole run.
    Session(const CommandLine& options, Output& output);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Reads the registry file, if there is one, and starts the window. Everything below is for a started session.
    std::optional<Problem> start();

    const ItemTable& items() const { return app_->items(); }
    MemoryMainWindow& window() { return window_; }
    // Presses "Apply Changes"; false when nobody could.
    bool clickApply();
    const std::vector<MessageBoxRequest>& alerts() const { return messages_.shown; }
    int stampCount() const { return dialog_->stampCount(); }
    // What clickApply() tried to change in the registry.
    const std::vector<RegistryAttempt>& attempts() const { return journal_->attempts(); }
    // Of the program's texts.
    const CodePage& encoding() const { return encoding_; }

    // Selects the item as a click on its row would, whether or not it has one.
    void select(int item);
    // Whether the Windows of this session accepts the item.
    bool accepts(int item);
    // Whether the page's colour list shows the random colour that it starts with, because none of its colours is stored.
    bool showsRandomColour() const { return showsRandomColour_; }
    PageView view();
    // The page's controls to act on; null when nothing is shown.
    MemoryDialog* page();

    // Why the .reg file cannot be written back: the program has written a text from which letters were lost when it was
    // read.
    std::optional<Problem> lossyWrite();
    bool worksOnFile() const { return live_ == nullptr; }
    // Writes the .reg file back if that changes it, and says so.
    std::optional<Problem> saveRegistry(bool& written);
    // Writes the date of the selected item, if it was stamped. False, and noted, if dates could not be read from or written to the
    // program folder.
    bool saveDates();

private:
    std::optional<Problem> openRegistry();
    std::optional<Problem> readRegistryFile();
    // The one that is asked for, or that the file names as its system's.
    std::optional<Problem> chooseCodePage(std::string_view bytes);
    std::optional<Problem> startWindow();
    Dates datesKept() const;
    std::optional<Problem> useLanguage(const std::string& name);
    Page shownPage();

    const CommandLine& options_;
    Output& output_;
    std::unique_ptr<LiveSystem> live_;
    MemoryRegistry fileRegistry_;
    FileUpdate update_;  // of the registry file, when it is to be changed
    CodePage encoding_ = CodePage::western();
    LostLetters lostLetters_;

    RecordedMessageBoxes messages_;
    MemoryVersion version_;
    RunClock clock_;
    MemoryFolders folders_;
    ScriptedPickers pickers_;
    ScriptedHelpLibrary help_;
    ProgramFolder programFolder_;
    FolderProfile profile_{programFolder_};
    CopiedFiles files_{programFolder_};

    std::optional<WriteJournal> journal_;
    std::optional<Platform> platform_;
    std::optional<CKorvaneApp> app_;
    MemoryMainWindow window_;
    std::optional<CMainDlg> dialog_;
    int item_ = 0;
    bool showsRandomColour_ = false;
};

}  // namespace korvane
