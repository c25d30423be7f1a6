// Writes every text with the key by which the program looks it up.
#include "docgen/LanguageTemplate.h"

#include "app/KorvaneApp.h"
#include "app/StringTable.h"
#include "catalogue/Catalogue.h"
#include "lang/LanguageFile.h"
#include "pages/PageLayout.h"
#include "platform/memory/DialogTemplates.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr std::string_view kIntroduction =
    "; The texts of Korvane Manager, as a start for a translation.\r\n"
    ";\r\n"
    "; Copy this file to NAME.ini in the same folder, translate the values, and set the value \"Language\" of\r\n"
    "; HKEY_CURRENT_USER\\Software\\Korvane Manager to NAME. A line that is missing or empty stays English.\r\n"
    "; Write \\n for a new line and \\t for a tab. A value that begins or ends with a blank stands in double\r\n"
    "; quotation marks. Values are at most 1023 characters long, the caption of a window 259.\r\n"
    ";\r\n"
    "; [100] the About box, [102] the main window: the caption under the section's own number, then the controls.\r\n"
    "; [106] the headings of the overviews.\r\n"
    "; [1004] the items: the ItemId with a 2 behind it is the title, with a 3 the description. A title has no comma and\r\n"
    "; no quotation mark, and is no other item's: it is the key under which the item's date is kept.\r\n"
    "; [KorvaneManagerStringTable] the messages. [ItemN] the page of the item N.\r\n";

bool fits(std::string_view text) {
    return text.find('\r') == std::string_view::npos && text.find("\\n") == std::string_view::npos &&
           text.find("\\t") == std::string_view::npos;
}

bool needsQuotes(std::string_view text) {
    const auto outer = [](char c) { return c == ' ' || c == '\t'; };
    const bool quoted = text.size() > 1 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    return outer(text.front()) || outer(text.back()) || quoted;
}

std::string escape(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '\n': result += "\\n"; break;
            case '\t': result += "\\t"; break;
            default: result += c;
        }
    }
    return needsQuotes(result) ? '"' + result + '"' : result;
}

class Writer {
public:
    void section(std::string_view name) { text_.append("\r\n[").append(name).append("]\r\n"); }
    void value(std::string_view key, std::string_view text) {
        if (!text.empty() && fits(text)) {
            text_.append(key).append("=").append(escape(text)).append("\r\n");
        }
    }
    void value(int key, std::string_view text) { value(std::to_string(key), text); }
    const std::string& text() const { return text_; }

private:
    std::string text_{kIntroduction};
};

void writeDialog(Writer& writer, int id) {
    const DialogTemplate& dialog = *findDialogTemplate(id);
    writer.section(std::to_string(id));
    writer.value(id, dialog.caption);
    for (const ControlTemplate& control : dialog.controls) {
        if (control.kind == ControlKind::Button || control.kind == ControlKind::Label) {
            writer.value(control.id, control.text);
        }
    }
}

void writeItems(Writer& writer) {
    writer.section("1004");
    for (int id = 0; id < kItemCount; ++id) {
        writer.value(std::to_string(id) + "2", findTweak(id)->title);
        writer.value(std::to_string(id) + "3", findTweak(id)->description);
    }
}

bool isNumber(std::string_view text) { return text.find_first_not_of("0123456789") == std::string_view::npos; }

void writeEntries(Writer& writer, int combo, const ChoiceBinding& binding) {
    std::visit(
        [&](const auto& choice) {
            if constexpr (requires { choice.entries; }) {
                int index = 0;
                for (const auto& entry : choice.entries) {
                    if (!isNumber(entry.text)) {
                        writer.value(std::to_string(combo) + "." + std::to_string(index), entry.text);
                    }
                    ++index;
                }
            }
        },
        binding);
}

void writeTable(Writer& writer, int list, std::span<const TableColumn> columns,
                std::span<const std::string_view> cells) {
    const std::string prefix = std::to_string(list) + ".";
    const std::size_t count = columns.size();
    for (std::size_t column = 0; column < count; ++column) {
        writer.value(prefix + "c." + std::to_string(column), columns[column].heading);
    }
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        writer.value(prefix + std::to_string(cell / count) + "." + std::to_string(cell % count), cells[cell]);
    }
}

void writeOverviews(Writer& writer) {
    constexpr TableColumn kColumns[] = {{"Name", 0}, {"Data Modified", 0}};
    writer.section(std::to_string(IDD_CATEGORY));
    writeTable(writer, IDC_LIST, kColumns, {});
}

void writeControl(Writer& writer, const CheckBox& box, int id) { writer.value(id, box.text); }
void writeControl(Writer& writer, const Field& field, const RowControls& row) { writer.value(row.label, field.label); }
void writeControl(Writer& writer, const ColourField& colour, const RowControls& row) {
    writer.value(row.label, colour.label);
}
void writeControl(Writer& writer, const Choice& choice, const RowControls& row) {
    writer.value(row.label, choice.label);
    writeEntries(writer, row.combo, choice.binding);
}
void writeControl(Writer& writer, const Table& table, int list) {
    writeTable(writer, list, table.columns, table.cells);
}

void writePage(Writer& writer, const Tweak& tweak) {
    writer.section(itemSection(tweak.id));
    forEachControl(tweak, [&](const auto& control, const auto& ids) { writeControl(writer, control, ids); });
    if (layoutOf(tweak.page).note != 0) {
        writer.value(layoutOf(tweak.page).note, tweak.note);
    }
}

}  // namespace

std::string makeLanguageTemplate() {
    Writer writer;
    writeDialog(writer, IDD_ABOUT);
    writeDialog(writer, IDD_MAIN);
    writeOverviews(writer);
    writeItems(writer);
    writer.section(kStringTableSection);
    for (const StringTableEntry& entry : stringTable()) {
        writer.value(entry.id, entry.text);
    }
    for (int id = 0; id < kItemCount; ++id) {
        if (findTweak(id)->hasShow() && !findTweak(id)->isCategory()) {
            writePage(writer, *findTweak(id));
        }
    }
    return writer.text();
}

}  // namespace korvane
