// Running the program for tests, and comparing what it shows and writes.
#include "tests/support/AppFixture.h"

#include "platform/memory/DialogTemplates.h"
#include "regfile/RegFile.h"
#include "text/WholeFile.h"
#include "res/ControlIds.h"

#include <algorithm>
#include <set>

#ifdef _WIN32
#include "tests/win32/WindowsProgram.h"
#endif

// Tests run in the project's root unless they are told where it is.
#ifndef KORVANE_SOURCE_DIR
#define KORVANE_SOURCE_DIR "."
#endif

namespace korvane {
namespace {

constexpr int kPageTemplates[] = {IDD_CATEGORY,    IDD_CHECKS, IDD_CHECK_FIELDS, IDD_CHECK_COMBOS, IDD_CHECK_LIST,
                                  IDD_PATH_FIELDS, IDD_COMBOS, IDD_EDIT_COMBOS,  IDD_CHECK_COMBO};

// Each line of a registry text together with the key it belongs to.
std::set<std::string> linesWithKeys(std::string_view text) {
    std::set<std::string> lines;
    std::string key;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view line = text.substr(start, end - start);
        start = end + 1;
        if (line.starts_with('[')) {
            key = line;
            lines.insert(key);
        } else if (!line.empty()) {
            lines.insert(key + ' ' + std::string(line));
        }
    }
    return lines;
}

std::string controlText(DialogControls& page, const ControlTemplate& control) {
    const int id = control.id;
    switch (control.kind) {
        case ControlKind::CheckBox: return '[' + std::to_string(page.check(id)) + "] " + page.text(id);
        case ControlKind::Combo:
            return page.text(id) + " (" + std::to_string(page.comboSelection(id)) + " of " +
                   std::to_string(page.comboCount(id)) + ')';
        case ControlKind::ColourCombo: return std::to_string(page.comboCount(id)) + " colours";
        case ControlKind::List:
            return std::to_string(page.rowCount(id)) + " rows, selected " + std::to_string(page.selectedRow(id));
        case ControlKind::CheckedList: {
            std::string checks;
            for (int row = 0; row < page.rowCount(id); ++row) {
                checks += page.rowCheck(id, row) ? 'x' : '-';
            }
            return "rows " + checks;
        }
        default: return page.text(id);
    }
}

}  // namespace

void loadRegistry(MemoryRegistry& registry, std::string_view text) {
    const bool whole = text.starts_with("Windows Registry Editor") || text.starts_with("\xFF\xFE");
    const auto error = loadRegFile(
        whole ? std::string(text) : "Windows Registry Editor Version 5.00\n\n" + std::string(text), registry);
    ASSERT_FALSE(error) << "line " << error->line << ": " << error->reason;
}

std::string sampleRegistry() {
    std::string text;
    EXPECT_TRUE(readWholeFile(KORVANE_SOURCE_DIR "/samples/windows-xp.reg", 1 << 24, text));
    return text;
}

std::string registryChanges(std::string_view before, std::string_view after) {
    if (before == after) {
        return {};
    }
    // Only the keys between the first difference and the last: the registries are long and the changes few.
    const auto [first, firstAfter] = std::ranges::mismatch(before, after);
    const std::size_t start = before.substr(0, static_cast<std::size_t>(first - before.begin())).rfind("\n[");
    const std::size_t common = start == std::string_view::npos ? 0 : start + 1;
    before.remove_prefix(common);
    after.remove_prefix(common);
    const auto last = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend()).first;
    const std::size_t end = before.find("\n[", static_cast<std::size_t>(before.rend() - last));
    if (end != std::string_view::npos) {
        after.remove_suffix(before.size() - end);
        before.remove_suffix(before.size() - end);
    }
    const std::set<std::string> old = linesWithKeys(before);
    const std::set<std::string> now = linesWithKeys(after);
    std::string changes;
    for (const std::string& line : old) {
        changes += now.contains(line) ? "" : '-' + line + '\n';
    }
    for (const std::string& line : now) {
        changes += old.contains(line) ? "" : '+' + line + '\n';
    }
    return changes;
}

DialogControls* shownPage(Program& program) {
    const std::vector<int> pages = program.visiblePages();
    EXPECT_LE(pages.size(), 1u) << "several pages are visible";
    return pages.empty() ? nullptr : &program.page(pages.front());
}

std::string pageText(Program& program) {
    DialogControls* page = shownPage(program);
    if (page == nullptr) {
        return "no page";
    }
    const int id = program.visiblePages().front();
    std::string text = "page " + std::to_string(id) + '\n';
    for (const ControlTemplate& control : findDialogTemplate(id)->controls) {
        if (program.shows(id, control.id)) {
            text += (program.enabled(id, control.id) ? "" : "- ") + std::to_string(control.id) + ' ' +
                    controlText(*page, control) + '\n';
        }
    }
    return text;
}

std::string dateOf(Program& program, std::string_view title) {
    const std::string file = program.dateFile();
    const std::string key = "korvane(\"" + std::string(title) + "\",";
    const std::size_t start = file.find(key);
    return start == std::string::npos
               ? std::string()
               : file.substr(start + key.size(), file.find(')', start + key.size()) - start - key.size());
}

Program& OverPrograms::start(const Situation& situation) {
    program_.reset();
    program_ = GetParam().start(situation);
    program_->setToday({.year = 2006, .month = 7, .day = 16});
    before_ = program_->registryText();
    return *program_;
}

std::vector<std::string_view> OverPrograms::everyWindows() {
    if (!GetParam().quick) {
        return {"98", "xp"};
    }
    return {"95", "98", "me", "nt4", "2000", "xp", "2003", "vista"};
}

std::string OverPrograms::changes() {
    const std::string now = program_->registryText();
    std::string found = registryChanges(before_, now);
    before_ = now;
    return found;
}

MemoryProgram::MemoryProgram(std::string_view registryText, std::string_view windows) {
    loadRegistry(registry, registryText);
    system.version.record = versionNamed(windows).value();
}

bool MemoryProgram::start(std::string executable) {
    platform.emplace(system.platform(registry));
    app.emplace(*platform, executable);
    main.emplace(*app, window);
    return window.run(*main);
}

void MemoryProgram::setLanguageFile(std::string_view content, std::string_view language) {
    system.profile.setContent("C:\\Korvane\\Language\\" + std::string(language) + ".ini", content);
}

std::string MemoryProgram::registryText() { return dumpRegistry(registry); }

bool MemoryProgram::deny(Root root) {
    registry.deny(root, "");
    return true;
}

std::string MemoryProgram::dateFile() {
    const MemoryFile* file = system.memoryFiles.find(kDateFile);
    return file == nullptr ? std::string() : file->text;
}

std::vector<int> MemoryProgram::visiblePages() {
    std::vector<int> visible;
    for (const int id : kPageTemplates) {
        if (const MemoryDialog* page = window.page(id); page != nullptr && page->visible()) {
            visible.push_back(id);
        }
    }
    return visible;
}

bool MemoryProgram::shows(int templateId, int control) {
    const MemoryDialog* page = window.page(templateId);
    return page != nullptr && page->visible() && page->find(control) != nullptr && page->find(control)->visible;
}

bool MemoryProgram::enabled(int templateId, int control) {
    const MemoryDialog* page = window.page(templateId);
    return page != nullptr && page->find(control) != nullptr && page->find(control)->enabled;
}

MemoryDialog* MemoryProgram::shown() {
    const std::vector<int> pages = visiblePages();
    return pages.empty() ? nullptr : window.page(pages.front());
}

std::unique_ptr<Program> startInMemory(const Situation& situation) {
    auto program = std::make_unique<MemoryProgram>(situation.registry, situation.windows);
    EXPECT_TRUE(program->start());
    return program;
}

std::vector<ProgramKind> programKinds() {
    return {
        {"Memory", true, startInMemory},
#ifdef _WIN32
        {"Windows", false, startOnWindows},
#endif
    };
}

}  // namespace korvane
