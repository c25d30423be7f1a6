// Putting the pieces of a run together.
#include "cli/Session.h"

#include "cli/LockedFiles.h"
#include "cli/RegFileStore.h"
#include "pages/PageLayout.h"
#include "regfile/RegFile.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr std::string_view kDefaultAppDataFolder = "C:\\Documents and Settings\\user\\Application Data";

}  // namespace

Session::Session(const CommandLine& options) : options_(options) {
    folders_.applicationData = kDefaultAppDataFolder;
}

std::optional<Problem> Session::start() {
    if (std::optional<Problem> problem = openRegistry()) {
        return problem;
    }
    return startWindow();
}

std::optional<Problem> Session::openRegistry() {
    if (!options_.registry) {
        live_ = openLiveSystem();
        encoding_ = ProgramText::SystemCodePage;
        return live_ != nullptr ? std::nullopt
                                : std::optional(wrongUsage("--registry is needed: this system has no registry"));
    }
    const std::string& file = *options_.registry;
    std::string bytes;
    if (const std::optional<std::string> error = readInputFile(file, bytes)) {
        return unreadable(file + ": " + *error);
    }
    if (const std::optional<RegFileError> error = loadRegFile(bytes, fileRegistry_)) {
        return unreadable(file + ':' + std::to_string(error->line) + ": " + error->reason);
    }
    if (options_.command == Command::Apply) {
        savedBefore_ = saveRegFile(fileRegistry_);
    }
    return std::nullopt;
}

std::optional<Problem> Session::startWindow() {
    version_.record = options_.windows.value_or(version_.record);
    folders_.windows = options_.windowsFolder.value_or(folders_.windows);
    folders_.applicationData = options_.appDataFolder.value_or(folders_.applicationData);
    folders_.drives = options_.drives.value_or(folders_.drives);
    if (options_.programFolder) {
        programFolder_ = ProgramFolder(*options_.programFolder);
        if (!programFolder_.exists()) {
            return unreadable(*options_.programFolder + ": there is no such folder");
        }
    }
    platform_.emplace(Platform{.registry = live_ != nullptr ? live_->registry() : fileRegistry_,
                               .messages = messages_,
                               .version = live_ != nullptr ? live_->version() : version_,
                               .clock = clock_,
                               .folders = live_ != nullptr ? live_->folders() : folders_,
                               .profile = profile_,
                               .pickers = pickers_,
                               .files = live_ != nullptr ? live_->files() : files_,
                               .help = help_});
    app_.emplace(*platform_, programFolder_.executable());
    if (options_.language) {
        const std::optional<std::string> name = fromArgument(*options_.language, encoding_);
        if (!name) {
            return wrongUsage("there cannot be a language " + quotedForMessage(*options_.language));
        }
        app_->forceLanguage(*name);
    }
    dialog_.emplace(*app_, window_, datesKept());
    if (!window_.run(*dialog_)) {
        return failure("the program ended while it was starting");
    }
    return std::nullopt;
}

// The flag of a running system says whether its own date file was created. A .reg file may come from anywhere.
Dates Session::datesKept() const {
    if (!programFolder_.given()) {
        return Dates::InMemory;
    }
    return worksOnFile() ? Dates::InFileAlone : Dates::InFile;
}

void Session::select(int item) {
    item_ = item;
    window_.selectData(static_cast<std::uint32_t>(item));
}

Page Session::shownPage() {
    for (int n = 0; n < kPageCount; ++n) {
        const Page page = static_cast<Page>(n);
        const MemoryDialog* dialog = window_.page(layoutOf(page).templateId);
        if (dialog != nullptr && dialog->visible()) {
            return page;
        }
    }
    return Page::None;
}

MemoryDialog* Session::page() {
    const Page shown = shownPage();
    return shown == Page::None ? nullptr : window_.page(layoutOf(shown).templateId);
}

PageView Session::view() {
    const Page shown = shownPage();
    return {.item = item_,
            .title = items().title(item_),
            .page = shown,
            .controls = shown == Page::None ? nullptr : window_.page(layoutOf(shown).templateId),
            .applyVisible = window_.dialog().find(IDC_APPLY)->visible};
}

// A run over a .reg file has dated its own copy only: the stamp is repeated in the file as it is by now, which keeps the
// stamps of others.
bool Session::saveDates() {
    if (datesKept() != Dates::InFileAlone || stampCount() == 0) {
        return dialog_->dates().lastFailure().empty();
    }
    LockedFiles files(programFolder_);
    DateStore dates(fileRegistry_, files, clock_, dialog_->dates().place(), [this] { return items().titles(); });
    dates.Initialise();
    return dates.Stamp(items().title(item_));
}

std::optional<Problem> Session::saveRegistry(bool& written) {
    written = false;
    if (!worksOnFile()) {
        return std::nullopt;
    }
    std::string error;
    const std::optional<std::string> bytes = saveRegFile(fileRegistry_, &error);
    if (bytes && bytes == savedBefore_) {
        return std::nullopt;
    }
    const std::optional<std::string> reason =
        bytes ? replaceFile(*options_.registry, *bytes) : std::optional("cannot be written: " + error);
    written = !reason;
    return reason ? std::optional(failure(*options_.registry + ": " + *reason)) : std::nullopt;
}

}  // namespace korvane
