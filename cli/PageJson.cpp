// Every control of the page once, in the order of its template.
#include "cli/PageJson.h"

#include "res/ControlIds.h"

#include <array>

namespace korvane {
namespace {

// In the order of the Page enumeration.
constexpr std::array<std::string_view, kPageCount> kPageNames{
    "CCategoryPage",   "CChecksPage", "CCheckFieldsPage", "CCheckCombosPage", "CCheckListPage",
    "CPathFieldsPage", "CCombosPage", "CEditCombosPage",  "CCheckComboPage"};

std::string_view kindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::Header:
            return "header";
        case ControlKind::Label:
            return "label";
        case ControlKind::Note:
            return "note";
        case ControlKind::CheckBox:
            return "checkbox";
        case ControlKind::Button:
            return "button";
        case ControlKind::Edit:
            return "edit";
        case ControlKind::Combo:
            return "combo";
        case ControlKind::ColourCombo:
            return "colourCombo";
        case ControlKind::List:
        case ControlKind::CheckedList:
            return "list";
        default:
            return "other";
    }
}

class PageWriter {
public:
    PageWriter(JsonWriter& json, const CodePage& encoding) : json_(json), encoding_(encoding) {}

    void write(const PageView& view) {
        const MemoryControl* header = view.controls != nullptr ? view.controls->find(IDC_HEADER) : nullptr;
        json_.beginObject();
        number("item", view.item);
        text("title", view.title);
        json_.name("page");
        if (view.page == Page::None) {
            json_.null();
        } else {
            json_.text(kPageNames[static_cast<std::size_t>(view.page)]);
        }
        text("header", header != nullptr ? header->text : std::string());
        boolean("applyVisible", view.applyVisible);
        json_.name("controls");
        json_.beginArray();
        if (view.controls != nullptr) {
            for (const MemoryControl& control : view.controls->allControls()) {
                writeControl(control);
            }
        }
        json_.endArray();
        json_.endObject();
    }

private:
    void number(std::string_view name, long long value) {
        json_.name(name);
        json_.number(value);
    }
    void boolean(std::string_view name, bool value) {
        json_.name(name);
        json_.boolean(value);
    }
    void text(std::string_view name, std::string_view programText) {
        json_.name(name);
        json_.text(toUtf8(programText, encoding_));
    }

    void writeControl(const MemoryControl& control) {
        json_.beginObject();
        number("id", control.id);
        json_.name("kind");
        json_.text(kindName(control.kind));
        boolean("visible", control.visible);
        boolean("enabled", control.enabled);
        text("text", control.text);
        if (control.kind == ControlKind::CheckBox) {
            number("check", control.check);
        } else if (control.isCombo()) {
            writeEntries(control);
        } else if (control.isList()) {
            writeColumns(control);
            writeRows(control);
        }
        json_.endObject();
    }

    void writeEntries(const MemoryControl& control) {
        json_.name("items");
        json_.beginArray();
        for (const MemoryComboEntry& entry : control.entries) {
            json_.text(toUtf8(entry.text, encoding_));
        }
        json_.endArray();
        number("selection", control.selection);
    }

    void writeColumns(const MemoryControl& control) {
        json_.name("columns");
        json_.beginArray();
        for (const MemoryListColumn& column : control.columns) {
            json_.beginObject();
            text("text", column.heading);
            number("width", column.width);
            json_.endObject();
        }
        json_.endArray();
    }

    void writeRows(const MemoryControl& control) {
        int selected = -1;
        json_.name("rows");
        json_.beginArray();
        for (const MemoryListRow& row : control.rows) {
            json_.beginArray();
            for (std::size_t column = 0; column < control.columns.size(); ++column) {
                json_.text(toUtf8(row.cell(column), encoding_));
            }
            json_.endArray();
        }
        json_.endArray();
        json_.name("checked");
        json_.beginArray();
        for (std::size_t row = 0; row < control.rows.size(); ++row) {
            if (control.rows[row].checked) {
                json_.number(static_cast<long long>(row));
            }
            if (control.rows[row].selected && selected < 0) {
                selected = static_cast<int>(row);
            }
        }
        json_.endArray();
        number("selected", selected);
    }

    JsonWriter& json_;
    const CodePage& encoding_;
};

}  // namespace

void writePage(JsonWriter& json, const PageView& view, const CodePage& encoding) {
    PageWriter(json, encoding).write(view);
}

}  // namespace korvane
