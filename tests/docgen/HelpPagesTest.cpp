// The help: nothing of the catalogue is missing from its pages or told twice,
// every link leads somewhere, and no text breaks the HTML around it.
#include "docgen/HelpPages.h"

#include "docgen/HelpTopics.h"
#include "catalogue/Catalogue.h"
#include "text/WholeFile.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace korvane {
namespace {

const std::map<std::string, std::string>& files() {
    static const auto made = [] {
        std::vector<HelpFile> guide;
        for (const std::string_view name : helpGuide()) {
            HelpFile& page = guide.emplace_back(HelpFile{std::string(name), {}});
            EXPECT_TRUE(readWholeFile("help/" + page.name, 1 << 24, page.text)) << name;
        }
        std::map<std::string, std::string> all;
        for (const auto& some : {makeHelp(guide), guide}) {
            for (const HelpFile& file : some) {
                EXPECT_TRUE(all.emplace(file.name, file.text).second) << file.name << " is there twice";
            }
        }
        return all;
    }();
    return made;
}

bool has(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

// All that stands between the two marks.
std::vector<std::string> allBetween(const std::string& text, std::string_view start, std::string_view end) {
    std::vector<std::string> found;
    for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at)) {
        at += start.size();
        found.push_back(text.substr(at, text.find(end, at) - at));
    }
    return found;
}

TEST(HelpPages, DescribeAndListEveryRecord) {
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        const std::string& page = files().at(helpTopicOf(id).file);
        EXPECT_TRUE(has(page, '>' + escapeHtml(tweak.title) + "</a>")) << id;
        EXPECT_TRUE(has(page, "<p>" + escapeHtml(tweak.description) + "</p>")) << id;
        const std::string address = '"' + helpAddress(id) + '"';
        EXPECT_EQ(has(files().at("all-tweaks.html"), address), tweak.hasShow() && !tweak.isCategory()) << id;
        EXPECT_EQ(has(files().at("English.hhc"), address), helpTopicOf(id).category != id) << id;
        EXPECT_EQ(has(files().at("English.hhk"), address), tweak.hasShow()) << id;
    }
}

TEST(HelpPages, HaveLinksThatLeadSomewhere) {
    std::set<std::string> known{"help.css"};
    for (const auto& [name, text] : files()) {
        known.insert(name);
        for (const std::string& id : allBetween(text, " id=\"", "\"")) {
            EXPECT_TRUE(known.insert(name + "#" + id).second) << name << " has two anchors " << id;
        }
    }
    for (const auto& [name, text] : files()) {
        const bool isPage = name.ends_with(".html");
        for (const std::string& address : allBetween(text, isPage ? " href=\"" : "\"Local\" value=\"", "\"")) {
            EXPECT_TRUE(known.contains(address.starts_with('#') ? name + address : address)) << name << ": " << address;
        }
    }
}

TEST(HelpPages, EscapeWhateverMeansSomethingInHtml) {
    EXPECT_EQ(escapeHtml("<a href=\"x\">R&D; &lt;"), "&lt;a href=&quot;x&quot;&gt;R&amp;D; &amp;lt;");
}

}  // namespace
}  // namespace korvane
