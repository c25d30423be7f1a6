// Putting the pieces of a run together.
#include "cli/Session.h"

#include "catalogue/Catalogue.h"
#include "cli/InputFile.h"
#include "cli/LockedFiles.h"
#include "cli/LossyWrite.h"
#include "pages/PageLayout.h"
#include "regfile/RegFile.h"
#include "regfile/RegFileCodePage.h"
#include "regfile/RegFileIndex.h"
#include "res/ControlIds.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr std::string_view kDefaultAppDataFolder = "C:\\Documents and Settings\\user\\Application Data";

}  // namespace

Session::Session(const CommandLine& options, Output& output) : options_(options), output_(output) {
    folders_.applicationData = kDefaultAppDataFolder;
}

std::optional<Problem> Session::start() {
    if (std::optional<Problem> problem = openRegistry()) {
        return problem;
    }
    std::optional<Problem> problem = startWindow();
    // The live registry keeps what the start has written to it, so the date file must be kept as well.
    if (!problem && !worksOnFile()) {
        saveDates();
    }
    return problem;
}

std::optional<Problem> Session::openRegistry() {
    if (!options_.registry) {
        live_ = openLiveSystem();
        encoding_ = CodePage::ofHost();
        return live_ != nullptr ? std::nullopt
                                : std::optional(wrongUsage("--registry is needed: this system has no registry"));
    }
    if (std::optional<Problem> problem = readRegistryFile()) {
        return problem;
    }
    fileRegistry_.watchLostLetters(lostLetters_);
    return std::nullopt;
}

std::optional<Problem> Session::readRegistryFile() {
    const std::string& file = *options_.registry;
    std::string bytes;
    if (options_.command == Command::Apply) {
        if (std::optional<Problem> problem = update_.begin(file, bytes)) {
            return problem;
        }
    } else if (const std::optional<std::string> error = readInputFile(file, bytes)) {
        return unreadable(file + ": " + *error);
    }
    if (std::optional<Problem> problem = chooseCodePage(bytes)) {
        return problem;
    }
    fileRegistry_.setCodePage(encoding_);
    if (const std::optional<RegFileError> error = loadRegFile(std::move(bytes), fileRegistry_)) {
        return unreadable(file + ':' + std::to_string(error->line) + ": " + error->reason);
    }
    return std::nullopt;
}

std::optional<Problem> Session::chooseCodePage(std::string_view bytes) {
    const std::optional<std::string> named = options_.codePage ? std::nullopt : codePageNamedIn(bytes);
    const std::optional<int> number = named ? wholeNumber(*named) : std::nullopt;
    const std::optional<CodePage> page = number ? CodePage::open(static_cast<unsigned>(*number)) : options_.codePage;
    if (named && !page) {
        return unreadable(*options_.registry + ": the system's code page " + quotedForMessage(*named) +
                          " is not known here: name another one with --code-page");
    }
    encoding_ = page.value_or(CodePage::western());
    return std::nullopt;
}

std::optional<Problem> Session::startWindow() {
    version_.record = options_.windows.value_or(version_.record);
    folders_.windows = options_.windowsFolder.value_or(folders_.windows);
    folders_.applicationData = options_.appDataFolder.value_or(folders_.applicationData);
    folders_.drives = options_.drives.value_or(folders_.drives);
    if (options_.programFolder) {
        programFolder_ = ProgramFolder(*options_.programFolder, encoding_);
        if (!programFolder_.exists()) {
            return unreadable(*options_.programFolder + ": there is no such folder");
        }
    }
    journal_.emplace(live_ != nullptr ? live_->registry() : fileRegistry_);
    platform_.emplace(Platform{.registry = *journal_,
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
        if (std::optional<Problem> problem = useLanguage(*options_.language)) {
            return problem;
        }
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

// A name from the list of those that are there is never a path. English needs no file.
std::optional<Problem> Session::useLanguage(const std::string& name) {
    std::vector<std::string> there = programFolder_.languages();
    const auto isWanted = [&](const std::string& each) { return sameFileName(each, name); };
    if (std::ranges::none_of(there, [](const std::string& each) { return sameFileName(each, "English"); })) {
        there.insert(there.begin(), "English");
    }
    const std::optional<std::string> text = fromArgument(name, encoding_);
    if (!text || std::ranges::none_of(there, isWanted)) {
        std::string names;
        for (const std::string& each : there) {
            names += (names.empty() ? "" : ", ") + each;
        }
        return wrongUsage("there is no language " + quotedForMessage(name) + "; there are: " + names);
    }
    app_->forceLanguage(*text);
    return std::nullopt;
}

// An item's page leaves the colour list as it is unless it reads a colour that the list has: an empty selection tells
// the two apart.
void Session::select(int item) {
    item_ = item;
    MemoryDialog& colours = *window_.page(layoutOf(Page::CheckCombos).templateId);
    const int before = colours.comboSelection(IDC_COLOUR_COMBO);
    colours.selectComboEntry(IDC_COLOUR_COMBO, kNoSelection);
    window_.selectData(static_cast<std::uint32_t>(item));
    showsRandomColour_ =
        colours.usable(IDC_COLOUR_COMBO) && colours.comboSelection(IDC_COLOUR_COMBO) == kNoSelection;
    if (colours.comboSelection(IDC_COLOUR_COMBO) == kNoSelection) {
        colours.selectComboEntry(IDC_COLOUR_COMBO, before);
    }
}

bool Session::accepts(int item) { return findTweak(item)->gate.open(COsVersion(platform_->version)); }

bool Session::clickApply() {
    journal_->clear();
    return window_.clickApply();
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

std::optional<Problem> Session::lossyWrite() {
    const std::optional<std::string> reason = whyLossy(lostLetters_, page(), encoding_);
    return reason ? std::optional(failure(*options_.registry + ": " + *reason)) : std::nullopt;
}

// A run over a .reg file has dated its own copy only: the stamp is repeated in the file as it is by now, which keeps the
// stamps of others.
bool Session::saveDates() {
    bool saved = dialog_->dates().lastFailure().empty();
    if (datesKept() == Dates::InFileAlone && stampCount() > 0) {
        LockedFiles files(programFolder_);
        DateStore dates(fileRegistry_, files, clock_, dialog_->dates().place(), [this] { return items().titles(); });
        dates.Initialise();
        saved = dates.Stamp(items().title(item_));
    }
    if (!saved) {
        output_.note("the dates could not be written to the program folder");
    }
    return saved;
}

std::optional<Problem> Session::saveRegistry(bool& written) {
    written = false;
    if (!worksOnFile()) {
        return std::nullopt;
    }
    std::string error;
    const std::optional<std::string> bytes = saveRegFile(fileRegistry_, &error);
    if (bytes && bytes == fileRegistry_.file()->text().bytes()) {
        return std::nullopt;
    }
    std::optional<Problem> problem =
        bytes ? update_.commit(*bytes) : failure(*options_.registry + ": cannot be written: " + error);
    written = !problem;
    return problem;
}

}  // namespace korvane
