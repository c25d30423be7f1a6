// The help: nothing of the catalogue is missing from its pages or told twice,
// every link leads somewhere, and no text breaks the HTML around it.
#include "app/HelpPages.h"

#include "app/BindingText.h"
#include "app/HelpTopics.h"
#include "catalogue/Catalogue.h"
#include "pages/PageLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

namespace korvane {
namespace {

std::string readAll(const std::string& path) {
    std::string text;
    if (std::FILE* file = std::fopen(path.c_str(), "rb")) {
        char part[4096];
        for (std::size_t got; (got = std::fread(part, 1, sizeof part, file)) > 0;) {
            text.append(part, got);
        }
        std::fclose(file);
    }
    return text;
}

const std::vector<HelpFile>& guide() {
    static const auto read = [] {
        std::vector<HelpFile> pages;
        for (const std::string_view name : helpGuide()) {
            pages.push_back({std::string(name), readAll("help/" + std::string(name))});
        }
        return pages;
    }();
    return read;
}

const std::map<std::string, std::string>& files() {
    static const auto made = [] {
        std::map<std::string, std::string> all;
        for (const auto& some : {makeHelp(guide()), guide()}) {
            for (const HelpFile& file : some) {
                EXPECT_TRUE(all.emplace(file.name, file.text).second) << file.name << " is there twice";
                EXPECT_FALSE(file.text.empty()) << file.name;
            }
        }
        return all;
    }();
    return made;
}

bool isPage(std::string_view name) { return name.ends_with(".html"); }
bool has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

std::size_t count(std::string_view text, std::string_view part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

// All that stands between the two marks.
std::vector<std::string> allBetween(const std::string& text, std::string_view start, std::string_view end) {
    std::vector<std::string> found;
    for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at)) {
        at += start.size();
        found.push_back(text.substr(at, text.find(end, at) - at));
    }
    return found;
}

std::string anchorOf(int id) {
    const std::string name = "item" + std::to_string(id);
    return "<a name=\"" + name + "\" id=\"" + name + "\">" + escapeHtml(findTweak(id)->title) + "</a>";
}

// From a record's heading to the next one or the end of the page.
std::string entry(int id) {
    const std::string& page = files().at(helpTopicOf(id).file);
    const std::size_t start = page.find(anchorOf(id));
    return start == std::string::npos ? "" : page.substr(start, page.find("<h2>", start) - start);
}

// ---- Completeness

TEST(HelpPages, DescribeEveryRecordOnce) {
    std::string all;
    for (const auto& [name, text] : files()) {
        all += isPage(name) ? text : "";
    }
    std::map<std::string_view, std::size_t> descriptions;
    for (int id = 0; id < kItemCount; ++id) {
        ++descriptions[findTweak(id)->description];
    }
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        const std::string description = "<p>" + escapeHtml(tweak.description) + "</p>";
        EXPECT_EQ(count(all, anchorOf(id)), 1u) << id;
        EXPECT_EQ(count(all, description), descriptions[tweak.description]) << id;
        EXPECT_TRUE(has(entry(id), description)) << id << " is not in " << helpTopicOf(id).file;
        EXPECT_EQ(helpTopicOf(id).inTree, tweak.treeParent != kNoTreeRow) << id;
        const bool listed = tweak.hasShow() && !tweak.isCategory();
        EXPECT_EQ(count(files().at("all-tweaks.html"), "\"" + helpAddress(id) + "\""), listed ? 1u : 0u) << id;
    }
}

// Whether the entry has all that a binding says, each literal part marked as such.
void expectTold(const Tweak& tweak, std::string_view label, int control, const BindingText& binding) {
    const std::string text = entry(tweak.id);
    SCOPED_TRACE(text);
    EXPECT_TRUE(has(text, ' ' + std::to_string(control) + "</span></dt>"));
    EXPECT_TRUE(label.find_first_of(" \n") != std::string_view::npos || has(text, "<b>" + escapeHtml(label) + "</b>"));
    for (const auto& lines : {binding.places, tweak.showOnly ? std::vector<TextLine>() : binding.effects}) {
        for (const TextLine& line : lines) {
            for (const TextPiece& piece : line) {
                const std::string escaped = escapeHtml(piece.text);
                EXPECT_TRUE(piece.text == "; " || has(text, piece.literal ? "<code>" + escaped + "</code>" : escaped))
                    << piece.text;
            }
        }
    }
}

TEST(HelpPages, TellEveryControlAndWhatItWrites) {
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        for (std::size_t i = 0; i < tweak.boxes.size(); ++i) {
            expectTold(tweak, tweak.boxes[i].text, boxControl(tweak, i), describe(tweak.boxes[i]));
        }
        for (std::size_t i = 0; i < tweak.fields.size(); ++i) {
            expectTold(tweak, tweak.fields[i].label, fieldControls(tweak, i).edit, describe(tweak.fields[i]));
        }
        for (std::size_t i = 0; i < tweak.choices.size(); ++i) {
            expectTold(tweak, tweak.choices[i].label, choiceControls(tweak, i).combo, describe(tweak.choices[i]));
        }
        if (tweak.table != nullptr) {
            expectTold(tweak, " ", layoutOf(tweak.page).list, describe(*tweak.table));
        }
        EXPECT_EQ(has(entry(id), "<p>Registry: "), !tweak.registry.empty()) << id;
        EXPECT_EQ(has(entry(id), "<p>Source: "), !tweak.source.empty()) << id;
        EXPECT_EQ(has(entry(id), "<p class=\"note\">"), !tweak.note.empty()) << id;
    }
}

TEST(HelpPages, SayWhoAcceptsATweak) {
    struct Case {
        int id;
        const char* facts;
    };
    for (const Case& expected :
         {Case{2, "ItemId 2. Every Windows.</p>"}, Case{11, "Windows NT 4, 2000, XP.</p>"},
          Case{86, "Windows 95, 98, Me, NT 4, 2000.</p>"}, Case{114, "Windows 98.</p>"},
          Case{4, "without a page: there is nothing to change.</p>"},
          Case{38, "A category; its overview lists <a href=\"accessories-kmctl.html#item39\">"}}) {
        EXPECT_TRUE(has(entry(expected.id), expected.facts)) << entry(expected.id);
    }
}

TEST(HelpPages, PutFewStatesInOneLineAndManyInAList) {
    EXPECT_EQ(entry(11),
              anchorOf(11) + "</h2>\n<p>" + escapeHtml(findTweak(11)->description) +
                  "</p>\n<p class=\"facts\">ItemId 11. Windows NT 4, 2000, XP.</p>\n<dl>\n"
                  "<dt><b>Enable Quick Edit the Command Prompt</b> <span class=\"kind\">check box 1013</span></dt>\n"
                  "<dd><code>QuickEdit</code> (REG_DWORD) in <code>HKCU\\Console</code>, opened</dd>\n"
                  "<dd>checked: <code>1</code>; cleared: <code>0</code></dd>\n</dl>\n"
                  "<p class=\"note\">Note: You may need to restart or log out of Windows for the change to take "
                  "effect.</p>\n");
    EXPECT_TRUE(has(entry(8), "<ul><li>Disable: the value is deleted</li><li>Backspace key: <code>8</code></li>"));
    EXPECT_TRUE(has(entry(3),
                    "Note: you may need to restart or log out of Windows for the change to take effect.<br />\n"
                    "If you enable"))
        << entry(3);
    // A list that only explains keeps its rows.
    EXPECT_TRUE(has(entry(41), "<table><tr><th>") && count(entry(41), "<tr>") > 5) << entry(41);
}

// ---- Links

// A page's own anchors, "start.html#x", and itself.
std::set<std::string> targets() {
    std::set<std::string> found;
    for (const auto& [name, text] : files()) {
        found.insert(name);
        for (const std::string& id : allBetween(text, " id=\"", "\"")) {
            EXPECT_TRUE(found.insert(name + "#" + id).second) << name << " has two anchors " << id;
        }
    }
    found.insert("help.css");
    return found;
}

TEST(HelpPages, HaveLinksThatLeadSomewhere) {
    const std::set<std::string> known = targets();
    int links = 0;
    for (const auto& [name, text] : files()) {
        for (const std::string& address : allBetween(text, isPage(name) ? " href=\"" : "\"Local\" value=\"", "\"")) {
            EXPECT_TRUE(known.contains(address.starts_with('#') ? name + address : address)) << name << ": " << address;
            ++links;
        }
    }
    EXPECT_GT(links, 1500);
}

TEST(HelpPages, AreAllInTheProjectTheContentsAndTheContentsPage) {
    const std::string& project = files().at("English.hhp");
    const std::string& contents = files().at("English.hhc");
    const std::string fileList = project.substr(project.find("[FILES]"));
    for (const auto& [name, text] : files()) {
        if (isPage(name)) {
            EXPECT_EQ(count(fileList, "\n" + name + "\n"), 1u) << name;
            EXPECT_EQ(count(contents, "value=\"" + name + "\""), 1u) << name;
            EXPECT_TRUE(name == "index.html" || has(files().at("index.html"), "href=\"" + name + "\"")) << name;
            EXPECT_TRUE(name == "index.html" || has(text, "<a href=\"index.html\">Contents</a>")) << name;
        }
    }
    for (int id = 0; id < kItemCount; ++id) {
        const bool aPageOfItsOwn = helpTopicOf(id).category == id;
        EXPECT_EQ(count(contents, "value=\"" + helpAddress(id) + "\""), aPageOfItsOwn ? 0u : 1u) << id;
    }
    EXPECT_EQ(count(contents, "<UL>"), count(contents, "</UL>"));
    EXPECT_TRUE(has(project, "\nTitle=Korvane Manager Help\n") && has(project, "\nDefault topic=start.html\n") &&
                has(project, "\nFull-text search=Yes\n"));
}

// ---- The index

// What follows a keyword in its entry.
std::string keyword(std::string_view word) {
    const std::string& index = files().at("English.hhk");
    const std::string start =
        "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + std::string(word) + "\">";
    EXPECT_LE(count(index, start), 1u) << word;
    const std::size_t at = index.find(start);
    return at == std::string::npos ? ""
                                   : index.substr(at + start.size(), index.find("</OBJECT>", at) - at - start.size());
}

TEST(HelpPages, AreIndexedByTitlesNamesOfValuesAndKeywords) {
    for (int id = 0; id < kItemCount; ++id) {
        const std::string found = keyword(escapeHtml(findTweak(id)->title));
        EXPECT_EQ(has(found, "value=\"" + helpAddress(id) + "\""), findTweak(id)->hasShow()) << id;
    }
    const auto target = [](int id) {
        return "<param name=\"Name\" value=\"" + escapeHtml(findTweak(id)->title) +
               "\"><param name=\"Local\" value=\"" + helpAddress(id) + "\">";
    };
    EXPECT_EQ(keyword("QuickEdit"), target(11));
    EXPECT_EQ(keyword("CompletionChar"), target(8)) << "two controls of one page are one target";
    EXPECT_TRUE(has(keyword("Wallpaper"), target(295)) && has(keyword("Wallpaper"), target(162)));
    EXPECT_EQ(keyword("HKCU\\Console"), "") << "keys are no keywords";
    EXPECT_TRUE(has(keyword("DFile.mrc"), "value=\"dates.html\""));
    EXPECT_GT(count(files().at("English.hhk"), "<LI>"), 400u);
}

// ---- Escaping

TEST(HelpPages, EscapeWhateverMeansSomethingInHtml) {
    EXPECT_EQ(escapeHtml("<a href=\"x\">R&D; &lt;"), "&lt;a href=&quot;x&quot;&gt;R&amp;D; &amp;lt;");
    const std::vector<HelpFile> pages = makeHelp(std::vector<HelpFile>{
        {"start.html", "<title>Q &amp; A</title><meta name=\"keywords\" content=\"&lt;Tab&gt;, a &amp; b\" />"}});
    for (const HelpFile& file : pages) {
        EXPECT_TRUE(file.name != "index.html" || has(file.text, "<a href=\"start.html\">Q &amp; A</a>")) << file.text;
        EXPECT_TRUE(file.name != "English.hhc" || has(file.text, "value=\"Q &amp; A\"")) << file.text;
        EXPECT_TRUE(file.name != "English.hhk" || has(file.text, "value=\"&lt;Tab&gt;\"")) << file.text;
    }
}

// No text of the catalogue slips through: every & begins a name that HTML knows, every < a tag of ours.
TEST(HelpPages, HaveNoLooseMarks) {
    for (const auto& [name, text] : files()) {
        for (std::size_t at = text.find('&'); name != "English.hhp" && at != std::string::npos;
             at = text.find('&', at + 1)) {
            const std::string entity = text.substr(at, text.find(';', at) + 1 - at);
            EXPECT_TRUE(std::set<std::string>({"&amp;", "&lt;", "&gt;", "&quot;"}).contains(entity)) << name << entity;
        }
        EXPECT_EQ(count(text, "<"), count(text, ">")) << name;
        EXPECT_TRUE(std::ranges::all_of(text, [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); })) << name;
    }
}

}  // namespace
}  // namespace korvane
