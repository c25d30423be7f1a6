// Writes the pages, in XHTML 1.0 that old browsers understand: plain ASCII, every
// element closed, anchors by name and by id.
#include "docgen/HelpPages.h"

#include "docgen/TweakControls.h"
#include "docgen/HelpProject.h"
#include "docgen/HelpTopics.h"
#include "catalogue/Catalogue.h"
#include "pages/PageLayout.h"
#include "res/ControlIds.h"
#include "text/CaseFolding.h"

#include <algorithm>
#include <utility>

namespace korvane {
namespace {

constexpr std::string_view kGuide[] = {"start.html",     "pages.html", "reading.html", "dates.html",
                                       "languages.html", "skins.html", "kmctl.html",   "problems.html"};

// Up to so many states are written in one line, more as a list.
constexpr std::size_t kStatesInOneLine = 3;

// ---- HTML

std::string element(std::string_view name, const std::string& content) {
    return "<" + std::string(name) + ">" + content + "</" + std::string(name) + ">";
}

std::string styled(std::string_view name, std::string_view style, const std::string& content) {
    return "<" + std::string(name) + " class=\"" + std::string(style) + "\">" + content + "</" + std::string(name) +
           ">";
}

std::string link(const std::string& address, const std::string& content) {
    return "<a href=\"" + escapeHtml(address) + "\">" + content + "</a>";
}

std::string linkTo(int id) { return link(helpAddress(id), escapeHtml(findTweak(id)->title)); }
std::string linkTo(const HelpTopic& topic) { return link(topic.file, escapeHtml(topic.title)); }

HelpFile page(const std::string& name, const std::string& title, const std::string& body) {
    return {name,
            "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" "
            "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">\n"
            "<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\" xml:lang=\"en\">\n<head>\n"
            "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=us-ascii\" />\n"
            "<title>" +
                title +
                "</title>\n"
                "<link rel=\"stylesheet\" type=\"text/css\" href=\"help.css\" />\n</head>\n<body>\n" +
                body + "</body>\n</html>\n"};
}

// "Contents > Accessories > "
std::string pathTo(const std::vector<HelpTopic>& topics, const HelpTopic& topic) {
    std::string above;
    for (int at = topic.parent; at >= 0; at = topics[static_cast<std::size_t>(at)].parent) {
        above = linkTo(topics[static_cast<std::size_t>(at)]) + " &gt; " + above;
    }
    return styled("p", "path", link("index.html", "Contents") + " &gt; " + above + escapeHtml(topic.title)) + "\n";
}

std::string heading(std::string_view name, int id) {
    const std::string anchor = "item" + std::to_string(id);
    return element(name,
                   "<a name=\"" + anchor + "\" id=\"" + anchor + "\">" + escapeHtml(findTweak(id)->title) + "</a>") +
           "\n";
}

// ---- Texts of the catalogue

std::string html(const TextPiece& piece) {
    return piece.literal ? element("code", escapeHtml(piece.text)) : escapeHtml(piece.text);
}

std::string html(const TextLine& line) {
    std::string text;
    for (const TextPiece& piece : line) {
        text += html(piece);
    }
    return text;
}

// A control's text in one line.
std::string label(std::string_view text) {
    std::string result(text.substr(0, text.find_last_not_of(" \r\n") + 1));
    std::ranges::replace(result, '\n', ' ');
    return escapeHtml(result);
}

// "Note:" and the text after it are one line; further line feeds become line breaks.
std::string note(std::string_view text) {
    constexpr std::string_view kNewLine = "<br />\n";
    std::string result;
    for (const char c : escapeHtml(text)) {
        if (c == '\t' && result.ends_with(kNewLine)) {
            result.replace(result.size() - kNewLine.size(), kNewLine.size(), " ");
        } else if (c == '\n') {
            result += kNewLine;
        } else if (c != '\r') {
            result += c;
        }
    }
    return result;
}

// The states of a control are separated by pieces of their own.
std::string states(const TextLine& line) {
    std::vector<std::string> parts(1);
    for (const TextPiece& piece : line) {
        if (!piece.literal && piece.text == "; ") {
            parts.emplace_back();
        } else {
            parts.back() += html(piece);
        }
    }
    const bool list = parts.size() > kStatesInOneLine;
    std::string text;
    for (const std::string& part : parts) {
        text += list ? element("li", part) : (text.empty() ? "" : "; ") + part;
    }
    return list ? element("ul", text) : text;
}

// ---- The controls of a tweak

// The rows of a list without a binding.
std::string rowsOf(const Table& table) {
    std::string rows;
    for (const TableColumn& column : table.columns) {
        rows += element("th", escapeHtml(column.heading));
    }
    rows = element("tr", rows);
    const std::size_t columns = table.columns.size();
    for (std::size_t row = 0; row * columns < table.cells.size(); ++row) {
        std::string cells;
        for (const std::string_view cell : table.cells.subspan(row * columns, columns)) {
            cells += element("td", escapeHtml(cell));
        }
        rows += element("tr", cells);
    }
    return element("dd", element("table", rows)) + "\n";
}

std::string textOf(const Tweak& tweak, const ControlText& control) {
    const BindingText binding = unlessTold(tweak, control.binding);
    const std::string id = control.control == 0 ? "" : ' ' + std::to_string(control.control);
    std::string text = "<dt>" + (control.name.empty() ? "" : element("b", label(control.name)) + " ");
    text += styled("span", "kind", std::string(control.kind) + id) + "</dt>\n";
    for (const TextLine& place : binding.places) {
        text += element("dd", html(place)) + "\n";
    }
    if (!tweak.showOnly) {
        for (const TextLine& effect : binding.effects) {
            text += element("dd", states(effect)) + "\n";
        }
    }
    const bool listsRows = tweak.table != nullptr && control.control == layoutOf(tweak.page).list;
    return listsRows && binding.effects.empty() && !tweak.table->cells.empty() ? text + rowsOf(*tweak.table) : text;
}

std::string controlsOf(const Tweak& tweak) {
    std::string text;
    for (const ControlText& control : controlTexts(tweak)) {
        text += textOf(tweak, control);
    }
    return text.empty() ? text : "<dl>\n" + text + "</dl>\n";
}

// ---- A tweak

std::string facts(const Tweak& tweak) {
    std::string text = "ItemId " + std::to_string(tweak.id) + ". ";
    if (!tweak.hasShow()) {
        return text + "Kept in the table, without a page: there is nothing to change.";
    }
    if (tweak.hasOverview()) {
        text += "A category; its overview lists";
        for (const int row : overviewItems(tweak)) {
            text += (text.ends_with("lists") ? " " : ", ") + linkTo(row);
        }
        return text + '.';
    }
    text += acceptedBy(tweak.gate) + '.';
    return text + (tweak.showOnly ? " The page only shows what is set; nothing is written." : "");
}

std::string registryLine(std::string_view name, std::string_view text) {
    return text.empty() ? "" : element("p", std::string(name) + ": " + html(markedText(text))) + "\n";
}

std::string entry(const Tweak& tweak) {
    std::string text = heading("h2", tweak.id) + element("p", escapeHtml(tweak.description)) + "\n" +
                       styled("p", "facts", facts(tweak)) + "\n";
    if (!tweak.hasShow() || tweak.hasOverview()) {
        return text;
    }
    text += controlsOf(tweak) + registryLine("Registry", tweak.registry) + registryLine("Source", tweak.source);
    return text + (tweak.note.empty() ? "" : styled("p", "note", note(tweak.note)) + "\n");
}

// ---- The pages

std::string introduction(const HelpTopic& topic) {
    if (topic.category >= 0) {
        return heading("h1", topic.category) + element("p", escapeHtml(findTweak(topic.category)->description)) + "\n";
    }
    const std::string text = topic.inTree ? "These rows stand at the top level of the tree, below the categories."
                                          : "These records have no row in the tree of the window. " +
                                                link("kmctl.html", "kmctl") +
                                                " shows and applies them by their ItemId or their title.";
    return element("h1", escapeHtml(topic.title)) + "\n" + element("p", text) + "\n";
}

HelpFile topicPage(const std::vector<HelpTopic>& topics, const HelpTopic& topic) {
    std::string links;
    for (const HelpTopic& below : topics) {
        if (below.parent >= 0 && &topics[static_cast<std::size_t>(below.parent)] == &topic) {
            links += element("li", styled("span", "category", linkTo(below))) + "\n";
        }
    }
    std::string entries;
    for (const int id : topic.items) {
        links += element("li", link("#item" + std::to_string(id), escapeHtml(findTweak(id)->title))) + "\n";
        entries += entry(*findTweak(id));
    }
    const std::string body =
        pathTo(topics, topic) + introduction(topic) + element("ul", "\n" + links) + "\n" + entries +
        styled("p", "foot", "What the terms mean: " + link("reading.html", "Reading the Tweak Pages")) + "\n";
    return page(topic.file, escapeHtml(topic.title), body);
}

// The topics below one, or those at the top, as lists within lists.
std::string topicList(const std::vector<HelpTopic>& topics, int parent, bool inTree) {
    std::string list;
    for (std::size_t i = 0; i < topics.size(); ++i) {
        if (topics[i].parent == parent && topics[i].inTree == inTree) {
            list += element("li", linkTo(topics[i]) + topicList(topics, static_cast<int>(i), inTree)) + "\n";
        }
    }
    return list.empty() ? list : "\n<ul>\n" + list + "</ul>\n";
}

HelpFile contentsPage(const std::vector<HelpTopic>& topics, std::span<const HelpFile> guide) {
    std::string pages;
    for (const HelpFile& written : guide) {
        pages += element("li", link(written.name, titleOfPage(written))) + "\n";
    }
    return page("index.html", "Korvane Manager Help",
                "<h1>Korvane Manager Help</h1>\n<ul>\n" + pages + "</ul>\n<h2>The tweaks</h2>\n<p>" +
                    link("all-tweaks.html", "All Tweaks from A to Z") + ", or by the categories of the tree:</p>" +
                    topicList(topics, -1, true) + "<h2>Not in the tree</h2>\n<p>Reachable with " +
                    link("kmctl.html", "kmctl") + " alone:</p>" + topicList(topics, -1, false));
}

char initialOf(int id) { return findTweak(id)->title.front(); }

HelpFile allTweaksPage() {
    std::vector<int> ids;
    for (int id = 0; id < kItemCount; ++id) {
        if (findTweak(id)->hasShow() && !findTweak(id)->isCategory()) {
            ids.push_back(id);
        }
    }
    std::ranges::stable_sort(ids, {}, [](int id) { return lowerCase(findTweak(id)->title); });
    std::string letters;
    std::string body;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (i == 0 || initialOf(ids[i]) != initialOf(ids[i - 1])) {
            const std::string letter(1, initialOf(ids[i]));
            letters += link("#" + letter, letter) + "\n";
            body.append(i == 0 ? "" : "</ul>\n");
            body += "<h2><a name=\"" + letter + "\" id=\"" + letter + "\">" + letter + "</a></h2>\n<ul>\n";
        }
        body +=
            element("li", linkTo(ids[i]) + styled("span", "kind", " " + escapeHtml(helpTopicOf(ids[i]).title))) + "\n";
    }
    return page("all-tweaks.html", "All Tweaks from A to Z",
                styled("p", "path", link("index.html", "Contents") + " &gt; All Tweaks from A to Z") +
                    "\n<h1>All Tweaks from A to Z</h1>\n" + styled("p", "letters", letters) + "\n" + body + "</ul>\n");
}

// The text between two marks; empty if they are missing.
std::string_view between(std::string_view text, std::string_view start, std::string_view end) {
    const std::size_t from = text.find(start);
    const std::size_t to = from == std::string_view::npos ? from : text.find(end, from + start.size());
    return to == std::string_view::npos ? "" : text.substr(from + start.size(), to - from - start.size());
}

}  // namespace

std::span<const std::string_view> helpGuide() { return kGuide; }

std::string escapeHtml(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '&': result += "&amp;"; break;
            case '<': result += "&lt;"; break;
            case '>': result += "&gt;"; break;
            case '"': result += "&quot;"; break;
            default: result += c;
        }
    }
    return result;
}

std::string titleOfPage(const HelpFile& page) { return std::string(between(page.text, "<title>", "</title>")); }

std::vector<std::string> keywordsOfPage(const HelpFile& page) {
    const std::string_view list = between(page.text, "<meta name=\"keywords\" content=\"", "\"");
    std::vector<std::string> keywords;
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find(", ", start), list.size());
        keywords.emplace_back(list.substr(start, end - start));
        start = end + 2;
    }
    return keywords;
}

std::vector<HelpFile> makeHelp(std::span<const HelpFile> guide) {
    const std::vector<HelpTopic> topics = helpTopics();
    std::vector<HelpFile> files{contentsPage(topics, guide), allTweaksPage()};
    for (const HelpTopic& topic : topics) {
        files.push_back(topicPage(topics, topic));
    }
    const std::vector<HelpFile> project = makeHelpProject(guide, files);
    files.insert(files.end(), project.begin(), project.end());
    return files;
}

}  // namespace korvane
