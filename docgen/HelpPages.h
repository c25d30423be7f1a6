// The help as HTML: a page for each topic of the catalogue, the contents, the
// list of all tweaks, and the project from which an HTML Help file is compiled.
// The hand-written pages are help/*.html.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

struct HelpFile {
    std::string name;
    std::string text;

    bool operator==(const HelpFile&) const = default;
};

// The names of the hand-written pages, in the order in which they are to be read; the first is the start page.
std::span<const std::string_view> helpGuide();

// All files besides the hand-written ones, which are given in the order of helpGuide: their titles and keywords go
// into the contents and the index.
std::vector<HelpFile> makeHelp(std::span<const HelpFile> guide);

// The text as it stands in HTML, also between double quotation marks.
std::string escapeHtml(std::string_view text);

// For sorting and comparing: ASCII letters alone.
std::string lowerCase(std::string_view text);

// What a page says of itself, as escaped as it is there: its <title>, and the list in <meta name="keywords">.
std::string titleOfPage(const HelpFile& page);
std::vector<std::string> keywordsOfPage(const HelpFile& page);

}  // namespace korvane
