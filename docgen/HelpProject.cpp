// Contents and index are lists of objects in the format of help compilers.
#include "docgen/HelpProject.h"

#include "docgen/TweakControls.h"
#include "docgen/HelpTopics.h"
#include "catalogue/Catalogue.h"
#include "text/CaseFolding.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr std::string_view kListStart =
    "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML>\n<HEAD>\n</HEAD>\n<BODY>\n<UL>\n";
constexpr std::string_view kListEnd = "</UL>\n</BODY>\n</HTML>\n";

// The window: navigation pane with contents, index and search, position saved; then the width of that pane, the usual
// buttons, and the initial position.
constexpr std::string_view kProjectStart = R"([OPTIONS]
Compatibility=1.1 or later
Compiled file=English.chm
Contents file=English.hhc
Index file=English.hhk
Default topic=start.html
Default window=help
Full-text search=Yes
Language=0x409 English (United States)
Title=Korvane Manager Help

[WINDOWS]
help="Korvane Manager Help","English.hhc","English.hhk","start.html","start.html",)"
                                           R"(,,,,0x40520,260,0x384e,[80,60,940,680],,,,,,,0

[FILES]
)";

// Name and address are already escaped for HTML.
std::string parameter(std::string_view name, const std::string& value) {
    return "<param name=\"" + std::string(name) + "\" value=\"" + value + "\">";
}

std::string listItem(const std::string& parameters) {
    return "<LI><OBJECT type=\"text/sitemap\">" + parameters + "</OBJECT>\n";
}

std::string entry(const std::string& name, const std::string& address) {
    return listItem(parameter("Name", name) + (address.empty() ? "" : parameter("Local", address)));
}

std::string book(const std::string& name, const std::string& address, const std::string& content) {
    return entry(name, address) + "<UL>\n" + content + "</UL>\n";
}

std::string topicBooks(const std::vector<HelpTopic>& topics, int parent, bool inTree) {
    std::string books;
    for (std::size_t i = 0; i < topics.size(); ++i) {
        const HelpTopic& topic = topics[i];
        if (topic.parent != parent || topic.inTree != inTree) {
            continue;
        }
        std::string content = topicBooks(topics, static_cast<int>(i), inTree);
        for (const int id : topic.items) {
            content += entry(escapeHtml(findTweak(id)->title), helpAddress(id));
        }
        books += book(escapeHtml(topic.title), topic.file, content);
    }
    return books;
}

std::string contents(std::span<const HelpFile> guide) {
    std::string text(kListStart);
    for (const HelpFile& page : guide) {
        text += entry(titleOfPage(page), page.name);
    }
    const std::vector<HelpTopic> topics = helpTopics();
    text += book("The Tweaks", "index.html", topicBooks(topics, -1, true));
    text += book("Not in the Tree", {}, topicBooks(topics, -1, false));
    text += entry("All Tweaks from A to Z", "all-tweaks.html");
    return text.append(kListEnd);
}

// ---- The index

struct Keyword {
    std::string text;
    std::string page;  // the title of what it leads to
    std::string address;

    auto operator<=>(const Keyword&) const = default;
};

// The names of values and keys at the start of a place: `Name` and `Other` (REG_DWORD) in `KEY`.
void addNames(std::vector<Keyword>& keywords, const Tweak& tweak, const BindingText& binding) {
    if (binding.places.empty()) {
        return;
    }
    for (const TextPiece& piece : binding.places.front()) {
        if (!piece.literal && piece.text.ends_with(" in ")) {
            break;
        }
        if (piece.literal) {
            keywords.push_back({escapeHtml(piece.text), escapeHtml(tweak.title), helpAddress(tweak.id)});
        }
    }
}

void addTweak(std::vector<Keyword>& keywords, const Tweak& tweak) {
    keywords.push_back({escapeHtml(tweak.title), escapeHtml(tweak.title), helpAddress(tweak.id)});
    for (const ControlText& control : controlTexts(tweak)) {
        addNames(keywords, tweak, control.binding);
    }
}

std::vector<Keyword> allKeywords(std::span<const HelpFile> guide) {
    std::vector<Keyword> keywords;
    for (const HelpFile& page : guide) {
        for (const std::string& word : keywordsOfPage(page)) {
            keywords.push_back({word, titleOfPage(page), page.name});
        }
    }
    for (int id = 0; id < kItemCount; ++id) {
        if (findTweak(id)->hasShow()) {
            addTweak(keywords, *findTweak(id));
        }
    }
    std::ranges::sort(keywords, [](const Keyword& a, const Keyword& b) {
        const std::string first = lowerCase(a.text);
        const std::string second = lowerCase(b.text);
        return first != second ? first < second : a < b;
    });
    keywords.erase(std::unique(keywords.begin(), keywords.end()), keywords.end());
    return keywords;
}

// One keyword with all its targets. Names that differ only in letter case are one keyword.
std::string index(std::span<const HelpFile> guide) {
    const std::vector<Keyword> keywords = allKeywords(guide);
    std::string text(kListStart);
    for (std::size_t i = 0; i < keywords.size();) {
        const std::string word = lowerCase(keywords[i].text);
        std::string parameters = parameter("Name", keywords[i].text);
        for (; i < keywords.size() && lowerCase(keywords[i].text) == word; ++i) {
            parameters += parameter("Name", keywords[i].page) + parameter("Local", keywords[i].address);
        }
        text += listItem(parameters);
    }
    return text.append(kListEnd);
}

}  // namespace

std::vector<HelpFile> makeHelpProject(std::span<const HelpFile> guide, std::span<const HelpFile> generated) {
    std::string project(kProjectStart);
    for (const auto pages : {guide, generated}) {
        for (const HelpFile& page : pages) {
            project += page.name + '\n';
        }
    }
    return {{"English.hhp", project + "help.css\n"}, {"English.hhc", contents(guide)}, {"English.hhk", index(guide)}};
}

}  // namespace korvane
