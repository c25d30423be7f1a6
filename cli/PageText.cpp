// The page from top to bottom: each control that can be set has its number in
// front, and choices and rows have theirs, so that an apply can be typed from
// what is read.
#include "cli/PageText.h"

#include "pages/PageLayout.h"
#include "res/ControlIds.h"
#include "text/ReplaceAll.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr std::size_t kWidth = 78;
constexpr std::size_t kTab = 4;
// Where texts begin that stand beside a control's number, and the choices below it.
constexpr std::size_t kMargin = 6;
// A combo box with more entries is cut: the numbers from 0 to 10000 would fill two hundred screens.
constexpr std::size_t kMostEntries = 200;
constexpr std::size_t kEntriesWhenCut = 3;

// A text of the registry may hold line feeds of its own, which are none of the page's. Other control characters are
// left to the output.
std::string oneLine(std::string_view text) {
    std::string line(text);
    replaceAll(line, "\n", "\\x0a");
    return line;
}

// Appends the words of one line, broken at the width; the lines that follow are indented.
void appendWords(std::string& out, std::string_view line, std::size_t indent) {
    std::size_t column = out.size() - (out.rfind('\n') + 1);
    bool first = true;
    for (std::size_t start = line.find_first_not_of(' '); start != std::string_view::npos;) {
        const std::size_t end = std::min(line.find(' ', start), line.size());
        const std::string_view word = line.substr(start, end - start);
        if (!first && column + 1 + word.size() > kWidth) {
            out += '\n' + std::string(indent, ' ');
            column = indent;
        } else if (!first) {
            out += ' ';
            ++column;
        }
        out += word;
        column += word.size();
        first = false;
        start = line.find_first_not_of(' ', end);
    }
    out += '\n';
}

// A text of several lines; tabs in front of a line indent the whole of it.
void appendWrapped(std::string& out, std::string_view text, std::size_t margin = 0) {
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        std::string_view line = text.substr(start, end - start);
        const std::size_t tabs = std::min(line.find_first_not_of('\t'), line.size());
        line.remove_prefix(tabs);
        const std::size_t indent = margin + tabs * kTab;
        out.append(indent, ' ');
        appendWords(out, line.ends_with('\r') ? line.substr(0, line.size() - 1) : line, indent);
        start = end + 1;
    }
}

class PagePrinter {
public:
    explicit PagePrinter(const PageView& view) : view_(view), layout_(layoutOf(view.page)) {}

    std::string print() {
        for (const MemoryControl& control : view_.controls->allControls()) {
            if (control.visible) {
                printControl(control);
            }
        }
        return std::move(out_);
    }

private:
    void printControl(const MemoryControl& control) {
        switch (control.kind) {
            case ControlKind::Header:
                printHeader(control.text);
                break;
            case ControlKind::Note:
                out_ += '\n';
                appendWrapped(out_, control.text);
                break;
            case ControlKind::Label:
                if (!labelsShownField(control.id)) {
                    appendWrapped(out_, control.text, kMargin);
                }
                break;
            case ControlKind::CheckBox:
                printCheckBox(control);
                break;
            case ControlKind::Button:
                begin(control, "<" + control.text + ">");
                endLine(control);
                break;
            case ControlKind::Edit:
                begin(control, labelOf(control.id) + "[" + oneLine(control.text) + "]");
                endLine(control);
                break;
            case ControlKind::Combo:
            case ControlKind::ColourCombo:
                begin(control, labelOf(control.id) + "[" + oneLine(control.text) + "]");
                endLine(control);
                printEntries(control);
                break;
            case ControlKind::List:
            case ControlKind::CheckedList:
                printList(control);
                break;
            default:
                break;
        }
    }

    // The title stands above already.
    void printHeader(std::string_view header) {
        if (header.starts_with(view_.title + ":\n")) {
            header.remove_prefix(view_.title.size() + 2);
        }
        appendWrapped(out_, header);
        out_ += '\n';
    }

    void printCheckBox(const MemoryControl& control) {
        begin(control, control.check != 0 ? "[x] " : "[ ] ");
        appendWords(out_, control.text, kMargin + 4);
        out_.pop_back();
        endLine(control);
    }

    void begin(const MemoryControl& control, const std::string& text) {
        std::string number = std::to_string(control.id);
        number.resize(kMargin, ' ');
        out_ += number + text;
    }

    void endLine(const MemoryControl& control) { out_ += control.enabled ? "\n" : " (disabled)\n"; }

    bool isShown(int id) const {
        const MemoryControl* control = id != 0 ? view_.controls->find(id) : nullptr;
        return control != nullptr && control->visible;
    }

    bool labelsShownField(int label) const {
        return std::ranges::any_of(layout_.rows, [&](const RowControls& row) {
            return row.label == label && (isShown(row.edit) || isShown(row.combo));
        });
    }

    // The text in front of a field; empty when its label is hidden.
    std::string labelOf(int field) const {
        for (const RowControls& row : layout_.rows) {
            if ((row.edit == field || row.combo == field) && isShown(row.label)) {
                const std::string label = oneLine(view_.controls->find(row.label)->text);
                return label + (label.ends_with(':') ? " " : ": ");
            }
        }
        return {};
    }

    void printEntries(const MemoryControl& control) {
        const std::size_t count = control.entries.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (count > kMostEntries && i == kEntriesWhenCut) {
                i = count - 1;
                out_ += std::string(kMargin + 2, ' ') + "...\n";
            }
            const bool selected = static_cast<int>(i) == control.selection;
            out_ += std::string(kMargin, ' ') + (selected ? "> #" : "  #") + std::to_string(i) + "  " +
                    oneLine(control.entries[i].text) + '\n';
        }
    }

    void printList(const MemoryControl& control) {
        const std::vector<std::size_t> widths = columnWidths(control);
        const std::size_t numberWidth = std::to_string(control.rows.size()).size();
        const bool hasChecks = control.kind == ControlKind::CheckedList;
        begin(control, std::string(view_.applyVisible ? numberWidth + 5 + (hasChecks ? 4 : 0) : 0, ' '));
        for (std::size_t column = 0; column < widths.size(); ++column) {
            appendCell(control.columns[column].heading, widths[column]);
        }
        endTableLine();
        for (std::size_t i = 0; i < control.rows.size(); ++i) {
            const MemoryListRow& row = control.rows[i];
            out_.append(kMargin, ' ');
            if (view_.applyVisible) {
                std::string number = std::to_string(i);
                number.resize(numberWidth + 2, ' ');
                out_ += (row.selected ? "> #" : "  #") + number;
                out_ += !hasChecks ? "" : row.checked ? "[x] " : "[ ] ";
            }
            for (std::size_t column = 0; column < widths.size(); ++column) {
                appendCell(row.cell(column), widths[column]);
            }
            endTableLine();
        }
    }

    static std::vector<std::size_t> columnWidths(const MemoryControl& control) {
        std::vector<std::size_t> widths;
        for (std::size_t column = 0; column < control.columns.size(); ++column) {
            std::size_t width = oneLine(control.columns[column].heading).size();
            for (const MemoryListRow& row : control.rows) {
                width = std::max(width, oneLine(row.cell(column)).size());
            }
            widths.push_back(width);
        }
        return widths;
    }

    void appendCell(std::string_view text, std::size_t width) {
        const std::string line = oneLine(text);
        out_ += line;
        out_.append(width - line.size() + 2, ' ');
    }

    void endTableLine() {
        out_.erase(out_.find_last_not_of(' ') + 1);
        out_ += '\n';
    }

    const PageView& view_;
    const PageLayout& layout_;
    std::string out_;
};

}  // namespace

std::string pageText(const PageView& view) {
    std::string text = oneLine(view.title) + " (" + std::to_string(view.item) + ")\n\n";
    return text + (view.page == Page::None ? "Nothing is shown for this item.\n" : PagePrinter(view).print());
}

}  // namespace korvane
