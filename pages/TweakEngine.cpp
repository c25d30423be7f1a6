// The show sequence and the apply sequence of all tweaks.
#include "pages/TweakEngine.h"

#include "pages/PageLayout.h"
#include "res/ControlIds.h"

#include <algorithm>
#include <variant>

namespace korvane {
namespace {

// Pixels between the last check box and the note below it.
constexpr int kNoteGap = 10;

void showHeader(PageContext& context) {
    context.page.showControl(IDC_HEADER, true);
    context.page.setText(IDC_HEADER, context.host.headerText(context.tweak.id));
}

void showText(PageContext& context, int control, std::string_view text) {
    context.setText(control, text);
    context.page.showControl(control, true);
}

// ---- the reset state of each control, visible and labelled

void reset(PageContext& context, const CheckBox& box, int control) {
    showText(context, control, box.text);
    context.page.setCheck(control, 0);
}

void reset(PageContext& context, const Field& field, const RowControls& row) {
    showText(context, row.label, field.label);
    context.page.showControl(row.edit, true);
    context.page.setText(row.edit, "");
    if (field.picker != Picker::None) {
        context.page.showControl(row.browse, true);
    }
}

// The colour list keeps its entry: it has no reset state.
void reset(PageContext& context, const ColourField& colour, const RowControls& row) {
    showText(context, row.label, colour.label);
    context.page.showControl(row.combo, true);
}

void reset(PageContext& context, const Choice& choice, const RowControls& row) {
    showText(context, row.label, choice.label);
    context.page.showControl(row.combo, true);
    fillChoice(context, row.combo, choice.binding);
}

// Empties a list and gives it its columns.
void startList(PageContext& context, int list, std::span<const TableColumn> columns) {
    ListColumns& count = context.host.listColumns();
    context.page.deleteRows(list);
    count.clear();
    int index = 0;
    for (const TableColumn& column : columns) {
        count.insert(context.page, list, context.translatedCell(list, "c", index++, column.heading), column.width);
    }
}

void reset(PageContext& context, const Table& table, int list) {
    startList(context, list, table.columns);
    const int columns = static_cast<int>(table.columns.size());
    int cell = 0;
    for (const std::string_view text : table.cells) {
        const int row = cell / columns;
        const int column = cell % columns;
        const std::string shown = context.translatedCell(list, std::to_string(row), column, text);
        if (column == 0) {
            context.page.insertRow(list, row, shown);
        } else {
            context.page.setCell(list, row, column, shown);
        }
        ++cell;
    }
    context.page.showControl(list, true);
}

// The check-box page has room for ten boxes. Its note is moved to just below those in use and fills the rest of the
// page, so that a long note is completely visible.
void placeNote(PageContext& context, int note) {
    if (context.tweak.page != Page::Checks || context.tweak.boxes.empty()) {
        return;
    }
    const Rect last = context.page.controlRect(boxControl(context.tweak, context.tweak.boxes.size() - 1));
    const Rect apply = context.host.applyButtonRect(context.tweak.page);
    const Rect old = context.page.controlRect(note);
    context.page.moveControl(note, {old.left, last.bottom + kNoteGap, old.right, apply.top - kNoteGap});
}

void showNote(PageContext& context) {
    const int note = layoutOf(context.tweak.page).note;
    if (note != 0 && !context.tweak.note.empty()) {
        placeNote(context, note);
        showText(context, note, context.tweak.note);
    }
}

// ---- reading and writing, each control by its binding

void read(PageContext& context, const CheckBox& box, int control) {
    showCheck(context, control, context.bindingOf(box));
}
void read(PageContext& context, const Field& field, const RowControls& row) {
    showField(context, row.edit, field.binding);
}
void read(PageContext& context, const ColourField& colour, const RowControls& row) {
    showColour(context, row.combo, colour.binding);
}
void read(PageContext& context, const Choice& choice, const RowControls& row) {
    showChoice(context, row.combo, choice.binding);
}
void read(PageContext& context, const Table& table, int list) { showTable(context, list, table.binding); }

void write(PageContext& context, const CheckBox& box, int control, WriteRound round) {
    applyCheck(context, control, context.bindingOf(box), round);
}
void write(PageContext& context, const Field& field, const RowControls& row, WriteRound round) {
    applyField(context, row.edit, field.binding, round);
}
void write(PageContext& context, const ColourField& colour, const RowControls& row, WriteRound round) {
    applyColour(context, row.combo, colour.binding, round);
}
void write(PageContext& context, const Choice& choice, const RowControls& row, WriteRound round) {
    applyChoice(context, row.combo, choice.binding, round);
}
void write(PageContext& context, const Table& table, int list, WriteRound round) {
    if (round == WriteRound::First) {
        applyTable(context, list, table.binding);
    }
}

void writeInOrder(PageContext& context, WriteRound round) {
    const auto writeAny = [&](const auto& control, const auto& ids) { write(context, control, ids, round); };
    if (context.tweak.writeOrder.empty()) {
        forEachControl(context.tweak, writeAny);
        return;
    }
    for (const int wanted : context.tweak.writeOrder) {
        forEachControl(context.tweak, [&](const auto& control, const auto& ids) {
            if (controlOf(control, ids) == wanted) {
                writeAny(control, ids);
            }
        });
    }
}

void writeFixed(PageContext& context, std::span<const FixedText> texts) {
    for (const FixedText& fixed : texts) {
        if (const OpenedKey key = context.openForWriting(fixed.key)) {
            writeText(context.platform.registry, key, fixed.name, fixed.text);
        }
    }
}

// False if no box of the tweak has a binding on the running version of Windows, so that there is nothing to apply.
bool boundHere(const PageContext& context) {
    return std::ranges::all_of(context.tweak.boxes, [&](const CheckBox& box) {
        return box.onVersions.empty() || !std::holds_alternative<Unbound>(context.bindingOf(box));
    });
}

// ---- applying

void refuse(PageContext& context) {
    if (context.tweak.putBoxesBack) {
        for (std::size_t i = 0; i < context.tweak.boxes.size(); ++i) {
            const int control = boxControl(context.tweak, i);
            context.page.setCheck(control, context.checked(control) ? 0 : 1);
        }
    }
    context.host.alert(context.tweak.gate.alert);
}

// False, after the alert, if a required field is empty.
bool requiredFieldsFilled(PageContext& context) {
    for (std::size_t i = 0; i < context.tweak.fields.size(); ++i) {
        const Alert alert = context.tweak.fields[i].required;
        if (alert != Alert::None && context.page.text(fieldControls(context.tweak, i).edit).empty()) {
            context.host.alert(alert);
            return false;
        }
    }
    return true;
}

bool stampsFirst(const PageContext& context) {
    const Stamp stamp = context.tweak.stamp;
    return stamp == Stamp::BeforeOpening ||
           (stamp == Stamp::On9xAlone && kWindows9x.contains(context.version));
}

}  // namespace

void showTweak(PageContext& context) {
    const Tweak& tweak = context.tweak;
    context.page.show(true);
    context.host.showApplyButton();
    showHeader(context);
    forEachControl(tweak, [&](const auto& control, const auto& ids) { reset(context, control, ids); });
    showNote(context);
    forEachControl(tweak, [&](const auto& control, const auto& ids) { read(context, control, ids); });
    if (tweak.show != nullptr) {
        tweak.show(context);
    }
}

void applyTweak(PageContext& context) {
    if (!context.tweak.gate.open(context.version)) {
        refuse(context);
        return;
    }
    if (!boundHere(context)) {
        return;
    }
    if (stampsFirst(context)) {
        context.host.stamp();
    }
    if (!requiredFieldsFilled(context)) {
        return;
    }
    if (context.tweak.apply != nullptr) {
        context.tweak.apply(context);
    } else {
        writeControls(context);
    }
}

void writeControls(PageContext& context) {
    writeFixed(context, context.tweak.writesFirst);
    writeInOrder(context, WriteRound::First);
    writeInOrder(context, WriteRound::Second);
    writeFixed(context, context.tweak.writesLast);
}

void showOverview(PageContext& context) {
    const Overview& overview = context.tweak.overview;
    const TableColumn columns[] = {{"Name", overview.nameWidth}, {"Data Modified", overview.dateWidth}};
    context.page.show(true);
    context.page.showControl(IDC_LIST, true);
    showHeader(context);
    startList(context, IDC_LIST, columns);
    int index = 0;
    for (const OverviewRow& row : context.host.overviewRows(context.tweak)) {
        context.page.insertRow(IDC_LIST, index, row.name);
        context.page.setCell(IDC_LIST, index, 1, row.date);
        ++index;
    }
}

}  // namespace korvane
