// One function per kind of control.
#include "cli/PageControls.h"

#include "text/CaseFolding.h"

#include <algorithm>

namespace korvane {
namespace {

using Reason = std::optional<std::string>;  // nothing: the control is set

constexpr std::string_view kNothingSelected = "#-1";

std::string theControl(const Assignment& assignment) { return "control " + std::to_string(assignment.control); }

// The number behind "#".
std::optional<int> entryNumber(std::string_view value) {
    return value.starts_with('#') ? wholeNumber(value.substr(1)) : std::nullopt;
}

// A combo box with more entries is cut: nobody reads the numbers from 0 to 10000.
constexpr std::size_t kMostEntries = 200;
constexpr std::size_t kEntriesWhenCut = 3;

std::string howMany(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

Reason setCheckBox(MemoryDialog& page, const MemoryControl& control, const Assignment& assignment) {
    if (assignment.value != "0" && assignment.value != "1") {
        return theControl(assignment) + " is a check box and takes 0 or 1, not " + quotedForMessage(assignment.value);
    }
    if ((control.check != 0) != (assignment.value == "1")) {
        page.clickCheckBox(control.id);
    }
    return std::nullopt;
}

Reason typeText(MemoryDialog& page, const MemoryControl& control, const Assignment& assignment,
                const CodePage& encoding) {
    const std::optional<std::string> text = fromArgument(assignment.value, encoding);
    if (!text) {
        return theControl(assignment) + " cannot take " + quotedForMessage(assignment.value) +
               ": it has a character that the program's texts cannot hold";
    }
    if (!page.typeText(control.id, *text)) {
        return theControl(assignment) + " takes one line of up to 32766 characters";
    }
    return std::nullopt;
}

// A text picks the entry of that name, in capital letters or not.
std::optional<int> entryNamed(const MemoryControl& control, std::string_view name, const CodePage& encoding) {
    const std::optional<std::string> text = fromArgument(name, encoding);
    if (!text) {
        return std::nullopt;
    }
    const auto comparable = [&](std::string_view each) { return upperCase(encoding.toUtf16(each)); };
    const std::u16string wanted = comparable(*text);
    auto found = std::ranges::find(control.entries, *text, &MemoryComboEntry::text);
    if (found == control.entries.end()) {
        found = std::ranges::find_if(control.entries, [&](const MemoryComboEntry& entry) {
            return comparable(entry.text) == wanted;
        });
    }
    return found == control.entries.end() ? std::nullopt
                                          : std::optional(static_cast<int>(found - control.entries.begin()));
}

Reason setCombo(MemoryDialog& page, const MemoryControl& control, const Assignment& assignment,
                const CodePage& encoding) {
    const bool editable = control.kind == ControlKind::Combo;
    if (assignment.value == kNothingSelected) {
        if (!editable || !page.typeText(control.id, {})) {
            return theControl(assignment) + " always has an entry selected";
        }
        return std::nullopt;
    }
    const std::optional<int> index = assignment.value.starts_with('#')
                                         ? entryNumber(assignment.value)
                                         : entryNamed(control, assignment.value, encoding);
    if (!index || !page.pickComboEntry(control.id, *index)) {
        return theControl(assignment) + " has no entry " + quotedForMessage(assignment.value) + "; it has " +
               entriesOf(control, encoding) + (editable ? ", and #-1 for none" : "");
    }
    return std::nullopt;
}

Reason noSuchRow(const MemoryControl& control, const Assignment& assignment) {
    return theControl(assignment) + " has no such row (it has " + howMany(control.rows.size(), "row", "rows") +
           ", counted from 0)";
}

Reason setList(MemoryDialog& page, const MemoryControl& control, const Assignment& assignment) {
    if (!assignment.row) {
        const std::optional<int> row = entryNumber(assignment.value);
        if (!row) {
            return theControl(assignment) + " is a list and takes a row, such as #0, not " +
                   quotedForMessage(assignment.value);
        }
        return page.selectListRow(control.id, *row) ? std::nullopt : noSuchRow(control, assignment);
    }
    if (static_cast<std::size_t>(*assignment.row) >= control.rows.size()) {
        return noSuchRow(control, assignment);
    }
    if (assignment.value != "0" && assignment.value != "1") {
        return "a row's check box takes 0 or 1, not " + quotedForMessage(assignment.value);
    }
    if (page.rowCheck(control.id, *assignment.row) != (assignment.value == "1") &&
        !page.clickRowCheck(control.id, *assignment.row)) {
        return "the rows of " + theControl(assignment) + " have no check boxes";
    }
    return std::nullopt;
}

}  // namespace

std::string entriesOf(const MemoryControl& combo, const CodePage& encoding) {
    std::string names;
    const std::size_t count = combo.entries.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (count > kMostEntries && i == kEntriesWhenCut) {
            i = count - 1;
            names += ", ...";
        }
        names += (i == 0 ? "#" : ", #") + std::to_string(i) + ' ' + toHost(combo.entries[i].text, encoding);
    }
    return names.empty() ? "no entries" : names;
}

std::optional<std::string> setControl(MemoryDialog& page, const Assignment& assignment, const CodePage& encoding) {
    const MemoryControl* control = page.find(assignment.control);
    if (control == nullptr) {
        return "the page has no " + theControl(assignment);
    }
    if (!control->visible || !control->enabled) {
        return theControl(assignment) + (control->visible ? " is disabled" : " is hidden");
    }
    if (assignment.row && !control->isList()) {
        return theControl(assignment) + " is no list and has no rows";
    }
    switch (control->kind) {
        case ControlKind::CheckBox:
            return setCheckBox(page, *control, assignment);
        case ControlKind::Edit:
            return typeText(page, *control, assignment, encoding);
        case ControlKind::Combo:
        case ControlKind::ColourCombo:
            return setCombo(page, *control, assignment, encoding);
        case ControlKind::List:
        case ControlKind::CheckedList:
            return setList(page, *control, assignment);
        default:
            return theControl(assignment) + " cannot be set: it is no check box, edit field, combo box or list";
    }
}

}  // namespace korvane
