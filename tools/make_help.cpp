// Writes the help, as HTML pages and the project of an HTML Help file:
//     make_help help OUTPUT-FOLDER
// The first folder holds the hand-written pages and the style sheet, which are
// copied; the second one must exist.
#include "docgen/HelpPages.h"
#include "text/WholeFile.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t kLongestFile = 16 << 20;

[[noreturn]] void fail(const std::string& path, const char* reason) {
    std::fprintf(stderr, "make_help: %s: %s\n", path.c_str(), reason);
    std::exit(1);
}

std::string readFile(const std::string& path) {
    std::string text;
    std::string reason;
    if (!korvane::readWholeFile(path, kLongestFile, text, &reason)) {
        fail(path, reason.c_str());
    }
    return text;
}

void writeFile(const std::string& path, const std::string& text) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        fail(path, "cannot be made");
    }
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    if (std::fclose(file) != 0 || !written) {
        fail(path, "cannot be written");
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("Usage: make_help HELP-FOLDER OUTPUT-FOLDER\n", stderr);
        return 2;
    }
    const std::string source = std::string(arguments[1]) + '/';
    const std::string output = std::string(arguments[2]) + '/';
    std::vector<korvane::HelpFile> guide;
    for (const std::string_view name : korvane::helpGuide()) {
        guide.push_back({std::string(name), readFile(source + std::string(name))});
        if (korvane::titleOfPage(guide.back()).empty()) {
            fail(guide.back().name, "has no title");
        }
    }
    for (const korvane::HelpFile& file : korvane::makeHelp(guide)) {
        writeFile(output + file.name, file.text);
    }
    for (const korvane::HelpFile& page : guide) {
        writeFile(output + page.name, page.text);
    }
    writeFile(output + "help.css", readFile(source + "help.css"));
    return 0;
}
