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

// The names of the hand-written pages in reading order; the first is the start page.
std::span<const std::string_view> helpGuide();

// All generated files. The hand-written pages, in the order of helpGuide, are needed for their titles and keywords.
std::vector<HelpFile> makeHelp(std::span<const HelpFile> guide);

// The text escaped for HTML, attribute values included.
std::string escapeHtml(std::string_view text);

// The <title> of a page and the list in its <meta name="keywords">, both still escaped.
std::string titleOfPage(const HelpFile& page);
std::vector<std::string> keywordsOfPage(const HelpFile& page);

}  // namespace korvane
