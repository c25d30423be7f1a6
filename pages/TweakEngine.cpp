// The one course of showing and applying that all rows share.
#include "pages/TweakEngine.h"

#include "pages/PageLayout.h"
#include "res/ControlIds.h"

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

void resetBoxes(PageContext& context) {
    for (std::size_t i = 0; i < context.tweak.boxes.size(); ++i) {
        const int control = boxControl(context.tweak, i);
        showText(context, control, context.tweak.boxes[i].text);
        context.page.setCheck(control, 0);
    }
}

void resetFields(PageContext& context) {
    for (std::size_t i = 0; i < context.tweak.fields.size(); ++i) {
        const Field& field = context.tweak.fields[i];
        const RowControls row = fieldControls(context.tweak, i);
        showText(context, row.label, field.label);
        context.page.showControl(row.edit, true);
        context.page.setText(row.edit, "");
        if (field.browse) {
            context.page.showControl(row.browse, true);
        }
    }
}

void resetChoices(PageContext& context) {
    for (std::size_t i = 0; i < context.tweak.choices.size(); ++i) {
        const Choice& choice = context.tweak.choices[i];
        const RowControls row = choiceControls(context.tweak, i);
        showText(context, row.label, choice.label);
        context.page.showControl(row.combo, true);
        fillChoice(context, row.combo, choice.binding);
    }
}

// The colour list keeps its row: it has no reset state.
void resetColour(PageContext& context) {
    if (context.tweak.colour != nullptr) {
        showText(context, IDC_LABEL1, context.tweak.colour->label);
        context.page.showControl(IDC_COLOUR_COMBO, true);
    }
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

void fillTable(PageContext& context) {
    const Table& table = *context.tweak.table;
    const int list = layoutOf(context.tweak.page).list;
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

// The check-box page has room for ten boxes; its note stands right below those that are used and takes the rest of the
// page, so that a long note can be read whole.
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

void readControls(PageContext& context) {
    const Tweak& tweak = context.tweak;
    for (std::size_t i = 0; i < tweak.boxes.size(); ++i) {
        showCheck(context, boxControl(tweak, i), tweak.boxes[i].binding);
    }
    for (std::size_t i = 0; i < tweak.fields.size(); ++i) {
        showField(context, fieldControls(tweak, i).edit, tweak.fields[i].binding);
    }
    if (tweak.colour != nullptr) {
        showColour(context, IDC_COLOUR_COMBO, tweak.colour->binding);
    }
    for (std::size_t i = 0; i < tweak.choices.size(); ++i) {
        showChoice(context, choiceControls(tweak, i).combo, tweak.choices[i].binding);
    }
}

void writeControls(PageContext& context) {
    const Tweak& tweak = context.tweak;
    for (std::size_t i = 0; i < tweak.boxes.size(); ++i) {
        applyCheck(context, boxControl(tweak, i), tweak.boxes[i].binding);
    }
    for (std::size_t i = 0; i < tweak.fields.size(); ++i) {
        applyField(context, fieldControls(tweak, i).edit, tweak.fields[i].binding);
    }
    if (tweak.colour != nullptr) {
        applyColour(context, IDC_COLOUR_COMBO, tweak.colour->binding);
    }
    for (std::size_t i = 0; i < tweak.choices.size(); ++i) {
        applyChoice(context, choiceControls(tweak, i).combo, tweak.choices[i].binding);
    }
    if (tweak.table != nullptr) {
        applyTable(context, layoutOf(tweak.page).list, tweak.table->binding);
    }
}

void refuse(PageContext& context) {
    if (context.tweak.putBoxesBack) {
        for (std::size_t i = 0; i < context.tweak.boxes.size(); ++i) {
            const int control = boxControl(context.tweak, i);
            context.page.setCheck(control, context.checked(control) ? 0 : 1);
        }
    }
    context.host.alert(context.tweak.gate.alert);
}

// False, after the alert, when a required field is empty.
bool requiredFieldsFilled(PageContext& context) {
    for (std::size_t i = 0; i < context.tweak.fields.size(); ++i) {
        const int alert = context.tweak.fields[i].required;
        if (alert != 0 && context.page.text(fieldControls(context.tweak, i).edit).empty()) {
            context.host.alert(alert);
            return false;
        }
    }
    return true;
}

}  // namespace

void showTweak(PageContext& context) {
    context.page.show(true);
    context.host.showApplyButton();
    showHeader(context);
    resetBoxes(context);
    resetFields(context);
    resetColour(context);
    resetChoices(context);
    if (context.tweak.table != nullptr) {
        fillTable(context);
    }
    showNote(context);
    readControls(context);
    if (context.tweak.show != nullptr) {
        context.tweak.show(context);
    }
}

void applyTweak(PageContext& context) {
    if (!context.tweak.gate.open(context.version)) {
        refuse(context);
        return;
    }
    if (context.tweak.stamp == Stamp::BeforeOpening) {
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

void showOverview(PageContext& context) {
    const Overview& overview = *context.tweak.overview;
    const TableColumn columns[] = {{"Name", overview.nameWidth}, {"Data Modified", overview.dateWidth}};
    context.page.show(true);
    context.page.showControl(IDC_LIST, true);
    showHeader(context);
    startList(context, IDC_LIST, columns);
    int index = 0;
    for (const OverviewRow& row : overview.rows) {
        const std::string title = context.host.title(row.id);
        context.page.insertRow(IDC_LIST, index, row.text.empty() ? title : row.text);
        context.page.setCell(IDC_LIST, index, 1, context.host.dateOf(row.lookUp.empty() ? title : row.lookUp));
        ++index;
    }
}

}  // namespace korvane
