// Writes the catalogue as Markdown. A backslash at the end of a line is a line
// break.
#include "docgen/TweaksDocument.h"

#include "docgen/TweakControls.h"
#include "catalogue/Catalogue.h"
#include "text/CaseFolding.h"

#include <utility>

namespace korvane {
namespace {

constexpr std::string_view kIntroduction = R"(# The tweaks

Every setting that Korvane Manager knows, with the registry values behind it. Generated from the catalogue: change the
catalogue, not this file.

The number before a title is the ItemId: `kmctl show 11` shows that tweak, `kmctl apply 11 1013=1` changes it. The line
below the description says where the tweak is in the tree and which versions of Windows it accepts; on all others it is
refused and nothing is written. XP includes Windows Server 2003. On Windows Vista and later only tweaks for every Windows
work. What is not in the tree can be reached by `kmctl` only.

Then come the controls of the page: what each one is in the registry, and what *Apply Changes* writes for each of its
states.

- `HKCR`, `HKCU`, `HKLM` and `HKU` are the roots `HKEY_CLASSES_ROOT`, `HKEY_CURRENT_USER`, `HKEY_LOCAL_MACHINE` and
  `HKEY_USERS`.
- A key that is *opened* must exist: without it nothing is written. One that is *created* is created when the
  page is applied, if necessary with the keys above it; one that is *created below* another only if that other key
  exists. Showing a page never creates anything.
- A value that is missing, cannot be read or is longer than 202 bytes shows as the control's empty state: a cleared box,
  an empty text, *no choice*. Where a control shows something else, its lines or the line *Registry* say so: *shown when
  missing*, or *unknown* for stored data that is none of the entries.
- *No choice* is a combo box in which no entry is selected, also one whose text was typed.
- Numbers that begin with `0x`, and the bytes of REG_BINARY data, are hexadecimal; all others are decimal.
- *Registry* says what the tweak's own routines read and write, *Source* where the setting is documented.

)";

// ---- Markdown

bool isWordCharacter(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// Escapes plain text; an underscore within a word needs no backslash.
std::string escape(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool within =
            i > 0 && i + 1 < text.size() && isWordCharacter(text[i - 1]) && isWordCharacter(text[i + 1]);
        if (std::string_view("\\`*[]<>|~&").find(c) != std::string_view::npos || (c == '_' && !within)) {
            result += '\\';
        }
        result += c;
    }
    return result;
}

std::string codeSpan(const std::string& text) {
    const char* const fence = text.find('`') == std::string::npos ? "`" : "``";
    return fence + text + fence;
}

std::string markdown(const TextLine& line) {
    std::string text;
    for (const TextPiece& piece : line) {
        text += piece.literal ? codeSpan(piece.text) : escape(piece.text);
    }
    return text;
}

// ---- A tweak

// A control's text in one line, in bold; spaces at its end would break the Markdown.
std::string label(std::string_view text) {
    std::string result(text.substr(0, text.find_last_not_of(" \r\n") + 1));
    for (char& c : result) {
        c = c == '\n' ? ' ' : c;
    }
    return "**" + escape(result) + "**";
}

void addLines(std::string& document, const std::vector<TextLine>& lines) {
    for (const TextLine& line : lines) {
        document += "\\\n  " + markdown(line);
    }
}

void addControl(std::string& document, const Tweak& tweak, const ControlText& control) {
    const BindingText binding = unlessTold(tweak, control.binding);
    const std::string unnamed = (control.control != 0 ? "the " : "") + std::string(control.kind);
    document += "- " + (control.name.empty() ? unnamed : label(control.name));
    addLines(document, binding.places);
    if (!tweak.showOnly) {
        addLines(document, binding.effects);
    }
    document += '\n';
}

// "Accessories > Command Processor"
std::string pathInTree(const Tweak& tweak) {
    if (tweak.treeParent == kTreeRoot) {
        return {};
    }
    const Tweak& parent = *findTweak(tweak.treeParent);
    const std::string above = pathInTree(parent);
    return (above.empty() ? "" : above + " > ") + escape(parent.treeRowText());
}

std::string placeInTree(const Tweak& tweak) {
    if (tweak.treeParent == kNoTreeRow) {
        return "Not in the tree.";
    }
    return tweak.treeParent == kTreeRoot ? "Top of the tree." : "Tree: " + pathInTree(tweak) + ".";
}

std::string overviewOf(const Tweak& category) {
    std::string text = " Category; its overview lists";
    for (const int row : overviewItems(category)) {
        text.append(text.back() == 's' ? " " : ", ").append(std::to_string(row));
    }
    return text + '.';
}

void addLine(std::string& document, std::string_view name, std::string_view text) {
    if (!text.empty()) {
        document.append("\n").append(name).append(": ").append(markdown(markedText(text))).append("\n");
    }
}

std::string heading(const Tweak& tweak) { return std::to_string(tweak.id) + ' ' + escape(tweak.title); }

void addTweak(std::string& document, const Tweak& tweak) {
    document += "### " + heading(tweak) + "\n\n" + escape(tweak.description) + "\n\n" + placeInTree(tweak);
    if (tweak.hasOverview()) {
        document += overviewOf(tweak) + "\n\n";
        return;
    }
    document += ' ' + acceptedBy(tweak.gate) + '.';
    document += tweak.showOnly ? " The page only shows what is set; nothing is written.\n\n" : "\n\n";
    for (const ControlText& control : controlTexts(tweak)) {
        addControl(document, tweak, control);
    }
    addLine(document, "Registry", tweak.registry);
    addLine(document, "Source", tweak.source);
    document += '\n';
}

// In ItemId order, whatever the order of the units.
void addGroup(std::string& document, const CatalogueGroup& group) {
    document.append("## ").append(group.name).append("\n\n");
    std::string kept;
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        if (!group.owns(id)) {
            continue;
        }
        if (tweak.hasShow()) {
            addTweak(document, tweak);
        } else {
            kept += "- " + heading(tweak) + '\n';
        }
    }
    if (!kept.empty()) {
        document += "Kept in the table, nothing to change:\n\n" + kept + '\n';
    }
}

void addContents(std::string& document) {
    for (const CatalogueGroup& group : catalogueGroups()) {
        std::string anchor = lowerCase(group.name);
        std::ranges::replace(anchor, ' ', '-');
        document.append("- [").append(group.name).append("](#").append(anchor).append(")\n");
    }
    document += '\n';
}

}  // namespace

std::string makeTweaksDocument() {
    std::string document(kIntroduction);
    addContents(document);
    for (const CatalogueGroup& group : catalogueGroups()) {
        addGroup(document, group);
    }
    document.pop_back();
    return document;
}

}  // namespace korvane
